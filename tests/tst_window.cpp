// The window's handling of documents: the guard before work could be lost, marks, undo actions,
// files from outside, files changed on disk and recovery copies. Every check looks at the file on disk.
#include "ArtDocument.h"
#include "ArtWidget.h"
#include "MainWindow.h"
#include "CurrentDirGuard.h"
#include "DialogueEditWidget.h"
#include "Document.h"
#include "FormatChecks.h"
#include "GameWidget.h"
#include "MesWidget.h"
#include "Page.h"
#include "PageFrame.h"
#include "RecoveryStore.h"
#include "ScriptWidget.h"
#include "ScriptedAnswerer.h"
#include "gui.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QDockWidget>
#include <QGraphicsView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QDirIterator>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QUndoStack>
#include <QtTest>

#include <functional>

namespace {

const QString ITEMS = QStringLiteral("/data/mes/sample_items.mes");
const QString RULES = QStringLiteral("/data/rules/sample_rules.mes");

// A copy of the sample game in a scratch folder, set as the base directory for the scope.
class ScratchGame
{
public:
    ScratchGame()
    {
        const QString source = QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game");
        QDirIterator it(source, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString from = it.next();
            const QString to = dir.path() + from.mid(source.size());
            QDir().mkpath(QFileInfo(to).absolutePath());
            QFile::copy(from, to);
        }
        gui::setBaseDir(QDir(dir.path()));
    }
    ~ScratchGame() { gui::settings.remove(QStringLiteral("Directories")); }

    QString path(const QString& relative) const { return dir.path() + relative; }
    QByteArray bytes(const QString& relative) const
    {
        QFile file(path(relative));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir dir;
};

// Changes the text of the first entry through the page's own table, as typing into the cell would.
void editFirstEntry(MainWindow& window, const QString& suffix = QStringLiteral(" (edited)"))
{
    auto* view = window.mesPage()->findChild<QTableView*>();
    QVERIFY(view);
    QAbstractItemModel* model = view->model();
    const QModelIndex cell = model->index(0, 1);
    QVERIFY(model->flags(cell) & Qt::ItemIsEditable);
    QVERIFY(model->setData(cell, model->data(cell).toString() + suffix));
    QVERIFY(window.mesPage()->document()->isModified());
}

QTreeWidgetItem* mesTreeItem(MainWindow& window, const QString& name)
{
    const QList<QTreeWidgetItem*> found = window.findChild<QTreeWidget*>(QStringLiteral("treeMes"))
                                              ->findItems(name, Qt::MatchRecursive | Qt::MatchExactly);
    return found.isEmpty() ? nullptr : found.first();
}

void openItems(MainWindow& window, const ScratchGame& game)
{
    window.openFiles({game.path(ITEMS)});
    QVERIFY(window.mesPage()->document());
    QCOMPARE(window.mesPage()->document()->path(), game.path(ITEMS));
}

// A file of every page's kind, so that each page shows a document.
void openOneOfEachKind(MainWindow& window, const ScratchGame& game)
{
    window.openFiles({game.path(QStringLiteral("/data/scr/00001gate_guard.scr")), game.path(ITEMS),
                      game.path(QStringLiteral("/data/dlg/sample_dialogue.dlg")),
                      game.path(QStringLiteral("/data/art/sample_beetle.art")),
                      game.path(QStringLiteral("/data/proto/weapon_sword.pro"))});
}

// Shows each tab in turn and hands every widget on it to visit, with the tab's title.
void forEveryControl(MainWindow& window, const std::function<void(const QString&, QWidget*)>& visit)
{
    auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QTest::qWait(50);
        for (QWidget* control : tabs->widget(tab)->findChildren<QWidget*>())
            visit(tabs->tabText(tab), control);
    }
}

} // namespace

