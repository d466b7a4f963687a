// Scripts as source text: decompiling gives back the same bytes when compiled, and every mistake in
// a source is reported at its line and column with nothing compiled.
#include "Script.h"
#include "ScriptCompiler.h"
#include "ScriptDecompiler.h"
#include "ScriptSyntax.h"

#include "FormatChecks.h"

#include <QRandomGenerator>
#include <QtEndian>
#include <QtTest>

using arcanum::Script;
using arcanum::ScriptCompiler;
using arcanum::ScriptDecompiler;
using arcanum::ScriptSyntax;

namespace {

const QString scriptPath = QStringLiteral("00042test.scr");

Script loaded(const QByteArray& bytes)
{
    Script script;
    script.loadBytes(scriptPath, bytes);
    return script;
}

// What the loader makes of bytes, as bytes: the reference a round trip must give.
QByteArray normalised(const QByteArray& bytes)
{
    return loaded(bytes).toBytes();
}

QByteArray bytesOf(const Script::Header& header, const std::vector<Script::Line>& lines)
{
    Script script;
    script.setContent(header, lines);
    return script.toBytes();
}

Script::Header headerFor(size_t lines, const std::string& desc = "Test")
{
    Script::Header header;
    header.setDesc(desc);
    header.lineCount = qint32(lines);
    header.lineBound = ScriptSyntax::defaultLineBound(qint64(lines));
    return header;
}

ScriptCompiler::Result compiled(const std::string& source)
{
    return ScriptCompiler::compile(source);
}

QString diagnosticsText(const ScriptCompiler::Result& result)
{
    QStringList out;
    for (const ScriptCompiler::Diagnostic& d : result.diagnostics)
        out << QStringLiteral("%1:%2: %3").arg(d.line).arg(d.column).arg(QString::fromStdString(d.message));
    return out.join('\n');
}

// Decompiles bytes, compiles the text, and checks the same bytes come out.
void checkRoundTrip(const QByteArray& bytes)
{
    const QByteArray expected = normalised(bytes);
    const std::string text = ScriptDecompiler::decompile(loaded(bytes));
    const ScriptCompiler::Result result = compiled(text);
    QVERIFY2(result.ok(), qPrintable(diagnosticsText(result) + "\n" + QString::fromStdString(text)));
    QCOMPARE(result.number, 42);
    const QByteArray back = result.script().toBytes();
    if (back != expected)
        QFAIL(qPrintable(
            QStringLiteral("bytes differ from %1 of %2\n%3")
                .arg(std::mismatch(back.begin(), back.end(), expected.begin(), expected.end()).first - back.begin())
                .arg(expected.size())
                .arg(QString::fromStdString(text))));
}

// A statement of code whose operands take the given number type (objects a type that moves with it).
Script::Statement statementOf(const ScriptSyntax::Template& entry, int numType, int seed)
{
    Script::Statement statement;
    statement.code = entry.code;
    for (size_t slot = 0; slot < entry.operands.size(); ++slot) {
        if (entry.operands[slot] == ScriptSyntax::NumberMark) {
            statement.types[slot] = quint8(numType);
            statement.values[slot] = (seed + int(slot)) * 7919 - 40000;
        } else {
            statement.types[slot] = quint8((numType * 3 + seed + int(slot)) % Script::ObjectTypeCount);
        }
    }
    return statement;
}

Script::Statement rawStatement(qint32 code, std::initializer_list<std::pair<int, std::pair<int, qint32>>> filled)
{
    Script::Statement statement;
    statement.code = code;
    for (const auto& [slot, typeValue] : filled) {
        statement.types[size_t(slot)] = quint8(typeValue.first);
        statement.values[size_t(slot)] = typeValue.second;
    }
    return statement;
}

Script::Line ifLine(Script::Statement condition, Script::Statement then, Script::Statement otherwise = {})
{
    return Script::Line{condition, then, otherwise};
}

Script::Line doLine(Script::Statement action)
{
    Script::Line line;
    line.thenAction = action;
    return line;
}

// Random lines whose codes are mostly in the catalogue and whose type bytes are mostly known, so the
// sentences, the unknown statements and the kept bytes all come up.
QByteArray randomScript(unsigned seed)
{
    QRandomGenerator random(seed);
    const int lines = int(random.bounded(12));
    QByteArray bytes = FormatChecks::randomBytes(Script::HeaderSize + lines * Script::LineSize, seed);
    const auto put = [&](int at, qint32 value) { qToLittleEndian(value, bytes.data() + at); };
    put(52, random.bounded(8) == 0 ? -qint32(random.bounded(5)) : lines);
    for (int line = 0; line < lines; ++line) {
        for (int which = 0; which < 3; ++which) {
            const int at = Script::HeaderSize + line * Script::LineSize + which * Script::StatementSize;
            const int range = which == 0 ? Script::ConditionCount + 1 : Script::ActionCount;
            if (random.bounded(6) != 0)
                put(at, qint32(random.bounded(range)));
            for (int slot = 0; slot < Script::Slots; ++slot) {
                if (random.bounded(5) != 0)
                    bytes[at + 4 + slot] = char(random.bounded(which == 0 ? 24 : 7));
                if (random.bounded(3) == 0)
                    put(at + 12 + 4 * slot, 0);
            }
        }
    }
    return bytes;
}

} // namespace

