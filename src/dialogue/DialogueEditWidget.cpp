#include "DialogueEditWidget.h"

#include "FormatRegistry.h"

#include "ConversationGraph.h"
#include "ConversationView.h"
#include "DialogueDocument.h"
#include "DlgNpcLineEditWidget.h"
#include "DlgPcLineEditWidget.h"
#include "EncodingBox.h"
#include "EncodingStrip.h"
#include "FileEncoding.h"
#include "Prompt.h"
#include "WheelGuard.h"
#include "ui_DialogueEditWidget.h"

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QTreeWidgetItemIterator>

#include <optional>

using arcanum::DialogueFileNew;

namespace {

const char* const FILE_FILTER = QT_TRANSLATE_NOOP("DialogueEditWidget", "Arcanum Dialogue files (*.dlg);;All files (*.*)");
constexpr int INDEX_ROLE = Qt::UserRole;
constexpr int KIND_ROLE = Qt::UserRole + 1;
constexpr int ERROR_PREVIEW_LENGTH = 80;
const QColor DEFECT_COLOUR(0xA0, 0x10, 0x10);

// The first line of a text, marked when more follows.
QString firstLine(const QString& text)
{
    const int end = text.indexOf(QLatin1Char('\n'));
    return end < 0 ? text : text.left(end) + QStringLiteral(" …");
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
    ui->splitter->setStretchFactor(0, 0);
    ui->splitter->setStretchFactor(1, 1);
    ui->splitter->setSizes({300, 940});
    ui->treesSplitter->setSizes({400, 260});
    // The forms sit on the page itself, not on a panel of their own.
    ui->scrollForms->viewport()->setAutoFillBackground(false);
    ui->scrollFormsContents->setAutoFillBackground(false);
    WheelGuard::install(this);
    closeLine();
    showUnreadText();
    updateControls();
}

DialogueEditWidget::~DialogueEditWidget() = default;

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
    closeLine();
    if (DialogueDocument* shown = dialogueDocument()) {
        shown->beginEdit();
        // An undo or redo puts back whole lines: the trees and the open form are filled from them again.
        connect(shown, &Document::changed, this, [this] {
            const OpenLine wasOpen = open;
            formEdited = false;
            closeLine();
            fillTrees();
            reopen(wasOpen);
            refreshGraph();
            updateControls();
        });
        connect(shown, &Document::modifiedChanged, this, &DialogueEditWidget::updateControls);
    }
    const DialogueDocument* shown = dialogueDocument();
    encoding->show(shown ? shown->codec() : nullptr,
                   shown ? shown->encodingFindings() : arcanum::EncodingGuess::Findings());
    showFileName();
    fillTrees();
    showUnreadText();
    refreshGraph();
    updateControls();
}

void DialogueEditWidget::commitPending()
{
    applyPendingForm();
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
    const QList<QWidget*> editingControls = {ui->buttonSaveAs, ui->buttonGraph, ui->treeNPC, ui->treePC,
                                             ui->radioNPC, ui->radioPC, ui->formPanel};
    for (QWidget* widget : editingControls)
        widget->setEnabled(loaded);
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
// its tool tip, defective lines in red.
void describe(QTreeWidgetItem* item, const DialogueFileNew::Line& line, int kind)
{
    item->setData(0, INDEX_ROLE, line.index());
    item->setData(0, KIND_ROLE, kind);
    QString toolTip = QStringLiteral("<p style='white-space:pre-wrap'>") + htmlLines(line.text()) + QStringLiteral("</p>");
    if (const DialogueFileNew::LineErrors* errors = line.errors()) {
        toolTip += QStringLiteral("<p style='color:#a01010'>") + htmlLines(errors->messages.join(QLatin1Char('\n')))
                   + QStringLiteral("</p>");
        for (int column = 0; column < item->columnCount(); ++column)
            item->setForeground(column, DEFECT_COLOUR);
    }
    for (int column = 0; column < item->columnCount(); ++column)
        item->setToolTip(column, toolTip);
}

} // namespace

