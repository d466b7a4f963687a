#include "MainWindow.h"

#include "FormatRegistry.h"
#include "GameListing.h"
#include "PageFrame.h"

#include "ArtModel.h"
#include "ArtThumbnails.h"
#include "ArtWidget.h"
#include "DamageBanner.h"
#include "DialogAbout.h"
#include "DialogEditPalette.h"
#include "DialogOptions.h"
#include "DialogueEditWidget.h"
#include "DiskWatcher.h"
#include "FindInGameDialog.h"
#include "GameWidget.h"
#include "Document.h"
#include "MesWidget.h"
#include "Page.h"
#include "PaletteFile.h"
#include "Prompt.h"
#include "ProtoWidget.h"
#include "RecoveryStore.h"
#include "SaveGuard.h"
#include "ScriptWidget.h"
#include "gui.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QSessionManager>
#include <QSettings>
#include <QSplitter>
#include <QTextEdit>
#include <QTimer>
#include <QTreeWidgetItem>
#include <QUndoGroup>
#include <QUndoStack>
#include <QUndoView>

namespace {

// Below this window width the file lists narrow from WIDE_LIST to NARROW_LIST pixels.
constexpr int WIDE_WINDOW = 1150;
constexpr int WIDE_LIST = 280;
constexpr int NARROW_LIST = 160;
const int RECOVERY_INTERVAL_MS = 30 * 1000;
const char* const KEY_GEOMETRY = "Window/Geometry";
const char* const KEY_STATE = "Window/State";
const char* const KEY_TAB = "Window/Tab";
const char* const KEY_SPLITTERS = "Window/Splitters/";
const char* const SUBDIR_PROPERTY = "subDir";

// The recovery folder sits beside the settings file, which belongs to the user's game setup.
QString recoveryFolder()
{
    return QFileInfo(gui::getSettings()->fileName()).absolutePath() + QStringLiteral("/recovery");
}

QString withKey(const QString& text, const QKeySequence& key)
{
    return key.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText));
}
} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui_MainWindowClass>())
    , manager(gui::getBaseDir().path())
    , undo(new QUndoGroup(this))
    , watcher(new DiskWatcher(this))
    , recoveryStore(std::make_unique<RecoveryStore>(recoveryFolder()))
{
    ui->setupUi(this);
    setFont(gui::getGenericFont());
    setAcceptDrops(true);
    for (int i = 0; i < ui->tabWidget->count(); ++i)
        tabTitles.append(ui->tabWidget->tabText(i));
    manager.reloadAll();
    manager.reloadDlg();

    scriptWidget = new ScriptWidget(this);
    scriptWidget->setMinimumHeight(280);
    scriptWidget->setListedScripts([this] {
        QStringList names;
        for (int i = 0; i < ui->listScripts->count(); ++i)
            names.append(ui->listScripts->item(i)->text());
        return names;
    });
    addPage(scriptWidget, ui->scriptsRightLayout, ui->tabWidget->indexOf(ui->tabScripts),
            tr("Pick a script in the list on the left, or open one with Ctrl+O."));
    mesWidget = new MesWidget(this);
    addPage(mesWidget, ui->mesLayout, ui->tabWidget->indexOf(ui->tabMes),
            tr("Pick a message file in the tree on the left, or open one with Ctrl+O."));
    dialogueWidget = new DialogueEditWidget(this);
    addPage(dialogueWidget, ui->dialogueLayout, ui->tabWidget->indexOf(ui->tabDialogue),
            tr("Open a dialogue file with Ctrl+O; the game keeps them in data/dlg/."));
    createArtTree();
    artWidget = new ArtWidget(this);
    addPage(artWidget, ui->artLayout, ui->tabWidget->indexOf(ui->tabArt),
            tr("Pick an art file in the tree on the left, or open one with Ctrl+O."));
    protoWidget = new ProtoWidget(this);
    addPage(protoWidget, ui->protoLayout, ui->tabWidget->indexOf(ui->tabProto),
            tr("Pick a prototype in the list on the left, or open one with Ctrl+O."));
    gameWidget = new GameWidget(this);
    ui->tabWidget->addTab(gameWidget, tr("Game"));
    tabTitles.append(tr("Game"));
    connect(gameWidget, &GameWidget::openRequested, this, &MainWindow::openGameFile);
    connect(gameWidget, &GameWidget::viewChanged, this, [this] { updateFileList(); });
    gameWidget->rescan(manager.getBaseDirPath());

    createActions();
    createMenus();
    addFilterBoxes();
    setStartFolders();
    applyConfirmations();
    connect(ui->tabWidget, &QTabWidget::currentChanged, this, [this] { updateMarks(); });
    connect(watcher, &DiskWatcher::changedOnDisk, this, &MainWindow::reloadChanged);
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) {
        if (!settleAll())
            session.cancel();
    });
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &MainWindow::keepRecoveryCopies);
    timer->start(RECOVERY_INTERVAL_MS);
    restoreSettings();
    updateMarks();
}