class TestScriptSource : public QObject
{
    Q_OBJECT

private slots:
    // The catalogue must stay readable as text: one template per key, keywords never inside one.
    void templatesAreDistinct()
    {
        const ScriptSyntax& syntax = ScriptSyntax::instance();
        for (bool condition : {true, false}) {
            for (const ScriptSyntax::Template& entry : condition ? syntax.conditions() : syntax.actions()) {
                QCOMPARE(syntax.withKey(condition, entry.key).size(), size_t(1));
                QVERIFY(entry.operands.size() <= size_t(Script::Slots));
                const QString text = QString::fromStdString(entry.text);
                QCOMPARE(text.simplified(), text);
                QVERIFY2(
                    !text.contains(QRegularExpression("\\b(then|else)\\b", QRegularExpression::CaseInsensitiveOption)),
                    qPrintable(text));
            }
        }
    }

    void everyStatementWithEveryOperandType()
    {
        const ScriptSyntax& syntax = ScriptSyntax::instance();
        std::vector<Script::Line> lines;
        // The seven number types and one type byte no name stands for.
        for (int numType : {0, 1, 2, 3, 4, 5, 6, 200}) {
            int seed = numType;
            for (const ScriptSyntax::Template& condition : syntax.conditions()) {
                const ScriptSyntax::Template& then = syntax.actions()[size_t(seed++) % syntax.actions().size()];
                const ScriptSyntax::Template& otherwise = syntax.actions()[size_t(seed * 7) % syntax.actions().size()];
                lines.push_back(ifLine(statementOf(condition, numType, seed), statementOf(then, numType, seed + 1),
                                       statementOf(otherwise, numType, seed + 2)));
            }
            for (const ScriptSyntax::Template& action : syntax.actions())
                lines.push_back(doLine(statementOf(action, numType, seed++)));
        }
        const QByteArray bytes = bytesOf(headerFor(lines.size()), lines);
        checkRoundTrip(bytes);
        // Nothing here is hidden from the sentences, so nothing needs an annotation.
        const std::string text = ScriptDecompiler::decompile(loaded(bytes));
        QVERIFY(text.find('[') == std::string::npos);
        QVERIFY(text.find("\nheader") == std::string::npos);
    }

