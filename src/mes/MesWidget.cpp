#include "MesWidget.h"

#include "FormatRegistry.h"

#include "FindBar.h"
#include "EncodingBox.h"
#include "EncodingStrip.h"
#include "FileEncoding.h"
#include "MesDocument.h"
#include "MesTableModel.h"
#include "Prompt.h"
#include "ValueCommand.h"
#include "WheelGuard.h"
#include "ui_MesWidget.h"

#include <QAction>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QSignalBlocker>
#include <QTextCodec>
#include <QTextCursor>
#include <QToolButton>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>
#include <set>

using arcanum::Mesfile;

namespace {

constexpr int COMMENT_WIDTH = 180;
constexpr int MIN_FIELD_WIDTH = 70;
const int HEADER_MERGE_ID = 1002;

} // namespace

MesWidget::MesWidget(QWidget* parent, const QString& defaultEncoding)
    : Page(parent)
    , ui(std::make_unique<Ui_MesWidget>())
    , table(new MesTableModel(this))
{
    ui->setupUi(this);
    createEntryTools();
    ui->table->setModel(table);
    lineToolTip = ui->completeLine->toolTip();
    QTextCodec* byDefault = QTextCodec::codecForName(defaultEncoding.toLatin1());
    encoding = new FileEncoding(this, byDefault ? byDefault : QTextCodec::codecForName("UTF-8"));
    ui->bottomLayout->insertWidget(1, encoding->box());
    ui->encodingLabel->setBuddy(encoding->box());
    ui->mainLayout->insertWidget(0, encoding->strip());
    ui->itemView->setReadOnly(true);
    ui->table->verticalHeader()->setVisible(false);
    ui->table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    ui->itemView->setTabStopDistance(4 * ui->itemView->fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    ui->splitter->setStretchFactor(0, 0);
    ui->splitter->setStretchFactor(1, 1);
    ui->splitter->setStretchFactor(2, 0);
    ui->splitter->setSizes({70, 420, 110});
    connectSignals();
    WheelGuard::install(this);
    updateControls();
}

MesWidget::~MesWidget() = default;

QStringList MesWidget::suffixes() const
{
    return arcanum::FormatRegistry::byKind(arcanum::FileFormat::Kind::Message)->suffixes;
}

QString MesWidget::fileFilter() const
{
    return tr("Arcanum Mes files (*.mes);;Arcanum Dialogue files (*.dlg);;All files (*)");
}

std::unique_ptr<Document> MesWidget::fromBytes(const QString& path, const QByteArray& bytes, QString& error) const
{
    return MesDocument::fromBytes(path, bytes, encoding->codecFor(path), error);
}

QTextCodec* MesWidget::getCodec() const
{
    return encoding->codecFor(QString());
}

MesDocument* MesWidget::mesDocument() const
{
    return static_cast<MesDocument*>(document());
}

bool MesWidget::goToEntry(int number)
{
    if (mesDocument() == nullptr)
        return false;
    const Mesfile& model = mesDocument()->model();
    for (int row = 0; row < model.getEntryCount(); ++row) {
        if (model.getEntryAt(row)->getMesIndex() != number)
            continue;
        const QModelIndex text = table->index(row, 1);
        ui->table->setCurrentIndex(text);
        ui->table->scrollTo(text, QAbstractItemView::PositionAtCenter);
        return true;
    }
    return false;
}

// The tools over the table, the find bar under them: built here rather than in the form, as one block
// that sits in the splitter in the table's place.
void MesWidget::createEntryTools()
{
    auto* tools = new QHBoxLayout;
    tools->setContentsMargins(0, 0, 0, 0);
    QAction* add = entryAction(QStringLiteral("actionAddEntry"), tr("Add…"),
                               tr("Add an entry: the next free number is offered, any free one can be typed"),
                               &MesWidget::addEntry);
    add->setShortcut(QKeySequence(Qt::Key_Insert));
    duplicateAction = entryAction(QStringLiteral("actionDuplicateEntry"), tr("Duplicate…"),
                                  tr("Copy the selected entry, text and comment, under a new number"),
                                  &MesWidget::duplicateEntry);
    duplicateAction->setShortcut(QKeySequence(QStringLiteral("Ctrl+D")));
    deleteAction = entryAction(QStringLiteral("actionDeleteEntries"), tr("Delete"),
                               tr("Delete the selected entries (one undo step)"), &MesWidget::deleteSelectedEntries);
    deleteAction->setShortcut(QKeySequence::Delete);
    renumberAction = entryAction(QStringLiteral("actionRenumberEntry"), tr("Renumber…"),
                                 tr("Give the selected entry another number; a number in use is refused (or "
                                    "double-click the number)"),
                                 &MesWidget::renumberEntry);
    // These keys act on the table only: in the text boxes Insert, Delete and Ctrl+D keep their own meaning.
    for (QAction* action : {add, duplicateAction, deleteAction, renumberAction}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        ui->table->addAction(action);
    }
    QAction* goTo = entryAction(QStringLiteral("actionGoToEntry"), tr("Go to…"), tr("Select the entry with a number"),
                                &MesWidget::goToNumber);
    goTo->setShortcut(QKeySequence(QStringLiteral("Ctrl+G")));
    entryAction(QStringLiteral("actionSortEntries"), tr("Sort by number"),
                                tr("Put the entries in number order, each with its comment lines (one undo step)"),
                                &MesWidget::sortByNumber);
    QAction* find = new QAction(tr("Find…"), this);
    find->setObjectName(QStringLiteral("actionFindInFile"));
    find->setToolTip(tr("Find in the texts and comments of this file (%1 in the table)")
                         .arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    connect(find, &QAction::triggered, this, [this] { showFind(false); });
    entryActions.append(find);
    QAction* replace = new QAction(tr("Replace…"), this);
    replace->setObjectName(QStringLiteral("actionReplaceInFile"));
    replace->setShortcut(QKeySequence(QStringLiteral("Ctrl+H")));
    replace->setToolTip(tr("Find and replace in the texts and comments of this file (%1)")
                            .arg(replace->shortcut().toString(QKeySequence::NativeText)));
    connect(replace, &QAction::triggered, this, [this] { showFind(true); });
    entryActions.append(replace);
    for (QAction* action : {goTo, replace}) {
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        addAction(action);
    }
    for (QAction* action : entryActions) {
        auto* button = new QToolButton(this);
        button->setObjectName(action->objectName().replace(QStringLiteral("action"), QStringLiteral("button")));
        button->setDefaultAction(action);
        tools->addWidget(button);
    }
    entryStatus = new QLabel(this);
    entryStatus->setObjectName(QStringLiteral("entryStatus"));
    entryStatus->setToolTip(tr("What the last entry tool did"));
    entryStatus->setMinimumWidth(0);
    entryStatus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    tools->addWidget(entryStatus, 1);

    findBar = new FindBar(this);
    connect(findBar, &FindBar::findRequested, this, &MesWidget::findNext);
    connect(findBar, &FindBar::replaceRequested, this, &MesWidget::replaceOne);
    connect(findBar, &FindBar::replaceAllRequested, this, &MesWidget::replaceAll);
    connect(findBar, &FindBar::searchChanged, this, [this] { lastMatch = MesDocument::Match(); });

    auto* block = new QWidget(this);
    block->setObjectName(QStringLiteral("entryBlock"));
    auto* column = new QVBoxLayout(block);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addLayout(tools);
    column->addWidget(findBar);
    ui->splitter->insertWidget(1, block);
    column->addWidget(ui->table, 1);
    ui->table->setSelectionMode(QAbstractItemView::ExtendedSelection);
}

QAction* MesWidget::entryAction(const QString& name, const QString& text, const QString& tip,
                                void (MesWidget::*run)())
{
    auto* action = new QAction(text, this);
    action->setObjectName(name);
    action->setToolTip(tip);
    connect(action, &QAction::triggered, this, run);
    entryActions.append(action);
    return action;
}

void MesWidget::connectSignals()
{
    connect(ui->table->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        showCurrentCell();
        showSourceLine();
        updateControls();
    });
    connect(ui->table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MesWidget::updateControls);
    connect(ui->table, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& cell) {
        if (cell.column() == 0)
            renumberEntry();
    });
    connect(ui->itemView, &QPlainTextEdit::textChanged, this, &MesWidget::itemViewEdited);
    connect(ui->editCommentary, &QPlainTextEdit::textChanged, this, &MesWidget::headerEdited);
}