MainWindow::~MainWindow()
{
    // Documents go with their pages; the group must not hold their stacks by then.
    for (Page* page : pages)
        disconnect(page, nullptr, this, nullptr);
}

void MainWindow::addPage(Page* page, QLayout* layout, int tab, const QString& hint)
{
    auto* frame = new PageFrame(page, hint, this);
    auto* banner = new DamageBanner(frame);
    frame->insertAbovePage(banner);
    layout->addWidget(frame);
    pages.push_back(page);
    pageTabs.push_back(tab);
    banners.push_back(banner);
    connect(page, &Page::documentReplaced, this, [this, page](Document* document) { documentReplaced(page, document); });
}

// ---- actions and menus ----

void MainWindow::createActions()
{
    actionOpen = new QAction(tr("&Open…"), this);
    actionOpen->setShortcut(QKeySequence::Open);
    connect(actionOpen, &QAction::triggered, this, [this] { currentPage() ? currentPage()->browse() : void(); });
    actionSave = new QAction(tr("&Save"), this);
    actionSave->setShortcut(QKeySequence::Save);
    connect(actionSave, &QAction::triggered, this, [this] { currentPage() ? void(currentPage()->save()) : void(); });
    actionSaveAs = new QAction(tr("Save &As…"), this);
    actionSaveAs->setShortcut(QKeySequence::SaveAs);
    connect(actionSaveAs, &QAction::triggered, this, [this] { currentPage() ? void(currentPage()->saveAs()) : void(); });
    actionQuit = new QAction(tr("&Quit"), this);
    actionQuit->setShortcut(QKeySequence::Quit);
    connect(actionQuit, &QAction::triggered, this, &MainWindow::on_actionExit_triggered);
    actionFind = new QAction(tr("&Find file"), this);
    actionFind->setShortcut(QKeySequence::Find);
    connect(actionFind, &QAction::triggered, this, [this] {
        // In the Mes page the key finds in the open file; everywhere else it filters the file list.
        if (mesWidget->document() != nullptr && mesWidget->isAncestorOf(QApplication::focusWidget())) {
            mesWidget->showFind(false);
            return;
        }
        const size_t tab = size_t(ui->tabWidget->currentIndex());
        QLineEdit* box = tab < filters.size() ? filters.at(tab) : gameWidget->findChild<QLineEdit*>();
        if (box) {
            box->setFocus();
            box->selectAll();
        }
    });
    actionFindInGame = new QAction(tr("Find in &game files…"), this);
    actionFindInGame->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+F")));
    connect(actionFindInGame, &QAction::triggered, this, &MainWindow::showFindInGame);
    actionRefresh = new QAction(tr("&Rescan files"), this);
    actionRefresh->setShortcut(QKeySequence::Refresh);
    connect(actionRefresh, &QAction::triggered, this, [this] {
        manager.reloadAll();
        manager.reloadDlg();
        gameWidget->rescan(manager.getBaseDirPath());
        statusBar()->showMessage(tr("File lists rescanned"), 3000);
    });
    ui->actionExit->setShortcut(QKeySequence(QStringLiteral("Ctrl+X")));
    ui->actionExit->setShortcutContext(Qt::WindowShortcut);
}