    void keptBytes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("shows");
        const Script::Line plain = doLine(rawStatement(4, {{0, {3, 120}}}));
        const auto one = [&](const Script::Line& line) { return bytesOf(headerFor(1), {line}); };
        const auto withHeader = [&](const std::function<void(Script::Header&)>& change, size_t lines = 1) {
            Script::Header header = headerFor(lines);
            change(header);
            return bytesOf(header, std::vector<Script::Line>(lines, plain));
        };
        QTest::newRow("first header word") << withHeader([](Script::Header& h) { h.headerWord = -5; }) << "word0=-5";
        QTest::newRow("header bytes") << withHeader([](Script::Header& h) {
            h.headerBytes = {0xa1, 0, 0xc3, 7};
        }) << "bytes4=a100c307";
        QTest::newRow("word 48") << withHeader([](Script::Header& h) { h.headerWord48 = INT_MIN; })
                                 << "word48=-2147483648";
        QTest::newRow("word 60") << withHeader([](Script::Header& h) { h.headerWord60 = 0x7f00ff01; }) << "word60=";
        QTest::newRow("line bound") << withHeader([](Script::Header& h) { h.lineBound = 99; }) << "bound=99";
        QTest::newRow("bound of an empty script")
            << withHeader([](Script::Header& h) { h.lineBound = 2; }, 0) << "bound=2";
        QTest::newRow("negative line count")
            << withHeader([](Script::Header& h) { h.lineCount = -3; }, 0) << "lines=-3";
        QTest::newRow("description tail") << withHeader([](Script::Header& h) {
            h.setDesc("Guard");
            h.description[10] = 'x';
            h.description[39] = 1;
        }) << "desc-tail=";
        QTest::newRow("description of forty bytes")
            << withHeader([](Script::Header& h) { h.setDesc(std::string(40, 'g')); }) << QString(40, 'g');
        QTest::newRow("description escapes")
            << withHeader([](Script::Header& h) { h.setDesc("say \"hi\" \\ caf\xe9\x01\x7f\x85"); })
            << "say \\\"hi\\\" \\\\ café\\x01\\x7f\\x85";
        QTest::newRow("unused slots") << one(doLine(rawStatement(4, {{0, {3, 120}}, {1, {2, 0}}, {7, {0, -9}}})))
                                      << "[type2=2 value8=-9]";
        QTest::newRow("object value word")
            << one(doLine(rawStatement(58, {{0, {1, 77}}}))) << "kill (Attachee) [value1=77]";
        QTest::newRow("unknown object type") << one(doLine(rawStatement(58, {{0, {200, 0}}}))) << "(object 200)";
        QTest::newRow("unknown number type") << one(doLine(rawStatement(4, {{0, {7, 5}}}))) << "dialog (type 7 5)";
        QTest::newRow("condition slots of a DO line")
            << one(Script::Line{rawStatement(0, {{2, {4, 4}}}), rawStatement(0, {}), {}})
            << "DO [type3=4 value3=4] do nothing";
        QTest::newRow("else of a DO line") << one(Script::Line{{}, rawStatement(1, {}), rawStatement(2, {})})
                                           << "DO return and SKIP default ELSE return and RUN default";
        QTest::newRow("blank else of an IF line") << one(ifLine(rawStatement(1, {}), rawStatement(2, {})))
                                                  << "IF it is daytime THEN return and RUN default\n";
        QTest::newRow("else that does nothing but keeps a byte")
            << one(ifLine(rawStatement(1, {}), rawStatement(2, {}), rawStatement(0, {{5, {0, 1}}})))
            << "ELSE do nothing [value6=1]";
        QTest::newRow("unknown condition") << one(ifLine(rawStatement(99, {{0, {1, 2}}}), rawStatement(2, {})))
                                           << "IF unknown condition 99 [type1=1 value1=2] THEN";
        QTest::newRow("negative condition")
            << one(ifLine(rawStatement(-4, {}), rawStatement(2, {}))) << "unknown condition -4";
        QTest::newRow("unknown action") << one(doLine(rawStatement(INT_MAX, {}))) << "DO unknown action 2147483647";
        QTest::newRow("goto targets get labels")
            << bytesOf(headerFor(3),
                       {doLine(rawStatement(3, {{0, {3, 2}}})), plain,
                        ifLine(rawStatement(1, {}), rawStatement(3, {{0, {3, 0}}}), rawStatement(3, {{0, {3, 2}}}))})
            << "line_0: DO goto line (Number line_2)\nDO dialog (Number 120)\nline_2: IF it is daytime THEN goto line "
               "(Number line_0) ELSE goto line (Number line_2)";
        QTest::newRow("goto outside the script or by variable")
            << bytesOf(headerFor(2), {doLine(rawStatement(3, {{0, {3, 2}}})), doLine(rawStatement(3, {{0, {2, 0}}}))})
            << "DO goto line (Number 2)\nDO goto line (Local Var 0)";
    }

    void keptBytes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, shows);
        checkRoundTrip(bytes);
        const QString text = QString::fromStdString(ScriptDecompiler::decompile(loaded(bytes)));
        QVERIFY2(text.contains(shows), qPrintable(text));
    }

    void randomScriptsRoundTrip()
    {
        for (unsigned seed = 1; seed <= 400; ++seed) {
            checkRoundTrip(randomScript(seed));
            if (QTest::currentTestFailed())
                QFAIL(qPrintable(QStringLiteral("seed %1").arg(seed)));
        }
    }

    // What people write (any case and spacing, labels, comments, continued lines) compiles to the
    // same bytes as the text the decompiler writes back for it.
    void compileDecompileCompileIsStable()
    {
        const std::string source = "// toll bridge\n"
                                   "SCRIPT 42 \"Gate guard\"   // its description\n"
                                   "\n"
                                   "start:\n"
                                   "if LOCAL   FLAG(number 0)is SET then Return And Run Default \\\n"
                                   "   else set local flag (NUMBER 0) to true\n"
                                   "Do goto line (Number paid)\n"
                                   "IF (triggerer) has at least (Number 50) gold \\\n"
                                   "   THEN gold of (TRIGGERER) :adjust by (Number -50) \\   // pays\n"
                                   "   ELSE goto line (Number start)\n"
                                   "paid: DO (global var 3) = (pc var 4) + (Number +2)\n"
                                   "DO kill (every follower (sp))\n";
        const ScriptCompiler::Result first = compiled(source);
        QVERIFY2(first.ok(), qPrintable(diagnosticsText(first)));
        QCOMPARE(first.lines.size(), size_t(5));
        QCOMPARE(first.lines[1].thenAction.values[0], 3);
        QCOMPARE(first.lines[2].elseAction.values[0], 0);
        QCOMPARE(first.lines[3].thenAction.values[2], 2);
        QCOMPARE(first.lines[4].thenAction.types[0], quint8(Script::EveryFollower));
        Script script;
        script.loadBytes(scriptPath, first.script().toBytes());
        const std::string text = ScriptDecompiler::decompile(script);
        QCOMPARE(
            QString::fromStdString(text),
            QStringLiteral("script 42 \"Gate guard\"\n"
                           "line_0: IF local flag (Number 0) is set THEN return and RUN default ELSE set local flag "
                           "(Number 0) to true\n"
                           "DO goto line (Number line_3)\n"
                           "IF (Triggerer) has at least (Number 50) gold THEN gold of (Triggerer): adjust by "
                           "(Number -50) ELSE goto line (Number line_0)\n"
                           "line_3: DO (Global Var 3) = (PC Var 4) + (Number 2)\n"
                           "DO kill (Every follower (SP))\n"));
        const ScriptCompiler::Result second = compiled(text);
        QVERIFY(second.ok());
        QCOMPARE(second.script().toBytes(), first.script().toBytes());
    }

    void byteOrderMarkAndWindowsLineEnds()
    {
        const ScriptCompiler::Result result
            = compiled("\xef\xbb\xbfscript 3 \"x\"\r\nDO dialog (Number 4) // talk\r\n");
        QVERIFY2(result.ok(), qPrintable(diagnosticsText(result)));
        QCOMPARE(result.number, 3);
        QCOMPARE(result.lines.at(0).thenAction.values[0], 4);
    }

    void emptySourceIsAnEmptyScript()
    {
        const ScriptCompiler::Result result = compiled("");
        QVERIFY(result.ok());
        QCOMPARE(result.number, -1);
        QCOMPARE(result.script().toBytes(), bytesOf(headerFor(0, ""), {}));
    }

    void badInput_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("lineInText");
        const auto row = [](const char* name, const QString& text, int lineInText, int column, const char* message) {
            QTest::newRow(name) << text << column << QString::fromUtf8(message) << lineInText;
        };
        row("unknown statement", "IF it is daytim THEN do nothing", 0, 4, "did you mean 'it is daytime'");
        row("action as condition", "IF dialog (Number 1) THEN do nothing", 0, 4, "is an action, not a condition");
        row("too few operands", "DO dialog", 0, 4, "takes 1 operand, not 0");
        row("too many operands", "DO kill (Player) (Player)", 0, 4, "takes 1 operand, not 2");
        row("object for a number", "DO dialog (Player)", 0, 11, "operand 1 of 'dialog (Type value)' is a number");
        row("number for an object", "DO kill (Number 3)", 0, 9, "is an object");
        row("unknown operand", "DO dialog (Globle Var 3)", 0, 11, "unknown operand '(Globle Var 3)'");
        row("number without value", "DO dialog (Local Var)", 0, 11, "needs a value");
        row("value above int32", "DO dialog (Number 2147483648)", 0, 19, "outside the 32-bit range");
        row("value below int32", "DO dialog (Number -2147483649)", 0, 19, "outside the 32-bit range");
        row("huge value", "DO dialog (Number 99999999999999999999999)", 0, 19, "outside the 32-bit range");
        row("not a number", "DO dialog (Number 1x)", 0, 19, "neither a number nor a label");
        row("unclosed parenthesis", "DO dialog (Number 1", 0, 11, "'(' is not closed");
        row("stray parenthesis", "DO dialog Number 1)", 0, 19, "')' without '('");
        row("unterminated string", "script 42 \"Gate guard", 0, 11, "unterminated string");
        row("description too long", "script \"" + QString(41, 'x') + "\"", 0, 8, "takes 41 bytes");
        row("not Latin-1", "script \"Страж\"", 0, 9, "Latin-1");
        row("zero byte in description", "script \"a\\x00b\"", 0, 10, "first zero byte");
        row("script number", "script 123456 \"x\"", 0, 8, "0 to 99999");
        row("undefined label", "DO goto line (Number nowhere)", 0, 22, "'nowhere' is not defined");
        row("label twice", "here: DO do nothing\nhere: DO do nothing", 1, 1, "already defined on line 3");
        row("label outside goto", "DO dialog (Number here)", 0, 19, "only (Number label) of goto line");
        row("IF without THEN", "IF it is daytime", 0, 17, "IF needs THEN");
        row("missing condition", "IF THEN do nothing", 0, 4, "IF needs a condition");
        row("trailing text", "DO do nothing ELSE do nothing ELSE x", 0, 31, "unexpected 'ELSE x'");
        row("unknown keyword", "WHILE it is daytime", 0, 1, "a line starts with IF, DO");
        row("catalogue code as unknown", "DO unknown action 5", 0, 4, "is in the catalogue");
        row("condition zero", "IF unknown condition 0 THEN do nothing", 0, 4, "write DO");
        row("slot shown in the sentence", "DO dialog (Number 1) [value1=3]", 0, 23, "write it there");
        row("slot out of range", "DO do nothing [type9=1]", 0, 16, "unknown field 'type9'");
        row("type byte too big", "DO do nothing [type2=256]", 0, 22, "outside 0 to 255");
        row("slot value too big", "DO do nothing [value2=4294967296]", 0, 23, "outside -2147483648");
        row("unclosed annotation", "DO do nothing [type2=1", 0, 15, "'[' is not closed");
        row("header field", "header colour=3", 0, 8, "unknown header field 'colour'");
        row("header word too big", "header word0=2147483648", 0, 14, "outside");
        row("header bytes", "header bytes4=0102", 0, 15, "four bytes");
        row("positive line count", "header lines=3", 0, 14, "outside -2147483648 to -1");
        row("lines under a negative count", "header lines=-1\nDO do nothing", 0, 8, "holds no lines");
        row("description tail too long", "script \"" + QString(30, 'x') + "\"\nheader desc-tail=" + QString(20, '1'), 1,
            8, "take 41 bytes");
        row("label on a header", "here: header word0=1", 0, 7, "a label marks a line of IF or DO");
    }

    // Each mistake is found where it stands, the lines around it are still checked, nothing comes out.
    void badInput()
    {
        QFETCH(QString, line);
        QFETCH(int, column);
        QFETCH(QString, message);
        QFETCH(int, lineInText);
        const std::string source = "// first line\nDO do nothing\n" + line.toStdString() + "\nDO dialog (Number 1 2)\n";
        const ScriptCompiler::Result result = compiled(source);
        QVERIFY(!result.ok());
        QVERIFY(result.lines.empty());
        const int badLine = 3 + int(line.count('\n'));
        QVERIFY2(result.diagnostics.size() == 2, qPrintable(diagnosticsText(result)));
        const ScriptCompiler::Diagnostic& found = result.diagnostics.front();
        QVERIFY2(QString::fromStdString(found.message).contains(message), qPrintable(diagnosticsText(result)));
        QCOMPARE(found.line, 3 + lineInText);
        QCOMPARE(found.column, column);
        // The line after the mistake is still read and its own mistake reported.
        QCOMPARE(result.diagnostics.back().line, badLine + 1);
    }

    void statementMistakesCoverTheStatement()
    {
        const ScriptCompiler::Result result = compiled("IF it is daytim  THEN kill (Player) (Player) [type3=1]\n");
        QCOMPARE(result.diagnostics.size(), size_t(2));
        QCOMPARE(result.diagnostics[0].length, 12);
        QCOMPARE(result.diagnostics[1].column, 23);
        QCOMPARE(result.diagnostics[1].length, 22);
    }

    void columnsCountCharacters()
    {
        const ScriptCompiler::Result result = compiled("DO do nothing // é\nscript \"café\" x\n");
        QCOMPARE(result.diagnostics.size(), size_t(1));
        QCOMPARE(result.diagnostics[0].line, 2);
        QCOMPARE(result.diagnostics[0].column, 15);
    }

    void continuedLinePlacesDiagnostics()
    {
        const ScriptCompiler::Result result = compiled("IF it is daytime \\\n  THEN dialog (Number x1)\n");
        QCOMPARE(result.diagnostics.size(), size_t(1));
        QCOMPARE(result.diagnostics[0].line, 2);
        QCOMPARE(result.diagnostics[0].column, 23);
    }

    void moreLinesThanTheFileCounts()
    {
        const ScriptCompiler::Result result
            = ScriptCompiler::compile("DO do nothing\nDO do nothing\n\nDO do nothing\n", 2);
        QCOMPARE(result.diagnostics.size(), size_t(1));
        QCOMPARE(result.diagnostics[0].line, 4);
        QVERIFY(QString::fromStdString(result.diagnostics[0].message).contains("more than 2 lines"));
        QVERIFY(result.lines.empty());
    }

    // Any text at all gives a script or diagnostics, never a crash.
    void randomTextNeverCrashes()
    {
        const std::string good = ScriptDecompiler::decompile(loaded(randomScript(7)));
        for (unsigned seed = 1; seed <= 300; ++seed) {
            QByteArray text = QByteArray::fromStdString(good);
            text = FormatChecks::corrupt(text, seed, 4);
            ScriptCompiler::compile(std::string_view(text.constData(), size_t(text.size())));
            const QByteArray noise = FormatChecks::randomBytes(200, seed, seed % 2 == 0);
            ScriptCompiler::compile(std::string_view(noise.constData(), size_t(noise.size())));
        }
    }
};

QTEST_GUILESS_MAIN(TestScriptSource)
#include "tst_script_source.moc"
