#pragma once

#include "Manager.h"

#include <QMainWindow>
#include <QModelIndex>
#include <QStringList>

#include <memory>

class QTreeWidgetItem;
class Ui_MainWindowClass;
class ScriptWidget;
class MesWidget;
class DialogueEditWidget;
class ArtWidget;
class ProtoWidget;
class ArtModel;

// The five editor tabs and the file lists that feed them; reads no data file itself.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    void updateFileList();
    void addToMesTable(QStringList header, QStringList& files);

    arcanum::Manager& getManager() { return manager; }
    ScriptWidget* scriptPage() const { return scriptWidget; }
    MesWidget* mesPage() const { return mesWidget; }
    DialogueEditWidget* dialoguePage() const { return dialogueWidget; }
    ArtWidget* artPage() const { return artWidget; }
    ProtoWidget* protoPage() const { return protoWidget; }

private slots:
    void on_listScripts_itemSelectionChanged();
    void on_treeMes_currentItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void on_artTree_activated(QModelIndex index);
    void on_protoList_itemSelectionChanged();
    void on_actionConfigure_triggered();
    void on_actionAbout_triggered();
    void on_actionExit_triggered();

private:
    QString fullPath(const QString& subDir, const QString& name) const;
    void createArtTree();

    std::unique_ptr<Ui_MainWindowClass> ui;
    ScriptWidget* scriptWidget = nullptr;
    MesWidget* mesWidget = nullptr;
    DialogueEditWidget* dialogueWidget = nullptr;
    ArtWidget* artWidget = nullptr;
    ProtoWidget* protoWidget = nullptr;
    arcanum::Manager manager;
    // Lives with the window; the art tree is rooted at the working directory, not the base directory.
    ArtModel* artModel = nullptr;
};
