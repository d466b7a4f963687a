#include "DialogueEditWidget.h"

#include "FormatRegistry.h"

#include "ConversationGraph.h"
#include "ConversationView.h"
#include "DialogueDocument.h"
#include "DialogueProblemsPanel.h"
#include "DlgNpcLineEditWidget.h"
#include "DlgPcLineEditWidget.h"
#include "EncodingBox.h"
#include "EncodingStrip.h"
#include "FileEncoding.h"
#include "LineNumberDialog.h"
#include "Prompt.h"
#include "WheelGuard.h"
#include "ui_DialogueEditWidget.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QUndoStack>
#include <QShortcut>
#include <QVBoxLayout>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <optional>

using arcanum::DialogueFileNew;

namespace {

const char* const FILE_FILTER = QT_TRANSLATE_NOOP("DialogueEditWidget", "Arcanum Dialogue files (*.dlg);;All files (*.*)");
constexpr int INDEX_ROLE = Qt::UserRole;
constexpr int KIND_ROLE = Qt::UserRole + 1;
constexpr int TARGET_ROLE = Qt::UserRole + 2; // the response line of a PC line's item
constexpr int NPC_TARGET_COLUMN = 1;         // "→ 40" under an NPC line
constexpr int PC_TARGET_COLUMN = 0;          // the Response column of the PC tree
constexpr int ERROR_PREVIEW_LENGTH = 80;
const QColor DEFECT_COLOUR(0xA0, 0x10, 0x10);

// The first line of a text, marked when more follows.
QString firstLine(const QString& text)
{
    const int end = text.indexOf(QLatin1Char('\n'));
    return end < 0 ? text : text.left(end) + QStringLiteral(" …");
}

// A line number in a heading that opens the line when clicked.
QString lineLink(int line)
{
    return QStringLiteral("<a href='%1'>%1</a>").arg(line);
}

QString htmlLines(const QString& text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br/>"));
}

} // namespace

DialogueEditWidget::DialogueEditWidget(QWidget* parent)
    : Page(parent)
    , ui(std::make_unique<Ui_DialogueEditWidget>())
{
    ui->setupUi(this);
    encoding = new FileEncoding(this, DialogueFileNew::defaultCodec());
    auto* encodingLabel = new QLabel(tr("File encoding:"), this);
    encodingLabel->setBuddy(encoding->box());
    const int graphAt = ui->fileLayout->indexOf(ui->buttonGraph);
    ui->fileLayout->insertWidget(graphAt, encodingLabel);
    ui->fileLayout->insertWidget(graphAt + 1, encoding->box());
    ui->mainLayout->insertWidget(ui->mainLayout->indexOf(ui->labelUnread), encoding->strip());
    setUpTrees();
    connectSignals();
    connectLineEditing();
    ui->splitter->setStretchFactor(0, 0);
    ui->splitter->setStretchFactor(1, 1);
    ui->splitter->setSizes({300, 940});
    ui->treesSplitter->setSizes({400, 260});
    // The forms sit on the page itself, not on a panel of their own.
    ui->scrollForms->viewport()->setAutoFillBackground(false);
    ui->scrollFormsContents->setAutoFillBackground(false);
    problems = new DialogueProblemsPanel(ui->formPanel);
    ui->formPanelLayout->addWidget(problems);
    connect(problems, &DialogueProblemsPanel::lineActivated, this,
            [this](bool pc, int line) { pc ? openPcLine(line) : openNpcLine(line); });
    WheelGuard::install(this);
    // What is typed into a form goes in as a step when the keyboard leaves the page (for the undo history,
    // another tab, another window), so whatever is done there finds it in the document.
    focusWatch = connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, QWidget* now) {
        if (old != nullptr && isAncestorOf(old) && (now == nullptr || !isAncestorOf(now)))
            applyPendingForm();
    });
    closeLine();
    showUnreadText();
    updateControls();
}

// The focus leaves the page's widgets while they go, when this page is no longer one to apply a form.
DialogueEditWidget::~DialogueEditWidget()
{
    disconnect(focusWatch);
}

QStringList DialogueEditWidget::suffixes() const
{
    return arcanum::FormatRegistry::byKind(arcanum::FileFormat::Kind::Dialogue)->suffixes;
}

QString DialogueEditWidget::fileFilter() const
{
    return tr(FILE_FILTER);
}

std::unique_ptr<Document> DialogueEditWidget::fromBytes(const QString& path, const QByteArray& bytes, QString& error) const
{
    Q_UNUSED(error);
    return DialogueDocument::fromBytes(path, bytes, encoding->codecFor(path));
}

DialogueDocument* DialogueEditWidget::dialogueDocument() const
{
    return static_cast<DialogueDocument*>(document());
}