void MesWidget::showDocument()
{
    MesDocument* shown = mesDocument();
    table->setDocument(shown);
    // The selection model outlives model resets, but not a new model: the signal stays connected.
    {
        const QSignalBlocker blocker(ui->editCommentary);
        ui->editCommentary->setPlainText(shown ? shown->model().getHeader() : QString());
    }
    ui->itemView->clear();
    ui->completeLine->clear();
    lastMatch = MesDocument::Match();
    entryStatus->clear();
    findBar->setStatus(QString());
    if (shown != nullptr) {
        connectDocument(shown);
    }
    encoding->show(shown ? shown->codec() : nullptr, shown ? shown->encodingFindings() : arcanum::EncodingGuess::Findings());
    fitColumns();
    updateControls();
}

void MesWidget::connectDocument(MesDocument* shown)
{
    // Rows come and go with the entries (the table model follows them); the boxes under the table
    // show whatever is current afterwards.
    connect(shown, &Document::changed, this, [this] {
        showCurrentCell();
        showSourceLine();
        updateControls();
    });
    connect(shown, &MesDocument::headerChanged, this, [this] {
        if (ui->editCommentary->toPlainText() == mesDocument()->model().getHeader())
            return;
        const QSignalBlocker blocker(ui->editCommentary);
        ui->editCommentary->setPlainText(mesDocument()->model().getHeader());
    });
    connect(shown, &Document::modifiedChanged, this, &MesWidget::updateControls);
}

