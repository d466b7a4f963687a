#pragma once

#include "FileFormat.h"
#include "GameSearch.h"
#include "Manager.h"

#include <QMainWindow>
#include <QModelIndex>
#include <QStringList>

#include <memory>
#include <vector>

class ArtModel;
class DamageBanner;
class DiskWatcher;
class Document;
class Page;
class QAction;
class QLineEdit;
class QMimeData;
class QTreeWidgetItem;
class QUndoGroup;
class QUndoView;
class RecoveryStore;
class Ui_MainWindowClass;
class ScriptWidget;
class MesWidget;
class DialogueEditWidget;
class FindInGameDialog;
class ArtWidget;
class GameWidget;
class ProtoWidget;

// The window: the file lists, the five pages and everything that handles their documents — the undo
// group, the "Save changes?" guard before work could be lost, the title and tab marks, files changed
// on disk, recovery copies and opening files from outside. Knows pages only through Page.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // Opens each file in the page of its kind; says which could not be opened.
    void openFiles(const QStringList& paths);
    // Opens the local files a drop carries.
    void openDropped(const QMimeData* mime);
    // Offers the copies a crash left behind (called once the window is shown).
    void offerRecovery();
    // Writes a recovery copy of every modified document now (the timer calls it every 30 s).
    void keepRecoveryCopies();
    // Asks about every modified document; false when the user cancelled or a save failed.
    bool settleAll();
    void updateFileList();

    arcanum::Manager& getManager() { return manager; }
    ScriptWidget* scriptPage() const { return scriptWidget; }
    MesWidget* mesPage() const { return mesWidget; }
    DialogueEditWidget* dialoguePage() const { return dialogueWidget; }
    ArtWidget* artPage() const { return artWidget; }
    ProtoWidget* protoPage() const { return protoWidget; }
    GameWidget* gamePage() const { return gameWidget; }
    const std::vector<Page*>& allPages() const { return pages; }
    QUndoGroup* undoGroup() const { return undo; }
    RecoveryStore& recovery() { return *recoveryStore; }
    // Edit › Find in game files…: shows the search over the game (made when first asked for).
    FindInGameDialog* showFindInGame();
    // Opens a result's file in its page, at its entry or dialogue line.
    void openHit(const arcanum::GameSearch::Hit& hit);
    // Changes the base directory after settling every modified document; false when cancelled.
    bool changeBaseDir(const QString& path);

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private slots:
    void on_listScripts_itemSelectionChanged();
    void on_treeMes_currentItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void on_artTree_activated(QModelIndex index);
    void on_protoList_itemSelectionChanged();
    void on_actionConfigure_triggered();
    void on_actionAbout_triggered();
    void on_actionExit_triggered();

private:
    void addPage(Page* page, QLayout* layout, int tab, const QString& hint);
    void createActions();
    void createMenus();
    void addFilterBoxes();
    void createArtTree();
    QString fullPath(const QString& subDir, const QString& name) const;
    void addToMesTable(const QString& title, const QString& subDir, const QStringList& files,
                       arcanum::FileFormat::Kind kind);
    static QStringList suffixesOf(arcanum::FileFormat::Kind kind);
    // Whether the game view already has path as a loose file.
    bool listsShow(const QString& path) const;
    void openListed(Page* page, const QString& gamePath, const QString& loosePath);
    void selectListed(Page* page);
    void applyFilter(QWidget* view, const QString& text);
    Page* currentPage() const;
    void showPage(Page* page);
    Page* pageFor(const QString& path) const;
    void showPaletteFile(const QString& path);
    void openGameFile(const QString& gamePath, const QByteArray& bytes, const QString& savePath, bool archived);
    bool openInPage(Page* page, const QString& path);
    void documentReplaced(Page* page, Document* document);
    void updateMarks();
    void rewatch();
    void reloadChanged(const QString& path);
    void restoreSettings();
    void storeSettings();
    void setStartFolders();
    void applyConfirmations();
    bool cutInTextField();

    std::unique_ptr<Ui_MainWindowClass> ui;
    ScriptWidget* scriptWidget = nullptr;
    MesWidget* mesWidget = nullptr;
    DialogueEditWidget* dialogueWidget = nullptr;
    ArtWidget* artWidget = nullptr;
    ProtoWidget* protoWidget = nullptr;
    GameWidget* gameWidget = nullptr;
    FindInGameDialog* findDialog = nullptr;
    std::vector<Page*> pages;
    std::vector<int> pageTabs;
    std::vector<DamageBanner*> banners;
    QStringList tabTitles;
    arcanum::Manager manager;
    ArtModel* artModel = nullptr;
    QUndoGroup* undo = nullptr;
    QUndoView* undoView = nullptr;
    DiskWatcher* watcher = nullptr;
    std::unique_ptr<RecoveryStore> recoveryStore;
    std::vector<QLineEdit*> filters;
    std::vector<QWidget*> listColumns;
    QAction* actionSave = nullptr;
    QAction* actionSaveAs = nullptr;
    QAction* actionOpen = nullptr;
    QAction* actionQuit = nullptr;
    QAction* actionFind = nullptr;
    QAction* actionFindInGame = nullptr;
    QAction* actionRefresh = nullptr;
    QAction* actionHistory = nullptr;
    // Set while a list is put back on the file its page still shows, so that is not an open.
    bool reselecting = false;
};