DialogueFileNew* DialogueEditWidget::getModel() const
{
    return dialogueDocument() ? &dialogueDocument()->dialogue() : nullptr;
}

bool DialogueEditWidget::hasChanges() const
{
    return dialogueDocument() != nullptr && (formEdited || dialogueDocument()->isModified());
}

void DialogueEditWidget::showDocument()
{
    formEdited = false;
    history.clear();
    selected = OpenLine();
    selectedTree = nullptr;
    closeLine();
    if (DialogueDocument* shown = dialogueDocument()) {
        shown->beginEdit();
        // An undo or redo puts back whole lines: the trees and the open form are filled from them again.
        connect(shown, &Document::changed, this, [this] {
            const OpenLine wasOpen = open;
            formEdited = false;
            closeLine();
            refreshProblems();
            fillTrees();
            reopen(wasOpen);
            // Undoing or redoing a renumbering keeps its line open under the number it has now.
            if (open.kind == LineKind::None && wasOpen.kind == renumbered.first.kind) {
                if (wasOpen.index == renumbered.second.index)
                    reopen(renumbered.first);
                else if (wasOpen.index == renumbered.first.index)
                    reopen(renumbered.second);
            }
            refreshGraph();
            updateControls();
        });
        connect(shown, &Document::modifiedChanged, this, &DialogueEditWidget::updateControls);
    }
    const DialogueDocument* shown = dialogueDocument();
    encoding->show(shown ? shown->codec() : nullptr,
                   shown ? shown->encodingFindings() : arcanum::EncodingGuess::Findings());
    showFileName();
    refreshProblems();
    fillTrees();
    showUnreadText();
    refreshGraph();
    updateControls();
}

bool DialogueEditWidget::commitPending()
{
    applyPendingForm();
    return true;
}

void DialogueEditWidget::on_buttonGraph_clicked()
{
    if (graphWindow == nullptr) {
        graphWindow = new QWidget(this, Qt::Window);
        graphWindow->setObjectName(QStringLiteral("conversationWindow"));
        graphWindow->resize(900, 700);
        auto* column = new QVBoxLayout(graphWindow);
        auto* buttons = new QHBoxLayout;
        graph = new ConversationView(graphWindow);
        const std::vector<std::pair<QString, void (ConversationView::*)()>> actions = {
            {tr("Zoom in"), &ConversationView::zoomIn},
            {tr("Zoom out"), &ConversationView::zoomOut},
            {tr("Fit to window"), &ConversationView::fitAll}};
        for (const auto& [text, slot] : actions) {
            auto* button = new QPushButton(text, graphWindow);
            connect(button, &QPushButton::clicked, graph, slot);
            buttons->addWidget(button);
        }
        auto* legend = new QPushButton(tr("Legend"), graphWindow);
        legend->setObjectName(QStringLiteral("buttonLegend"));
        legend->setToolTip(tr("Show or hide what the colours mean"));
        legend->setCheckable(true);
        legend->setChecked(true);
        connect(legend, &QPushButton::toggled, graph, &ConversationView::showLegend);
        buttons->addWidget(legend);
        buttons->addStretch(1);
        column->addLayout(buttons);
        column->addWidget(graph, 1);
        connect(graph, &ConversationView::lineActivated, this,
                [this](bool pc, int line) { pc ? openPcLine(line) : openNpcLine(line); });
    }
    refreshGraph();
    graphWindow->show();
    graphWindow->raise();
}

void DialogueEditWidget::refreshGraph()
{
    if (graph == nullptr || getModel() == nullptr)
        return;
    graphWindow->setWindowTitle(tr("Conversation: %1").arg(document()->displayName()));
    graph->showGraph(ConversationGraph::build(*getModel()));
}

void DialogueEditWidget::refreshProblems()
{
    lineCheck = getModel() ? std::make_unique<arcanum::DialogueCheck>(*getModel()) : nullptr;
    problems->showFindings(lineCheck ? lineCheck->findings() : QList<arcanum::DialogueCheck::Finding>());
}

std::optional<arcanum::DialogueCheck::Severity> DialogueEditWidget::severityOf(const DialogueFileNew::Line& line,
                                                                              bool pc) const
{
    using Kind = arcanum::DialogueCheck::LineKind;
    return lineCheck ? lineCheck->worstOf(pc ? Kind::Pc : Kind::Npc, line.index()) : std::nullopt;
}

