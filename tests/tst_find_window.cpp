// Edit › Find in game files… in the window: a search runs off the GUI thread, and activating a result
// opens its file, loose or archived, in its page at the entry or dialogue line it names.
#include "FindInGameDialog.h"
#include "MainWindow.h"
#include "SearchGame.h"

#include "Document.h"
#include "MesWidget.h"
#include "Page.h"
#include "ScriptWidget.h"
#include "gui.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

#include "DialogueEditWidget.h"

using arcanum::GameSearch;

class TestFindWindow : public QObject
{
    Q_OBJECT

    QTemporaryDir game;
    std::unique_ptr<MainWindow> window;
    FindInGameDialog* dialog = nullptr;

    // Runs a search from the dialog's own fields and waits for it; the rows it lists.
    QStringList searchFor(const QString& pattern, GameSearch::Mode mode)
    {
        dialog->findChild<QLineEdit*>("findPattern")->setText(pattern);
        dialog->findChild<QComboBox*>("findMode")->setCurrentIndex(int(FindInGameDialog::modes().indexOf(mode)));
        QSignalSpy finished(dialog, &FindInGameDialog::searchFinished);
        dialog->findChild<QPushButton*>("findStart")->click();
        if (!finished.wait(10000))
            return {QStringLiteral("(no result)")};
        QStringList rows;
        auto* list = dialog->findChild<QTreeWidget*>("findResults");
        for (int i = 0; i < list->topLevelItemCount(); ++i)
            rows.append(list->topLevelItem(i)->text(0) + QLatin1Char(' ') + list->topLevelItem(i)->text(1));
        return rows;
    }

    void activateRow(int row)
    {
        auto* list = dialog->findChild<QTreeWidget*>("findResults");
        emit list->itemActivated(list->topLevelItem(row), 0);
    }

    QString pageFilePath(Page* page) const { return page->document() ? page->document()->path() : QString(); }

private slots:
    void initTestCase()
    {
        QVERIFY(SearchGame::write(game.path()));
        gui::setBaseDir(QDir(game.path()));
        window = std::make_unique<MainWindow>();
        window->show();
        QAction* action = window->findChild<QAction*>("actionFindInGame");
        QVERIFY(action);
        QCOMPARE(action->shortcut(), QKeySequence("Ctrl+Shift+F"));
        action->trigger();
        dialog = window->findChild<FindInGameDialog*>();
        QVERIFY(dialog && dialog->isVisible());
        // Nothing runs yet: there is nothing to cancel.
        QVERIFY(!dialog->findChild<QPushButton*>("findCancel")->isEnabled());
    }

    void cleanupTestCase()
    {
        window.reset();
        gui::settings.remove(QStringLiteral("Directories"));
    }

    void textResultOpensTheEntry()
    {
        QCOMPARE(searchFor("needle", GameSearch::Mode::Text), QStringList{"data/mes/override.mes:3 2"});
        activateRow(0);
        QCOMPARE(pageFilePath(window->mesPage()), game.filePath("data/mes/override.mes"));
        auto* table = window->mesPage()->findChild<QTableView*>();
        QCOMPARE(table->model()->index(table->currentIndex().row(), 0).data().toString(), QStringLiteral("2"));
        QCOMPARE(table->currentIndex().data().toString(), QStringLiteral("Second\nline with Needle"));
    }

    void archivedDialogueOpensAtTheLine()
    {
        QCOMPARE(searchFor("8", GameSearch::Mode::Message),
                 (QStringList{"arcanum1.dat/dlg/00010talk.dlg:2 2", "arcanum1.dat/dlg/00010talk.dlg:3 10"}));
        activateRow(1);
        // Read from the archive; its first save would write the loose copy below data/.
        QCOMPARE(pageFilePath(window->dialoguePage()), game.filePath("data/dlg/00010talk.dlg"));
        QVERIFY(!QFile::exists(game.filePath("data/dlg/00010talk.dlg")));
        QSpinBox* shown = nullptr;
        for (QSpinBox* spin : window->dialoguePage()->findChildren<QSpinBox*>("spinLineNumber"))
            if (spin->isVisibleTo(window->dialoguePage()))
                shown = spin;
        QVERIFY(shown);
        QCOMPARE(shown->value(), 10);
    }