void MesWidget::updateControls()
{
    const MesDocument* shown = mesDocument();
    const bool loaded = shown != nullptr;
    const bool modified = loaded && shown->isModified();
    for (QWidget* widget : {static_cast<QWidget*>(ui->editCommentary), static_cast<QWidget*>(ui->table),
                            static_cast<QWidget*>(ui->itemView), static_cast<QWidget*>(ui->completeLine)})
        widget->setEnabled(loaded);
    ui->reloadButton->setEnabled(modified);
    ui->saveButton->setEnabled(modified);
    ui->saveAsButton->setEnabled(loaded);
    for (QAction* action : entryActions)
        action->setEnabled(loaded);
    const bool readable = loaded && shown->isReadable(ui->table->currentIndex().row());
    duplicateAction->setEnabled(readable);
    renumberAction->setEnabled(readable);
    deleteAction->setEnabled(loaded && (ui->table->selectionModel()->hasSelection() || ui->table->currentIndex().isValid()));
    if (!loaded)
        findBar->hide();
}

void MesWidget::fitColumns()
{
    QHeaderView* header = ui->table->horizontalHeader();
    const int last = table->columnCount() - 1;
    if (last < 0)
        return;
    header->setStretchLastSection(false);
    header->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    // The first item takes the room that is left; short fields are as wide as their titles.
    for (int column = 1; column <= last; ++column) {
        header->setSectionResizeMode(column, QHeaderView::Interactive);
        const int titleWidth = std::max(MIN_FIELD_WIDTH, header->sectionSizeHint(column));
        header->resizeSection(column, column == last ? COMMENT_WIDTH : titleWidth);
    }
    if (last > 1)
        header->setSectionResizeMode(1, QHeaderView::Stretch);
}

void MesWidget::setItemViewText(const QString& text)
{
    if (ui->itemView->toPlainText() == text)
        return;
    const QSignalBlocker blocker(ui->itemView);
    const int position = ui->itemView->textCursor().position();
    ui->itemView->setPlainText(text);
    QTextCursor cursor = ui->itemView->textCursor();
    cursor.setPosition(std::min(position, int(text.size())));
    ui->itemView->setTextCursor(cursor);
}

void MesWidget::showCurrentCell()
{
    const QModelIndex current = ui->table->currentIndex();
    if (mesDocument() == nullptr || !current.isValid())
        return;
    ui->itemView->setReadOnly(!(table->flags(current) & Qt::ItemIsEditable));
    setItemViewText(table->data(current, Qt::EditRole).toString());
}

void MesWidget::showSourceLine()
{
    const QModelIndex current = ui->table->currentIndex();
    const Mesfile::Entry* entry = mesDocument() ? mesDocument()->model().getEntryAt(current.row()) : nullptr;
    if (entry == nullptr) {
        ui->completeLine->clear();
        return;
    }
    ui->completeLine->setText(entry->getLine());
    ui->completeLine->setToolTip(entry->isValid()
        ? lineToolTip
        : tr("<b>Source line</b><br/>This line could not be read (%1). It is written back exactly as read.")
              .arg(entry->getValidationError().toHtmlEscaped()));
}