void DialogueEditWidget::setUpTrees()
{
    // A double click opens a line; it must not also fold away the answers under it.
    ui->treeNPC->setExpandsOnDoubleClick(false);
    QHeaderView* npcHeader = ui->treeNPC->header();
    npcHeader->setStretchLastSection(false);
    npcHeader->setSectionResizeMode(0, QHeaderView::Stretch);
    npcHeader->setSectionResizeMode(1, QHeaderView::Interactive);
    QHeaderView* pcHeader = ui->treePC->header();
    pcHeader->resizeSection(0, 80);
    pcHeader->resizeSection(1, 60);
}

// The "Sort by" choice shows one tree and hides the other; until it is first changed both show.
void DialogueEditWidget::connectSignals()
{
    connect(ui->radioNPC, &QRadioButton::toggled, ui->treeNPC, &QWidget::setVisible);
    connect(ui->radioPC, &QRadioButton::toggled, ui->treePC, &QWidget::setVisible);
    connect(this, &DialogueEditWidget::pcListChanged, this, &DialogueEditWidget::rebuildPCList);
    connect(this, &DialogueEditWidget::npcListChanged, this, &DialogueEditWidget::rebuildNPCList);
    for (DlgLineEditWidget* form : QList<DlgLineEditWidget*>{ui->pcForm, ui->npcForm})
        connect(form, &DlgLineEditWidget::wasModifiedSignal, this, &DialogueEditWidget::setModifiedState);
}

void DialogueEditWidget::updateControls()
{
    const bool loaded = dialogueDocument() != nullptr;
    const bool modified = hasChanges();
    const QList<QWidget*> editingControls = {ui->buttonSaveAs, ui->buttonGraph, ui->treeNPC,    ui->treePC,
                                             ui->radioNPC,     ui->radioPC,     ui->formPanel, ui->buttonAddNpc,
                                             ui->buttonAddPc};
    for (QWidget* widget : editingControls)
        widget->setEnabled(loaded);
    ui->buttonDelete->setEnabled(loaded && !selectedLines().isEmpty());
    updateHistoryButtons();
    ui->labelModified->setVisible(loaded && modified && !isFramed());
}

void DialogueEditWidget::setModifiedState()
{
    formEdited = true;
    updateControls();
}

QList<QWidget*> DialogueEditWidget::fileControls() const
{
    return {ui->labelCurrentFileTitle, ui->labelCurrentFile, ui->labelModified, ui->buttonOpenFile, ui->buttonSaveAs};
}

void DialogueEditWidget::on_buttonOpenFile_clicked()
{
    browse();
}

void DialogueEditWidget::showFileName()
{
    const QString name = document() ? document()->displayName() : QString();
    ui->labelCurrentFile->setText(name.isEmpty() ? tr("None") : name);
}

void DialogueEditWidget::on_buttonSaveAs_clicked()
{
    const OpenLine wasOpen = open;
    if (saveAs()) {
        showFileName();
        reopen(wasOpen);
    }
}

void DialogueEditWidget::fillTrees()
{
    if (!getModel()) {
        ui->treeNPC->clear();
        ui->treePC->clear();
        return;
    }
    rebuildContents();
}

void DialogueEditWidget::rebuildContents()
{
    rebuildNPCList();
    rebuildPCList();
}

// Each NPC line lists the PC lines after it up to the next NPC line; PC lines before the first NPC
// line are only in the PC tree. Both lists are in index order.
void DialogueEditWidget::rebuildNPCList()
{
    ui->treeNPC->clear();
    const DialogueFileNew* dlgfile = getModel();
    if (!dlgfile)
        return;
    const QList<DialogueFileNew::NPCLinePointer>& npcLines = dlgfile->npcLines();
    const QList<DialogueFileNew::PCLinePointer>& pcLines = dlgfile->pcLines();
    auto pc = pcLines.cbegin();
    for (int i = 0; i < npcLines.size(); ++i) {
        const DialogueFileNew::NPCLine& npc = *npcLines.at(i);
        std::optional<int> next;
        if (i + 1 < npcLines.size())
            next = npcLines.at(i + 1)->index();
        else
            qDebug("No next line number");
        QTreeWidgetItem* item = npcItem(npc);
        while (pc != pcLines.cend() && (*pc)->index() <= npc.index())
            ++pc;
        for (; pc != pcLines.cend() && (!next || (*pc)->index() < *next); ++pc)
            item->addChild(pcChildItem(**pc));
        ui->treeNPC->addTopLevelItem(item);
    }
    ui->treeNPC->expandAll();
    selectOpenLine();
}

void DialogueEditWidget::rebuildPCList()
{
    ui->treePC->clear();
    if (!getModel())
        return;
    for (const DialogueFileNew::PCLinePointer& line : getModel()->pcLines())
        ui->treePC->addTopLevelItem(pcItem(*line));
    selectOpenLine();
}