QTreeWidgetItem* DialogueEditWidget::npcItem(const DialogueFileNew::NPCLine& line) const
{
    auto* item = new QTreeWidgetItem({QStringLiteral("%1: %2").arg(line.index()).arg(firstLine(line.text())), QString()});
    QFont bold = item->font(0);
    bold.setBold(true);
    item->setFont(0, bold);
    describe(item, line, static_cast<int>(LineKind::Npc));
    return item;
}

QTreeWidgetItem* DialogueEditWidget::pcChildItem(const DialogueFileNew::PCLine& line) const
{
    auto* item = new QTreeWidgetItem({tr("PC response line:") + QStringLiteral(" %1: %2").arg(line.index()).arg(firstLine(line.text())),
                                      QStringLiteral("→ %1").arg(line.responseLine())});
    describe(item, line, static_cast<int>(LineKind::Pc));
    return item;
}

QTreeWidgetItem* DialogueEditWidget::pcItem(const DialogueFileNew::PCLine& line) const
{
    auto* item = new QTreeWidgetItem(
        {QString::number(line.responseLine()), QString::number(line.index()), firstLine(line.text())});
    describe(item, line, static_cast<int>(LineKind::Pc));
    return item;
}

// The item is read before the line opens: opening may rebuild the tree.
void DialogueEditWidget::on_treeNPC_itemDoubleClicked(QTreeWidgetItem* item, int column)
{
    if (!item)
        return;
    const int index = item->data(0, INDEX_ROLE).toInt();
    const bool npcLine = item->text(1).isEmpty();
    qDebug("DialogueEditWidget::on_treeNPC_itemDoubleClicked(): treeNPC col %d line %d", column, index);
    if (npcLine && !openNpcLine(index))
        qWarning("DialogueEditWidget::on_treeNPC_itemDoubleClicked(): no npc line with index %d found", index);
    if (!npcLine && !openPcLine(index))
        qWarning("DialogueEditWidget::on_treeNPC_itemDoubleClicked(): no pc line with index %d found", index);
}

void DialogueEditWidget::on_treePC_itemDoubleClicked(QTreeWidgetItem* item, int column)
{
    if (!item)
        return;
    const int index = item->data(0, INDEX_ROLE).toInt();
    qDebug("DialogueEditWidget::on_treeNPC_itemDoubleClicked(): treePC col %d line %d", column, index);
    if (!openPcLine(index))
        return;
    const int response = ui->pcForm->getOriginalLine()->responseLine();
    if (!getModel()->getNPCLine(response))
        qWarning("DialogueEditWidget::on_treePC_itemDoubleClicked(): no npc line with index %d found", response);
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
    showOpenLine();
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

void DialogueEditWidget::reopen(const OpenLine& line)
{
    if (line.kind == LineKind::Pc)
        openPcLine(line.index);
    else if (line.kind == LineKind::Npc)
        openNpcLine(line.index);
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
    if (DlgLineEditWidget* form = openForm(); form && form->hasPendingChanges())
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
            text += tr(" — goes on with line %1").arg(line->responseLine());
        return text;
    }
    const DialogueFileNew::PCLinePointer line = ui->pcForm->getOriginalLine();
    const DialogueFileNew* dlgfile = getModel();
    if (open.kind != LineKind::Pc || !line || !dlgfile)
        return QString();
    QString text = tr("<b>PC line %1</b>").arg(open.index);
    if (const DialogueFileNew::NPCLinePointer answer = dlgfile->getNPCLine(line->responseLine()))
        text += tr(" — answered by NPC line %1: %2").arg(answer->index()).arg(firstLine(answer->text()).toHtmlEscaped());
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
    QString text = QStringLiteral("<b style='color:#a01010'>") + tr("This line has problems:") + QStringLiteral("</b><ul style='color:#a01010; margin:0'>");
    for (const QString& message : errors->messages)
        text += QStringLiteral("<li>") + message.toHtmlEscaped() + QStringLiteral("</li>");
    text += QStringLiteral("</ul>");
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

void DialogueEditWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        showFileName();
    }
    QWidget::changeEvent(event);
}