void MainWindow::createMenus()
{
    menuBar()->clear();
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addActions({actionOpen, actionSave, actionSaveAs});
    file->addSeparator();
    QMenu* art = file->addMenu(tr("A&rt"));
    art->setObjectName(QStringLiteral("menuArt"));
    QAction* newArt = art->addAction(tr("&New art from images…"));
    newArt->setObjectName(QStringLiteral("actionNewArtFromImages"));
    connect(newArt, &QAction::triggered, this, [this] {
        showPage(artWidget);
        artWidget->newFromImages();
    });
    file->addSeparator();
    file->addAction(ui->actionConfigure);
    file->addSeparator();
    file->addActions({ui->actionExit, actionQuit});

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    QAction* undoAction = undo->createUndoAction(this, tr("&Undo"));
    undoAction->setShortcut(QKeySequence::Undo);
    undoAction->setObjectName(QStringLiteral("actionUndo"));
    QAction* redoAction = undo->createRedoAction(this, tr("&Redo"));
    redoAction->setShortcut(QKeySequence::Redo);
    redoAction->setObjectName(QStringLiteral("actionRedo"));
    edit->addActions({undoAction, redoAction});
    // A form's unapplied edits become a step first, so Undo takes back what was typed last and Redo
    // does not throw it away.
    disconnect(undoAction, &QAction::triggered, undo, &QUndoGroup::undo);
    disconnect(redoAction, &QAction::triggered, undo, &QUndoGroup::redo);
    connect(undoAction, &QAction::triggered, this, [this] {
        if (Page* page = currentPage())
            page->applyPendingEdits();
        undo->undo();
    });
    connect(redoAction, &QAction::triggered, this, [this] {
        if (Page* page = currentPage())
            page->applyPendingEdits();
        undo->redo();
    });
    // The menu names the step Undo would take back, the form's own edits included.
    connect(edit, &QMenu::aboutToShow, this, [this] {
        if (Page* page = currentPage())
            page->applyPendingEdits();
    });
    edit->addSeparator();
    edit->addActions({actionFind, actionFindInGame, actionRefresh});

    QMenu* view = menuBar()->addMenu(tr("&View"));
    auto* dock = new QDockWidget(tr("Undo history"), this);
    dock->setObjectName(QStringLiteral("undoHistoryDock"));
    undoView = new QUndoView(undo, dock);
    undoView->setEmptyLabel(tr("<file as opened>"));
    dock->setWidget(undoView);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    dock->hide();
    actionHistory = dock->toggleViewAction();
    actionHistory->setText(tr("Undo &history"));
    // Ctrl+H is Replace in the Mes page.
    actionHistory->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+H")));
    view->addAction(actionHistory);

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->addAction(ui->actionAbout);

    actionOpen->setObjectName(QStringLiteral("actionOpen"));
    actionSave->setObjectName(QStringLiteral("actionSave"));
    actionSaveAs->setObjectName(QStringLiteral("actionSaveAs"));
    actionQuit->setObjectName(QStringLiteral("actionQuit"));
    actionFind->setObjectName(QStringLiteral("actionFind"));
    actionFindInGame->setObjectName(QStringLiteral("actionFindInGame"));
    actionRefresh->setObjectName(QStringLiteral("actionRefresh"));
    for (QAction* action : findChildren<QAction*>()) {
        action->setToolTip(withKey(action->text().remove(QLatin1Char('&')), action->shortcut()));
        addAction(action);
    }
    // Undo and redo rename themselves after the command on top; their tool tips follow.
    for (QAction* action : {undoAction, redoAction})
        connect(action, &QAction::changed, action, [action] {
            const QString tip = withKey(action->text().remove(QLatin1Char('&')), action->shortcut());
            if (action->toolTip() != tip)
                action->setToolTip(tip);
        });
}

// ---- file lists ----