namespace {

// Marks an item with its line: index and kind for look-ups, the whole text and any problems in
// its tool tip, lines with errors in red, lines with notes only (the game reads them) with a note mark.
void describe(QTreeWidgetItem* item, const DialogueFileNew::Line& line, int kind,
              std::optional<arcanum::DialogueCheck::Severity> severity)
{
    item->setData(0, INDEX_ROLE, line.index());
    item->setData(0, KIND_ROLE, kind);
    QString toolTip = QStringLiteral("<p style='white-space:pre-wrap'>") + htmlLines(line.text()) + QStringLiteral("</p>");
    if (const DialogueFileNew::LineErrors* errors = line.errors(); errors && !line.isEdited()) {
        toolTip += QStringLiteral("<p style='color:#a01010'>") + htmlLines(errors->messages.join(QLatin1Char('\n')))
                   + QStringLiteral("</p><p>") + htmlLines(errors->notes.join(QLatin1Char('\n'))) + QStringLiteral("</p>");
    }
    if (severity == arcanum::DialogueCheck::Severity::Error) {
        for (int column = 0; column < item->columnCount(); ++column)
            item->setForeground(column, DEFECT_COLOUR);
    } else if (severity == arcanum::DialogueCheck::Severity::Note) {
        item->setIcon(0, QApplication::style()->standardIcon(QStyle::SP_MessageBoxInformation));
        item->setData(0, Qt::AccessibleDescriptionRole, QStringLiteral("note"));
    }
    for (int column = 0; column < item->columnCount(); ++column)
        item->setToolTip(column, toolTip);
}

} // namespace

// A response's item also knows the line it leads to, which a double click on its target column opens.
void DialogueEditWidget::describeResponse(QTreeWidgetItem* item, const DialogueFileNew::PCLine& line, int targetColumn) const
{
    describe(item, line, static_cast<int>(LineKind::Pc), severityOf(line, true));
    item->setData(0, TARGET_ROLE, line.responseLine());
    item->setToolTip(targetColumn, tr("Double-click to open line %1").arg(line.responseLine()));
}

QTreeWidgetItem* DialogueEditWidget::npcItem(const DialogueFileNew::NPCLine& line) const
{
    auto* item = new QTreeWidgetItem({QStringLiteral("%1: %2").arg(line.index()).arg(firstLine(line.text())), QString()});
    QFont bold = item->font(0);
    bold.setBold(true);
    item->setFont(0, bold);
    describe(item, line, static_cast<int>(LineKind::Npc), severityOf(line, false));
    return item;
}

QTreeWidgetItem* DialogueEditWidget::pcChildItem(const DialogueFileNew::PCLine& line) const
{
    // Short, so that the number and the first words still show in a narrow tree.
    auto* item = new QTreeWidgetItem({tr("PC %1: %2").arg(line.index()).arg(firstLine(line.text())),
                                      QStringLiteral("→ %1").arg(line.responseLine())});
    describeResponse(item, line, NPC_TARGET_COLUMN);
    return item;
}

QTreeWidgetItem* DialogueEditWidget::pcItem(const DialogueFileNew::PCLine& line) const
{
    auto* item = new QTreeWidgetItem(
        {QString::number(line.responseLine()), QString::number(line.index()), firstLine(line.text())});
    describeResponse(item, line, PC_TARGET_COLUMN);
    return item;
}

// The item is read before the line opens: opening may rebuild the tree. A double click on a response's
// target opens the line it leads to.
void DialogueEditWidget::on_treeNPC_itemDoubleClicked(QTreeWidgetItem* item, int column)
{
    if (!item)
        return;
    const int index = item->data(0, INDEX_ROLE).toInt();
    const bool npcLine = item->data(0, KIND_ROLE).toInt() == static_cast<int>(LineKind::Npc);
    if (!npcLine && column == NPC_TARGET_COLUMN)
        openTarget(item->data(0, TARGET_ROLE).toInt());
    else if (npcLine && !openNpcLine(index))
        qWarning("DialogueEditWidget::on_treeNPC_itemDoubleClicked(): no npc line with index %d found", index);
    else if (!npcLine && !openPcLine(index))
        qWarning("DialogueEditWidget::on_treeNPC_itemDoubleClicked(): no pc line with index %d found", index);
}

void DialogueEditWidget::on_treePC_itemDoubleClicked(QTreeWidgetItem* item, int column)
{
    if (!item)
        return;
    if (column == PC_TARGET_COLUMN)
        openTarget(item->data(0, TARGET_ROLE).toInt());
    else
        openPcLine(item->data(0, INDEX_ROLE).toInt());
}

