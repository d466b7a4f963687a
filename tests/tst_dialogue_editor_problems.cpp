// The dialogue page's Problems panel: the findings of `loreka check` for the open file, rows that
// open their line, and a list that follows every edit and undo.
#include "DialogueEditWidget.h"
#include "DlgPcLineEditWidget.h"
#include "Document.h"
#include "FormatChecks.h"
#include "NamedChild.h"
#include "ScriptedAnswerer.h"

#include <QLabel>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QUndoStack>
#include <QtTest>

#include <memory>

namespace {

// Line 3 leads to the missing line 7; line 4 is read by the game with a note only (empty response).
const QByteArray DIALOGUE = "{1}{Hi}{}{}{}{}{}\r\n"
                            "\t{2}{Yes}{}{1}{}{1}{}\r\n"
                            "\t{3}{Where?}{}{1}{}{7}{}\r\n"
                            "\t{4}{Bye.}{}{1}{}{}{}\r\n";

} // namespace

class TestDialogueProblems : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;
    std::unique_ptr<DialogueEditWidget> page;

    template <typename T>
    T* child(const char* name) const
    {
        return namedChild<T>(page.get(), name);
    }

    QTreeWidget* problems() const { return child<QTreeWidget>("problemsList"); }

    QStringList rows() const
    {
        QStringList all;
        for (int row = 0; row < problems()->topLevelItemCount(); ++row) {
            const QTreeWidgetItem* item = problems()->topLevelItem(row);
            all << item->text(0) + QLatin1Char(' ') + item->text(1) + QStringLiteral(": ") + item->text(2);
        }
        return all;
    }

    void clickRow(int row)
    {
        QTreeWidgetItem* item = problems()->topLevelItem(row);
        QVERIFY(item);
        problems()->scrollToItem(item);
        QTest::mouseClick(problems()->viewport(), Qt::LeftButton, {}, problems()->visualItemRect(item).center());
    }

private slots:
    void init()
    {
        page = std::make_unique<DialogueEditWidget>();
        page->resize(1200, 800);
        page->show();
        QVERIFY(QTest::qWaitForWindowExposed(page.get()));
        const QString path = dir.filePath(QStringLiteral("problems.dlg"));
        QVERIFY(FormatChecks::writeFile(path, DIALOGUE));
        ScriptedAnswerer quiet;
        QVERIFY(page->openFile(path));
    }

    void cleanup() { page.reset(); }

    void listsErrorsAndNotes()
    {
        QCOMPARE(rows(), (QStringList{"error 3: PC line 3: response line 7 does not exist",
                                      "note 4: PC line 4: Response line is empty: the game reads it as 0, the end of "
                                      "the conversation"}));
        QVERIFY(child<QLabel>("labelProblems")->text().contains(QStringLiteral("1 error(s), 1 note(s)")));
        QVERIFY(problems()->isVisible());
    }

    // A note-only line is not shown as broken: no alarm colour, a note mark instead.
    void noteOnlyLinesAreNotBroken()
    {
        QTreeWidget* tree = child<QTreeWidget>("treePC");
        const QTreeWidgetItem* broken = tree->findItems(QStringLiteral("3"), Qt::MatchExactly, 1).value(0);
        const QTreeWidgetItem* noted = tree->findItems(QStringLiteral("4"), Qt::MatchExactly, 1).value(0);
        const QTreeWidgetItem* clean = tree->findItems(QStringLiteral("2"), Qt::MatchExactly, 1).value(0);
        QVERIFY(broken && noted && clean);
        QVERIFY(broken->foreground(1).color() != clean->foreground(1).color());
        QCOMPARE(noted->foreground(1).color(), clean->foreground(1).color());
        QVERIFY(!noted->icon(0).isNull());
        QVERIFY(clean->icon(0).isNull());
    }

    void clickingARowOpensItsLine()
    {
        clickRow(1);
        QCOMPARE(child<QStackedWidget>("stackForms")->currentWidget()->objectName(), QStringLiteral("pcForm"));
        QCOMPARE(child<DlgPcLineEditWidget>("pcForm")->getOriginalLine()->index(), 4);
        clickRow(0);
        QCOMPARE(child<DlgPcLineEditWidget>("pcForm")->getOriginalLine()->index(), 3);
    }

    // Fixing the response line in the form takes its error off the list; undo brings it back.
    void editsAndUndoRefreshTheList()
    {
        clickRow(0);
        auto* response = child<DlgPcLineEditWidget>("pcForm")->findChild<QSpinBox*>(QStringLiteral("spinResponse"));
        QVERIFY(response);
        response->setValue(1);
        QVERIFY(page->openNpcLine(1)); // leaving the line applies its form
        QCOMPARE(rows().size(), 1);
        QVERIFY(rows().first().startsWith(QStringLiteral("note 4:")));
        page->document()->undoStack()->undo();
        QCOMPARE(rows().size(), 2);
        QVERIFY(rows().first().startsWith(QStringLiteral("error 3:")));
        page->document()->undoStack()->redo();
        QCOMPARE(rows().size(), 1);
    }
};

QTEST_MAIN(TestDialogueProblems)
#include "tst_dialogue_editor_problems.moc"
