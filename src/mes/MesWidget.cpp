#include "MesWidget.h"

#include "FormatRegistry.h"

#include "EncodingBox.h"
#include "EncodingStrip.h"
#include "FileEncoding.h"
#include "MesDocument.h"
#include "MesTableModel.h"
#include "Prompt.h"
#include "ValueCommand.h"
#include "WheelGuard.h"
#include "ui_MesWidget.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTextCodec>
#include <QTextCursor>
#include <QUndoStack>

#include <algorithm>

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

void MesWidget::connectSignals()
{
    connect(ui->table->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        showCurrentCell();
        showSourceLine();
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
    if (shown != nullptr) {
        connect(shown, &MesDocument::cellChanged, this, [this](int entry, int column) {
            const QModelIndex current = ui->table->currentIndex();
            if (current.row() == entry && current.column() == column)
                showCurrentCell();
            if (current.row() == entry)
                showSourceLine();
        });
        connect(shown, &MesDocument::headerChanged, this, [this] {
            if (ui->editCommentary->toPlainText() == mesDocument()->model().getHeader())
                return;
            const QSignalBlocker blocker(ui->editCommentary);
            ui->editCommentary->setPlainText(mesDocument()->model().getHeader());
        });
        connect(shown, &Document::modifiedChanged, this, &MesWidget::updateControls);
    }
    encoding->show(shown ? shown->codec() : nullptr, shown ? shown->encodingFindings() : arcanum::EncodingGuess::Findings());
    fitColumns();
    updateControls();
}

void MesWidget::updateControls()
{
    const bool loaded = document() != nullptr;
    const bool modified = loaded && document()->isModified();
    for (QWidget* widget : {static_cast<QWidget*>(ui->editCommentary), static_cast<QWidget*>(ui->table),
                            static_cast<QWidget*>(ui->itemView), static_cast<QWidget*>(ui->completeLine)})
        widget->setEnabled(loaded);
    ui->reloadButton->setEnabled(modified);
    ui->saveButton->setEnabled(modified);
    ui->saveAsButton->setEnabled(loaded);
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
    MesTableModel::editCell(mesDocument(), current.row(), current.column(), ui->itemView->toPlainText());
}

void MesWidget::headerEdited()
{
    MesDocument* shown = mesDocument();
    if (shown == nullptr)
        return;
    pushValue<QString>(shown->undoStack(), tr("Edit header"), HEADER_MERGE_ID, 0, shown->model().getHeader(),
                       ui->editCommentary->toPlainText(), [shown](const QString& text) { shown->applyHeader(text); });
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
