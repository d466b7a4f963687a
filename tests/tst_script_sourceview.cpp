// The Script tab's Source view driven offscreen: the text follows the document, Apply is one undo step
// and reaches the file on Save, a source with mistakes is refused and shows them, unapplied edits are
// never dropped without asking, find and replace, completion.
#include "FormatChecks.h"
#include "ScriptCompiler.h"
#include "ScriptDecompiler.h"
#include "ScriptDocument.h"
#include "ScriptSourceEdit.h"
#include "ScriptSourceView.h"
#include "ScriptWidget.h"
#include "ScriptedAnswerer.h"
#include "SourceFindBar.h"
#include "TokensWidget.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QUndoStack>
#include <QtTest>

using arcanum::Script;

namespace {

const char* const guardSource = "script 12 \"Guard\"\n"
                                "IF (Triggerer) has at least (Number 50) gold THEN dialog (Number 120)\n"
                                "DO return and SKIP default\n";

QByteArray compiledBytes(const std::string& source)
{
    const arcanum::ScriptCompiler::Result result = arcanum::ScriptCompiler::compile(source);
    return result.script().toBytes();
}

} // namespace

class TestScriptSourceView : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;
    std::unique_ptr<ScriptWidget> page;
    std::unique_ptr<ScriptedAnswerer> answers;

    QString path() const { return dir.filePath(QStringLiteral("00012guard.scr")); }
    ScriptSourceView& view() const { return *page->sourceView(); }
    QString text() const { return view().editor()->toPlainText(); }
    QTabWidget* tabs() const { return page->findChild<QTabWidget*>(QStringLiteral("tabViews")); }
    QByteArray documentBytes() const { return page->scriptDocument()->script().toBytes(); }

    void type(const QString& source)
    {
        view().editor()->selectAll();
        view().editor()->insertPlainText(source);
    }