bool DialogueEditWidget::openLine(int index)
{
    return openNpcLine(index) || openPcLine(index);
}

bool DialogueEditWidget::openPcLine(int index)
{
    const DialogueFileNew::PCLinePointer line = getModel() ? getModel()->getPCLine(index) : DialogueFileNew::PCLinePointer();
    return line && openLine({LineKind::Pc, index}, ui->pcForm, [&] { ui->pcForm->fillWithData(line); });
}

bool DialogueEditWidget::openNpcLine(int index)
{
    const DialogueFileNew::NPCLinePointer line = getModel() ? getModel()->getNPCLine(index) : DialogueFileNew::NPCLinePointer();
    return line && openLine({LineKind::Npc, index}, ui->npcForm, [&] { ui->npcForm->fillWithData(line); });
}

bool DialogueEditWidget::openLine(const OpenLine& line, QWidget* form, const std::function<void()>& fill)
{
    applyPendingForm();
    fill();
    showForm(form);
    open = line;
    history.visit({static_cast<int>(line.kind), line.index});
    if (graph != nullptr && graphWindow->isVisible())
        graph->focusLine(line.kind == LineKind::Pc ? ConversationGraph::Kind::Pc : ConversationGraph::Kind::Npc,
                         line.index);
    showOpenLine();
    updateControls();
    return true;
}

// A stack is as wide as its widest page; only the page shown may claim room, or the short "no line"
// hint would need the width of the line forms.
void DialogueEditWidget::showForm(QWidget* form)
{
    for (int page = 0; page < ui->stackForms->count(); ++page) {
        QWidget* widget = ui->stackForms->widget(page);
        const QSizePolicy::Policy policy = widget == form ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        widget->setSizePolicy(policy, policy);
    }
    ui->stackForms->setCurrentWidget(form);
}

bool DialogueEditWidget::reopen(const OpenLine& line)
{
    return (line.kind == LineKind::Pc && openPcLine(line.index)) || (line.kind == LineKind::Npc && openNpcLine(line.index));
}

void DialogueEditWidget::closeLine()
{
    ui->pcForm->clear();
    ui->npcForm->clear();
    showForm(ui->pageNoLine);
    open = OpenLine();
    showOpenLine();
}

// Only a form with changes is applied, so opening lines one after another keeps the trees still.
void DialogueEditWidget::applyPendingForm()
{
    if (DlgLineEditWidget* form = openForm(); form && (form->hasPendingChanges() || formEdited))
        saveLineEditChangesToMem();
}

DlgLineEditWidget* DialogueEditWidget::openForm() const
{
    switch (open.kind) {
    case LineKind::Pc:
        return ui->pcForm;
    case LineKind::Npc:
        return ui->npcForm;
    case LineKind::None:
        break;
    }
    return nullptr;
}

const DialogueFileNew::Line* DialogueEditWidget::openLineData() const
{
    switch (open.kind) {
    case LineKind::Pc:
        return ui->pcForm->getOriginalLine().data();
    case LineKind::Npc:
        return ui->npcForm->getOriginalLine().data();
    case LineKind::None:
        break;
    }
    return nullptr;
}

void DialogueEditWidget::saveLineEditChangesToMem()
{
    DialogueDocument* shown = dialogueDocument();
    if (!shown)
        return;
    if (DlgLineEditWidget* form = openForm())
        form->applyChangesToData();
    shown->dialogue().sortLines();
    formEdited = false;
    // The form wrote into the line in place; the step is what the bytes became.
    shown->recordEdit(open.kind == LineKind::Pc ? tr("Edit PC line %1").arg(open.index)
                                                : tr("Edit NPC line %1").arg(open.index));
    refreshProblems();
    refreshGraph();
    emit npcListChanged();
    emit pcListChanged();
    showOpenLine();
}

void DialogueEditWidget::showOpenLine()
{
    ui->labelOpenLine->setText(describeOpenLine());
    ui->labelOpenLine->setVisible(open.kind != LineKind::None);
    showLineErrors();
    selectOpenLine();
}

// A heading over the form: which line is open and where the dialogue goes from it.
QString DialogueEditWidget::describeOpenLine() const
{
    if (open.kind == LineKind::Npc) {
        const DialogueFileNew::NPCLinePointer line = ui->npcForm->getOriginalLine();
        QString text = tr("<b>NPC line %1</b>").arg(open.index);
        if (line && line->responseLine() >= 0)
            text += tr(" — goes on with line %1").arg(lineLink(line->responseLine()));
        return text;
    }
    const DialogueFileNew::PCLinePointer line = ui->pcForm->getOriginalLine();
    const DialogueFileNew* dlgfile = getModel();
    if (open.kind != LineKind::Pc || !line || !dlgfile)
        return QString();
    QString text = tr("<b>PC line %1</b>").arg(open.index);
    if (line->responseLine() == 0)
        text += tr(" — ends the conversation");
    else if (line->responseLine() < 0)
        text += tr(" — ends the conversation with game code %1").arg(line->responseLine());
    else if (const DialogueFileNew::NPCLinePointer answer = dlgfile->getNPCLine(line->responseLine()))
        text += tr(" — answered by NPC line %1: %2").arg(lineLink(answer->index())).arg(firstLine(answer->text()).toHtmlEscaped());
    else
        text += tr(" — response line %1 is no NPC line of this file").arg(line->responseLine());
    return text;
}

