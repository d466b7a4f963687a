// Settings, code page helpers, data directory manager, main window and the options dialog.
#include "ArtWidget.h"
#include "DialogAbout.h"
#include "DialogOptions.h"
#include "MainWindow.h"
#include "Document.h"
#include "Manager.h"
#include "MesWidget.h"
#include "ProtoWidget.h"
#include "ScriptWidget.h"
#include "CurrentDirGuard.h"
#include "ScriptedAnswerer.h"
#include "gui.h"

#include <QAction>
#include <QCheckBox>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeView>
#include <QTreeWidget>
#include <QtTest>

namespace {

void touch(const QString& path, QFile::Permissions permissions = QFile::ReadOwner | QFile::WriteOwner)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{1}{x}\r\n");
    file.close();
    QVERIFY(file.setPermissions(permissions));
}

QStringList childTexts(QTreeWidgetItem* item)
{
    QStringList texts;
    for (int i = 0; i < item->childCount(); ++i)
        texts << item->child(i)->text(0);
    return texts;
}

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

private:
private slots:
    // Runs first: nothing has written the settings yet in this fresh working directory.
    void defaultsWithoutIni()
    {
        QVERIFY(!QFile::exists(QStringLiteral("qtLoreka.ini")));
        QCOMPARE(gui::getSettings(), &gui::settings);
        QCOMPARE(gui::getBaseDir().absolutePath(), QDir::currentPath());
        const QFont font = gui::getGenericFont();
        QCOMPARE(font.family(), QStringLiteral("DejaVu Sans"));
        QCOMPARE(font.pointSize(), 11);
        QVERIFY(!font.italic());
    }

    void fontFromSettings()
    {
        gui::settings.setValue(QStringLiteral("Font/Family"), QStringLiteral("DejaVu Sans Mono"));
        gui::settings.setValue(QStringLiteral("Font/Height"), 14);
        QCOMPARE(gui::getGenericFont().family(), QStringLiteral("DejaVu Sans Mono"));
        QCOMPARE(gui::getGenericFont().pointSize(), 14);
        gui::settings.setValue(QStringLiteral("Font/Height"), QStringLiteral("large"));
        QVERIFY(gui::getGenericFont().pointSize() > 0); // an unreadable size falls back, never 0
        gui::settings.remove(QStringLiteral("Font"));
    }

    void cp1251EveryByteRoundTrips()
    {
        for (int byte = 1; byte < 256; ++byte) {
            const std::string in(1, static_cast<char>(byte));
            const QString text = gui::fromCp1251(in);
            QCOMPARE(text.size(), 1);
            QCOMPARE(gui::toCp1251(text), in);
        }
        QCOMPARE(gui::fromCp1251(std::string("\xC0", 1)), QString(QChar(0x0410)));
        QCOMPARE(gui::toCp1251(QString(QChar(0x0410))), std::string("\xC0"));
    }

    void cp1251StopsAtNul()
    {
        QCOMPARE(gui::fromCp1251(std::string("ab\0cd", 5)), QStringLiteral("ab"));
        QCOMPARE(gui::toCp1251(QStringLiteral("ab") + QChar(0) + QStringLiteral("cd")), std::string("ab"));
    }

    void setBaseDirStoresAbsolutePath()
    {
        QDir().mkpath(QStringLiteral("games/one"));
        gui::setBaseDir(QDir(QStringLiteral("games/one")));
        const QString expected = QDir::current().absoluteFilePath(QStringLiteral("games/one"));
        QCOMPARE(gui::settings.value(QStringLiteral("Directories/BaseDir")).toString(), expected);
        {
            CurrentDirGuard cwd(QStringLiteral("games"));
            QVERIFY(cwd.ok);
            QCOMPARE(gui::getBaseDir().absolutePath(), expected);
        }
        gui::settings.remove(QStringLiteral("Directories"));
    }

    void managerListsWritableFilesInNameOrder()
    {
        QTemporaryDir game;
        const QString mes = game.path() + QStringLiteral("/data/mes/");
        touch(mes + QStringLiteral("b.mes"));
        touch(mes + QStringLiteral("C.mes"));
        touch(mes + QStringLiteral("A.mes"));
        touch(mes + QStringLiteral("readonly.mes"), QFile::ReadOwner);
        touch(mes + QStringLiteral("other.txt"));
        touch(mes + QStringLiteral("sub/y.mes"));
        QDir().mkpath(mes + QStringLiteral("z.mes"));
        QVERIFY(QFile::link(mes + QStringLiteral("b.mes"), mes + QStringLiteral("link.mes")));
        touch(game.path() + QStringLiteral("/data/rules/r.mes"));
        touch(game.path() + QStringLiteral("/data/scr/00001x.scr"));
        touch(game.path() + QStringLiteral("/data/proto/w.pro"));
        touch(game.path() + QStringLiteral("/data/dlg/d.dlg"));

        arcanum::Manager manager;
        QVERIFY(manager.setBaseDir(game.path()));
        manager.reloadAll();
        // root may write any file, so only a file the process really cannot write stays hidden
        const bool hidden = !QFileInfo(mes + QStringLiteral("readonly.mes")).isWritable();
        QCOMPARE(manager.messages, hidden ? QStringList({"A.mes", "b.mes", "C.mes"})
                                          : QStringList({"A.mes", "b.mes", "C.mes", "readonly.mes"}));
        QCOMPARE(manager.rules, QStringList({"r.mes"}));
        QCOMPARE(manager.scripts, QStringList({"00001x.scr"}));
        QCOMPARE(manager.prototypes, QStringList({"w.pro"}));
        QVERIFY(manager.semes.isEmpty());
        QVERIFY(manager.dialogues.isEmpty()); // not scanned by reloadAll
        manager.reloadDlg();
        QCOMPARE(manager.dialogues, QStringList({"d.dlg"}));

        QVERIFY(QFile::setPermissions(mes + QStringLiteral("readonly.mes"), QFile::ReadOwner | QFile::WriteOwner));
        manager.reloadMes();
        QCOMPARE(manager.messages, QStringList({"A.mes", "b.mes", "C.mes", "readonly.mes"}));
        gui::settings.remove(QStringLiteral("Directories"));
    }

    void managerWithoutDataFolder()
    {
        QTemporaryDir game;
        arcanum::Manager manager;
        QVERIFY(manager.setBaseDir(game.path()));
        manager.reloadAll();
        manager.reloadDlg();
        for (const QStringList* list : {&manager.scripts, &manager.messages, &manager.rules, &manager.semes,
                                        &manager.oemes, &manager.dialogues, &manager.prototypes})
            QVERIFY(list->isEmpty());
        gui::settings.remove(QStringLiteral("Directories"));
    }

    void managerRejectsMissingDirectory()
    {
        QTemporaryDir game;
        arcanum::Manager manager;
        QVERIFY(manager.setBaseDir(game.path()));
        gui::settings.sync();
        const QString stored = gui::settings.value(QStringLiteral("Directories/BaseDir")).toString();
        QVERIFY(!manager.setBaseDir(QStringLiteral("/nonexistent/qtloreka")));
        QCOMPARE(manager.getBaseDirPath(), QDir(game.path()).absolutePath());
        QCOMPARE(gui::settings.value(QStringLiteral("Directories/BaseDir")).toString(), stored);
        gui::settings.remove(QStringLiteral("Directories"));
    }

    void mainWindowForm()
    {
        MainWindow window;
        auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
        QVERIFY(tabs);
        QCOMPARE(window.windowTitle(), QStringLiteral("qtLoreka"));
        const QStringList titles = {"Script", "Mes", "Dialogue", "Art", "Proto", "Game"};
        const QStringList names = {"tabScripts", "tabMes", "tabDialogue", "tabArt", "tabProto", "GameWidget"};
        QCOMPARE(tabs->count(), 6);
        for (int i = 0; i < 6; ++i) {
            QCOMPARE(tabs->tabText(i), titles[i]);
            QCOMPARE(tabs->widget(i)->objectName(), names[i]);
        }
        for (const char* name : {"buttonScriptNew", "buttonScriptDelete"})
            QVERIFY(!window.findChild<QPushButton*>(QString::fromLatin1(name))->isEnabled());
        for (const char* name : {"actionNew", "actionDelete"})
            QVERIFY(!window.findChild<QAction*>(QString::fromLatin1(name))->isEnabled());
        QCOMPARE(window.findChild<QAction*>(QStringLiteral("actionExit"))->shortcut(), QKeySequence("Ctrl+X"));
        QCOMPARE(window.findChild<QAction*>(QStringLiteral("actionQuit"))->shortcut(), QKeySequence(QKeySequence::Quit));
        QCOMPARE(window.findChild<QAction*>(QStringLiteral("actionNew"))->shortcut(), QKeySequence("Ctrl+N"));
        QCOMPARE(window.findChild<QListWidget*>(QStringLiteral("listScripts"))->width(), 280);
        QCOMPARE(window.scriptPage()->minimumHeight(), 280);
        QCOMPARE(window.font().family(), gui::getGenericFont().family());
    }

    void filesReachTheirPages()
    {
        QTemporaryDir game;
        const QString base = QDir(game.path()).absolutePath();
        touch(base + QStringLiteral("/data/rules/r.mes"));
        touch(base + QStringLiteral("/data/art/monster/orc.aap"));
        gui::setBaseDir(QDir(base));
        {
            MainWindow window;
            auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("treeMes"));
            QCOMPARE(tree->topLevelItemCount(), 5);
            QCOMPARE(tree->topLevelItem(4)->text(0), QStringLiteral("DLG"));
            tree->setCurrentItem(tree->topLevelItem(1)); // "RULES" itself loads nothing
            QVERIFY(!window.mesPage()->document());
            QCOMPARE(childTexts(tree->topLevelItem(1)), QStringList({"r.mes"}));
            tree->setCurrentItem(tree->topLevelItem(1)->child(0));
            QCOMPARE(window.mesPage()->document()->path(), base + QStringLiteral("/data/rules/r.mes"));

            auto* artTree = window.findChild<QTreeView*>(QStringLiteral("artTree"));
            QAbstractItemModel* model = artTree->model();
            QCOMPARE(model->columnCount(), 1);
            const QModelIndex monster = model->index(0, 0);
            QCOMPARE(monster.data().toString(), QStringLiteral("monster"));
            emit artTree->activated(monster);
            ScriptedAnswerer answers; // the touched .aap is no palette: its reason is shown
            emit artTree->activated(model->index(0, 0, monster));
            QVERIFY(!window.artPage()->document());
            QVERIFY(answers.last(QStringLiteral("message"))->text.contains(QStringLiteral("1024 bytes")));
        }
        gui::settings.remove(QStringLiteral("Directories"));
    }

    void optionsChangeNothingUntilAccepted()
    {
        QTemporaryDir game;
        DialogOptions dialog(nullptr, game.path());
        auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("baseDirLineEdit"));
        QCOMPARE(edit->text(), game.path());
        ScriptedAnswerer answers; // no directory queued: the chooser is cancelled
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("baseDirBrowse")), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("directory"))->title, QStringLiteral("Choose Arcanum base directory"));
        QCOMPARE(dialog.baseDir(), game.path());
        answers.fileNames.enqueue(QStringLiteral("/elsewhere"));
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("baseDirBrowse")), Qt::LeftButton);
        QCOMPARE(dialog.baseDir(), QStringLiteral("/elsewhere"));
        QVERIFY(!gui::settings.contains(QStringLiteral("Directories/BaseDir")));
        QCOMPARE(dialog.findChildren<QCheckBox*>().size(), 12);
    }

    void aboutShowsVersion()
    {
        DialogAbout about(nullptr);
        QCOMPARE(about.findChild<QLabel*>(QStringLiteral("label"))->text(), QStringLiteral("Version: "));
        QCOMPARE(about.findChild<QLabel*>(QStringLiteral("labelVersion"))->text(), QStringLiteral("0.9"));
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&about, &change);
        QCOMPARE(about.findChild<QLabel*>(QStringLiteral("labelVersion"))->text(), QStringLiteral("<version>"));
    }
};

QTEST_MAIN(TestShell)
#include "tst_shell.moc"
