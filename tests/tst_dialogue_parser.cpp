// Reading dialogue files: entries, the two kinds of lines, every recorded problem, and damaged input.
#include "DialogueFileNew.h"
#include "GameNumber.h"

#include "FormatChecks.h"

#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(const arcanum::dlg::TestOrResultTypes*)

using arcanum::DialogueFileNew;
using namespace arcanum::dlg;

namespace {

const QString SAMPLE = QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game/damaged/sample_dialogue_damaged.dlg");

DialogueFileNew parse(QString text)
{
    DialogueFileNew dialogue;
    QTextStream stream(&text, QIODevice::ReadOnly);
    dialogue.read(stream);
    return dialogue;
}

// Records as a file would write them, whatever text they were read from.
QString describe(const QVector<TestOrResultData>& records)
{
    QStringList pieces;
    for (const TestOrResultData& record : records)
        pieces << record.toString();
    return pieces.join(QLatin1String(", "));
}

QString rebuilt(int index, const QStringList& items)
{
    QString text = QStringLiteral("{%1}").arg(index);
    for (const QString& item : items)
        text += QLatin1Char('{') + item + QLatin1Char('}');
    return text;
}

// Damaged input is expected to complain; only a crash or a hang would be a failure.
class Muted
{
public:
    Muted()
        : previous(qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}))
    {
    }
    ~Muted() { qInstallMessageHandler(previous); }

private:
    QtMessageHandler previous;
};

// What a damaged file must survive: load, save, and load what was saved to the same text again.
void survives(const QString& path)
{
    QFile file(path);
    DialogueFileNew dialogue(&file);
    QVERIFY(dialogue.load());
    const QString written = dialogue.toText();
    QVERIFY(FormatChecks::writeFile(path, dialogue.toBytes()));
    DialogueFileNew again(&file);
    QVERIFY(again.load());
    QCOMPARE(again.toText(), written);
}

} // namespace

class TestDialogueParser : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

    QString writeTemp(const QByteArray& bytes)
    {
        const QString path = dir.filePath(QStringLiteral("test.dlg"));
        FormatChecks::writeFile(path, bytes);
        return path;
    }