// A modder must see why a line is broken, and that it is kept as read until it is changed.
void DialogueEditWidget::showLineErrors()
{
    const DialogueFileNew::Line* line = openLineData();
    const DialogueFileNew::LineErrors* errors = line ? line->errors() : nullptr;
    ui->labelLineErrors->setVisible(errors != nullptr);
    if (!errors)
        return;
    const auto listed = [](const QStringList& messages) {
        QString items;
        for (const QString& message : messages)
            items += QStringLiteral("<li>") + message.toHtmlEscaped() + QStringLiteral("</li>");
        return items;
    };
    QString text;
    if (errors->hasErrors())
        text += QStringLiteral("<b style='color:#a01010'>") + tr("This line has problems:")
                + QStringLiteral("</b><ul style='color:#a01010; margin:0'>") + listed(errors->messages) + QStringLiteral("</ul>");
    if (!errors->notes.isEmpty())
        text += QStringLiteral("<b>") + tr("Notes (the game reads this line as it is):") + QStringLiteral("</b><ul style='margin:0'>")
                + listed(errors->notes) + QStringLiteral("</ul>");
    // Notes only: no damage, so no alarm colour.
    ui->labelLineErrors->setStyleSheet(errors->hasErrors()
                                           ? QStringLiteral("QLabel { background: #fbeaea; border: 1px solid #d9a0a0; padding: 4px; }")
                                           : QStringLiteral("QLabel { background: #eef3fb; border: 1px solid #a8bcd9; padding: 4px; }"));
    if (line->isEdited())
        text += tr("You changed it, so it is saved from the form's fields.");
    else
        text += tr("Until you change it, it is saved exactly as read:") + QStringLiteral("<br/><tt>")
                + htmlLines(errors->rawText) + QStringLiteral("</tt>");
    ui->labelLineErrors->setText(text);
}

void DialogueEditWidget::showUnreadText()
{
    const QString unread = getModel() ? getModel()->unreadText() : QString();
    ui->labelUnread->setVisible(!unread.isEmpty());
    if (unread.isEmpty())
        return;
    QString start = firstLine(unread.trimmed());
    if (start.size() > ERROR_PREVIEW_LENGTH)
        start = start.left(ERROR_PREVIEW_LENGTH) + QStringLiteral("…");
    ui->labelUnread->setText(tr("Part of this file could not be read as dialogue lines, from \"%1\" on. "
                                "It is not shown here, but saving writes it back unchanged after the lines.")
                                 .arg(start));
}

// The open line stays selected in the trees, also after they were rebuilt.
void DialogueEditWidget::selectOpenLine()
{
    for (QTreeWidget* tree : {ui->treeNPC, ui->treePC}) {
        tree->clearSelection();
        for (QTreeWidgetItemIterator it(tree); *it; ++it) {
            QTreeWidgetItem* item = *it;
            if (item->data(0, KIND_ROLE).toInt() == static_cast<int>(open.kind)
                && item->data(0, INDEX_ROLE).toInt() == open.index) {
                tree->setCurrentItem(item);
                tree->scrollToItem(item);
                break;
            }
        }
    }
}

