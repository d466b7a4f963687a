// The .scr model: header and line layout, line edits, the catalogue and the tokenizer.
#include "Script.h"

#include "CurrentDirGuard.h"
#include "FormatChecks.h"

#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <climits>
#include <sstream>

using arcanum::Script;

namespace {

void putInt32(QByteArray& out, qint32 value)
{
    char bytes[4];
    qToLittleEndian(value, bytes);
    out.append(bytes, 4);
}

// A header whose every field holds a distinct value, so a field read from the wrong place shows.
QByteArray headerBytes(qint32 lineCount, qint32 lineBound, const QByteArray& desc = "Guard at the gate")
{
    QByteArray out;
    putInt32(out, 0x04030201);
    out.append("\xA1\xB2\xC3\xD4", 4);
    out.append(desc.left(40).leftJustified(40, '\0'));
    putInt32(out, -7);
    putInt32(out, lineCount);
    putInt32(out, lineBound);
    putInt32(out, 0x7F00FF01);
    return out;
}

// Statement bytes: code, eight type bytes, eight values; seed varies every slot.
QByteArray statementBytes(qint32 code, int seed)
{
    QByteArray out;
    putInt32(out, code);
    for (int i = 0; i < 8; ++i)
        out.append(static_cast<char>((seed * 8 + i) % 251));
    for (int i = 0; i < 8; ++i)
        putInt32(out, (seed - 4) * 100003 * (i + 1));
    return out;
}

QByteArray lineBytes(qint32 condition, qint32 thenAction, qint32 elseAction, int seed)
{
    return statementBytes(condition, seed) + statementBytes(thenAction, seed + 1) + statementBytes(elseAction, seed + 2);
}

QByteArray sampleFile(int lines)
{
    QByteArray out = headerBytes(lines, lines + 3);
    for (int i = 0; i < lines; ++i)
        out += lineBytes(i % 2 ? 0 : 2 + i, 10 + i, 3 * i, i);
    return out;
}

QStringList kinds(const Script::Tokens& tokens)
{
    static const char* const names[] = {"text", "num", "obj", "line"};
    QStringList out;
    for (const Script::Token& token : tokens)
        out << QString::fromLatin1(token.kind >= 0 && token.kind <= 3 ? names[token.kind] : "?");
    return out;
}

QStringList texts(const Script::Tokens& tokens)
{
    QStringList out;
    for (const Script::Token& token : tokens)
        out << QString::fromStdString(token.text);
    return out;
}

} // namespace

class TestScript : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

    QString put(const QByteArray& bytes, const QString& name = QStringLiteral("00042test.scr"))
    {
        const QString path = dir.filePath(name);
        FormatChecks::writeFile(path, bytes);
        return path;
    }

    QByteArray saved(const Script& script)
    {
        const QString path = dir.filePath(QStringLiteral("00099out.scr"));
        if (!script.save(path))
            return QByteArray("save failed");
        return FormatChecks::readFile(path);
    }