void MainWindow::addFilterBoxes()
{
    const std::vector<QWidget*> views = {ui->listScripts, ui->treeMes, nullptr, ui->artTree, ui->protoList};
    for (size_t i = 0; i < pages.size(); ++i) {
        QWidget* view = views.at(i);
        if (view == nullptr) {
            filters.push_back(nullptr);
            continue;
        }
        auto* box = new QLineEdit(this);
        box->setObjectName(QStringLiteral("fileFilter%1").arg(i));
        box->setPlaceholderText(tr("Filter files (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
        box->setClearButtonEnabled(true);
        box->setToolTip(tr("Show only the files whose name contains this text"));
        box->setMaximumWidth(view->maximumWidth());
        QLayout* layout = view->parentWidget()->layout();
        QWidget* column = new QWidget(this);
        auto* columnLayout = new QVBoxLayout(column);
        columnLayout->setContentsMargins(0, 0, 0, 0);
        layout->replaceWidget(view, column);
        columnLayout->addWidget(box);
        columnLayout->addWidget(view, 1);
        column->setMaximumWidth(view->maximumWidth());
        listColumns.push_back(column);
        connect(box, &QLineEdit::textChanged, this, [this, view](const QString& text) { applyFilter(view, text); });
        filters.push_back(box);
    }
}

// In a small window the file lists give way, so the forms beside them need no sideways scrolling.
void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    const int listWidth = width() < WIDE_WINDOW ? NARROW_LIST : WIDE_LIST;
    for (QWidget* column : listColumns) {
        column->setMaximumWidth(listWidth);
        for (QWidget* child : column->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            child->setFixedWidth(listWidth);
    }
}

void MainWindow::applyFilter(QWidget* view, const QString& text)
{
    const auto hides = [&text](const QString& name) { return !name.contains(text, Qt::CaseInsensitive); };
    if (auto* list = qobject_cast<QListWidget*>(view)) {
        for (int i = 0; i < list->count(); ++i)
            list->item(i)->setHidden(hides(list->item(i)->text()));
    } else if (view == ui->treeMes) {
        for (int top = 0; top < ui->treeMes->topLevelItemCount(); ++top) {
            QTreeWidgetItem* group = ui->treeMes->topLevelItem(top);
            for (int i = 0; i < group->childCount(); ++i)
                group->child(i)->setHidden(hides(group->child(i)->text(0)));
        }
    } else if (view == ui->artTree) {
        artModel->filter(ui->artTree, text);
    }
}

void MainWindow::createArtTree()
{
    artModel = new ArtModel(this);
    ui->artTree->setModel(artModel);
    ui->artTree->setIconSize(QSize(ArtThumbnails::SIDE, ArtThumbnails::SIDE));
}

QString MainWindow::fullPath(const QString& subDir, const QString& name) const
{
    return manager.getBaseDirPath() + QLatin1Char('/') + subDir + name;
}

QStringList MainWindow::suffixesOf(arcanum::FileFormat::Kind kind)
{
    return arcanum::FormatRegistry::byKind(kind)->suffixes;
}

void MainWindow::updateFileList()
{
    using Kind = arcanum::FileFormat::Kind;
    const arcanum::GameView& view = gameWidget->view();
    reselecting = true;
    ui->listScripts->clear();
    GameListing::fill(ui->listScripts, GameListing::entries(view, arcanum::SCRIPTS_DIR, manager.scripts, suffixesOf(Kind::Script)));
    ui->treeMes->clear();
    addToMesTable(tr("MES"), arcanum::MES_DIR, manager.messages, Kind::Message);
    addToMesTable(tr("RULES"), arcanum::RULES_DIR, manager.rules, Kind::Message);
    addToMesTable(tr("SEMES"), arcanum::SEMES_DIR, manager.semes, Kind::Message);
    addToMesTable(tr("OEMES"), arcanum::OEMES_DIR, manager.oemes, Kind::Message);
    addToMesTable(tr("DLG"), arcanum::DLG_DIR, manager.dialogues, Kind::Dialogue);
    ui->protoList->clear();
    GameListing::fill(ui->protoList, GameListing::entries(view, arcanum::PROTO_DIR, manager.prototypes, suffixesOf(Kind::Prototype)));
    artModel->fill(view);
    reselecting = false;
    for (QLineEdit* box : filters)
        if (box != nullptr && !box->text().isEmpty())
            emit box->textChanged(box->text());
}

void MainWindow::addToMesTable(const QString& title, const QString& subDir, const QStringList& files,
                               arcanum::FileFormat::Kind kind)
{
    auto* top = new QTreeWidgetItem(QStringList(title));
    top->setData(0, Qt::UserRole, subDir);
    GameListing::fill(top, GameListing::entries(gameWidget->view(), subDir, files, suffixesOf(kind)));
    ui->treeMes->addTopLevelItem(top);
    top->setExpanded(true);
}

void MainWindow::applyConfirmations()
{
    // The dialogue page has no settings of its own: it always asks.
    const std::vector<QString> keys = {QStringLiteral("script"), QStringLiteral("mes"), QString(),
                                       QStringLiteral("art"), QStringLiteral("proto")};
    for (size_t i = 0; i < pages.size(); ++i) {
        if (keys.at(i).isEmpty())
            continue;
        pages[i]->setConfirmOverwrite(gui::confirms(keys.at(i), gui::Confirmation::Overwrite));
        pages[i]->setConfirmAbandon(gui::confirms(keys.at(i), gui::Confirmation::Abandon));
    }
}

void MainWindow::setStartFolders()
{
    const QStringList folders = {arcanum::SCRIPTS_DIR, arcanum::MES_DIR, arcanum::DLG_DIR, arcanum::ART_DIR,
                                 arcanum::PROTO_DIR};
    for (size_t i = 0; i < pages.size(); ++i)
        pages[i]->setStartFolder(QDir::cleanPath(manager.getBaseDirPath() + QLatin1Char('/') + folders.at(int(i))));
}

// ---- opening files ----

void MainWindow::on_listScripts_itemSelectionChanged()
{
    const QListWidgetItem* item = ui->listScripts->currentItem();
    if (item && !reselecting)
        openListed(scriptWidget, item->data(GameListing::GamePathRole).toString(), fullPath(arcanum::SCRIPTS_DIR, item->text()));
}

void MainWindow::on_treeMes_currentItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* /*previous*/)
{
    if (!current || !current->parent() || current->childCount() > 0 || reselecting)
        return;
    const QString subDir = current->parent()->data(0, Qt::UserRole).toString();
    openListed(mesWidget, current->data(0, GameListing::GamePathRole).toString(), fullPath(subDir, current->text(0)));
}

void MainWindow::on_artTree_activated(QModelIndex index)
{
    const QString gamePath = index.data(ArtModel::GamePathRole).toString();
    const arcanum::GameView& view = gameWidget->view();
    const arcanum::GameView::File* file = gamePath.isEmpty() ? nullptr : view.find(gamePath);
    if (file == nullptr)
        return;
    const arcanum::FileFormat* format = arcanum::FormatRegistry::byPath(gamePath);
    if (format && format->kind == arcanum::FileFormat::Kind::Palette) {
        if (view.archived(*file))
            Prompt::message(this, QMessageBox::Information, tr("Palette"),
                            tr("%1 is inside %2: extract it from the Game tab to edit it.")
                                .arg(gamePath, view.layers().at(file->layer).name));
        else
            showPaletteFile(view.loosePath(*file));
    } else if (format && format->kind == arcanum::FileFormat::Kind::Art) {
        openListed(artWidget, gamePath, QDir::cleanPath(view.loosePath(*file)));
    }
}

void MainWindow::on_protoList_itemSelectionChanged()
{
    const QListWidgetItem* item = ui->protoList->currentItem();
    if (item && !reselecting)
        openListed(protoWidget, item->data(GameListing::GamePathRole).toString(), fullPath(arcanum::PROTO_DIR, item->text()));
}

bool MainWindow::listsShow(const QString& path) const
{
    const QDir base(manager.getBaseDirPath());
    const QString relative = base.relativeFilePath(path);
    if (relative.startsWith(QLatin1String("../")))
        return true; // outside the game: no list shows it anyway
    const arcanum::GameView& view = gameWidget->view();
    const QString clean = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    for (const arcanum::GameView::File& file : view.files())
        if (!view.archived(file) && QDir::cleanPath(view.loosePath(file)) == clean)
            return true;
    return false;
}

// A listed file the game takes from an archive or the module's folder opens as the Game tab would open it.
void MainWindow::openListed(Page* page, const QString& gamePath, const QString& loosePath)
{
    const arcanum::GameView& view = gameWidget->view();
    const arcanum::GameView::File* file = gamePath.isEmpty() ? nullptr : view.find(gamePath);
    if (file != nullptr && (view.archived(*file) || QFileInfo(view.loosePath(*file)) != QFileInfo(loosePath)))
        gameWidget->open(*file);
    else
        openInPage(page, loosePath);
}

bool MainWindow::openInPage(Page* page, const QString& path)
{
    if (page->document() != nullptr && QFileInfo(page->document()->path()) == QFileInfo(path))
        return true;
    const bool opened = page->openFile(path);
    if (!opened)
        selectListed(page); // the list goes back to the file the page still shows
    return opened;
}

// The page's list marks the file the page shows, however it was opened (Find in game, a refused open,
// Save As), and no other: a list pointing at one file while the page edits another invites a wrong edit.
void MainWindow::selectListed(Page* page)
{
    const QString shown = page->document() != nullptr ? QDir::cleanPath(page->document()->path()) : QString();
    const auto isShown = [this, &shown](const QString& subDir, const QString& name) {
        return !shown.isEmpty() && QDir::cleanPath(fullPath(subDir, name)) == shown;
    };
    reselecting = true;
    if (page == scriptWidget || page == protoWidget) {
        QListWidget* list = page == scriptWidget ? ui->listScripts : ui->protoList;
        const QString subDir = page == scriptWidget ? arcanum::SCRIPTS_DIR : arcanum::PROTO_DIR;
        QListWidgetItem* found = nullptr;
        for (int i = 0; i < list->count() && found == nullptr; ++i)
            if (isShown(subDir, list->item(i)->text()))
                found = list->item(i);
        list->setCurrentItem(found);
    } else if (page == mesWidget) {
        QTreeWidgetItem* found = nullptr;
        for (int top = 0; top < ui->treeMes->topLevelItemCount() && found == nullptr; ++top) {
            QTreeWidgetItem* group = ui->treeMes->topLevelItem(top);
            for (int i = 0; i < group->childCount() && found == nullptr; ++i)
                if (isShown(group->data(0, Qt::UserRole).toString(), group->child(i)->text(0)))
                    found = group->child(i);
        }
        ui->treeMes->setCurrentItem(found);
    } else if (page == artWidget && artModel != nullptr) {
        ui->artTree->setCurrentIndex(artModel->indexOfLoose(shown));
    }
    reselecting = false;
}

// ---- find in game ----

FindInGameDialog* MainWindow::showFindInGame()
{
    if (findDialog == nullptr) {
        findDialog = new FindInGameDialog(this);
        connect(findDialog, &FindInGameDialog::hitActivated, this, &MainWindow::openHit);
        // Another base directory or module is another game to search.
        connect(gameWidget, &GameWidget::viewChanged, findDialog, [this] {
            findDialog->setGame(manager.getBaseDirPath(), gameWidget->view().module(), mesWidget->getCodec());
        });
    }
    findDialog->setGame(manager.getBaseDirPath(), gameWidget->view().module(), mesWidget->getCodec());
    findDialog->show();
    findDialog->raise();
    findDialog->activateWindow();
    return findDialog;
}

void MainWindow::openHit(const arcanum::GameSearch::Hit& hit)
{
    const arcanum::GameView& view = gameWidget->view();
    const arcanum::GameView::File* file = view.find(hit.gamePath);
    Page* page = pageFor(hit.gamePath);
    if (file == nullptr || page == nullptr) {
        statusBar()->showMessage(tr("%1 is no longer in the game: rescan the files").arg(hit.file), 5000);
        return;
    }
    gameWidget->open(*file);
    const QString opened = view.archived(*file) ? view.overridePath(*file) : view.loosePath(*file);
    if (page->document() == nullptr || QFileInfo(page->document()->path()) != QFileInfo(opened))
        return; // not opened: the page said why, or the user kept the file it had
    const bool shown = page == mesWidget ? mesWidget->goToEntry(hit.entry)
        : page == dialogueWidget         ? dialogueWidget->openLine(hit.entry)
                                         : true;
    if (!shown)
        statusBar()->showMessage(tr("%1 has no entry %2 any more").arg(hit.file).arg(hit.entry), 5000);
}

// A palette file is no document of its own: it opens in the palette editor, which saves it itself.
void MainWindow::showPaletteFile(const QString& path)
{
    arcanum::Artfile::Palette colours;
    QString error;
    if (!arcanum::PaletteFile::read(path, colours, error)) {
        Prompt::message(this, QMessageBox::Warning, tr("Cannot open file"),
                        tr("Could not open %1: %2").arg(QDir::toNativeSeparators(path), error));
        return;
    }
    DialogEditPalette dialog(this);
    dialog.setWindowTitle(tr("Palette %1").arg(QFileInfo(path).fileName()));
    dialog.setImage(QImage(), colours);
    Prompt::run(dialog);
}

// An archived file opens as read from its archive; its first save writes the loose file that
// overrides it (the page asks first, naming the folder).
void MainWindow::openGameFile(const QString& gamePath, const QByteArray& bytes, const QString& savePath, bool archived)
{
    if (!archived) {
        openFiles({savePath});
        return;
    }
    Page* page = pageFor(gamePath);
    if (page == nullptr) {
        Prompt::message(this, QMessageBox::Information, tr("Cannot open"),
                        tr("%1: not a file qtLoreka edits (.mes, .dlg, .scr, .art, .pro)").arg(gamePath));
        return;
    }
    showPage(page);
    if (page->document() != nullptr && page->document()->path() == savePath)
        return;
    if (!page->settle())
        return;
    QString error;
    std::unique_ptr<Document> document = page->fromBytes(savePath, bytes, error);
    if (!document) {
        Prompt::message(this, QMessageBox::Warning, tr("Cannot open file"),
                        tr("Could not open %1: %2").arg(gamePath, error));
        return;
    }
    const arcanum::GameView& view = gameWidget->view();
    const arcanum::GameView::File* file = view.find(gamePath);
    const QString archive = file ? view.layers().at(file->layer).name : tr("an archive");
    document->setOrigin(archive, QDir(manager.getBaseDirPath()).relativeFilePath(QFileInfo(savePath).absolutePath()));
    page->setDocument(std::move(document));
}

void MainWindow::showPage(Page* page)
{
    ui->tabWidget->setCurrentIndex(pageTabs.at(size_t(std::find(pages.begin(), pages.end(), page) - pages.begin())));
}

Page* MainWindow::pageFor(const QString& path) const
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (Page* page : pages)
        if (page->suffixes().contains(suffix))
            return page;
    return nullptr;
}

