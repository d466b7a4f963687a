// Writing dialogue files: layout, what is kept as read, what edits change, and failed saves.
#include "DialogueFileNew.h"

#include "FormatChecks.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <functional>

using arcanum::DialogueFileNew;
using namespace arcanum::dlg;

namespace {

const QString SAMPLE = QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game/damaged/sample_dialogue_damaged.dlg");

DialogueFileNew::NPCLinePointer npc(int index, const QString& text)
{
    DialogueFileNew::NPCLinePointer line(new DialogueFileNew::NPCLine(index));
    line->setText(text);
    return line;
}

DialogueFileNew::PCLinePointer pc(int index, const QString& text)
{
    DialogueFileNew::PCLinePointer line(new DialogueFileNew::PCLine(index));
    line->setText(text);
    return line;
}

DialogueFileNew parse(QString text)
{
    DialogueFileNew dialogue;
    QTextStream stream(&text, QIODevice::ReadOnly);
    dialogue.read(stream);
    return dialogue;
}

void ignoreLineErrors(int count)
{
    for (int i = 0; i < count; ++i)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Error: ")));
}

} // namespace

class TestDialogueWriter : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

private slots:
    void answersAreIndentedBelowTheirLines()
    {
        DialogueFileNew dialogue;
        dialogue.npcLines() << npc(1, QStringLiteral("a")) << npc(10, QStringLiteral("b"));
        dialogue.pcLines() << pc(2, QStringLiteral("c")) << pc(3, QStringLiteral("d")) << pc(11, QStringLiteral("e"));
        QCOMPARE(dialogue.toBytes(), QByteArray("{1}{a}{}{}{}{}{}\r\n"
                                                "\t{2}{c}{}{0}{}{0}{}\r\n"
                                                "\t{3}{d}{}{0}{}{0}{}\r\n"
                                                "{10}{b}{}{}{}{}{}\r\n"
                                                "\t{11}{e}{}{0}{}{0}{}\r\n"
                                                "\r\n"));
    }

    void sameIndexWritesTheNpcLineFirst()
    {
        DialogueFileNew dialogue;
        dialogue.npcLines() << npc(5, QStringLiteral("n"));
        dialogue.pcLines() << pc(4, QStringLiteral("before")) << pc(5, QStringLiteral("p"));
        QCOMPARE(dialogue.toBytes(),
                 QByteArray("\t{4}{before}{}{0}{}{0}{}\r\n{5}{n}{}{}{}{}{}\r\n\t{5}{p}{}{0}{}{0}{}\r\n\r\n"));
    }

    void anEmptyModelWritesOneLineEnd()
    {
        QCOMPARE(DialogueFileNew().toBytes(), QByteArray("\r\n"));
        QFile file(dir.filePath(QStringLiteral("empty.dlg")));
        QVERIFY(DialogueFileNew().save(&file));
        QCOMPARE(FormatChecks::readFile(file.fileName()), QByteArray("\r\n"));
    }

    void pcLineItems_data()
    {
        QTest::addColumn<int>("gender");
        QTest::addColumn<int>("intelligence");
        QTest::addColumn<QString>("expected");
        QTest::newRow("either") << -1 << 5 << "{7}{t}{}{5}{gf 12 1, in 3456}{8}{$$ -100}";
        QTest::newRow("gender 0") << 0 << 5 << "{7}{t}{0}{5}{gf 12 1, in 3456}{8}{$$ -100}";
        QTest::newRow("gender 1") << 1 << -6 << "{7}{t}{1}{-6}{gf 12 1, in 3456}{8}{$$ -100}";
        QTest::newRow("any other gender") << 4 << 0 << "{7}{t}{1}{0}{gf 12 1, in 3456}{8}{$$ -100}";
    }

    void pcLineItems()
    {
        QFETCH(int, gender);
        QFETCH(int, intelligence);
        QFETCH(QString, expected);
        DialogueFileNew::PCLinePointer line = pc(7, QStringLiteral("t"));
        line->setGender(DialogueFileNew::Gender(gender));
        line->setIntelligence(intelligence);
        line->setTests({{test::TEST_GLOBAL_FLAG, 12, 1}, {test::TEST_HAS_ITEM, 3456}});
        line->setResponseLine(8);
        line->setResults({{result::RESULT_MONEY, -100}});
        QCOMPARE(line->getCompleteLineText(), expected);
    }

    void npcLineItems()
    {
        DialogueFileNew::NPCLinePointer line = npc(3, QStringLiteral("he"));
        QCOMPARE(line->getCompleteLineText(), QStringLiteral("{3}{he}{}{}{}{}{}"));
        line->setFemaleText(QStringLiteral("she"));
        line->setTestsText(QStringLiteral("as is"));
        line->setResponseLine(4);
        line->setResults({{result::RESULT_WAIT}, {result::RESULT_GLOBAL_VAR, 1, -2}});
        QCOMPARE(line->getCompleteLineText(), QStringLiteral("{3}{he}{she}{}{as is}{4}{wa, gv 1 -2}"));
    }

    void newlinesInTextsAreWindowsLineEnds()
    {
        DialogueFileNew dialogue;
        dialogue.npcLines() << npc(1, QStringLiteral("one\ntwo"));
        QCOMPARE(dialogue.toBytes(), QByteArray("{1}{one\r\ntwo}{}{}{}{}{}\r\n\r\n"));
        QCOMPARE(parse(dialogue.toText()).npcLines().first()->text(), QStringLiteral("one\ntwo"));
    }

    void untouchedFilesAreWrittenAsTheyWere_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("lineProblems");
        QTest::addColumn<QStringList>("warnings");
        QTest::newRow("the sample") << FormatChecks::readFile(SAMPLE) << 1 << QStringList();
        QTest::newRow("opcodes as written") << QByteArray("{1}{a}{}{}{}{}{ CO,wa }\r\n"
                                                          "\t{2}{Yes}{}{5}{QU 5 2,  $$ 7}{3}{Co}\r\n\r\n")
                                            << 0 << QStringList();
        QTest::newRow("comments after lines") << QByteArray("{1}{a}{}{}{}{}{} // one\r\n"
                                                            "\t{2}{b}{}{5}{}{3}{}\t// two\r\n\r\n")
                                              << 0 << QStringList();
        QTest::newRow("defective lines as read") << QByteArray("\t{5} {Hm}{1}{x}{zz 1,  $$ 5}{y}{co}  // odd\r\n"
                                                               "{6}{a}{}{}{}{x}{}\r\n"
                                                               "\t{7}{b\r\nc}{}{5}{}{later} {}\r\n\r\n")
                                                 << 2 << QStringList(); // the rest are notes
        QTest::newRow("unread rest of the file")
            << QByteArray("{1}{a}{}{}{}{}{}\r\n{x}{b}{}{}{}{}{}\r\n{3}{c}{}{}{}{}{}\r\n\r\n") << 0
            << QStringList{"Index could not be parsed: string was x"};
    }

    void untouchedFilesAreWrittenAsTheyWere()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, lineProblems);
        QFETCH(QStringList, warnings);
        const QString path = dir.filePath(QStringLiteral("untouched.dlg"));
        QVERIFY(FormatChecks::writeFile(path, bytes));
        ignoreLineErrors(lineProblems);
        for (const QString& warning : warnings)
            QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
        QFile file(path);
        DialogueFileNew dialogue(&file);
        QVERIFY(dialogue.load());
        QVERIFY(dialogue.save(&file));
        QCOMPARE(FormatChecks::readFile(path), bytes);
    }

    // Lines rebuilt from their fields show every field; both models must rebuild them alike.
    void loadSaveLoadGivesTheSameModel()
    {
        ignoreLineErrors(2);
        QFile sample(SAMPLE);
        DialogueFileNew first(&sample);
        QVERIFY(first.load());
        QFile copy(dir.filePath(QStringLiteral("copy.dlg")));
        QVERIFY(first.save(&copy));
        DialogueFileNew second(&copy);
        QVERIFY(second.load());
        const auto rebuilt = [](DialogueFileNew& dialogue) {
            QStringList lines;
            const auto add = [&lines](DialogueFileNew::Line& line) {
                line.markEdited();
                lines << line.getCompleteLineText() << (line.errors() ? line.errors()->messages : QStringList());
            };
            for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines())
                add(*line);
            for (const DialogueFileNew::PCLinePointer& line : dialogue.pcLines())
                add(*line);
            return lines;
        };
        QCOMPARE(rebuilt(second), rebuilt(first));
    }

    void editedOpcodesAreWrittenFromTheirRecords()
    {
        DialogueFileNew dialogue = parse(QStringLiteral("\t{2}{Yes}{}{5}{QU 5 2,  $$ 7}{3}{Co}\r\n"));
        DialogueFileNew::PCLine& line = *dialogue.pcLines().first();
        const QVector<TestOrResultData> sameTests = line.tests().records();
        line.setTests(sameTests);
        QVERIFY(!line.isEdited());
        QCOMPARE(line.getCompleteLineText(), QStringLiteral("{2}{Yes}{}{5}{QU 5 2,  $$ 7}{3}{Co}"));
        line.setTests({sameTests.at(0), {test::TEST_MONEY, -8}});
        QVERIFY(line.isEdited());
        QVERIFY(line.tests().isEdited());
        QVERIFY(!line.results().isEdited());
        QCOMPARE(line.getCompleteLineText(), QStringLiteral("{2}{Yes}{}{5}{qu 5 2, $$ -8}{3}{Co}"));
    }

    void defectiveLinesAreWrittenFromTheirFieldsOnceEdited()
    {
        ignoreLineErrors(1);
        DialogueFileNew dialogue = parse(QStringLiteral("\t{5} {Hm}{1}{4}{zz 1,  $$ 5}{y}{co}  // odd\r\n"));
        DialogueFileNew::PCLine& line = *dialogue.pcLines().first();
        QCOMPARE(line.getCompleteLineText(), QStringLiteral("{5} {Hm}{1}{4}{zz 1,  $$ 5}{y}{co}  // odd"));
        // What the form shows unchanged does not count as an edit.
        line.setText(line.text());
        line.setResponseLine(line.responseLine());
        line.setResults(line.results().records());
        QVERIFY(!line.isEdited());
        line.setResponseLine(9);
        QVERIFY(line.isEdited());
        QCOMPARE(line.getCompleteLineText(), QStringLiteral("{5}{Hm}{1}{4}{zz 1,  $$ 5}{9}{co}  // odd"));
        QVERIFY(line.errors()); // the problems found while reading stay listed until the file is read again
    }

    void markEditedRebuildsTheLine()
    {
        ignoreLineErrors(1);
        DialogueFileNew dialogue = parse(QStringLiteral("{6}{a}{}{}{ x }{7 }{zz}"));
        DialogueFileNew::NPCLine& line = *dialogue.npcLines().first();
        QCOMPARE(line.getCompleteLineText(), QStringLiteral("{6}{a}{}{}{ x }{7 }{zz}"));
        line.markEdited();
        QCOMPARE(line.getCompleteLineText(), QStringLiteral("{6}{a}{}{}{ x }{7}{zz}"));
    }

    void everySetterMarksARealChange()
    {
        using PC = DialogueFileNew::PCLine;
        using NPC = DialogueFileNew::NPCLine;
        struct Change
        {
            std::function<void(PC&, NPC&)> same;
            std::function<void(PC&, NPC&)> different;
        };
        const std::vector<Change> changes{
            {[](PC& p, NPC&) { p.setIndex(1); }, [](PC& p, NPC&) { p.setIndex(3); }},
            {[](PC& p, NPC&) { p.setText(QString()); }, [](PC& p, NPC&) { p.setText(QStringLiteral("u")); }},
            {[](PC& p, NPC&) { p.setGender(DialogueFileNew::GENDER_EITHER); },
             [](PC& p, NPC&) { p.setGender(DialogueFileNew::GENDER_MALE); }},
            {[](PC& p, NPC&) { p.setIntelligence(0); }, [](PC& p, NPC&) { p.setIntelligence(-3); }},
            {[](PC& p, NPC&) { p.setTests({}); }, [](PC& p, NPC&) { p.setTests({{test::TEST_LEVEL, 2}}); }},
            {[](PC& p, NPC&) { p.setResponseLine(0); }, [](PC& p, NPC&) { p.setResponseLine(5); }},
            {[](PC& p, NPC&) { p.setResults({}); }, [](PC& p, NPC&) { p.setResults({{result::RESULT_XP}}); }},
            {[](PC&, NPC& n) { n.setFemaleText(QString()); }, [](PC&, NPC& n) { n.setFemaleText(QStringLiteral("f")); }},
            {[](PC&, NPC& n) { n.setTestsText(QString()); }, [](PC&, NPC& n) { n.setTestsText(QStringLiteral("x")); }},
            {[](PC&, NPC& n) { n.setResponseLine(-1); }, [](PC&, NPC& n) { n.setResponseLine(1); }},
            {[](PC&, NPC& n) { n.setResults({}); }, [](PC&, NPC& n) { n.setResults({{result::RESULT_XP}}); }},
        };
        for (const Change& change : changes) {
            PC pcLine(1);
            NPC npcLine(2);
            change.same(pcLine, npcLine);
            QVERIFY(!pcLine.isEdited() && !npcLine.isEdited());
            change.different(pcLine, npcLine);
            QVERIFY(pcLine.isEdited() || npcLine.isEdited());
        }
    }

    void unreadRestStaysWhereItWas()
    {
        QTest::ignoreMessage(QtWarningMsg, "Size of read items list  smaller than minimal size: 2 instead of 7");
        DialogueFileNew dialogue = parse(QStringLiteral("{5}{b}{}{}{}{}{}\n{1}{a}{}{}{}{}{}\n{9}{c\n{d}\n\n"));
        dialogue.sortLines();
        const QString text = dialogue.toText();
        QCOMPARE(text, QStringLiteral("{1}{a}{}{}{}{}{}\r\n{5}{b}{}{}{}{}{}\r\n{9}{c\r\n{d}\r\n\r\n"));
        QTest::ignoreMessage(QtWarningMsg, "Size of read items list  smaller than minimal size: 2 instead of 7");
        QCOMPARE(parse(text).toText(), text);
    }

    void everyByteButTheBracesSurvives()
    {
        QByteArray text;
        for (int byte = 1; byte < 256; ++byte) {
            if (byte != '{' && byte != '}' && byte != '\n' && byte != '\r')
                text += char(byte);
        }
        const QByteArray bytes = "{1}{" + text + "}{" + text + "}{}{" + text + "}{}{}\r\n\r\n";
        const QString path = dir.filePath(QStringLiteral("bytes.dlg"));
        QVERIFY(FormatChecks::writeFile(path, bytes));
        QFile file(path);
        DialogueFileNew dialogue(&file);
        QVERIFY(dialogue.load());
        dialogue.npcLines().first()->markEdited();
        QVERIFY(dialogue.save(&file));
        QCOMPARE(FormatChecks::readFile(path), bytes);
    }

    void textsAreWrittenInTheGamesCodePage()
    {
        DialogueFileNew dialogue;
        dialogue.npcLines() << npc(1, QStringLiteral("Привет"));
        QCOMPARE(dialogue.toBytes(), QByteArray("{1}{\xCF\xF0\xE8\xE2\xE5\xF2}{}{}{}{}{}\r\n\r\n"));
    }

    void failedSavesLeaveTheFileAlone()
    {
        DialogueFileNew dialogue;
        dialogue.npcLines() << npc(1, QStringLiteral("a"));
        QFile missingFolder(dir.filePath(QStringLiteral("no/such/folder.dlg")));
        QTest::ignoreMessage(QtWarningMsg, "Failed to open file for writing");
        QVERIFY(!dialogue.save(&missingFolder));
        QVERIFY(!missingFolder.exists());

        QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("folder.dlg")));
        QFile folder(dir.filePath(QStringLiteral("folder.dlg")));
        QTest::ignoreMessage(QtWarningMsg, "Failed to open file for writing");
        QVERIFY(!dialogue.save(&folder));
        QVERIFY(QFileInfo(folder.fileName()).isDir());

        QTest::ignoreMessage(QtWarningMsg, "Failed to open file for writing");
        QVERIFY(!dialogue.save(nullptr));
    }

    void saveReplacesTheWholeFile()
    {
        const QString path = dir.filePath(QStringLiteral("replace.dlg"));
        QVERIFY(FormatChecks::writeFile(path, QByteArray(5000, 'x')));
        DialogueFileNew dialogue;
        dialogue.npcLines() << npc(1, QStringLiteral("a"));
        QFile file(path);
        QVERIFY(dialogue.save(&file));
        QCOMPARE(FormatChecks::readFile(path), QByteArray("{1}{a}{}{}{}{}{}\r\n\r\n"));
    }
};

QTEST_GUILESS_MAIN(TestDialogueWriter)
#include "tst_dialogue_writer.moc"
