#pragma once

#include "DialogueCheck.h"
#include "DialogueFileNew.h"
#include "LineHistory.h"
#include "Page.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

class ConversationView;
class DialogueProblemsPanel;
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

    // Opens the line with that number in its form: the NPC line, or the PC response when no NPC line
    // has it; false when the file has no line with that number. Other pages open a dialogue at a line
    // through this.
    bool openLine(int index);
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
    void on_buttonAddNpc_clicked();
    void on_buttonAddPc_clicked();
    void on_buttonDelete_clicked();
    void on_buttonPrevious_clicked();
    void on_buttonForward_clicked();

protected:
    void changeEvent(QEvent* event) override;
    void showDocument() override;
    bool commitPending() override;

private:
    enum class LineKind { None, Pc, Npc };
    struct OpenLine
    {
        LineKind kind = LineKind::None;
        int index = 0;
    };

    void setUpTrees();
    void connectSignals();
    void connectLineEditing();
    static arcanum::DialogueFileNew::LineKind modelKind(LineKind kind);
    // The line selected in a tree, or else the open line.
    OpenLine selectedLine() const;
    // The lines selected in the tree last clicked, or else the open line.
    QList<OpenLine> selectedLines() const;
    void addLine(LineKind kind);
    void deleteSelectedLines();
    void renumberOpenLine(int number);
    bool confirmMovedResponses(const OpenLine& line, int number);
    // Opens the line a response leads to; codes of 0 and below end the conversation and open nothing.
    void openTarget(int line);
    void moveInHistory(const std::function<std::optional<LineHistory::Entry>()>& step);
    void updateHistoryButtons();
    void updateControls();
    void showFileName();
    void closeLine();
    QList<QWidget*> fileControls() const override;
    void showForm(QWidget* form);
    bool openLine(const OpenLine& line, QWidget* form, const std::function<void()>& fill);
    // Opens the line again (after a rebuild, or from the history); false when it is gone.
    bool reopen(const OpenLine& line);
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
    void describeResponse(QTreeWidgetItem* item, const arcanum::DialogueFileNew::PCLine& line, int targetColumn) const;

    std::unique_ptr<Ui_DialogueEditWidget> ui;
    void refreshGraph();
    // Judges the file again: the Problems panel and the marks of the trees show the result.
    void refreshProblems();
    std::optional<arcanum::DialogueCheck::Severity> severityOf(const arcanum::DialogueFileNew::Line& line, bool pc) const;

    // Set while the form has edits not yet applied to its line.
    bool formEdited = false;
    // A window of its own beside the page, made when first asked for.
    QWidget* graphWindow = nullptr;
    ConversationView* graph = nullptr;
    OpenLine open;
    // The line last made current in either tree.
    OpenLine selected;
    QTreeWidget* selectedTree = nullptr;
    // The line last renumbered, as it was and as it became.
    std::pair<OpenLine, OpenLine> renumbered;
    LineHistory history;
    DialogueProblemsPanel* problems = nullptr;
    std::unique_ptr<arcanum::DialogueCheck> lineCheck;
    FileEncoding* encoding = nullptr;
    QMetaObject::Connection focusWatch;
};