void MainWindow::openFiles(const QStringList& paths)
{
    QStringList refused;
    for (const QString& path : paths) {
        Page* page = pageFor(path);
        if (page == nullptr) {
            refused.append(tr("%1: not a file qtLoreka edits (.mes, .dlg, .scr, .art, .pro)")
                               .arg(QDir::toNativeSeparators(path)));
            continue;
        }
        ui->tabWidget->setCurrentIndex(pageTabs.at(size_t(std::find(pages.begin(), pages.end(), page) - pages.begin())));
        if (!QFileInfo(path).isFile()) {
            refused.append(tr("%1: no such file").arg(QDir::toNativeSeparators(path)));
            continue;
        }
        openInPage(page, QFileInfo(path).absoluteFilePath());
    }
    if (!refused.isEmpty())
        Prompt::message(this, QMessageBox::Warning, tr("Cannot open"), refused.join(QLatin1Char('\n')));
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    openDropped(event->mimeData());
}

void MainWindow::openDropped(const QMimeData* mime)
{
    QStringList paths;
    for (const QUrl& url : mime->urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    openFiles(paths);
}

// ---- documents ----

Page* MainWindow::currentPage() const
{
    const int tab = ui->tabWidget->currentIndex();
    for (size_t i = 0; i < pages.size(); ++i)
        if (pageTabs[i] == tab)
            return pages[i];
    return nullptr;
}

void MainWindow::documentReplaced(Page* page, Document* document)
{
    const size_t index = size_t(std::find(pages.begin(), pages.end(), page) - pages.begin());
    DamageBanner* banner = banners.at(index);
    banner->showDamageOf(document);
    if (document != nullptr) {
        undo->addStack(document->undoStack());
        connect(document, &Document::modifiedChanged, this, &MainWindow::updateMarks);
        connect(document, &Document::pathChanged, this, [this, page] {
            updateMarks();
            rewatch();
            selectListed(page);
        });
        connect(document, &Document::saved, this, [this, banner, document](const QString& path) {
            banner->showDamageOf(document); // the file as saved is the file the banner speaks of
            watcher->savedByUs(path);
            recoveryStore->drop(path);
            if (artModel != nullptr)
                artModel->refreshIcon(path);
            // A new file, or the loose copy that now overrides an archived one, belongs in the lists.
            if (!listsShow(path)) {
                manager.reloadAll();
                manager.reloadDlg();
                gameWidget->rescan(manager.getBaseDirPath());
            }
        });
        connect(document, &Document::changed, banner, [banner, document] { banner->showDamageOf(document); });
    }
    selectListed(page);
    rewatch();
    updateMarks();
}

void MainWindow::updateMarks()
{
    for (size_t i = 0; i < pages.size(); ++i) {
        const Document* document = pages[i]->document();
        const bool modified = document != nullptr && document->isModified();
        ui->tabWidget->setTabText(pageTabs[i], tabTitles.at(pageTabs[i]) + (modified ? QStringLiteral(" *") : QString()));
    }
    Page* page = currentPage();
    Document* document = page ? page->document() : nullptr;
    undo->setActiveStack(document ? document->undoStack() : nullptr);
    setWindowTitle(document ? tr("%1[*] — qtLoreka").arg(document->displayName()) : tr("qtLoreka"));
    setWindowModified(document != nullptr && document->isModified());
    const bool open = document != nullptr;
    actionSave->setEnabled(open);
    actionSaveAs->setEnabled(open);
}

bool MainWindow::settleAll()
{
    for (size_t i = 0; i < pages.size(); ++i) {
        Page* page = pages[i];
        if (page->document() == nullptr || !page->document()->isModified())
            continue;
        ui->tabWidget->setCurrentIndex(pageTabs[i]);
        if (!page->settle())
            return false;
    }
    return true;
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!settleAll()) {
        event->ignore();
        return;
    }
    storeSettings();
    recoveryStore->clear();
    event->accept();
}