void DialogueEditWidget::connectLineEditing()
{
    for (DlgLineEditWidget* form : QList<DlgLineEditWidget*>{ui->pcForm, ui->npcForm}) {
        connect(form, &DlgLineEditWidget::newLineNumber, this, &DialogueEditWidget::renumberOpenLine);
        connect(form, &DlgLineEditWidget::targetActivated, this, &DialogueEditWidget::openTarget);
    }
    ui->labelOpenLine->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(ui->labelOpenLine, &QLabel::linkActivated, this, [this](const QString& link) { openTarget(link.toInt()); });
    for (QTreeWidget* tree : {ui->treeNPC, ui->treePC}) {
        tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
        connect(tree, &QTreeWidget::currentItemChanged, this, [this, tree](QTreeWidgetItem* item) {
            selectedTree = tree;
            selected = item ? OpenLine{static_cast<LineKind>(item->data(0, KIND_ROLE).toInt()),
                                       item->data(0, INDEX_ROLE).toInt()}
                            : OpenLine();
            ui->buttonDelete->setEnabled(dialogueDocument() != nullptr && !selectedLines().isEmpty());
        });
        auto* shortcut = new QShortcut(QKeySequence::Delete, tree, nullptr, nullptr, Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, &DialogueEditWidget::deleteSelectedLines);
        // Enter opens the current line, as a double click on it does, for those who move by keyboard.
        for (const int key : {int(Qt::Key_Return), int(Qt::Key_Enter)}) {
            auto* open = new QShortcut(QKeySequence(key), tree, nullptr, nullptr, Qt::WidgetShortcut);
            connect(open, &QShortcut::activated, this, [this, tree] {
                if (const QTreeWidgetItem* item = tree->currentItem())
                    reopen({static_cast<LineKind>(item->data(0, KIND_ROLE).toInt()), item->data(0, INDEX_ROLE).toInt()});
            });
        }
    }
}

DialogueFileNew::LineKind DialogueEditWidget::modelKind(LineKind kind)
{
    return kind == LineKind::Npc ? DialogueFileNew::LineKind::Npc : DialogueFileNew::LineKind::Pc;
}

DialogueEditWidget::OpenLine DialogueEditWidget::selectedLine() const
{
    const DialogueFileNew* dialogue = getModel();
    const auto exists = [dialogue](const OpenLine& line) {
        return dialogue != nullptr
               && ((line.kind == LineKind::Npc && dialogue->getNPCLine(line.index))
                   || (line.kind == LineKind::Pc && dialogue->getPCLine(line.index)));
    };
    if (exists(selected))
        return selected;
    return exists(open) ? open : OpenLine();
}

void DialogueEditWidget::on_buttonAddNpc_clicked()
{
    addLine(LineKind::Npc);
}

void DialogueEditWidget::on_buttonAddPc_clicked()
{
    addLine(LineKind::Pc);
}

void DialogueEditWidget::on_buttonDelete_clicked()
{
    deleteSelectedLines();
}

// The number offered lies in the gap after the selected line; a number the line cannot have is
// refused with a message and asked for again.
void DialogueEditWidget::addLine(LineKind kind)
{
    DialogueDocument* shown = dialogueDocument();
    if (shown == nullptr)
        return;
    applyPendingForm();
    const OpenLine after = selectedLine();
    const int proposed = shown->dialogue().proposedNumber(after.kind == LineKind::None ? std::nullopt
                                                                                      : std::optional<int>(after.index));
    const QString title = kind == LineKind::Npc ? tr("Add NPC line") : tr("Add PC response");
    LineNumberDialog dialog(title, tr("Number of the new line (0 to 2 147 483 647, not in use):"), proposed, this);
    while (Prompt::run(dialog) == QDialog::Accepted) {
        int number = 0;
        QString refused = shown->refusedNumber(dialog.text(), number);
        if (refused.isEmpty() && shown->addLine(modelKind(kind), number, refused)) {
            reopen({kind, number});
            // Typing goes into the new line, not into the button that made it (a space would press it again).
            if (DlgLineEditWidget* form = openForm())
                form->focusText();
            return;
        }
        Prompt::message(this, QMessageBox::Warning, title, refused);
    }
}

QList<DialogueEditWidget::OpenLine> DialogueEditWidget::selectedLines() const
{
    QList<OpenLine> lines;
    if (selectedTree != nullptr)
        for (const QTreeWidgetItem* item : selectedTree->selectedItems())
            lines.append({static_cast<LineKind>(item->data(0, KIND_ROLE).toInt()), item->data(0, INDEX_ROLE).toInt()});
    if (lines.isEmpty() && selectedLine().kind != LineKind::None)
        lines.append(selectedLine());
    return lines;
}