    void scriptResultOpensTheScript()
    {
        QCOMPARE(searchFor("42", GameSearch::Mode::Variable),
                 (QStringList{"arcanum1.dat/dlg/00010talk.dlg:2 2", "arcanum1.dat/scr/00020helper.scr:2 ",
                              "arcanum1.dat/scr/00020helper.scr:3 "}));
        activateRow(1);
        QCOMPARE(pageFilePath(window->scriptPage()), game.filePath("data/scr/00020helper.scr"));
    }

    void refusesWhatItCannotSearch()
    {
        auto* status = dialog->findChild<QLabel*>("findStatus");
        dialog->findChild<QLineEdit*>("findPattern")->setText("forty");
        dialog->findChild<QComboBox*>("findMode")->setCurrentIndex(1);
        dialog->start();
        QVERIFY(!dialog->isRunning());
        QVERIFY2(status->text().contains("forty"), qPrintable(status->text()));
        dialog->findChild<QComboBox*>("findMode")->setCurrentIndex(0);
        dialog->findChild<QLineEdit*>("findPattern")->clear();
        dialog->start();
        QVERIFY(!dialog->isRunning());
        QCOMPARE(status->text(), QStringLiteral("Type the text to find."));
        dialog->findChild<QCheckBox*>("findRegex")->setChecked(true);
        dialog->findChild<QLineEdit*>("findPattern")->setText("(");
        dialog->start();
        QVERIFY(!dialog->isRunning());
        QVERIFY2(status->text().contains("regular expression"), qPrintable(status->text()));
        dialog->findChild<QCheckBox*>("findRegex")->setChecked(false);
    }

    void anotherBaseDirectoryIsAnotherGame()
    {
        QTemporaryDir other;
        QVERIFY(QDir().mkpath(other.filePath("data/mes")));
        QFile file(other.filePath("data/mes/other.mes"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("{1}{A needle elsewhere}\r\n");
        file.close();
        QVERIFY(window->changeBaseDir(other.path()));
        QCOMPARE(searchFor("needle", GameSearch::Mode::Text), QStringList{"data/mes/other.mes:1 1"});
        QVERIFY(window->changeBaseDir(game.path()));
        QCOMPARE(searchFor("needle", GameSearch::Mode::Text), QStringList{"data/mes/override.mes:3 2"});
    }

    void cancelLeavesTheWindowUsable()
    {
        dialog->findChild<QLineEdit*>("findPattern")->setText("e");
        QSignalSpy finished(dialog, &FindInGameDialog::searchFinished);
        dialog->start();
        dialog->cancel();
        QVERIFY(finished.wait(10000));
        QVERIFY(dialog->findChild<QPushButton*>("findStart")->isEnabled());
        QVERIFY(!dialog->findChild<QPushButton*>("findCancel")->isEnabled());
    }

    // Escape puts the dialog away; the search it started stops with it (a game large enough to be still
    // searching then).
    void escapeStopsTheSearch()
    {
        QTemporaryDir large;
        QVERIFY(QDir().mkpath(large.filePath("data/mes")));
        for (int i = 0; i < 5000; ++i) {
            QFile file(large.filePath(QStringLiteral("data/mes/m%1.mes").arg(i)));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("{1}{Some text}\r\n");
        }
        QVERIFY(window->changeBaseDir(large.path()));
        dialog->findChild<QLineEdit*>("findPattern")->setText("e");
        QSignalSpy finished(dialog, &FindInGameDialog::searchFinished);
        dialog->start();
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QVERIFY(finished.wait(10000));
        QVERIFY2(dialog->findChild<QLabel*>("findStatus")->text().startsWith("Cancelled"),
                 qPrintable(dialog->findChild<QLabel*>("findStatus")->text()));
        QVERIFY(window->changeBaseDir(game.path()));
        dialog->show();
    }
};

QTEST_MAIN(TestFindWindow)
#include "tst_find_window.moc"