// ---- files changed on disk ----

void MainWindow::rewatch()
{
    QStringList paths;
    for (Page* page : pages)
        if (page->document() != nullptr)
            paths.append(page->document()->path());
    watcher->watch(paths);
}

void MainWindow::reloadChanged(const QString& path)
{
    for (Page* page : pages) {
        Document* document = page->document();
        if (document == nullptr || document->path() != path)
            continue;
        if (document->isModified()
            && Prompt::question(this, tr("File changed on disk"),
                                tr("%1 changed on disk. Reload and lose your changes?").arg(document->displayName()),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
                   != QMessageBox::Yes)
            return;
        QString error;
        std::unique_ptr<Document> fresh = page->load(path, error);
        if (!fresh) {
            statusBar()->showMessage(tr("%1 changed on disk and could not be read: %2").arg(document->displayName(), error));
            return;
        }
        page->setDocument(std::move(fresh));
        statusBar()->showMessage(tr("%1 was reloaded: it changed on disk").arg(QFileInfo(path).fileName()), 5000);
        return;
    }
}

// ---- recovery ----

void MainWindow::keepRecoveryCopies()
{
    for (Page* page : pages) {
        Document* document = page->document();
        if (document == nullptr || !document->isModified())
            continue;
        QByteArray bytes;
        QString error;
        if (document->serialize(bytes, error))
            recoveryStore->keep(document->path(), bytes);
    }
}

void MainWindow::offerRecovery()
{
    const QList<RecoveryStore::Copy> copies = recoveryStore->copies();
    if (copies.isEmpty())
        return;
    QStringList names;
    for (const RecoveryStore::Copy& copy : copies)
        names.append(QDir::toNativeSeparators(copy.original));
    const auto answer = Prompt::question(
        this, tr("Recover unsaved work"),
        tr("qtLoreka did not close cleanly. Unsaved changes of these files were kept:\n%1\n\n"
           "Restore them (they open modified, not saved) or discard them?")
            .arg(names.join(QLatin1Char('\n'))),
        QMessageBox::Yes | QMessageBox::Discard, QMessageBox::Yes);
    if (answer == QMessageBox::Yes) {
        for (const RecoveryStore::Copy& copy : copies) {
            Page* page = pageFor(copy.original);
            QString error;
            std::unique_ptr<Document> document = page ? page->load(copy.bytesPath, error) : nullptr;
            if (!document || !page->settle())
                continue;
            document->setPath(copy.original);
            document->markUnsaved();
            page->setDocument(std::move(document));
        }
    }
    recoveryStore->clear();
    keepRecoveryCopies();
}

// ---- settings ----

void MainWindow::restoreSettings()
{
    QSettings* settings = gui::getSettings();
    restoreGeometry(settings->value(KEY_GEOMETRY).toByteArray());
    restoreState(settings->value(KEY_STATE).toByteArray());
    ui->tabWidget->setCurrentIndex(settings->value(KEY_TAB, 0).toInt());
    for (QSplitter* splitter : findChildren<QSplitter*>())
        if (!splitter->objectName().isEmpty())
            splitter->restoreState(settings->value(QLatin1String(KEY_SPLITTERS) + splitter->objectName()).toByteArray());
}

void MainWindow::storeSettings()
{
    QSettings* settings = gui::getSettings();
    settings->setValue(KEY_GEOMETRY, saveGeometry());
    settings->setValue(KEY_STATE, saveState());
    settings->setValue(KEY_TAB, ui->tabWidget->currentIndex());
    for (QSplitter* splitter : findChildren<QSplitter*>())
        if (!splitter->objectName().isEmpty())
            settings->setValue(QLatin1String(KEY_SPLITTERS) + splitter->objectName(), splitter->saveState());
    settings->sync();
}

// ---- window actions ----

bool MainWindow::changeBaseDir(const QString& path)
{
    if (QFileInfo(path).absoluteFilePath() == QFileInfo(manager.getBaseDirPath()).absoluteFilePath())
        return true;
    if (!QFileInfo(path).isDir() || !settleAll())
        return false;
    manager.setBaseDir(path);
    gui::setBaseDir(QDir(manager.getBaseDirPath()));
    for (Page* page : pages)
        page->setDocument(nullptr);
    manager.reloadAll();
    manager.reloadDlg();
    gameWidget->rescan(manager.getBaseDirPath());
    setStartFolders();
    return true;
}

void MainWindow::on_actionConfigure_triggered()
{
    DialogOptions dialog(this, manager.getBaseDirPath());
    if (Prompt::run(dialog) != QDialog::Accepted)
        return;
    dialog.storeConfirmations();
    applyConfirmations();
    changeBaseDir(dialog.baseDir());
}

void MainWindow::on_actionAbout_triggered()
{
    DialogAbout dialog(this);
    Prompt::run(dialog);
}

bool MainWindow::cutInTextField()
{
    QWidget* focus = QApplication::focusWidget();
    if (auto* line = qobject_cast<QLineEdit*>(focus); line && !line->isReadOnly()) {
        line->cut();
        return true;
    }
    if (auto* text = qobject_cast<QTextEdit*>(focus); text && !text->isReadOnly()) {
        text->cut();
        return true;
    }
    if (auto* plain = qobject_cast<QPlainTextEdit*>(focus); plain && !plain->isReadOnly()) {
        plain->cut();
        return true;
    }
    return false;
}

void MainWindow::on_actionExit_triggered()
{
    // Ctrl+X is Cut wherever text can be cut; only elsewhere is it the documented Exit.
    if (sender() == ui->actionExit && cutInTextField())
        return;
    close();
}