// Lines that lead to the ones deleted would lead nowhere afterwards: the user sees which and decides.
void DialogueEditWidget::deleteSelectedLines()
{
    DialogueDocument* shown = dialogueDocument();
    QList<OpenLine> lines = selectedLines();
    if (shown == nullptr || lines.isEmpty())
        return;
    applyPendingForm();
    // An NPC line's responses go with it; left behind they would be offered by the NPC line before it.
    for (qsizetype i = 0, selectedCount = lines.size(); i < selectedCount; ++i)
        if (lines.at(i).kind == LineKind::Npc)
            for (int response : shown->responsesOf(lines.at(i).index))
                if (std::none_of(lines.cbegin(), lines.cend(), [response](const OpenLine& line) {
                        return line.kind == LineKind::Pc && line.index == response;
                    }))
                    lines.append({LineKind::Pc, response});
    QList<DialogueDocument::LineRef> refs;
    QStringList deleted;
    for (const OpenLine& line : lines) {
        refs.append({modelKind(line.kind), line.index});
        deleted << QString::number(line.index);
    }
    const QList<int> naming = shown->linesLeadingTo(refs);
    if (!naming.isEmpty()) {
        QStringList numbers;
        for (int number : naming)
            numbers << QString::number(number);
        const QString list = numbers.join(QStringLiteral(", "));
        QString text;
        if (lines.size() > 1 && naming.size() == 1)
            text = tr("Line %1 leads to one of lines %2. Delete them anyway?").arg(list, deleted.join(QStringLiteral(", ")));
        else if (lines.size() > 1)
            text = tr("Lines %1 lead to lines %2. Delete them anyway?").arg(list, deleted.join(QStringLiteral(", ")));
        else if (naming.size() == 1)
            text = tr("Line %1 leads to line %2. Delete it anyway?").arg(list, deleted.first());
        else
            text = tr("Lines %1 lead to line %2. Delete it anyway?").arg(list, deleted.first());
        if (Prompt::question(this, tr("Delete line"), text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
            != QMessageBox::Yes)
            return;
    }
    selected = OpenLine();
    selectedTree = nullptr;
    shown->deleteLines(refs);
}

// The form's edits go in first, as a step of their own; the renumbering with every reference is the next.
void DialogueEditWidget::renumberOpenLine(int number)
{
    DialogueDocument* shown = dialogueDocument();
    const OpenLine was = open;
    if (shown == nullptr || was.kind == LineKind::None)
        return;
    applyPendingForm();
    if (!confirmMovedResponses(was, number))
        return;
    QString error;
    if (!shown->renumberLine(modelKind(was.kind), was.index, number, error)) {
        // The field shows the line's number again before the message takes the focus from it: leaving
        // the field finishes its editing once more, and must not find the refused number there.
        reopen(was);
        Prompt::message(this, QMessageBox::Warning, tr("Change line number"), error);
        return;
    }
    history.renumber(static_cast<int>(was.kind), was.index, number);
    renumbered = {was, {was.kind, number}};
    reopen({was.kind, number});
}

// Moving a line past others changes which NPC line offers which responses: the conversation would read
// differently, so the user sees which responses and decides. The field shows the line's number again
// first, for the question takes the focus from it.
bool DialogueEditWidget::confirmMovedResponses(const OpenLine& line, int number)
{
    DialogueDocument* shown = dialogueDocument();
    int free = number;
    if (!shown->refusedNumber(QString::number(number), free).isEmpty())
        return true; // refused anyway, with its own message
    const QList<int> moved = shown->responsesMovedBy(modelKind(line.kind), line.index, number);
    if (moved.isEmpty())
        return true;
    QStringList numbers;
    for (int response : moved)
        numbers << QString::number(response);
    reopen(line);
    const QString text = moved.size() == 1
        ? tr("As line %1, line %2 would change which NPC line offers response %3. Renumber it anyway?")
              .arg(number).arg(line.index).arg(numbers.first())
        : tr("As line %1, line %2 would change which NPC line offers responses %3. Renumber it anyway?")
              .arg(number).arg(line.index).arg(numbers.join(QStringLiteral(", ")));
    return Prompt::question(this, tr("Change line number"), text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
           == QMessageBox::Yes;
}

void DialogueEditWidget::openTarget(int line)
{
    if (line <= 0 || getModel() == nullptr)
        return;
    if (!openLine(line))
        Prompt::message(this, QMessageBox::Information, tr("Open line"),
                        tr("Line %1 is not in %2.").arg(line).arg(document()->displayName()));
}

void DialogueEditWidget::on_buttonPrevious_clicked()
{
    moveInHistory([this] { return history.back(); });
}

void DialogueEditWidget::on_buttonForward_clicked()
{
    moveInHistory([this] { return history.forward(); });
}

// Lines deleted since they were opened are passed over.
void DialogueEditWidget::moveInHistory(const std::function<std::optional<LineHistory::Entry>()>& step)
{
    while (const std::optional<LineHistory::Entry> entry = step())
        if (reopen({static_cast<LineKind>(entry->kind), entry->number}))
            break;
    updateHistoryButtons();
}

void DialogueEditWidget::updateHistoryButtons()
{
    const bool loaded = dialogueDocument() != nullptr;
    ui->buttonPrevious->setEnabled(loaded && history.canGoBack());
    ui->buttonForward->setEnabled(loaded && history.canGoForward());
}

void DialogueEditWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showFileName();
    }
    QWidget::changeEvent(event);
}