private slots:
    void getNextEntry_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QString>("trailing");
        QTest::addColumn<bool>("atEnd");
        const QStringList npc{"1", "Hello", "", "", "", "2", ""};
        QTest::newRow("one entry") << "{1}{Hello}{}{}{}{2}{}" << npc << "" << true;
        QTest::newRow("more follow") << "{1}{Hello}{}{}{}{2}{}\r\n{2}" << npc << "" << false;
        QTest::newRow("comment after it") << "{1}{Hello}{}{}{}{2}{}  // hi\n" << npc << "  // hi" << true;
        QTest::newRow("text before it") << "junk\n\t  {1}{Hello}{}{}{}{2}{}" << npc << "" << true;
        QTest::newRow("text between items") << "{1} x {Hello}{}{}\n{}{2}{}" << npc << "" << true;
        QTest::newRow("item over two lines")
            << "{1}{Hello\r\nthere}{}{}{}{2}{}" << QStringList{"1", "Hello\nthere", "", "", "", "2", ""} << ""
            << true;
        QTest::newRow("lone carriage return stays")
            << "{1}{a\rb}{}{}{}{2}{}" << QStringList{"1", "a\rb", "", "", "", "2", ""} << "" << true;
        QTest::newRow("open brace inside an item")
            << "{1}{a{b}{}{}{}{2}{}" << QStringList{"1", "a{b", "", "", "", "2", ""} << "" << true;
        QTest::newRow("close brace before an item")
            << "}{1}}{Hello}{}{}{}{2}{}" << npc << "" << true;
        QTest::newRow("second entry on the same line")
            << "{1}{Hello}{}{}{}{2}{}{3}{x}" << npc << "{3}{x}" << true;
        QTest::newRow("short entry at the end") << "{1}{a}{b}" << QStringList{"1", "a", "b"} << "" << true;
        QTest::newRow("open brace never closed") << "{1}{abc\ndef" << QStringList{"1"} << "{abc\ndef" << true;
        QTest::newRow("no braces at all") << "just text" << QStringList() << "just text" << true;
        QTest::newRow("nothing") << "" << QStringList() << "" << true;
    }

    void getNextEntry()
    {
        QFETCH(QString, input);
        QFETCH(QStringList, items);
        QFETCH(QString, trailing);
        QFETCH(bool, atEnd);
        QTextStream stream(&input, QIODevice::ReadOnly);
        bool end = false;
        const QPair<QStringList, QString> entry = DialogueFileNew::getNextEntry(stream, &end);
        QCOMPARE(entry.first, items);
        QCOMPARE(entry.second, trailing);
        QCOMPARE(end, atEnd);
    }

    void linesOfBothKinds_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<bool>("npc");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("femaleText");
        QTest::addColumn<int>("gender");
        QTest::addColumn<int>("intelligence");
        QTest::addColumn<QString>("tests"); // PC: records; NPC: the item as read
        QTest::addColumn<int>("response");
        QTest::addColumn<QString>("results");
        QTest::newRow("NPC line") << "{1}{Hello}{}{}{}{2}{}" << true << 1 << "Hello" << "" << 0 << 0 << "" << 2 << "";
        QTest::newRow("PC line for either gender")
            << "{2}{Yes}{}{5}{$$ 100}{3}{}" << false << 2 << "Yes" << "" << -1 << 5 << "$$ 100" << 3 << "";
        QTest::newRow("negative intelligence")
            << "{3}{No}{1}{-4}{}{1}{}" << false << 3 << "No" << "" << 1 << -4 << "" << 1 << "";
        QTest::newRow("gender 0") << "{3}{No}{ 0 }{4}{}{1}{}" << false << 3 << "No" << "" << 0 << 4 << "" << 1 << "";
        QTest::newRow("other gender text means either")
            << "{3}{No}{x}{4}{}{1}{}" << false << 3 << "No" << "" << -1 << 4 << "" << 1 << "";
        QTest::newRow("NPC line without response line")
            << "{4}{Bye}{}{}{}{}{}" << true << 4 << "Bye" << "" << 0 << 0 << "" << -1 << "";
        QTest::newRow("blank fourth item is still NPC")
            << "{5}{Hm}{}{ }{}{ }{}" << true << 5 << "Hm" << "" << 0 << 0 << "" << -1 << "";
        QTest::newRow("NPC female text, tests kept, results")
            << "{6}{He}{She}{}{not parsed}{7}{gf 12 1, in 3456}" << true << 6 << "He" << "She" << 0 << 0
            << "not parsed" << 7 << "gf 12 1, in 3456";
        QTest::newRow("text over two lines")
            << "{8}{one\r\ntwo}{}{}{}{}{}" << true << 8 << "one\ntwo" << "" << 0 << 0 << "" << -1 << "";
        QTest::newRow("index and numbers with blanks")
            << "{ 9 }{Hi}{}{ 3 }{}{ 10 }{}" << false << 9 << "Hi" << "" << -1 << 3 << "" << 10 << "";
        QTest::newRow("opcodes in capitals")
            << "{9}{Hi}{}{1}{QU 5 2, Gf 1 0}{1}{CO, Wa}" << false << 9 << "Hi" << "" << -1 << 1
            << "qu 5 2, gf 1 0" << 1 << "co, wa";
        QTest::newRow("all arguments") << "{9}{Hi}{}{1}{$$-20,gf  3   4 , ch 9}{1}{et 1 2, xp 5, uw 5 6}" << false
                                       << 9 << "Hi" << "" << -1 << 1 << "$$ -20, gf 3 4, ch 9" << 1
                                       << "et 1 2, xp, uw 5 6";
        QTest::newRow("text kept untrimmed")
            << "{9}{ Hi }{}{1}{}{1}{}" << false << 9 << " Hi " << "" << -1 << 1 << "" << 1 << "";
    }

    void linesOfBothKinds()
    {
        QFETCH(QString, entry);
        QFETCH(bool, npc);
        QFETCH(int, index);
        QFETCH(QString, text);
        QFETCH(QString, femaleText);
        QFETCH(int, gender);
        QFETCH(int, intelligence);
        QFETCH(QString, tests);
        QFETCH(int, response);
        QFETCH(QString, results);
        const DialogueFileNew dialogue = parse(entry);
        QCOMPARE(dialogue.npcLines().size(), npc ? 1 : 0);
        QCOMPARE(dialogue.pcLines().size(), npc ? 0 : 1);
        if (npc) {
            const DialogueFileNew::NPCLine& line = *dialogue.npcLines().first();
            QCOMPARE(line.index(), index);
            QCOMPARE(line.text(), text);
            QCOMPARE(line.femaleText(), femaleText);
            QCOMPARE(line.testsText(), tests);
            QCOMPARE(line.responseLine(), response);
            QCOMPARE(describe(line.results().records()), results);
            QVERIFY(!line.errors());
        } else {
            const DialogueFileNew::PCLine& line = *dialogue.pcLines().first();
            QCOMPARE(line.index(), index);
            QCOMPARE(line.text(), text);
            QCOMPARE(int(line.gender()), gender);
            QCOMPARE(line.intelligence(), intelligence);
            QCOMPARE(describe(line.tests().records()), tests);
            QCOMPARE(line.responseLine(), response);
            QCOMPARE(describe(line.results().records()), results);
            // "$$-20" is read as the game reads it, with a note.
            QVERIFY(!line.errors() || !line.errors()->hasErrors());
        }
    }

    void lineProblems_data()
    {
        QTest::addColumn<bool>("npc");
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QStringList>("notes");
        const QString wrongCount = QStringLiteral("Number of items on this line doesn't match the normal number of items");
        const QString stops = QStringLiteral(": the game stops reading the file here");
        QTest::newRow("PC: too few items") << false << QStringList{"a", "", "1", "", "2"} << QStringList{wrongCount}
                                           << QStringList();
        QTest::newRow("NPC: too many items")
            << true << QStringList{"a", "", "", "", "", "", ""} << QStringList{wrongCount} << QStringList();
        QTest::newRow("empty intelligence")
            << false << QStringList{"a", "", " ", "", "2", ""} << QStringList{"intelligence is empty" + stops}
            << QStringList();
        QTest::newRow("intelligence without a digit")
            << false << QStringList{"a", "", " x5", "", "2", ""} << QStringList{"intelligence 'x5' has no number" + stops}
            << QStringList();
        QTest::newRow("intelligence with more after its number")
            << false << QStringList{"a", "", "5, -17", "", "2", ""} << QStringList()
            << QStringList{"Intelligence requirements could not be parsed: the game reads '5, -17' as 5"};
        QTest::newRow("empty response line")
            << false << QStringList{"a", "", "5", "", "", ""} << QStringList()
            << QStringList{"Response line is empty: the game reads it as 0, the end of the conversation"};
        QTest::newRow("response line not a number")
            << false << QStringList{"a", "", "5", "", "x", ""} << QStringList()
            << QStringList{"Response line could not be parsed: the game reads 'x' as 0"};
        QTest::newRow("NPC with intelligence")
            << true << QStringList{"a", "", "5", "", "", ""}
            << QStringList{"{I} is not empty (3rd item) -> no valid NPC line"} << QStringList();
        QTest::newRow("NPC response line not a number")
            << true << QStringList{"a", "", "", "", "12x", ""} << QStringList()
            << QStringList{"Response line could not be parsed: the game reads '12x' as 12"};
        QTest::newRow("unknown test") << false << QStringList{"a", "", "5", "zz 1", "2", ""}
                                      << QStringList{"opcode 'zz' is unknown"} << QStringList();
        QTest::newRow("test result only for the player")
            << true << QStringList{"a", "", "", "", "", "jo 1 2"} << QStringList{"opcode 'jo' is unknown"}
            << QStringList();
        QTest::newRow("problems in reading order")
            << false << QStringList{"a", "", "", "gf 12", "x", "$$ y"} << QStringList{"intelligence is empty" + stops}
            << QStringList{"Argument 2 of opcode gf could not be parsed: the game reads '' as 0",
                           "Response line could not be parsed: the game reads 'x' as 0",
                           "Argument 1 of opcode $$ could not be parsed: the game reads 'y' as 0"};
    }

    void lineProblems()
    {
        QFETCH(bool, npc);
        QFETCH(QStringList, items);
        QFETCH(QStringList, messages);
        QFETCH(QStringList, notes);
        for (const QString& message : messages)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Error: ") + message + QLatin1Char(' ')
                                                          + rebuilt(7, items) + QStringLiteral(" // c")));
        QExplicitlySharedDataPointer<DialogueFileNew::Line> line;
        if (npc)
            line = new DialogueFileNew::NPCLine(7, items, QStringLiteral(" // c"));
        else
            line = new DialogueFileNew::PCLine(7, items, QStringLiteral(" // c"));
        QVERIFY(line->errors());
        QCOMPARE(line->errors()->messages, messages);
        QCOMPARE(line->errors()->notes, notes);
        QCOMPARE(line->errors()->hasErrors(), !messages.isEmpty());
        // Notes too keep the entry as read, so an unedited line is written back byte for byte.
        QCOMPARE(line->errors()->rawText, rebuilt(7, items) + QStringLiteral(" // c"));
        QCOMPARE(line->getCompleteLineText(), rebuilt(7, items) + QStringLiteral(" // c"));
        QVERIFY(!line->isEdited());
    }

    // What the game reads from a number field: blanks and a sign, then digits up to the first other character.
    void gameNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("digits");
        QTest::addColumn<bool>("exact");
        QTest::newRow("plain") << "17" << 17 << true << true;
        QTest::newRow("blanks and sign") << "  -17 " << -17 << true << true;
        QTest::newRow("plus") << "+5" << 5 << true << true;
        QTest::newRow("more after the digits") << "5, -17" << 5 << true << false;
        QTest::newRow("digits then letters") << "12x" << 12 << true << false;
        QTest::newRow("empty") << "" << 0 << false << false;
        QTest::newRow("sign only") << " - " << 0 << false << false;
        QTest::newRow("letters first") << "x5" << 0 << false << false;
        QTest::newRow("too large saturates") << "99999999999" << 2147483647 << true << false;
        QTest::newRow("too small saturates") << "-99999999999" << int(-2147483647 - 1) << true << false;
        QTest::newRow("one past the largest int") << "2147483648" << 2147483647 << true << false;
        QTest::newRow("smallest int") << "-2147483648" << int(-2147483647 - 1) << true << true;
    }

    void gameNumbers()
    {
        QFETCH(QString, text);
        QFETCH(int, value);
        QFETCH(bool, digits);
        QFETCH(bool, exact);
        const arcanum::GameNumber number = arcanum::GameNumber::read(text);
        QCOMPARE(number.value(), value);
        QCOMPARE(number.hasDigits(), digits);
        QCOMPARE(number.isExact(), exact);
    }

    void defectiveLineKeepsItsEntryAsRead()
    {
        const QString entry = QStringLiteral("{5} {Hm}{1}{4}{zz 1,  $$ 5}{x}{co}  // odd");
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Error: opcode 'zz' is unknown ") + entry));
        const DialogueFileNew dialogue = parse(QStringLiteral("\t") + entry + QStringLiteral("\r\n"));
        QCOMPARE(dialogue.pcLines().size(), 1);
        const DialogueFileNew::PCLine& line = *dialogue.pcLines().first();
        QCOMPARE(line.errors()->rawText, entry);
        // What could be read is there for the editor.
        QCOMPARE(line.text(), QStringLiteral("Hm"));
        QCOMPARE(line.intelligence(), 4);
        QCOMPARE(describe(line.tests().records()), QStringLiteral("$$ 5"));
        QCOMPARE(line.tests().errors(), QStringList(QStringLiteral("opcode 'zz' is unknown")));
        QCOMPARE(describe(line.results().records()), QStringLiteral("co"));
    }

    void opcodeFields_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<const TestOrResultTypes*>("types");
        QTest::addColumn<QString>("records");
        QTest::addColumn<QStringList>("errors");
        QTest::addColumn<QStringList>("notes");
        static const TestOrResultType threeArguments(QStringLiteral("xx"), 3, QString(), nullptr);
        static const TestOrResultTypes odd{&threeArguments};
        const TestOrResultTypes* pc = &result::ALL_PC_RESULTS;
        const QString unread = QStringLiteral("Argument %1 of opcode %2 could not be parsed: the game reads '%3' as %4");
        QTest::newRow("empty") << "  " << pc << "" << QStringList() << QStringList();
        QTest::newRow("empty pieces dropped") << ",co,,fp," << pc << "co, fp" << QStringList() << QStringList();
        QTest::newRow("blank piece") << "co, ,fp" << pc << "co, fp" << QStringList{"opcode '' is unknown"}
                                     << QStringList();
        QTest::newRow("unknown opcode dropped")
            << "zz 1, co" << pc << "co" << QStringList{"opcode 'zz' is unknown"} << QStringList();
        QTest::newRow("one argument missing")
            << "$$" << pc << "$$ 0" << QStringList() << QStringList{unread.arg("1", "$$", "", "0")};
        QTest::newRow("one argument too many")
            << "$$ 1 2" << pc << "$$ 1" << QStringList() << QStringList{unread.arg("1", "$$", "1 2", "1")};
        QTest::newRow("second argument missing")
            << "gf 12" << pc << "gf 12 0" << QStringList() << QStringList{unread.arg("2", "gf", "", "0")};
        QTest::newRow("both arguments wrong, as written")
            << "GF a b" << pc << "gf 0 0" << QStringList()
            << QStringList{unread.arg("1", "GF", "a", "0"), unread.arg("2", "GF", "b", "0")};
        QTest::newRow("number too large")
            << "in 99999999999" << pc << "in 2147483647" << QStringList()
            << QStringList{unread.arg("1", "in", "99999999999", "2147483647")};
        QTest::newRow("no blank after the code")
            << "gf1028 1" << pc << "gf 1028 1" << QStringList()
            << QStringList{"no blank after opcode 'gf' in 'gf1028 1': the game takes its first two letters as the code"};
        QTest::newRow("arguments of an opcode without any are ignored")
            << "co 5 x" << pc << "co" << QStringList() << QStringList();
        QTest::newRow("no types") << "co" << static_cast<const TestOrResultTypes*>(nullptr) << ""
                                  << QStringList{"ALL_RESULTS == NULL"} << QStringList();
        QTest::newRow("impossible argument count")
            << "xx 1" << &odd << "" << QStringList{"Error this else should never be reached"} << QStringList();
    }

    void opcodeFields()
    {
        QFETCH(QString, text);
        QFETCH(const TestOrResultTypes*, types);
        QFETCH(QString, records);
        QFETCH(QStringList, errors);
        QFETCH(QStringList, notes);
        const DialogueFileNew::Line::DialogueResultField field(text, types);
        QCOMPARE(describe(field.records()), records);
        QCOMPARE(field.errors(), errors);
        QCOMPARE(field.notes(), notes);
        QCOMPARE(field.toString(), text);
    }

    void testsAndResultsUseTheirOwnChoosers()
    {
        QCOMPARE(DialogueFileNew::PCLine::DialogueTestField(QStringLiteral("sk 1 2")).records().first().type,
                 test::TEST_SKILL);
        QCOMPARE(DialogueFileNew::PCLine::PCResultField(QStringLiteral("et 1 2")).records().first().type,
                 result::RESULT_EXPERT_TRAINING);
        QCOMPARE(DialogueFileNew::NPCLine::NPCResultField(QStringLiteral("wa")).records().first().type,
                 result::RESULT_WAIT);
        QCOMPARE(DialogueFileNew::PCLine::DialogueTestField(QStringLiteral("co")).errors(),
                 QStringList(QStringLiteral("opcode 'co' is unknown")));
    }

    void loading_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("warnings");
        QTest::addColumn<QList<int>>("npcIndices");
        QTest::addColumn<QList<int>>("pcIndices");
        QTest::addColumn<QString>("unread");
        QTest::newRow("file order, duplicates kept")
            << QByteArray("{10}{b}{}{}{}{}{}\r\n\t{3}{c}{}{1}{}{1}{}\r\n{1}{a}{}{}{}{}{}\r\n{10}{d}{}{}{}{}{}\r\n")
            << QStringList() << QList<int>{10, 1, 10} << QList<int>{3} << QString();
        QTest::newRow("blank lines at the end") << QByteArray("{1}{a}{}{}{}{}{}\r\n\r\n \r\n\r\n") << QStringList()
                                                << QList<int>{1} << QList<int>() << QString();
        QTest::newRow("short last entry")
            << QByteArray("{1}{a}{}{}{}{}{}\r\n\t{2}{b}{}{1}{}\r\n\r\n")
            << QStringList{"Size of read items list  smaller than minimal size: 5 instead of 7"} << QList<int>{1}
            << QList<int>() << QStringLiteral("\t{2}{b}{}{1}{}");
        QTest::newRow("text after the last entry")
            << QByteArray("{1}{a}{}{}{}{}{}\r\n// the end\r\n")
            << QStringList{"Size of read items list  smaller than minimal size: 0 instead of 7"} << QList<int>{1}
            << QList<int>() << QStringLiteral("// the end");
        QTest::newRow("index not a number")
            << QByteArray("{1}{a}{}{}{}{}{}\r\n{ x1}{b}{}{}{}{}{}\r\n{3}{c}{}{}{}{}{}\r\n")
            << QStringList{"Index could not be parsed: string was  x1"} << QList<int>{1} << QList<int>()
            << QStringLiteral("{ x1}{b}{}{}{}{}{}\n{3}{c}{}{}{}{}{}");
        QTest::newRow("nothing") << QByteArray() << QStringList() << QList<int>() << QList<int>() << QString();
    }

    void loading()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, warnings);
        QFETCH(QList<int>, npcIndices);
        QFETCH(QList<int>, pcIndices);
        QFETCH(QString, unread);
        for (const QString& warning : warnings)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        QFile file(writeTemp(bytes));
        DialogueFileNew dialogue(&file);
        QVERIFY(dialogue.load());
        QList<int> npc;
        for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines())
            npc << line->index();
        QList<int> pc;
        for (const DialogueFileNew::PCLinePointer& line : dialogue.pcLines())
            pc << line->index();
        QCOMPARE(npc, npcIndices);
        QCOMPARE(pc, pcIndices);
        QCOMPARE(dialogue.unreadText(), unread);
    }

    void filesThatCannotBeRead()
    {
        QFile missing(dir.filePath(QStringLiteral("missing.dlg")));
        QTest::ignoreMessage(QtWarningMsg, "File doesn't exist.");
        QVERIFY(!DialogueFileNew(&missing).load());
        QTest::ignoreMessage(QtWarningMsg, "File doesn't exist.");
        QVERIFY(!DialogueFileNew().load());
        QFile directory(dir.path());
        QTest::ignoreMessage(QtWarningMsg, "Failed to open file for reading");
        QVERIFY(!DialogueFileNew(&directory).load());
    }

    void lookupAndSortByIndex()
    {
        DialogueFileNew dialogue = parse(QStringLiteral("{10}{b}{}{}{}{}{}\n{5}{x}{}{1}{}{1}{}\n{1}{a}{}{}{}{}{}\n"
                                                        "{3}{y}{}{1}{}{1}{}\n{1}{c}{}{}{}{}{}\n"));
        QCOMPARE(dialogue.getPCLine(3)->text(), QStringLiteral("y"));
        QVERIFY(!dialogue.getPCLine(1));
        QCOMPARE(dialogue.getNPCLine(1)->text(), QStringLiteral("a"));
        QVERIFY(!dialogue.getNPCLine(5));
        dialogue.sortLines();
        QCOMPARE(dialogue.npcLines().at(0)->text(), QStringLiteral("a"));
        QCOMPARE(dialogue.npcLines().at(1)->text(), QStringLiteral("c"));
        QCOMPARE(dialogue.npcLines().at(2)->text(), QStringLiteral("b"));
        QCOMPARE(dialogue.pcLines().first()->index(), 3);
        QVERIFY(DialogueFileNew::lessThan(dialogue.pcLines().at(0), dialogue.pcLines().at(1)));
        QVERIFY(*dialogue.npcLines().at(2) > *dialogue.npcLines().at(0));
    }

    void sampleLoadsIntoTheRightLists()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Error: opcode 'zz' is unknown")));
        QFile file(SAMPLE);
        DialogueFileNew dialogue(&file);
        QVERIFY(dialogue.load());
        QCOMPARE(dialogue.npcLines().size(), 6);
        QCOMPARE(dialogue.pcLines().size(), 12);
        QVERIFY(dialogue.unreadText().isEmpty());
        QCOMPARE(dialogue.getNPCLine(50)->text(), QStringLiteral("Добро пожаловать, путник!"));
        QCOMPARE(dialogue.getNPCLine(10)->text(),
                 QStringLiteral("There is always work for willing hands.\nSee the foreman at the docks."));
        QCOMPARE(dialogue.getPCLine(3)->intelligence(), -4);
        QCOMPARE(int(dialogue.getPCLine(4)->gender()), 1);
        QCOMPARE(int(dialogue.getPCLine(5)->gender()), 0);
        QCOMPARE(describe(dialogue.getPCLine(6)->tests().records()), QStringLiteral("$$ 100, gf 12 1"));
        QCOMPARE(dialogue.getPCLine(22)->trailing(), QStringLiteral(" // starts a fight"));
        QCOMPARE(dialogue.getPCLine(41)->errors()->messages, QStringList(QStringLiteral("opcode 'zz' is unknown")));
        QCOMPARE(dialogue.getPCLine(42)->errors()->messages, QStringList());
        QCOMPARE(dialogue.getPCLine(42)->errors()->notes,
                 QStringList(QStringLiteral("Response line could not be parsed: the game reads 'later' as 0")));
        int defective = 0;
        for (const DialogueFileNew::PCLinePointer& line : dialogue.pcLines())
            defective += line->errors() ? 1 : 0;
        for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines())
            defective += line->errors() ? 1 : 0;
        QCOMPARE(defective, 2);
    }

    void everyPrefixOfTheSample()
    {
        const Muted muted;
        const QByteArray sample = FormatChecks::readFile(SAMPLE);
        QVERIFY(!sample.isEmpty());
        FormatChecks::forEveryPrefix(sample, dir.filePath(QStringLiteral("prefix.dlg")), survives);
    }

    void corruptedSamples()
    {
        const Muted muted;
        const QByteArray sample = FormatChecks::readFile(SAMPLE);
        const QString path = dir.filePath(QStringLiteral("corrupt.dlg"));
        for (unsigned seed = 1; seed <= 50; ++seed) {
            FormatChecks::writeFile(path, FormatChecks::corrupt(sample, seed, 20));
            survives(path);
        }
    }

    void unbalancedBraces_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("only opening") << QByteArray(10000, '{');
        QTest::newRow("only closing") << QByteArray(10000, '}');
        QTest::newRow("closing first") << QByteArray("}}}{1}}}{a}{{{\r\n}{");
        QTest::newRow("never closed") << QByteArray("{1}{a}{}{}{}{}{}\r\n{2}{b\r\n\r\nmore") + QByteArray(5000, '\n');
        QTest::newRow("lines without braces") << QByteArray(100000, '\n') + QByteArray("{");
        QTest::newRow("seven empty items") << QByteArray("{}{}{}{}{}{}{}");
        static const char withNul[] = "{1}{a\0b}{}{}{}{}{}\r\n";
        QTest::newRow("NUL bytes") << QByteArray(withNul, sizeof withNul - 1);
    }

    void unbalancedBraces()
    {
        QFETCH(QByteArray, bytes);
        const Muted muted;
        survives(writeTemp(bytes));
    }

    void randomPrintableBytes()
    {
        const Muted muted;
        for (unsigned seed = 1; seed <= 3; ++seed) {
            survives(writeTemp(FormatChecks::randomBytes(100000, seed, true)));
            survives(writeTemp(FormatChecks::randomBytes(100000, seed)));
        }
    }
};

QTEST_GUILESS_MAIN(TestDialogueParser)
#include "tst_dialogue_parser.moc"