class TestWindow : public QObject
{
    Q_OBJECT

private slots:
    void closeAsks_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("failSave");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("written");
        QTest::newRow("save") << int(QMessageBox::Save) << false << true << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << false << true << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false << false;
        QTest::newRow("failing save") << int(QMessageBox::Save) << true << false << false;
    }

    void closeAsks()
    {
        QFETCH(int, answer);
        QFETCH(bool, failSave);
        QFETCH(bool, closes);
        QFETCH(bool, written);
        ScratchGame game;
        const QByteArray original = game.bytes(ITEMS);
        MainWindow window;
        window.show();
        openItems(window, game);
        editFirstEntry(window);
        if (failSave) // the save's temporary file cannot be made in a folder that is now a file
            QVERIFY(QDir(game.path(QStringLiteral("/data/mes"))).removeRecursively()
                    && QFile(game.path(QStringLiteral("/data/mes"))).open(QIODevice::WriteOnly));
        ScriptedAnswerer answers;
        answers.buttons.enqueue(QMessageBox::StandardButton(answer));
        QCOMPARE(window.close(), closes);
        QCOMPARE(answers.last(QStringLiteral("question"))->text, QStringLiteral("Save changes to sample_items.mes?"));
        if (failSave) {
            QVERIFY(answers.last(QStringLiteral("message"))->text.startsWith(QStringLiteral("Could not save")));
            QVERIFY(window.mesPage()->document()->isModified());
            return;
        }
        QCOMPARE(game.bytes(ITEMS) != original, written);
        QCOMPARE(window.mesPage()->document()->isModified(), answer != QMessageBox::Save);
    }

    void switchingFilesAsks_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("written");
        QTest::newRow("save") << int(QMessageBox::Save) << RULES << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << RULES << false;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << ITEMS << false;
    }

    void switchingFilesAsks()
    {
        QFETCH(int, answer);
        QFETCH(QString, shown);
        QFETCH(bool, written);
        ScratchGame game;
        const QByteArray original = game.bytes(ITEMS);
        MainWindow window;
        openItems(window, game);
        editFirstEntry(window);
        ScriptedAnswerer answers;
        answers.buttons.enqueue(QMessageBox::StandardButton(answer));
        auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("treeMes"));
        tree->setCurrentItem(tree->topLevelItem(1)->child(0)); // RULES › sample_rules.mes
        QCOMPARE(answers.count(QStringLiteral("question")), 1);
        QCOMPARE(window.mesPage()->document()->path(), game.path(shown));
        QCOMPARE(game.bytes(ITEMS) != original, written);
        if (answer == QMessageBox::Cancel)
            QVERIFY(window.mesPage()->document()->isModified());
    }

    void abandonSettingOffDropsWithoutAsking()
    {
        ScratchGame game;
        const QByteArray original = game.bytes(ITEMS);
        gui::setConfirms(QStringLiteral("mes"), gui::Confirmation::Abandon, false);
        MainWindow window;
        openItems(window, game);
        editFirstEntry(window);
        ScriptedAnswerer answers;
        auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("treeMes"));
        tree->setCurrentItem(tree->topLevelItem(1)->child(0));
        gui::setConfirms(QStringLiteral("mes"), gui::Confirmation::Abandon, true);
        QCOMPARE(answers.count(QStringLiteral("question")), 0);
        QCOMPARE(window.mesPage()->document()->path(), game.path(RULES));
        QCOMPARE(game.bytes(ITEMS), original);
    }

    void baseDirectoryChangeAsks_data()
    {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("changes");
        QTest::newRow("save") << int(QMessageBox::Save) << true;
        QTest::newRow("discard") << int(QMessageBox::Discard) << true;
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << false;
    }

    void baseDirectoryChangeAsks()
    {
        QFETCH(int, answer);
        QFETCH(bool, changes);
        ScratchGame game;
        QTemporaryDir other;
        MainWindow window;
        const QString before = window.getManager().getBaseDirPath();
        openItems(window, game);
        editFirstEntry(window);
        ScriptedAnswerer answers;
        answers.buttons.enqueue(QMessageBox::StandardButton(answer));
        QCOMPARE(window.changeBaseDir(other.path()), changes);
        QCOMPARE(window.getManager().getBaseDirPath() != before, changes);
        QCOMPARE(window.mesPage()->document() == nullptr, changes);
    }

    void cancelledOptionsKeepTheDirectory()
    {
        ScratchGame game;
        QTemporaryDir other;
        MainWindow window;
        const QString before = window.getManager().getBaseDirPath();
        ScriptedAnswerer answers;
        const QString target = other.path();
        answers.dialogs.enqueue([target](QDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("baseDirLineEdit"))->setText(target);
            return int(QDialog::Rejected);
        });
        window.findChild<QAction*>(QStringLiteral("actionConfigure"))->trigger();
        QCOMPARE(window.getManager().getBaseDirPath(), before);
    }

    void marksAndUndoFollowTheStack()
    {
        ScratchGame game;
        MainWindow window;
        openItems(window, game);
        auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
        QCOMPARE(window.windowTitle(), QStringLiteral("sample_items.mes[*] — qtLoreka"));
        QVERIFY(!window.isWindowModified());
        editFirstEntry(window);
        QVERIFY(window.isWindowModified());
        QCOMPARE(tabs->tabText(tabs->currentIndex()), QStringLiteral("Mes *"));
        auto* undo = window.findChild<QAction*>(QStringLiteral("actionUndo"));
        QVERIFY(undo->isEnabled());
        QVERIFY2(undo->text().remove(QLatin1Char('&')).startsWith(QStringLiteral("Undo Edit text of")), qPrintable(undo->text()));
        undo->trigger();
        QVERIFY(!window.isWindowModified());
        QCOMPARE(tabs->tabText(tabs->currentIndex()), QStringLiteral("Mes"));
        QVERIFY(window.findChild<QAction*>(QStringLiteral("actionRedo"))->isEnabled());
    }

    // Undo while a dialogue line's form holds typed text takes that text back as a step of its own (and
    // Redo brings it back) instead of undoing the step before and dropping the text.
    void undoKeepsWhatAFormHolds()
    {
        ScratchGame game;
        MainWindow window;
        window.openFiles({game.path(QStringLiteral("/data/dlg/sample_dialogue.dlg"))});
        auto* dialogue = window.findChild<DialogueEditWidget*>();
        QVERIFY(dialogue->document());
        auto* text = dialogue->findChild<QPlainTextEdit*>(QStringLiteral("maleText"));
        QVERIFY(dialogue->openNpcLine(1));
        text->setPlainText(QStringLiteral("First edit."));
        QVERIFY(dialogue->openNpcLine(10)); // applies line 1's form: one step
        text->setPlainText(QStringLiteral("Second edit."));
        // Opening the Edit menu names what Undo takes back: the form's edit.
        for (QMenu* menu : window.menuBar()->findChildren<QMenu*>())
            if (menu->title() == QStringLiteral("&Edit"))
                emit menu->aboutToShow();
        QCOMPARE(window.findChild<QAction*>(QStringLiteral("actionUndo"))->text(), QStringLiteral("&Undo Edit NPC line 10"));
        window.findChild<QAction*>(QStringLiteral("actionUndo"))->trigger();
        const auto textOf = [dialogue](int line) { return dialogue->getModel()->getNPCLine(line)->text(); };
        QCOMPARE(textOf(1), QStringLiteral("First edit."));
        QVERIFY(textOf(10) != QStringLiteral("Second edit."));
        window.findChild<QAction*>(QStringLiteral("actionRedo"))->trigger();
        QCOMPARE(textOf(10), QStringLiteral("Second edit."));
    }

    void standardKeys()
    {
        MainWindow window;
        const QList<QPair<QString, QKeySequence>> keys = {
            {QStringLiteral("actionSave"), QKeySequence(QKeySequence::Save)},
            {QStringLiteral("actionOpen"), QKeySequence(QKeySequence::Open)},
            {QStringLiteral("actionQuit"), QKeySequence(QKeySequence::Quit)},
            {QStringLiteral("actionExit"), QKeySequence(QStringLiteral("Ctrl+X"))},
            {QStringLiteral("actionUndo"), QKeySequence(QKeySequence::Undo)},
            {QStringLiteral("actionFind"), QKeySequence(QKeySequence::Find)},
            {QStringLiteral("actionRefresh"), QKeySequence(QKeySequence::Refresh)}};
        for (const auto& [name, key] : keys) {
            auto* action = window.findChild<QAction*>(name);
            QVERIFY2(action, qPrintable(name));
            QCOMPARE(action->shortcut(), key);
            QVERIFY2(action->toolTip().contains(key.toString(QKeySequence::NativeText)), qPrintable(action->toolTip()));
        }
    }

    void ctrlXCutsInTextAndQuitsElsewhere()
    {
        ScratchGame game;
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        openItems(window, game);
        editFirstEntry(window);
        auto* filter = window.findChild<QLineEdit*>(QStringLiteral("fileFilter1"));
        filter->setText(QStringLiteral("items"));
        filter->setFocus();
        filter->selectAll();
        ScriptedAnswerer answers;
        answers.buttons.enqueue(QMessageBox::Cancel);
        QTest::keyClick(filter, Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(answers.count(QStringLiteral("question")), 0);
        QVERIFY(filter->text().isEmpty());
        window.findChild<QTreeWidget*>(QStringLiteral("treeMes"))->setFocus();
        QTest::keyClick(window.findChild<QTreeWidget*>(QStringLiteral("treeMes")), Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(answers.count(QStringLiteral("question")), 1);
        QVERIFY(window.isVisible());
    }

    // Ctrl+F finds in the open message file while the Mes page has the focus and filters the file list
    // elsewhere; Ctrl+H is the page's Replace, so the undo history moved to Ctrl+Shift+H.
    void findKeysFollowTheFocus()
    {
        ScratchGame game;
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        openItems(window, game);
        auto* view = window.mesPage()->findChild<QTableView*>(QStringLiteral("table"));
        auto* findBar = window.mesPage()->findChild<QWidget*>(QStringLiteral("findBar"));
        auto* replaceText = window.mesPage()->findChild<QLineEdit*>(QStringLiteral("replaceText"));
        view->setFocus();
        QTest::keyClick(view, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(findBar->isVisible());
        QVERIFY(!replaceText->isVisible());
        QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("findText"));
        view->setFocus();
        QTest::keyClick(view, Qt::Key_H, Qt::ControlModifier);
        QVERIFY(replaceText->isVisible());
        // The table's own keys: Ctrl+G asks for a number, Delete removes the selected entry.
        ScriptedAnswerer answers;
        view->setFocus();
        QTest::keyClick(view, Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(answers.count(QStringLiteral("dialog")), 1);
        const int rows = view->model()->rowCount();
        view->setCurrentIndex(view->model()->index(0, 1));
        QTest::keyClick(view, Qt::Key_Delete);
        QCOMPARE(view->model()->rowCount(), rows - 1);
        window.mesPage()->document()->undoStack()->undo();
        QCOMPARE(view->model()->rowCount(), rows);
        auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("treeMes"));
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(QApplication::focusWidget(), window.findChild<QLineEdit*>(QStringLiteral("fileFilter1")));
        auto* history = window.findChild<QDockWidget*>(QStringLiteral("undoHistoryDock"));
        QVERIFY(!history->isVisible());
        QTest::keyClick(tree, Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(history->isVisible());
    }

    // Save As from the frame writes the script under its new number and name; the list shows the new
    // file and New and Delete stay as they were (disabled: a new script starts with Save As).
    void scriptSaveAsShowsTheNewFile()
    {
        ScratchGame game;
        MainWindow window;
        window.openFiles({game.path(QStringLiteral("/data/scr/00001gate_guard.scr"))});
        QVERIFY(window.scriptPage()->document());
        ScriptedAnswerer answers;
        answers.dialogs << [](QDialog& dialog) {
            dialog.findChild<QLineEdit*>(QStringLiteral("scriptNumber"))->setText(QStringLiteral("50"));
            dialog.findChild<QLineEdit*>(QStringLiteral("scriptName"))->setText(QStringLiteral("night_guard"));
            return int(QDialog::Accepted);
        };
        auto* frame = qobject_cast<PageFrame*>(window.scriptPage()->parentWidget());
        QVERIFY(frame);
        QTest::mouseClick(frame->findChild<QPushButton*>(QStringLiteral("frameSaveAs")), Qt::LeftButton);
        QCOMPARE(answers.count(QStringLiteral("dialog")), 1);
        const QString created = game.path(QStringLiteral("/data/scr/00050night_guard.scr"));
        QCOMPARE(window.scriptPage()->document()->path(), created);
        QCOMPARE(game.bytes(QStringLiteral("/data/scr/00050night_guard.scr")),
                 game.bytes(QStringLiteral("/data/scr/00001gate_guard.scr")));
        auto* list = window.findChild<QListWidget*>(QStringLiteral("listScripts"));
        QCOMPARE(list->findItems(QStringLiteral("00050night_guard.scr"), Qt::MatchExactly).size(), 1);
        for (const char* name : {"buttonScriptNew", "buttonScriptDelete"})
            QVERIFY(!window.findChild<QPushButton*>(QString::fromLatin1(name))->isEnabled());
    }

    // However a file comes into a page (Find in game, the Game tab, Save As), its list marks it and no other.
    void listsMarkTheFileThePageShows()
    {
        ScratchGame game;
        MainWindow window;
        auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("treeMes"));
        tree->setCurrentItem(mesTreeItem(window, QStringLiteral("archived_notes.mes")));
        QVERIFY(window.mesPage()->openFile(game.path(ITEMS)));
        QCOMPARE(tree->currentItem(), mesTreeItem(window, QStringLiteral("sample_items.mes")));
        QCOMPARE(window.mesPage()->document()->path(), game.path(ITEMS));
        window.openFiles({game.path(QStringLiteral("/data/proto/wall_stone.pro"))});
        auto* protos = window.findChild<QListWidget*>(QStringLiteral("protoList"));
        QVERIFY(protos->currentItem());
        QCOMPARE(protos->currentItem()->text(), QStringLiteral("wall_stone.pro"));
        // A file outside the game leaves its list without a mark.
        QTemporaryDir outside;
        const QString copy = outside.filePath(QStringLiteral("copy.mes"));
        QVERIFY(QFile::copy(game.path(ITEMS), copy));
        QVERIFY(window.mesPage()->openFile(copy));
        QCOMPARE(tree->currentItem(), nullptr);
    }

    void dropOpensInItsPage()
    {
        ScratchGame game;
        MainWindow window;
        QMimeData mime;
        mime.setUrls({QUrl::fromLocalFile(game.path(QStringLiteral("/data/scr/00001gate_guard.scr"))),
                      QUrl::fromLocalFile(game.path(QStringLiteral("/data/art/sample_frost.aap")))});
        ScriptedAnswerer answers;
        // Qt delivers a drop only to the target of a drag in progress, so the test hands over what it carries.
        window.openDropped(&mime);
        QVERIFY(window.scriptPage()->document());
        QCOMPARE(window.scriptPage()->document()->path(), game.path(QStringLiteral("/data/scr/00001gate_guard.scr")));
        QVERIFY(answers.last(QStringLiteral("message"))->text.contains(QStringLiteral("sample_frost.aap")));
    }

    void changedOnDisk()
    {
        ScratchGame game;
        MainWindow window;
        openItems(window, game);
        const Document* first = window.mesPage()->document();
        const auto rewrite = [&game](const QByteArray& bytes) {
            QFile file(game.path(ITEMS));
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(bytes);
        };
        QTest::qWait(1100); // a new modification time
        rewrite(game.bytes(ITEMS) + "{999}{Added outside}\r\n");
        QTRY_VERIFY(window.mesPage()->document() != first);
        QVERIFY(!window.mesPage()->document()->isModified());

        editFirstEntry(window);
        ScriptedAnswerer answers;
        answers.buttons.enqueue(QMessageBox::No);
        const Document* edited = window.mesPage()->document();
        QTest::qWait(1100);
        rewrite(game.bytes(ITEMS) + "{1000}{Again}\r\n");
        QTRY_COMPARE(answers.count(QStringLiteral("question")), 1);
        QCOMPARE(answers.last(QStringLiteral("question"))->text,
                 QStringLiteral("sample_items.mes changed on disk. Reload and lose your changes?"));
        QCOMPARE(window.mesPage()->document(), edited);
        QVERIFY(edited->isModified());

        // Our own save is not a change on disk.
        QString error;
        QVERIFY(window.mesPage()->document()->save(game.path(ITEMS), error));
        QTest::qWait(300);
        QCOMPARE(answers.count(QStringLiteral("question")), 1);
    }

    // Every page says the same things in the same place: what is open, or what to do when nothing is.
    void framesNameTheOpenFile()
    {
        ScratchGame game;
        MainWindow window;
        QWidget* frame = window.mesPage()->parentWidget();
        auto* title = frame->findChild<QLabel*>(QStringLiteral("frameTitle"));
        auto* detail = frame->findChild<QLabel*>(QStringLiteral("frameDetail"));
        auto* save = frame->findChild<QPushButton*>(QStringLiteral("frameSave"));
        QCOMPARE(title->text(), QStringLiteral("No file open"));
        QVERIFY(detail->text().contains(QStringLiteral("Ctrl+O")));
        QVERIFY(!save->isEnabled());
        openItems(window, game);
        QVERIFY(title->text().contains(QStringLiteral("sample_items.mes")));
        QVERIFY(detail->text().startsWith(QStringLiteral("message file")));
        QVERIFY(!save->isEnabled());
        editFirstEntry(window);
        QVERIFY(title->text().endsWith(QStringLiteral(" *")));
        QVERIFY(save->isEnabled());
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes; // "Overwrite sample_items.mes?"
        QTest::mouseClick(save, Qt::LeftButton);
        QVERIFY(!window.mesPage()->document()->isModified());
        QVERIFY(game.bytes(ITEMS).contains("(edited)"));
        QVERIFY(!save->isEnabled());
    }

    // A modder can hover over any control of any page to learn what it does.
    void everyControlExplainsItself()
    {
        ScratchGame game;
        MainWindow window;
        window.resize(1200, 800);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        openOneOfEachKind(window, game);
        QStringList silent;
        forEveryControl(window, [&silent](const QString& tab, QWidget* control) {
            const bool asked = qobject_cast<QAbstractButton*>(control) || qobject_cast<QComboBox*>(control)
                               || qobject_cast<QAbstractSpinBox*>(control) || qobject_cast<QLineEdit*>(control);
            // A spin box's own line edit, a combo box's and a table's corner are parts of their owner.
            const bool part = qobject_cast<QAbstractSpinBox*>(control->parentWidget())
                              || qobject_cast<QComboBox*>(control->parentWidget())
                              || qobject_cast<QAbstractItemView*>(control->parentWidget());
            if (asked && !part && control->isVisible() && control->toolTip().isEmpty())
                silent.append(QStringLiteral("%1: %2 %3").arg(tab, control->metaObject()->className(),
                                                            control->objectName()));
        });
        silent.removeDuplicates();
        for (const QString& control : silent)
            qInfo("no tool tip: %s", qPrintable(control));
        QVERIFY2(silent.isEmpty(), qPrintable(QStringLiteral("%1 without a tool tip: ").arg(silent.size())
                                              + silent.join(QStringLiteral("; "))));
    }

    // The art tree shows each art file's first frame; a save draws the icon again from the saved file.
    void artTreeShowsFirstFrames()
    {
        ScratchGame game;
        MainWindow window;
        window.resize(1200, 800);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto* tree = window.findChild<QTreeView*>(QStringLiteral("artTree"));
        const QModelIndexList found = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole,
                                                           QStringLiteral("sample_beetle.art"), 1,
                                                           Qt::MatchExactly | Qt::MatchRecursive);
        QCOMPARE(found.size(), 1);
        const QPersistentModelIndex beetle = found.first();
        QTRY_VERIFY(!qvariant_cast<QIcon>(beetle.data(Qt::DecorationRole)).isNull());
        const QImage before = qvariant_cast<QIcon>(beetle.data(Qt::DecorationRole)).pixmap(32).toImage();

        // The first frame replaced by one of a single colour, saved: the icon follows.
        window.openFiles({game.path(QStringLiteral("/data/art/sample_beetle.art"))});
        ArtDocument* document = window.artPage()->artDocument();
        QVERIFY(document != nullptr);
        QImage plain(32, 32, QImage::Format_Indexed8);
        plain.setColorCount(256);
        plain.fill(40);
        document->replaceFrame(0, 0, plain);
        QString error;
        QVERIFY2(document->save(document->path(), error), qPrintable(error));
        QTRY_VERIFY(qvariant_cast<QIcon>(beetle.data(Qt::DecorationRole)).pixmap(32).toImage() != before);
    }

    void pagesFitTheWindow_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("dialogueLine"); // 0: none open, 1: an NPC line, 2: a PC line
        QTest::newRow("default 1200 × 800") << QSize(1200, 800) << 0;
        QTest::newRow("small 1024 × 700") << QSize(1024, 700) << 0;
        QTest::newRow("default, NPC line open") << QSize(1200, 800) << 1;
        QTest::newRow("small, NPC line open") << QSize(1024, 700) << 1;
        QTest::newRow("small, PC line open") << QSize(1024, 700) << 2;
    }

    // No control of any page is cut off and no form needs sideways scrolling, at the default size and a small one.
    void pagesFitTheWindow()
    {
        QFETCH(QSize, size);
        QFETCH(int, dialogueLine);
        ScratchGame game;
        MainWindow window;
        window.resize(size);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        openOneOfEachKind(window, game);
        auto* dialogue = window.findChild<DialogueEditWidget*>();
        if (dialogue && dialogueLine == 1)
            QVERIFY(dialogue->openNpcLine(1));
        if (dialogue && dialogueLine == 2)
            QVERIFY(dialogue->openPcLine(2));
        QStringList cut;
        forEveryControl(window, [&cut](const QString& tab, QWidget* control) {
            auto* area = qobject_cast<QAbstractScrollArea*>(control);
            if (area && area->isVisible() && area->horizontalScrollBar()->isVisible()
                && !qobject_cast<QAbstractItemView*>(area) && !qobject_cast<QGraphicsView*>(area)
                && !qobject_cast<QPlainTextEdit*>(area) && !qobject_cast<QTextEdit*>(area))
                cut.append(QStringLiteral("%1: %2 scrolls sideways").arg(tab, area->objectName()));
            const bool checked = qobject_cast<QAbstractButton*>(control) || qobject_cast<QLabel*>(control)
                                 || qobject_cast<QComboBox*>(control) || qobject_cast<QAbstractSpinBox*>(control);
            if (!checked || !control->isVisible() || control->width() <= 0)
                return;
            const QRect seen = control->visibleRegion().boundingRect();
            const bool inScrollArea = [control] {
                for (QWidget* up = control->parentWidget(); up; up = up->parentWidget())
                    if (qobject_cast<QAbstractScrollArea*>(up))
                        return true;
                return false;
            }();
            // Inside a scroll area only sideways cutting counts: scrolling down is expected.
            const bool clipped = inScrollArea ? seen.width() < control->width() && !seen.isEmpty()
                                              : seen != control->rect();
            if (clipped)
                cut.append(QStringLiteral("%1: %2 (%3 of %4 wide)")
                               .arg(tab, control->objectName().isEmpty()
                                                            ? QString::fromLatin1(control->metaObject()->className())
                                                            : control->objectName())
                               .arg(seen.width())
                               .arg(control->width()));
        });
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QStringLiteral("; "))));
    }

    void archivedFileOpensAsALooseCopy()
    {
        ScratchGame game;
        MainWindow window;
        auto* tree = window.gamePage()->findChild<QTreeWidget*>(QStringLiteral("gameTree"));
        const QList<QTreeWidgetItem*> found = tree->findItems(QStringLiteral("archived_notes.mes"),
                                                              Qt::MatchRecursive | Qt::MatchExactly);
        QCOMPARE(found.size(), 1);
        QCOMPARE(found.first()->text(2), QStringLiteral("arcanum1.dat"));
        const QList<QTreeWidgetItem*> overridden = tree->findItems(QStringLiteral("sample_items.mes"),
                                                                   Qt::MatchRecursive | Qt::MatchExactly);
        QCOMPARE(overridden.first()->text(2), QStringLiteral("data/ (overrides arcanum1.dat)"));
        tree->setCurrentItem(found.first());
        QTest::mouseClick(window.gamePage()->findChild<QPushButton*>(QStringLiteral("buttonGameOpen")), Qt::LeftButton);
        const QString loose = game.path(QStringLiteral("/data/mes/archived_notes.mes"));
        Document* document = window.mesPage()->document();
        QCOMPARE(document->path(), loose);
        QCOMPARE(document->origin(), QStringLiteral("arcanum1.dat"));
        QVERIFY(!document->isModified());
        QVERIFY(!QFile::exists(loose));
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::No;
        QVERIFY(!window.mesPage()->save());
        QVERIFY(answers.last(QStringLiteral("question"))->text.contains(QStringLiteral("loose file in data/mes")));
        QVERIFY(!QFile::exists(loose));
        answers.buttons << QMessageBox::Yes;
        QVERIFY(window.mesPage()->save());
        QVERIFY(game.bytes(QStringLiteral("/data/mes/archived_notes.mes")).contains("Opened from arcanum1.dat"));
        // The list now shows the loose copy that overrides the archived one.
        QTreeWidgetItem* listed = mesTreeItem(window, QStringLiteral("archived_notes.mes"));
        QVERIFY(listed);
        QVERIFY(listed->toolTip(0).contains(QStringLiteral("overrides arcanum1.dat")));
        QVERIFY(listed->font(0).bold());
    }

    // The page lists show archived files beside loose ones; one opens from its archive.
    void listsShowArchivedFiles()
    {
        ScratchGame game;
        MainWindow window;
        QTreeWidgetItem* archived = mesTreeItem(window, QStringLiteral("archived_notes.mes"));
        QVERIFY(archived);
        QVERIFY(archived->font(0).italic());
        QVERIFY(archived->toolTip(0).contains(QStringLiteral("arcanum1.dat")));
        QTreeWidgetItem* overriding = mesTreeItem(window, QStringLiteral("sample_items.mes"));
        QVERIFY(overriding->toolTip(0).contains(QStringLiteral("overrides arcanum1.dat")));
        window.findChild<QTreeWidget*>(QStringLiteral("treeMes"))->setCurrentItem(archived);
        QCOMPARE(window.mesPage()->document()->origin(), QStringLiteral("arcanum1.dat"));
        QCOMPARE(window.mesPage()->document()->path(), game.path(QStringLiteral("/data/mes/archived_notes.mes")));
        // A loose file opens from disk as before.
        window.findChild<QTreeWidget*>(QStringLiteral("treeMes"))->setCurrentItem(overriding);
        QCOMPARE(window.mesPage()->document()->origin(), QString());
        QCOMPARE(window.mesPage()->document()->path(), game.path(ITEMS));
    }

    void gameExtractsInTheBackground()
    {
        ScratchGame game;
        MainWindow window;
        auto* tree = window.gamePage()->findChild<QTreeWidget*>(QStringLiteral("gameTree"));
        const QList<QTreeWidgetItem*> mes = tree->findItems(QStringLiteral("mes"), Qt::MatchRecursive | Qt::MatchExactly);
        QCOMPARE(mes.size(), 1);
        tree->setCurrentItem(mes.first());
        QTemporaryDir out;
        QVERIFY(window.gamePage()->extractSelected(out.path()));
        QVERIFY(QFile::exists(out.filePath(QStringLiteral("mes/archived_notes.mes"))));
        QCOMPARE(FormatChecks::readFile(out.filePath(QStringLiteral("mes/sample_items.mes"))), game.bytes(ITEMS));
    }

    void recoveryAfterACrash()
    {
        ScratchGame game;
        const QByteArray original = game.bytes(ITEMS);
        QByteArray edited;
        {
            auto* window = new MainWindow;
            openItems(*window, game);
            editFirstEntry(*window);
            QString error;
            QVERIFY(window->mesPage()->document()->serialize(edited, error));
            window->keepRecoveryCopies();
            QCOMPARE(window->recovery().copies().size(), 1);
            delete window; // no close event: what a crash leaves behind
        }
        MainWindow window;
        ScriptedAnswerer answers;
        answers.buttons.enqueue(QMessageBox::Yes);
        window.offerRecovery();
        QVERIFY(answers.last(QStringLiteral("question"))->text.contains(QDir::toNativeSeparators(game.path(ITEMS))));
        Document* restored = window.mesPage()->document();
        QVERIFY(restored);
        QCOMPARE(restored->path(), game.path(ITEMS));
        QVERIFY(restored->isModified());
        QByteArray bytes;
        QString error;
        QVERIFY(restored->serialize(bytes, error));
        QCOMPARE(bytes, edited);
        QCOMPARE(game.bytes(ITEMS), original);
        answers.buttons.enqueue(QMessageBox::Discard);
        QVERIFY(window.close());
        QVERIFY(window.recovery().copies().isEmpty());
    }
};

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