private slots:
    void init()
    {
        QVERIFY(FormatChecks::writeFile(path(), compiledBytes(guardSource)));
        answers = std::make_unique<ScriptedAnswerer>();
        page = std::make_unique<ScriptWidget>();
        page->setConfirmOverwrite(false);
        page->resize(1000, 700);
        page->show();
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        QVERIFY(page->openFile(path()));
        tabs()->setCurrentIndex(1);
    }

    void cleanup()
    {
        page.reset();
        answers.reset();
    }

    void showsTheDocument()
    {
        QCOMPARE(text(), QString::fromLatin1(guardSource));
        QVERIFY(!view().isEdited());
        QVERIFY(!view().findChild<QPushButton*>(QStringLiteral("buttonApplySource"))->isEnabled());
    }

    void applyIsOneStepAndReachesTheFile()
    {
        const QString edited = QStringLiteral("script 12 \"Guard\"\n"
                                              "// pays or talks\n"
                                              "IF (Triggerer) has at least (Number 50) gold THEN dialog (Number 121)\n"
                                              "DO kill (Attachee)\n"
                                              "DO return and SKIP default\n");
        type(edited);
        QVERIFY(view().isEdited());
        QTest::mouseClick(view().findChild<QPushButton*>(QStringLiteral("buttonApplySource")), Qt::LeftButton);
        QVERIFY(!view().isEdited());
        QCOMPARE(text(), edited); // the comment stays
        QUndoStack* stack = page->scriptDocument()->undoStack();
        QCOMPARE(stack->count(), 1);
        QCOMPARE(documentBytes(), compiledBytes(edited.toStdString()));
        QCOMPARE(page->rows().size(), 5); // IF, THEN, ELSE, DO, DO
        stack->undo();
        QCOMPARE(documentBytes(), compiledBytes(guardSource));
        QCOMPARE(text(), QString::fromLatin1(guardSource));
        QCOMPARE(page->rows().size(), 4);
        stack->redo();
        QVERIFY(page->save());
        QCOMPARE(FormatChecks::readFile(path()), compiledBytes(edited.toStdString()));
    }

    void mistakesAreShownAndNothingApplied()
    {
        type(QStringLiteral("script 12 \"Guard\"\nDO dialog (Number 1)\nDO kil (Attachee)\nDO dialog (Number x)\n"));
        QVERIFY(!view().apply());
        QCOMPARE(page->scriptDocument()->undoStack()->count(), 0);
        QCOMPARE(documentBytes(), compiledBytes(guardSource));
        QListWidget* list = view().diagnosticsList();
        QCOMPARE(list->count(), 2); // the unknown statement, the label where no line is meant
        QVERIFY2(list->item(0)->text().startsWith(
                     QStringLiteral("Line 3, column 4: unknown action 'kil (Attachee)'; did you mean 'kill (Object)'")),
                 qPrintable(list->item(0)->text()));
        QCOMPARE(view().editor()->extraSelections().size(), 2);
        QCOMPARE(view().editor()->extraSelections().first().cursor.selectedText(), QStringLiteral("kil (Attachee)"));
        QCOMPARE(view().editor()->extraSelections().last().cursor.selectedText(), QStringLiteral("x)"));
        emit list->itemClicked(list->item(1));
        const QTextCursor cursor = view().editor()->textCursor();
        QCOMPARE(cursor.blockNumber(), 3);
        QCOMPARE(cursor.positionInBlock(), 18);
        QVERIFY(view()
                    .findChild<QLabel*>(QStringLiteral("labelSourceState"))
                    ->text()
                    .contains(QStringLiteral("does not compile; mistakes: 2")));
    }

    void aSourceOfAnotherScriptIsRefused()
    {
        type(QStringLiteral("script 13 \"Guard\"\n"));
        QVERIFY(!view().apply());
        QVERIFY(view().diagnosticsList()->item(0)->text().contains(QStringLiteral("open file is script 12")));
    }

    void typingIsCheckedAfterAMoment()
    {
        type(QStringLiteral("DO dialog\n"));
        QTRY_COMPARE(view().diagnosticsList()->count(), 1);
    }

    void leavingAsksAboutUnappliedEdits_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("tabAfter");
        QTest::addColumn<bool>("applied");
        QTest::newRow("apply") << int(QMessageBox::Apply) << 0 << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << 0 << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << 1 << false;
    }

    void leavingAsksAboutUnappliedEdits()
    {
        QFETCH(int, answer);
        QFETCH(int, tabAfter);
        QFETCH(bool, applied);
        const QString edited = QStringLiteral("script 12 \"Guard\"\nDO do nothing\n");
        type(edited);
        answers->buttons.enqueue(QMessageBox::StandardButton(answer));
        tabs()->setCurrentIndex(0);
        QCOMPARE(answers->count(QStringLiteral("question")), 1);
        QCOMPARE(tabs()->currentIndex(), tabAfter);
        QCOMPARE(documentBytes(), applied ? compiledBytes(edited.toStdString()) : compiledBytes(guardSource));
        QCOMPARE(text(), answer == QMessageBox::Discard ? QString::fromLatin1(guardSource) : edited);
    }

    // Saving with edits not applied asks first: Apply puts them in the file written, Discard saves the
    // script as it stands, Cancel (or a source that does not compile) saves nothing and keeps the text.
    void saveAsksAboutUnappliedEdits_data()
    {
        QTest::addColumn<QString>("edited");
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("saved");
        QTest::addColumn<bool>("applied");
        const QString good = QStringLiteral("script 12 \"Guard\"\nDO kill (Player)\n");
        QTest::newRow("apply") << good << int(QMessageBox::Apply) << true << true;
        QTest::newRow("discard") << good << int(QMessageBox::Discard) << true << false;
        QTest::newRow("cancel") << good << int(QMessageBox::Cancel) << false << false;
        QTest::newRow("apply, does not compile")
            << QStringLiteral("script 12 \"Guard\"\nDO kil (Player)\n") << int(QMessageBox::Apply) << false << false;
    }

    void saveAsksAboutUnappliedEdits()
    {
        QFETCH(QString, edited);
        QFETCH(int, answer);
        QFETCH(bool, saved);
        QFETCH(bool, applied);
        const QByteArray before = FormatChecks::readFile(path());
        type(edited);
        answers->buttons.enqueue(QMessageBox::StandardButton(answer));
        QCOMPARE(page->save(), saved);
        QCOMPARE(answers->count(QStringLiteral("question")), 1);
        QCOMPARE(FormatChecks::readFile(path()), applied ? compiledBytes(edited.toStdString()) : before);
        QCOMPARE(view().isEdited(), !saved);
        if (!saved)
            QCOMPARE(text(), edited); // nothing typed is lost
    }

    void followsTheRowsUnlessEdited()
    {
        auto* description = page->findChild<QLineEdit*>(QStringLiteral("editDesc"));
        description->setText(QString());
        QTest::keyClicks(description, QStringLiteral("Watch"));
        QVERIFY(text().startsWith(QStringLiteral("script 12 \"Watch\"\n")));
        type(QStringLiteral("script 12 \"Mine\"\n"));
        QTest::keyClicks(description, QStringLiteral("man"));
        QCOMPARE(text(), QStringLiteral("script 12 \"Mine\"\n"));
        QVERIFY(view()
                    .findChild<QLabel*>(QStringLiteral("labelSourceState"))
                    ->text()
                    .contains(QStringLiteral("changed since")));
    }

    void findAndReplace()
    {
        SourceFindBar* bar = view().findBar();
        // The window gives the same key to its file filter; in the text it is the text's own.
        QAction windowFind;
        windowFind.setShortcut(QKeySequence::Find);
        page->addAction(&windowFind);
        QSignalSpy windowFound(&windowFind, &QAction::triggered);
        view().editor()->setFocus();
        QTest::keySequence(view().editor(), QKeySequence::Find);
        QVERIFY(bar->isVisible());
        QVERIFY(bar->findEdit()->hasFocus());
        QTest::keySequence(bar->findEdit(), QKeySequence::Find);
        QCOMPARE(windowFound.count(), 0);
        bar->findEdit()->setText(QStringLiteral("number"));
        QVERIFY(bar->findNext());
        QCOMPARE(view().editor()->textCursor().selectedText(), QStringLiteral("Number"));
        bar->replaceEdit()->setText(QStringLiteral("Local Var"));
        QCOMPARE(bar->replaceAll(), 2);
        QVERIFY(text().contains(QStringLiteral("(Local Var 50) gold THEN dialog (Local Var 120)")));
        view().editor()->undo(); // one step takes every replacement back
        QCOMPARE(text(), QString::fromLatin1(guardSource));
        bar->findEdit()->setText(QStringLiteral("absent"));
        QVERIFY(!bar->findNext());
    }

    void completesStatementsAndOperands()
    {
        ScriptSourceEdit* edit = view().editor();
        type(QStringLiteral("DO dia"));
        bool inOperand = true;
        QCOMPARE(edit->completionPrefix(inOperand), QStringLiteral("dia"));
        QVERIFY(!inOperand);
        edit->complete();
        QCOMPARE(edit->completer()->currentCompletion(), QStringLiteral("dialog (Number 0)"));
        emit edit->completer()->activated(edit->completer()->currentCompletion());
        QCOMPARE(text(), QStringLiteral("DO dialog (Number 0)"));
        type(QStringLiteral("DO kill (every f"));
        QCOMPARE(edit->completionPrefix(inOperand), QStringLiteral("every f"));
        QVERIFY(inOperand);
        edit->complete();
        emit edit->completer()->activated(edit->completer()->currentCompletion());
        QCOMPARE(text(), QStringLiteral("DO kill (Every follower (SP))"));
        view().check();
        QCOMPARE(view().diagnosticsList()->count(), 0);
    }
};

QTEST_MAIN(TestScriptSourceView)
#include "tst_script_sourceview.moc"
