#include "MainWindow.h"

#include "ArtModel.h"
#include "ArtWidget.h"
#include "DialogAbout.h"
#include "DialogOptions.h"
#include "DialogueEditWidget.h"
#include "MesWidget.h"
#include "Prompt.h"
#include "ProtoWidget.h"
#include "ScriptWidget.h"
#include "gui.h"
#include "ui_MainWindow.h"

#include <QFile>
#include <QTreeWidgetItem>

namespace {
const char* const MES_ITEM = QT_TRANSLATE_NOOP("MainWindow", "MES");
const char* const RULES_ITEM = QT_TRANSLATE_NOOP("MainWindow", "RULES");
const char* const SEMES_ITEM = QT_TRANSLATE_NOOP("MainWindow", "SEMES");
const char* const OEMES_ITEM = QT_TRANSLATE_NOOP("MainWindow", "OEMES");
const char* const DLG_ITEM = QT_TRANSLATE_NOOP("MainWindow", "DLG");
} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , ui(std::make_unique<Ui_MainWindowClass>())
{
    ui->setupUi(this);
    setFont(gui::getGenericFont());
    manager.reloadAll();

    scriptWidget = new ScriptWidget(this);
    scriptWidget->setMinimumHeight(280);
    ui->scriptsRightLayout->addWidget(scriptWidget);
    updateFileList();

    mesWidget = new MesWidget(this, QCoreApplication::translate("MesWidget", "UTF-8"));
    ui->mesLayout->addWidget(mesWidget);

    dialogueWidget = new DialogueEditWidget(this);
    ui->dialogueLayout->addWidget(dialogueWidget);

    createArtTree();
    artWidget = new ArtWidget(this);
    ui->artLayout->addWidget(artWidget);
    protoWidget = new ProtoWidget(this);
    ui->protoLayout->addWidget(protoWidget);
}

MainWindow::~MainWindow() = default;

void MainWindow::createArtTree()
{
    artModel = new ArtModel(this);
    const QString root = QDir::cleanPath(QDir::currentPath() + QLatin1Char('/') + arcanum::ART_DIR);
    artModel->setRootPath(root);
    artModel->sort(0);
    ui->artTree->setModel(artModel);
    ui->artTree->setRootIndex(artModel->index(root));
}

QString MainWindow::fullPath(const QString& subDir, const QString& name) const
{
    return manager.getBaseDirPath() + QLatin1Char('/') + subDir + name;
}

void MainWindow::updateFileList()
{
    ui->listScripts->clear();
    ui->listScripts->addItems(manager.scripts);

    ui->treeMes->clear();
    addToMesTable(QStringList(tr(MES_ITEM)), manager.messages);
    addToMesTable(QStringList(tr(RULES_ITEM)), manager.rules);
    addToMesTable(QStringList(tr(SEMES_ITEM)), manager.semes);
    addToMesTable(QStringList(tr(OEMES_ITEM)), manager.oemes);
    addToMesTable(QStringList(tr(DLG_ITEM)), manager.dialogues);

    ui->protoList->clear();
    ui->protoList->addItems(manager.prototypes);
}

void MainWindow::addToMesTable(QStringList header, QStringList& files)
{
    auto* top = new QTreeWidgetItem(header);
    for (const QString& name : files)
        top->addChild(new QTreeWidgetItem(QStringList(name)));
    ui->treeMes->addTopLevelItem(top);
    top->setExpanded(true);
}

void MainWindow::on_listScripts_itemSelectionChanged()
{
    const QListWidgetItem* item = ui->listScripts->currentItem();
    if (!item)
        return;
    scriptWidget->loadScript(fullPath(arcanum::SCRIPTS_DIR, item->text()));
}

void MainWindow::on_treeMes_currentItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* /*previous*/)
{
    if (!current || !current->parent() || current->childCount() > 0)
        return;
    const QString category = current->parent()->text(0);
    QString subDir;
    if (category == tr(MES_ITEM))
        subDir = arcanum::MES_DIR;
    else if (category == tr(RULES_ITEM))
        subDir = arcanum::RULES_DIR;
    else if (category == tr(SEMES_ITEM))
        subDir = arcanum::SEMES_DIR;
    else if (category == tr(OEMES_ITEM))
        subDir = arcanum::OEMES_DIR;
    else if (category == tr(DLG_ITEM))
        subDir = arcanum::DLG_DIR;
    mesWidget->loadMes(fullPath(subDir, current->text(0)));
}

void MainWindow::on_artTree_activated(QModelIndex index)
{
    const auto* model = qobject_cast<const QFileSystemModel*>(ui->artTree->model());
    if (!model)
        return;
    const QFileInfo info = model->fileInfo(index);
    if (info.isDir() || info.suffix().toUpper() != QLatin1String("ART"))
        return;
    artWidget->loadArt(QFile::encodeName(QDir::cleanPath(info.filePath())).toStdString());
}

void MainWindow::on_protoList_itemSelectionChanged()
{
    const QListWidgetItem* item = ui->protoList->currentItem();
    if (!item)
        return;
    protoWidget->loadProto(QFile::encodeName(fullPath(arcanum::PROTO_DIR, item->text())).toStdString());
}

void MainWindow::on_actionConfigure_triggered()
{
    const QString before = manager.getBaseDirPath();
    DialogOptions dialog(this, &manager);
    Prompt::run(dialog);
    if (manager.getBaseDirPath() != before) {
        manager.reloadAll();
        updateFileList();
    }
}

void MainWindow::on_actionAbout_triggered()
{
    DialogAbout dialog(this);
    Prompt::run(dialog);
}

void MainWindow::on_actionExit_triggered()
{
    close();
}
