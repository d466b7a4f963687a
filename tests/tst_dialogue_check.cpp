// The findings of a dialogue as the game reads it: what each is about, how grave, and where.
#include "DialogueCheck.h"
#include "DialogueCatalogue.h"

#include <QtTest>

using arcanum::DialogueCheck;
using arcanum::DialogueFileNew;

namespace {

using Severity = DialogueCheck::Severity;
using Kind = DialogueCheck::LineKind;

DialogueFileNew read(const QByteArray& bytes)
{
    DialogueFileNew dialogue;
    dialogue.readBytes(bytes);
    return dialogue;
}

// "error 3 PC 2: message" for one finding, so a whole list compares at once.
QString describe(const DialogueCheck::Finding& finding)
{
    const char* kind = finding.kind == Kind::Pc ? "PC" : finding.kind == Kind::Npc ? "NPC" : "-";
    return QStringLiteral("%1 %2 %3 %4: %5")
        .arg(finding.severity == Severity::Error ? "error" : "note")
        .arg(finding.fileLine)
        .arg(kind)
        .arg(finding.index)
        .arg(finding.message);
}

QStringList describeAll(const DialogueCheck& check)
{
    QStringList all;
    for (const DialogueCheck::Finding& finding : check.findings())
        all << describe(finding);
    return all;
}

const QByteArray CRAFTED = "{1}{Hi}{}{}{}{}{}\r\n"
                           "\t{2}{Yes}{}{5, -17}{}{10}{}\r\n"
                           "\t{3}{No}{}{x}{zz 1}{2}{}\r\n"
                           "{10}{Well}{}{}{}{}{}\r\n"
                           "{20}{Later}{}{}{}{30}{}\r\n"
                           "\t{2}{Again}{}{1}{}{}{}\r\n";

} // namespace

class TestDialogueCheck : public QObject
{
    Q_OBJECT

private slots:
    void findingsInFileOrder()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Error: ")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Error: ")));
        const DialogueFileNew dialogue = read(CRAFTED);
        const DialogueCheck check(dialogue);
        const QStringList expected = {
            "note 2 PC 2: PC line 2: Intelligence requirements could not be parsed: the game reads '5, -17' as 5",
            "error 3 PC 3: PC line 3: intelligence 'x' has no number: the game stops reading the file here",
            "error 3 PC 3: PC line 3: opcode 'zz' is unknown",
            "error 3 PC 3: PC line 3: response line 2 is a PC response, not an NPC line",
            "error 5 NPC 20: NPC line 20: response line 30 does not exist",
            "note 5 NPC 20: NPC line 20: nothing in the file leads here (a script may start the conversation here)",
            "note 6 PC 2: PC line 2: Response line is empty: the game reads it as 0, the end of the conversation",
            "error 6 PC 2: PC line 2: line number 2 is used again (first on line 2)",
        };
        QCOMPARE(describeAll(check), expected);
        QCOMPARE(check.count(Severity::Error), 5);
        QCOMPARE(check.count(Severity::Note), 3);
        QCOMPARE(check.worstOf(Kind::Pc, 3), std::optional<Severity>(Severity::Error));
        QCOMPARE(check.worstOf(Kind::Npc, 20), std::optional<Severity>(Severity::Error));
        QCOMPARE(check.worstOf(Kind::Npc, 10), std::nullopt);
        // Line 2 is a note on file line 2 and a duplicate on file line 6: the graver wins.
        QCOMPARE(check.worstOf(Kind::Pc, 2), std::optional<Severity>(Severity::Error));
    }

    void noteOnlyLine()
    {
        const DialogueFileNew dialogue = read("{1}{Hi}{}{}{}{}{}\r\n\t{2}{Yes}{}{5}{gf1 2}{0}{}\r\n");
        const DialogueCheck check(dialogue);
        QCOMPARE(check.count(Severity::Error), 0);
        QCOMPARE(check.worstOf(Kind::Pc, 2), std::optional<Severity>(Severity::Note));
    }

    // A line a result names (the lines of a join) is led to, as much as a response's line.
    void linesNamedByResultsAreReached()
    {
        const DialogueCheck check(read("{1}{Hi}{}{}{}{}{}\r\n\t{2}{Join}{}{1}{}{0}{jo 8 9}\r\n{8}{Joined}{}{}{}{}{}\r\n"
                                       "{10}{Alone}{}{}{}{}{}\r\n"));
        QCOMPARE(check.worstOf(Kind::Npc, 8), std::nullopt);
        QCOMPARE(check.worstOf(Kind::Npc, 10), std::optional<Severity>(Severity::Note));
    }

    void unreadRestIsAnError()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Index could not be parsed")));
        const DialogueCheck check(read("{1}{Hi}{}{}{}{}{}\r\n{x}{b}{}{}{}{}{}\r\n"));
        QCOMPARE(describeAll(check),
                 QStringList{"error 2 - 0: the entry's line number 'x' is not a number; it and the rest of the file "
                             "are kept as text"});
    }

    // An edited line is written from its fields: what its read text had no longer counts, but a tests
    // field still written as read does.
    void editedLineIsJudgedByItsFields()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Error: ")));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Error: ")));
        DialogueFileNew dialogue = read("{1}{Hi}{}{}{}{}{}\r\n\t{2}{#Yes}{}{x}{zz 1}{1}{}\r\n");
        DialogueFileNew::PCLine& line = *dialogue.pcLines().first();
        QCOMPARE(DialogueCheck(dialogue).count(Severity::Error), 3);
        line.setIntelligence(5);
        QCOMPARE(describeAll(DialogueCheck(dialogue)),
                 (QStringList{"error 2 PC 2: PC line 2: opcode 'zz' is unknown",
                              "error 2 PC 2: PC line 2: a response must not start with '#'"}));
        // Records equal to what was read (none) leave the field written as read.
        line.setTests({});
        QCOMPARE(DialogueCheck(dialogue).count(Severity::Error), 2);
        line.setTests({{arcanum::dlg::test::TEST_MONEY, 5}});
        line.setText(QStringLiteral("Yes"));
        QVERIFY(DialogueCheck(dialogue).findings().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestDialogueCheck)
#include "tst_dialogue_check.moc"