private slots:
    void freshScriptIsEmpty()
    {
        Script script;
        QCOMPARE(script.getId(), -1);
        QCOMPARE(script.lineTotal(), 0);
        QCOMPARE(script.toBytes(), QByteArray(64, '\0'));
    }

    void roundTrip_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("header only") << headerBytes(0, 0) << headerBytes(0, 0);
        QTest::newRow("three lines") << sampleFile(3) << sampleFile(3);
        QTest::newRow("trailing bytes dropped") << sampleFile(2) + QByteArray("tail") << sampleFile(2);
        QTest::newRow("full description") << headerBytes(0, 0, QByteArray(40, 'D')) << headerBytes(0, 0, QByteArray(40, 'D'));
    }

    void roundTrip()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, expected);
        Script script;
        QVERIFY(script.load(put(file)));
        QCOMPARE(script.getId(), 42);
        QCOMPARE(saved(script), expected);
        QCOMPARE(saved(script).size(), 64 + 132 * script.getHeader().lineCount);
    }

    void fieldsAreLittleEndian()
    {
        Script script;
        QVERIFY(script.load(put(sampleFile(2))));
        const Script::Header& header = script.getHeader();
        QCOMPARE(header.headerWord, 0x04030201);
        QCOMPARE(header.headerBytes[0], quint8(0xA1));
        QCOMPARE(header.headerBytes[3], quint8(0xD4));
        QCOMPARE(header.headerWord48, -7);
        QCOMPARE(header.lineCount, 2);
        QCOMPARE(header.lineBound, 5);
        QCOMPARE(header.headerWord60, 0x7F00FF01);
        QCOMPARE(header.desc(), std::string("Guard at the gate"));
        const Script::Line& second = script.getLines().at(1);
        QCOMPARE(second.condition.code, 0);
        QCOMPARE(second.thenAction.code, 11);
        QCOMPARE(second.elseAction.code, 3);
        QCOMPARE(second.thenAction.types[7], quint8(23));
        QCOMPARE(second.condition.values[0], -300009);
        QCOMPARE(second.elseAction.values[7], -100003 * 8);
    }

    void descriptionOfFortyBytes()
    {
        Script script;
        QVERIFY(script.load(put(headerBytes(0, 0, QByteArray(40, 'x')))));
        QCOMPARE(script.getHeader().desc(), std::string(40, 'x'));
        script.getHeader().setDesc(std::string(50, 'y'));
        QCOMPARE(script.getHeader().desc(), std::string(40, 'y'));
        script.getHeader().setDesc("short");
        QCOMPARE(script.toBytes().mid(8, 40), QByteArray("short").leftJustified(40, '\0'));
    }

    void idFromFilename_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("id");
        QTest::newRow("digits") << "00023guard.scr" << 23;
        QTest::newRow("five digits only") << "12345" << 12345;
        QTest::newRow("zero") << "00000x.scr" << 0;
        QTest::newRow("letters") << "guard.scr" << -1;
        QTest::newRow("digit then letter") << "0002a.scr" << -1;
        QTest::newRow("short name") << "12.sc" << -1;
        QTest::newRow("empty") << "" << -1;
    }

    void idFromFilename()
    {
        QFETCH(QString, name);
        QFETCH(int, id);
        QCOMPARE(Script::idFromFilename(name), id);
    }

    void loadRefusesBadNameOrMissingFile()
    {
        Script script;
        QVERIFY(!script.load(put(sampleFile(1), QStringLiteral("guard.scr"))));
        QCOMPARE(script.getId(), -1);
        QVERIFY(!script.load(dir.filePath(QStringLiteral("00001missing.scr"))));
        QCOMPARE(script.getId(), -1);
        QCOMPARE(script.lineTotal(), 0);
    }

    void lineBoundRule_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("bound");
        QTest::addColumn<int>("boundAfter");
        QTest::newRow("reaches bound") << 9 << 10 << 11;
        QTest::newRow("room left") << 2 << 10 << 10;
        QTest::newRow("bound below count") << 4 << 1 << 6;
    }

    void lineBoundRule()
    {
        QFETCH(int, count);
        QFETCH(int, bound);
        QFETCH(int, boundAfter);
        QByteArray file = headerBytes(count, bound);
        for (int i = 0; i < count; ++i)
            file += lineBytes(1, 0, 0, i);
        Script script;
        QVERIFY(script.load(put(file)));
        QVERIFY(script.addAction(4));
        QCOMPARE(script.getHeader().lineCount, count + 1);
        QCOMPARE(script.getHeader().lineBound, boundAfter);
        QVERIFY(script.deleteLine(count));
        QCOMPARE(script.getHeader().lineCount, count);
        QCOMPARE(script.getHeader().lineBound, boundAfter);
        QVERIFY(!script.deleteLine(count));
        QVERIFY(!script.deleteLine(-1));
    }

    void addedLinesAreBlank()
    {
        Script script;
        script.addCondition(6);
        script.addAction(10);
        const Script::Line& ifLine = script.getLines().at(0);
        QCOMPARE(ifLine.condition.code, 6);
        QCOMPARE(ifLine.thenAction.code, 0);
        QCOMPARE(ifLine.elseAction.code, 0);
        const Script::Line& doLine = script.getLines().at(1);
        QCOMPARE(doLine.condition.code, 0);
        QCOMPARE(doLine.thenAction.code, 10);
        QCOMPARE(script.toBytes().size(), 64 + 2 * 132);
        QCOMPARE(script.toBytes().mid(64 + 4, 128), QByteArray(128, '\0'));
    }

    void movesSwapWholeLines()
    {
        Script script;
        for (int code : {1, 2, 3})
            script.addCondition(code);
        script.getStatement(0, Script::LineElse)->code = 99;
        const QByteArray before = script.toBytes();
        script.moveLineUp(0);
        script.moveLineDown(2);
        script.moveLineUp(INT_MIN);
        script.moveLineDown(INT_MAX);
        QCOMPARE(script.toBytes(), before);
        script.moveLineDown(0);
        QCOMPARE(script.getLines().at(1).condition.code, 1);
        QCOMPARE(script.getLines().at(1).elseAction.code, 99);
        script.moveLineUp(2);
        QCOMPARE(script.getLines().at(1).condition.code, 3);
        QCOMPARE(script.getLines().at(2).elseAction.code, 99);
    }

    void getStatementPicksSlot()
    {
        Script script;
        script.addCondition(5);
        QCOMPARE(script.getStatement(0, Script::LineIf)->code, 5);
        QCOMPARE(script.getStatement(0, Script::LineDo), script.getStatement(0, Script::LineThen));
        QVERIFY(script.getStatement(0, Script::LineElse) != script.getStatement(0, Script::LineThen));
        QVERIFY(!script.getStatement(0, static_cast<Script::LineType>(4)));
        QVERIFY(!script.getStatement(1, Script::LineIf));
        QVERIFY(!script.getStatement(-1, Script::LineIf));
    }

    void clearKeepsHeader()
    {
        Script script;
        QVERIFY(script.load(put(sampleFile(2))));
        script.clear();
        QCOMPARE(script.getId(), -1);
        QCOMPARE(script.lineTotal(), 0);
        QVERIFY(script.getFileName().isEmpty());
        QCOMPARE(script.getHeader().headerWord, 0x04030201);
    }

    void shortFileYieldsClaimedLines()
    {
        // Two whole lines and half of the third; the header claims four.
        QByteArray file = sampleFile(4);
        file.chop(132 + 100);
        Script script;
        QVERIFY(script.load(put(file)));
        QCOMPARE(script.lineTotal(), 4);
        QCOMPARE(script.getLines().at(2).condition.code, 4);
        QCOMPARE(script.getLines().at(2).elseAction.code, 0); // not in the file
        QCOMPARE(script.getLines().at(3).thenAction.code, 0);
        QCOMPARE(saved(script).left(file.size()), file);
    }

    void damagedLineCount_data()
    {
        QTest::addColumn<qint32>("lineCount");
        QTest::addColumn<int>("linesFound");
        QTest::addColumn<qint32>("countKept");
        QTest::newRow("negative") << qint32(-5) << 0 << qint32(-5);
        QTest::newRow("minus one") << qint32(-1) << 0 << qint32(-1);
        QTest::newRow("huge") << qint32(INT_MAX) << int(Script::MaxMissingLines) << qint32(Script::MaxMissingLines);
        QTest::newRow("few missing") << qint32(40) << 40 << qint32(40);
    }

    void damagedLineCount()
    {
        QFETCH(qint32, lineCount);
        QFETCH(int, linesFound);
        QFETCH(qint32, countKept);
        QByteArray file = headerBytes(lineCount, 0) + lineBytes(1, 2, 3, 1);
        Script script;
        QVERIFY(script.load(put(file)));
        QCOMPARE(script.lineTotal(), linesFound);
        QCOMPARE(script.getHeader().lineCount, countKept);
        const QByteArray back = saved(script);
        QCOMPARE(back.size(), 64 + 132 * linesFound);
        if (lineCount < 0)
            QCOMPARE(back, headerBytes(lineCount, 0));
        // A line added to a file whose count was negative is counted and written.
        QVERIFY(script.addAction(4));
        QCOMPARE(script.getHeader().lineCount, qint32(linesFound + 1));
        QCOMPARE(saved(script).size(), 64 + 132 * (linesFound + 1));
    }

    void everyPrefixLoads()
    {
        const QByteArray file = sampleFile(3);
        const QString path = dir.filePath(QStringLiteral("00007prefix.scr"));
        FormatChecks::forEveryPrefix(file, path, [this, &file](const QString& prefixPath) {
            Script script;
            QVERIFY(script.load(prefixPath));
            const QByteArray back = saved(script);
            const int size = int(FormatChecks::readFile(prefixPath).size());
            // Whatever the file held survives; what it lacks is zero.
            if (size >= 64)
                QCOMPARE(back.left(size), file.left(size));
            for (const Script::Line& line : script.getLines()) {
                Script::tokenizeCondition(line.condition);
                Script::tokenizeAction(line.thenAction);
            }
        });
    }

    void corruptFilesSurvive()
    {
        const QByteArray file = sampleFile(5);
        for (unsigned seed = 1; seed < 60; ++seed) {
            Script script;
            QVERIFY(script.load(put(FormatChecks::corrupt(file, seed, 16))));
            QVERIFY(script.lineTotal() <= qMax(5, int(Script::MaxMissingLines)));
            for (const Script::Line& line : script.getLines()) {
                Script::tokenizeCondition(line.condition);
                Script::tokenizeAction(line.thenAction);
                Script::tokenizeAction(line.elseAction);
            }
            saved(script);
        }
    }

    void headerStreams()
    {
        Script script;
        std::istringstream in(headerBytes(3, 4).toStdString());
        QVERIFY(script.loadHeader(in));
        QCOMPARE(script.getHeader().lineCount, 3);
        std::ostringstream out;
        QVERIFY(script.saveHeader(out));
        QCOMPARE(QByteArray::fromStdString(out.str()), headerBytes(3, 4));

        // A stream shorter than the header leaves the fields it lacks as they were.
        std::istringstream shortIn(std::string("\x09\0\0\0", 4));
        QVERIFY(script.loadHeader(shortIn));
        QCOMPARE(script.getHeader().headerWord, 9);
        QCOMPARE(script.getHeader().lineCount, 3);
    }

    void loadHeaderByName()
    {
        QTemporaryDir game;
        QVERIFY(QDir(game.path()).mkpath(QStringLiteral("data/scr")));
        FormatChecks::writeFile(game.filePath(QStringLiteral("data/scr/00005a.scr")), sampleFile(2));
        CurrentDirGuard cwd(game.path());
        QVERIFY(cwd.ok);
        Script script;
        QVERIFY(script.loadHeader(QStringLiteral("00005a.scr")));
        QCOMPARE(script.getHeader().lineCount, 2);
        QCOMPARE(script.getId(), -1);
        QCOMPARE(script.lineTotal(), 0);
        QVERIFY(!script.loadHeader(QStringLiteral("00000a.scr")));
        QVERIFY(!script.loadHeader(QStringLiteral("00006missing.scr")));
    }

    void catalogueEnds()
    {
        QCOMPARE(Script::conditionString(0), std::string("it is daytime"));
        QCOMPARE(Script::conditionString(51), std::string("(obj) is waiting for leader's return"));
        QCOMPARE(Script::conditionString(33), std::string("(obj) is within (num) tiles of location X:(num) Y:(num)"));
        QCOMPARE(Script::actionString(0), std::string("do nothing"));
        QCOMPARE(Script::actionString(80),
                 std::string("magic/tech: adjust (num) by item (obj) used by (obj) on (obj): store in (num)"));
        QCOMPARE(Script::actionString(141),
                 std::string("set night standpoint of critter (obj) to X:(num) Y:(num) on map (num)"));
        QCOMPARE(Script::numTypeToString(Script::Counter), std::string("Counter"));
        QCOMPARE(Script::numTypeToString(Script::PcFlag), std::string("PC Flag"));
        QCOMPARE(Script::objectTypeToString(Script::Triggerer), std::string("Triggerer"));
        QCOMPARE(Script::objectTypeToString(Script::EveryoneInTeam), std::string("Everyone in team PC and NPC (MP)"));
        QCOMPARE(Script::objectTypeToString(Script::AnyItemInVicinity), std::string("Any item in vicinity"));
    }

    void catalogueOutsideRange()
    {
        QCOMPARE(Script::conditionString(52), std::string("unknown condition 53"));
        QCOMPARE(Script::conditionString(-1), std::string("unknown condition 0"));
        QCOMPARE(Script::actionString(142), std::string("unknown action 142"));
        QCOMPARE(Script::numTypeToString(static_cast<Script::NumType>(7)), std::string("unknown number type 7"));
        QCOMPARE(Script::objectTypeToString(static_cast<Script::ObjectType>(255)), std::string("unknown object type 255"));
    }

    void everyTemplateTokenizes()
    {
        int withOperands = 0;
        for (int code = 0; code < Script::ActionCount + Script::ConditionCount; ++code) {
            const std::string templ = code < Script::ActionCount ? Script::actionString(code)
                                                                  : Script::conditionString(code - Script::ActionCount);
            QVERIFY(templ.find("unknown") != 0);
            Script::Tokens tokens;
            Script::tokenize(templ, tokens);
            QVERIFY(!texts(tokens).contains(QStringLiteral("UNKNOWN TOKEN FOUND")));
            QVERIFY(kinds(tokens).count(QStringLiteral("num")) + kinds(tokens).count(QStringLiteral("obj")) <= 7);
            withOperands += kinds(tokens).contains(QStringLiteral("num")) || kinds(tokens).contains(QStringLiteral("obj"));
        }
        QCOMPARE(withOperands, 135 + 50); // all but seven actions and two conditions
    }

    void tokenize_data()
    {
        QTest::addColumn<QString>("templ");
        QTest::addColumn<QStringList>("kinds");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("plain") << "do nothing" << QStringList{"text"} << QStringList{"do nothing"};
        QTest::newRow("coins are text") << QString::fromStdString(Script::actionString(115))
                                        << QStringList{"text", "obj", "text", "obj"}
                                        << QStringList{"have ", "", " try to steal 100 coins from ", ""};
        QTest::newRow("X: before num") << QString::fromStdString(Script::conditionString(31))
                                       << QStringList{"obj", "text", "num", "text", "num"}
                                       << QStringList{"", " is at location X:", "", " Y:", ""};
        QTest::newRow("line number") << "goto (linenum)!" << QStringList{"text", "line", "text"}
                                     << QStringList{"goto ", "", "!"};
        QTest::newRow("unknown piece") << "a (foo) b" << QStringList{"text", "text", "text"}
                                       << QStringList{"a ", "UNKNOWN TOKEN FOUND", " b"};
        QTest::newRow("unclosed") << "a (num" << QStringList{"text", "text"} << QStringList{"a ", "(num"};
        QTest::newRow("empty") << "" << QStringList{} << QStringList{};
    }

    void tokenize()
    {
        QFETCH(QString, templ);
        QFETCH(QStringList, kinds);
        QFETCH(QStringList, texts);
        Script::Tokens tokens;
        Script::tokenize(templ.toStdString(), tokens);
        QCOMPARE(::kinds(tokens), kinds);
        QCOMPARE(::texts(tokens), texts);
        for (const Script::Token& token : tokens) {
            if (token.kind == Script::Token::Num)
                QVERIFY(token.numType == Script::Number && token.value == 1);
        }
    }

    void action102HasSevenOperands()
    {
        Script::Statement st;
        st.code = 102;
        for (int i = 0; i < 8; ++i) {
            st.types[i] = quint8(i);
            st.values[i] = 1000 + i;
        }
        const Script::Tokens tokens = Script::tokenizeAction(st);
        QStringList operands;
        QList<int> values;
        for (const Script::Token& token : tokens) {
            if (token.kind == Script::Token::Num || token.kind == Script::Token::Obj) {
                operands << kinds({token});
                values << token.value;
            }
        }
        QCOMPARE(operands, QStringList({"num", "num", "num", "obj", "num", "num", "num"}));
        // Slot 3 is the object: its type is in the type byte, the value of slot 3 is skipped.
        QCOMPARE(values, QList<int>({1000, 1001, 1002, 3, 1004, 1005, 1006}));
        QCOMPARE(tokens.at(1).numType, 0);
    }

    void unknownCodesShowAsText_data()
    {
        QTest::addColumn<bool>("condition");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::newRow("condition 77") << true << 77 << "unknown condition 77";
        QTest::newRow("condition 0") << true << 0 << "unknown condition 0";
        QTest::newRow("condition min") << true << INT_MIN << "unknown condition -2147483648";
        QTest::newRow("action 142") << false << 142 << "unknown action 142";
        QTest::newRow("action -1") << false << -1 << "unknown action -1";
    }

    void unknownCodesShowAsText()
    {
        QFETCH(bool, condition);
        QFETCH(int, code);
        QFETCH(QString, text);
        Script::Statement st;
        st.code = code;
        const Script::Tokens tokens = condition ? Script::tokenizeCondition(st) : Script::tokenizeAction(st);
        QCOMPARE(texts(tokens), QStringList{text});
    }

    void objectOperandKeepsValues()
    {
        Script::Statement st;
        st.code = 15; // (obj) = (obj)
        st.types = {1, 2, 9, 9, 9, 9, 9, 9};
        st.values = {11, 22, 33, 44, 55, 66, 77, 88};
        Script::Tokens tokens = Script::tokenizeAction(st);
        QCOMPARE(tokens.front().value, 1);
        tokens.front().value = 21;
        tokens.back().value = 8;
        Script::unloadTokens(tokens, st);
        QCOMPARE(int(st.types[0]), 21);
        QCOMPARE(int(st.types[1]), 8);
        QCOMPARE(st.values, (std::array<qint32, 8>{11, 22, 33, 44, 55, 66, 77, 88}));
    }

    void numberOperandWritesBoth()
    {
        Script::Statement st;
        st.code = 4; // condition "(num) == (num)"
        Script::Tokens tokens = Script::tokenizeCondition(st);
        tokens.at(2).numType = Script::GlobalVar;
        tokens.at(2).value = -12;
        Script::unloadTokens(tokens, st);
        QCOMPARE(int(st.types[1]), int(Script::GlobalVar));
        QCOMPARE(st.values[1], -12);
        st.clearParameters();
        QCOMPARE(st.code, 4);
        QCOMPARE(st.types, (std::array<quint8, 8>{}));
        QCOMPARE(st.values, (std::array<qint32, 8>{}));
    }
};

QTEST_GUILESS_MAIN(TestScript)
#include "tst_script.moc"