void MesWidget::itemViewEdited()
{
    const QModelIndex current = ui->table->currentIndex();
    if (mesDocument() == nullptr || !current.isValid() || ui->itemView->isReadOnly())
        return;
    mesDocument()->editCell(current.row(), current.column(), ui->itemView->toPlainText());
}

void MesWidget::headerEdited()
{
    MesDocument* shown = mesDocument();
    if (shown == nullptr)
        return;
    pushValue<QString>(shown->undoStack(), tr("Edit header"), HEADER_MERGE_ID, 0, shown->model().getHeader(),
                       ui->editCommentary->toPlainText(), [shown](const QString& text) { shown->applyHeader(text); });
}

void MesWidget::showFind(bool replace)
{
    if (mesDocument() == nullptr)
        return;
    findBar->open(replace);
}

// ---- entry tools ----

bool MesWidget::askNumber(const QString& title, const QString& label, int proposed, int& number)
{
    QInputDialog dialog(this);
    dialog.setObjectName(QStringLiteral("numberDialog"));
    dialog.setWindowTitle(title);
    dialog.setLabelText(label);
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setTextValue(proposed >= 0 ? QString::number(proposed) : QString());
    if (Prompt::run(dialog) != QDialog::Accepted)
        return false;
    QString error;
    if (!MesDocument::parseNumber(dialog.textValue(), number, error)) {
        refuse(title, error);
        return false;
    }
    return true;
}

void MesWidget::refuse(const QString& title, const QString& reason)
{
    Prompt::message(this, QMessageBox::Warning, title, reason);
}

void MesWidget::selectCell(int row, int column)
{
    const QModelIndex cell = table->index(row, column);
    ui->table->setCurrentIndex(cell);
    ui->table->scrollTo(cell);
}

QList<int> MesWidget::selectedRows() const
{
    std::set<int> rows;
    for (const QModelIndex& cell : ui->table->selectionModel()->selectedIndexes())
        rows.insert(cell.row());
    const QModelIndex current = ui->table->currentIndex();
    if (rows.empty() && current.isValid())
        rows.insert(current.row());
    return QList<int>(rows.begin(), rows.end());
}

void MesWidget::addEntry()
{
    MesDocument* shown = mesDocument();
    if (shown == nullptr)
        return;
    int number = 0;
    if (!askNumber(tr("Add entry"), tr("Number of the new entry:"), shown->proposedNumber(ui->table->currentIndex().row()),
                   number))
        return;
    int position = 0;
    QString error;
    if (!shown->addEntry(number, position, error))
        return refuse(tr("Add entry"), error);
    selectCell(position, 1);
    entryStatus->setText(tr("Entry %1 added").arg(number));
}

void MesWidget::duplicateEntry()
{
    MesDocument* shown = mesDocument();
    const int source = ui->table->currentIndex().row();
    if (shown == nullptr || !shown->isReadable(source))
        return;
    const QString original = shown->cell(source, 0);
    int number = 0;
    if (!askNumber(tr("Duplicate entry"), tr("Number of the copy of %1:").arg(original),
                   shown->proposedNumber(source), number))
        return;
    int position = 0;
    QString error;
    if (!shown->duplicateEntry(source, number, position, error))
        return refuse(tr("Duplicate entry"), error);
    selectCell(position, 1);
    entryStatus->setText(tr("Entry %1 copied as %2").arg(original).arg(number));
}

void MesWidget::deleteSelectedEntries()
{
    MesDocument* shown = mesDocument();
    const QList<int> rows = selectedRows();
    if (shown == nullptr || rows.isEmpty())
        return;
    const int column = std::max(ui->table->currentIndex().column(), 0);
    const int first = rows.first();
    // The view lets go of the selection first: it would otherwise follow every row as it goes.
    ui->table->clearSelection();
    if (!shown->removeEntries(rows))
        return;
    if (table->rowCount() > 0)
        selectCell(std::min(first, table->rowCount() - 1), column);
    entryStatus->setText(rows.size() == 1 ? tr("1 entry deleted") : tr("%1 entries deleted").arg(rows.size()));
}

