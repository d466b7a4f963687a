#pragma once

#include "DialogueFileNew.h"
#include "Page.h"

#include <QString>

#include <functional>
#include <memory>

class ConversationView;
class FileEncoding;
class DialogueDocument;
class DlgLineEditWidget;
class QTreeWidget;
class QTreeWidgetItem;
class Ui_DialogueEditWidget;

// The "Dialogue" tab: one .dlg file as two trees (NPC lines with the PC responses that follow them,
// and all PC lines), and the form of the line opened from them. Changes in the form go into the line
// when another line is opened and before saving.
class DialogueEditWidget : public Page
{
    Q_OBJECT

public:
    explicit DialogueEditWidget(QWidget* parent = nullptr);
    ~DialogueEditWidget() override;

    QStringList suffixes() const override;
    QString fileFilter() const override;
    std::unique_ptr<Document> fromBytes(const QString& path, const QByteArray& bytes, QString& error) const override;

    DialogueDocument* dialogueDocument() const;
    void fillTrees();
    void rebuildContents();
    // Writes the open form into its line and puts both line lists in index order.
    void saveLineEditChangesToMem();

    // Opens the line with that index in its form; false when there is none.
    bool openPcLine(int index);
    bool openNpcLine(int index);

    arcanum::DialogueFileNew* getModel() const;
    // Changes in the document or in the open line's form, not yet applied.
    bool hasChanges() const;

signals:
    void npcListChanged();
    void pcListChanged();

public slots:
    void on_buttonOpenFile_clicked();
    void on_buttonSaveAs_clicked();
    void on_buttonGraph_clicked();
    void on_treeNPC_itemDoubleClicked(QTreeWidgetItem* item, int column);
    void on_treePC_itemDoubleClicked(QTreeWidgetItem* item, int column);
    void rebuildPCList();
    void rebuildNPCList();
    void setModifiedState();

protected:
    void changeEvent(QEvent* event) override;
    void showDocument() override;
    void commitPending() override;

private:
    enum class LineKind { None, Pc, Npc };
    struct OpenLine
    {
        LineKind kind = LineKind::None;
        int index = 0;
    };

    void setUpTrees();
    void connectSignals();
    void updateControls();
    void showFileName();
    void closeLine();
    QList<QWidget*> fileControls() const override;
    void showForm(QWidget* form);
    bool openLine(const OpenLine& line, QWidget* form, const std::function<void()>& fill);
    void reopen(const OpenLine& line);
    void applyPendingForm();
    DlgLineEditWidget* openForm() const;
    const arcanum::DialogueFileNew::Line* openLineData() const;
    void showOpenLine();
    QString describeOpenLine() const;
    void showLineErrors();
    void showUnreadText();
    void selectOpenLine();
    QTreeWidgetItem* npcItem(const arcanum::DialogueFileNew::NPCLine& line) const;
    QTreeWidgetItem* pcChildItem(const arcanum::DialogueFileNew::PCLine& line) const;
    QTreeWidgetItem* pcItem(const arcanum::DialogueFileNew::PCLine& line) const;

    std::unique_ptr<Ui_DialogueEditWidget> ui;
    void refreshGraph();

    // Set while the form has edits not yet applied to its line.
    bool formEdited = false;
    // A window of its own beside the page, made when first asked for.
    QWidget* graphWindow = nullptr;
    ConversationView* graph = nullptr;
    OpenLine open;
    FileEncoding* encoding = nullptr;
};