void MesWidget::renumberEntry()
{
    MesDocument* shown = mesDocument();
    const QModelIndex current = ui->table->currentIndex();
    if (shown == nullptr || !shown->isReadable(current.row()))
        return;
    const QString old = shown->cell(current.row(), 0);
    int number = 0;
    if (!askNumber(tr("Renumber entry"), tr("New number of entry %1:").arg(old), old.toInt(), number))
        return;
    QString error;
    if (!shown->renumberEntry(current.row(), number, error))
        return refuse(tr("Renumber entry"), error);
    entryStatus->setText(tr("Entry %1 is now %2").arg(old).arg(number));
}

void MesWidget::goToNumber()
{
    const MesDocument* shown = mesDocument();
    if (shown == nullptr)
        return;
    int number = 0;
    if (!askNumber(tr("Go to entry"), tr("Number of the entry:"), -1, number))
        return;
    if (!goToEntry(number))
        refuse(tr("Go to entry"), tr("%1 has no entry %2.").arg(shown->displayName()).arg(number));
}

void MesWidget::sortByNumber()
{
    MesDocument* shown = mesDocument();
    if (shown == nullptr)
        return;
    entryStatus->setText(shown->sortByNumber() ? tr("Entries sorted by number")
                                               : tr("The entries are already in number order"));
    ui->table->scrollTo(ui->table->currentIndex());
}

// ---- find and replace ----

void MesWidget::findNext(bool backwards)
{
    const MesDocument* shown = mesDocument();
    const TextSearch search = findBar->search();
    if (shown == nullptr || search.isEmpty())
        return;
    MesDocument::Match from = lastMatch;
    const QModelIndex current = ui->table->currentIndex();
    // A search goes on from the match shown, or starts in the cell the user is in.
    if (from.entry != current.row() || from.column != current.column()) {
        from = MesDocument::Match{current.row(), current.column(), 0, 0};
        if (backwards)
            from.start = shown->cell(current.row(), current.column()).size();
    }
    showMatch(shown->find(search, from, backwards));
}

void MesWidget::showMatch(const MesDocument::Match& match)
{
    const TextSearch search = findBar->search();
    lastMatch = match;
    if (match.entry < 0) {
        findBar->setStatus(tr("No match for “%1”").arg(search.pattern()));
        return;
    }
    selectCell(match.entry, match.column);
    QTextCursor cursor = ui->itemView->textCursor();
    cursor.setPosition(int(match.start));
    cursor.setPosition(int(match.start + match.length), QTextCursor::KeepAnchor);
    ui->itemView->setTextCursor(cursor);
    const int total = mesDocument()->countMatches(search);
    findBar->setStatus(tr("Entry %1 — matches in the file: %2").arg(mesDocument()->cell(match.entry, 0)).arg(total));
}

void MesWidget::replaceOne()
{
    MesDocument* shown = mesDocument();
    const TextSearch search = findBar->search();
    if (shown == nullptr || search.isEmpty())
        return;
    const QModelIndex current = ui->table->currentIndex();
    MesDocument::Match match = lastMatch;
    if (match.entry == current.row() && match.column == current.column()
        && shown->replaceMatch(match, search, findBar->replacement())) {
        // The search goes on after the text just written, so a replacement holding the pattern is not found again.
        match.length = findBar->replacement().size();
        lastMatch = match;
    }
    findNext(false);
}

void MesWidget::replaceAll()
{
    MesDocument* shown = mesDocument();
    const TextSearch search = findBar->search();
    if (shown == nullptr || search.isEmpty())
        return;
    int cells = 0;
    const int replaced = shown->replaceAll(search, findBar->replacement(), cells);
    lastMatch = MesDocument::Match();
    findBar->setStatus(replaced == 0 ? tr("No match for “%1”: nothing replaced").arg(search.pattern())
                                     : tr("Matches replaced: %1; cells changed: %2").arg(replaced).arg(cells));
}

void MesWidget::on_reloadButton_clicked()
{
    if (document() != nullptr)
        openFile(document()->path());
}

void MesWidget::on_saveButton_clicked()
{
    save();
}

void MesWidget::on_saveAsButton_clicked()
{
    saveAs();
}

QList<QWidget*> MesWidget::fileControls() const
{
    return {ui->saveButton, ui->saveAsButton};
}
