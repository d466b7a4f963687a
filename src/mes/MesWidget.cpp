#include "MesWidget.h"

#include "Prompt.h"
#include "ui_MesWidget.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QTableWidgetItem>
#include <QTextCodec>
#include <QTextCursor>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

using arcanum::Mesfile;

namespace {

const QColor INVALID_ROW_COLOUR(0xA0, 0x10, 0x10);
constexpr int COMMENT_WIDTH = 180;
constexpr int MIN_FIELD_WIDTH = 70;

void say(FILE* stream, const char* text)
{
    std::fputs(text, stream);
    std::fflush(stream);
}

} // namespace

MesWidget::MesWidget(QWidget* parent, QString encoding)
    : QWidget(parent)
    , ui(std::make_unique<Ui_MesWidget>())
    , mesfile(std::make_unique<Mesfile>())
{
    ui->setupUi(this);
    lineToolTip = ui->completeLine->toolTip();
    updateControls();
    fillEncodings(encoding);
    ui->itemView->setReadOnly(true);
    ui->table->verticalHeader()->setVisible(false);
    ui->table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    ui->itemView->setTabStopDistance(4 * ui->itemView->fontMetrics().horizontalAdvance(QLatin1Char(' ')));
    ui->splitter->setStretchFactor(0, 0);
    ui->splitter->setStretchFactor(1, 1);
    ui->splitter->setStretchFactor(2, 0);
    ui->splitter->setSizes({70, 420, 110});
    connectSignals();
}

MesWidget::~MesWidget() = default;

const QStringList& MesWidget::encodingList()
{
    static const QStringList names = [] {
        QStringList list;
        for (const QByteArray& name : QTextCodec::availableCodecs())
            list << QString::fromLatin1(name);
        return list;
    }();
    return names;
}

// The combo box keeps the entry filling left it on when the codec exists; it is only moved to
// "UTF-8" when the requested codec is unknown.
void MesWidget::fillEncodings(const QString& encoding)
{
    const QSignalBlocker blocker(ui->encodingSelect);
    ui->encodingSelect->addItems(encodingList());
    codec = QTextCodec::codecForName(encoding.toLatin1());
    if (!codec) {
        codec = QTextCodec::codecForName("UTF-8");
        ui->encodingSelect->setCurrentIndex(ui->encodingSelect->findText(QStringLiteral("UTF-8"), Qt::MatchFixedString));
    }
}

void MesWidget::connectSignals()
{
    for (auto signal : {&QTableWidget::cellActivated, &QTableWidget::cellClicked}) {
        connect(ui->table, signal, this, &MesWidget::tableToItemViewSync);
        connect(ui->table, signal, this, &MesWidget::updateCompleteLine);
    }
    // Moving with the keyboard shows the new cell as a click would.
    connect(ui->table, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
        if (row >= 0 && column >= 0) {
            tableToItemViewSync(row, column);
            updateCompleteLine();
        }
    });
    connect(ui->itemView, &QPlainTextEdit::textChanged, this, &MesWidget::itemViewToTableSync);
    connect(ui->itemView, &QPlainTextEdit::textChanged, this, &MesWidget::updateCompleteLine);
    connect(ui->encodingSelect, &QComboBox::currentTextChanged, this, &MesWidget::encodingChange);
    connect(ui->table, &QTableWidget::cellChanged, this, &MesWidget::changeCellText);
}

QString MesWidget::getFilename() const
{
    return mesfile->getFilename();
}

void MesWidget::updateControls()
{
    const bool loaded = mesfile->isLoaded();
    const std::initializer_list<QWidget*> fileControls = {ui->editCommentary, ui->table, ui->itemView,
                                                          ui->completeLine, ui->encodingLabel, ui->encodingSelect};
    for (QWidget* widget : fileControls)
        widget->setEnabled(loaded);
    ui->reloadButton->setEnabled(loaded && modified);
    ui->saveButton->setEnabled(loaded && modified);
}

void MesWidget::setModifiedState(bool state)
{
    if (state == modified)
        return;
    modified = state;
    updateControls();
}

void MesWidget::loadMes(const QString& path)
{
    mesfile.reset(Mesfile::getInstance(path));
    readModel();
}

void MesWidget::reloadMes()
{
    if (mesfile->getFilename().isEmpty())
        return;
    readModel();
}

// A failed load leaves an empty model that reports itself not loaded, so the controls go grey.
void MesWidget::readModel()
{
    mesfile->load(codec);
    updateItems();
    ui->completeLine->clear();
}

void MesWidget::clear()
{
    updating = true;
    ui->table->clearContents();
    modified = false;
    currentRow = -1;
    currentColumn = -1;
    ui->itemView->setReadOnly(true);
    updating = false;
}

int MesWidget::itemColumns() const
{
    return static_cast<int>(mesfile->getItemCount());
}

void MesWidget::updateItems()
{
    clear();
    updating = true;
    ui->editCommentary->setPlainText(mesfile->getHeader());
    ui->itemView->clear();
    ui->table->setUpdatesEnabled(false);
    ui->table->setRowCount(mesfile->getEntryCount());
    ui->table->setColumnCount(itemColumns() + 2);
    fillColumnTitles();
    // The number column is sized to its contents only once it is filled (fitColumns): before that,
    // every new cell would make the table measure the whole column again.
    ui->table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Interactive);
    // What a new cell's font() gives (the application font), in bold.
    boldFont = QFont();
    boldFont.setBold(true);
    for (int row = 0; row < mesfile->getEntryCount(); ++row)
        fillRow(row, *mesfile->getEntryAt(row));
    fitColumns();
    ui->table->setUpdatesEnabled(true);
    modified = false;
    updating = false;
    updateControls();
}

void MesWidget::fillColumnTitles()
{
    QStringList titles(mesfile->getColumnTitle(Mesfile::INDEX_COLUMN));
    for (int i = 0; i < itemColumns(); ++i)
        titles << mesfile->getColumnTitle(i);
    titles << mesfile->getColumnTitle(Mesfile::COMMENT_COLUMN);
    ui->table->setHorizontalHeaderLabels(titles);
}

void MesWidget::fillRow(int row, const Mesfile::Entry& entry)
{
    auto* index = new QTableWidgetItem(QString::number(entry.getMesIndex()));
    index->setFlags(Qt::NoItemFlags);
    index->setFont(boldFont);
    // The number's tool tip tells what the comment says.
    index->setToolTip(entry.getInfoAbout(Mesfile::COMMENT_COLUMN));
    ui->table->setItem(row, 0, index);
    for (int i = 0; i < itemColumns(); ++i) {
        auto* cell = new QTableWidgetItem(entry.getItemAt(static_cast<unsigned>(i)));
        cell->setToolTip(entry.getInfoAbout(i));
        ui->table->setItem(row, i + 1, cell);
    }
    ui->table->setItem(row, itemColumns() + 1, new QTableWidgetItem(entry.getComment()));
    if (entry.isValid())
        return;
    // A line that could not be read is written back exactly as read, so editing its cells would be lost.
    for (int column = 1; column < ui->table->columnCount(); ++column) {
        QTableWidgetItem* cell = ui->table->item(row, column);
        cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        cell->setForeground(INVALID_ROW_COLOUR);
    }
}

void MesWidget::fitColumns()
{
    QHeaderView* header = ui->table->horizontalHeader();
    const int last = ui->table->columnCount() - 1;
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
    const int position = ui->itemView->textCursor().position();
    ui->itemView->setPlainText(text);
    QTextCursor cursor = ui->itemView->textCursor();
    cursor.setPosition(std::min(position, static_cast<int>(text.size())));
    ui->itemView->setTextCursor(cursor);
}

void MesWidget::tableToItemViewSync(int row, int column)
{
    if (updating)
        return;
    if (row < 0 || column < 0) {
        say(stdout, "MesWidget::tableToItemViewSync(): column or row < 0 !!\n");
        return;
    }
    currentRow = row;
    currentColumn = column;
    QTableWidgetItem* item = ui->table->item(row, column);
    if (!item) {
        say(stderr, "item == NULL\n");
        return;
    }
    ui->itemView->setReadOnly(!(item->flags() & Qt::ItemIsEditable));
    if (ui->itemView->toPlainText() != item->text())
        setItemViewText(item->text());
}

void MesWidget::itemViewToTableSync()
{
    if (updating)
        return;
    if (currentRow < 0 || currentColumn < 0) {
        say(stdout, "MesWidget::itemViewToTableSync(): column or row < 0 !!\n");
        return;
    }
    QTableWidgetItem* item = ui->table->item(currentRow, currentColumn);
    if (!item) {
        say(stderr, "item == NULL\n");
        return;
    }
    const int position = ui->itemView->textCursor().position();
    item->setData(Qt::DisplayRole, ui->itemView->toPlainText());
    QTextCursor cursor = ui->itemView->textCursor();
    cursor.setPosition(std::min(position, static_cast<int>(ui->itemView->toPlainText().size())));
    ui->itemView->setTextCursor(cursor);
}

void MesWidget::changeCellText(int row, int column)
{
    if (updating)
        return;
    setModifiedState(true);
    tableToItemViewSync(row, column);
    saveChangeToMem(row, column);
}

void MesWidget::saveChangeToMem(int row, int column)
{
    if (row < 0 || column < 0) {
        say(stdout, "MesWidget::saveChangeToMem(): column or row < 0 !!\n");
        return;
    }
    if (row > mesfile->getEntryCount()) {
        say(stdout, "MesWidget::saveChangeToMem(): entry index out of bounds!!\n");
        return;
    }
    if (currentRow >= 0 && currentColumn >= 0) {
        QTableWidgetItem* item = ui->table->item(currentRow, currentColumn);
        if (!item) {
            if (!updating)
                say(stderr, "item == NULL\n");
            return;
        }
        saveChangeToMemImpl(item->text(), currentRow, currentColumn);
        setModifiedState(true);
    }
    currentRow = row;
    currentColumn = column;
}

void MesWidget::saveChangeToMemImpl(const QString& text, int row, int column)
{
    if (row < 0 || column < 0) {
        say(stdout, "MesWidget::saveTextChangeToMem(): column or row < 0 !!\n");
        return;
    }
    Mesfile::Entry* entry = mesfile->getEntryAt(row);
    if (!entry) {
        say(stdout, "MesWidget::saveTextChangeToMem(): entry index out of bounds!!\n");
        return;
    }
    if (column == 0)
        entry->setMesIndex(text.toInt());
    else if (column == itemColumns() + 1)
        entry->setComment(text);
    else if (column <= itemColumns())
        entry->setItemAt(static_cast<unsigned>(column - 1), text);
    else
        qWarning("MesWidget::saveTextChangeToMem(): invalid args: %d, %d", row, column);
}

void MesWidget::updateCompleteLine()
{
    if (updating)
        return;
    const Mesfile::Entry* entry = mesfile->getEntryAt(currentRow);
    if (!entry) {
        QTextStream(stderr) << "invalid selected row:" << currentRow << Qt::endl;
        return;
    }
    ui->completeLine->setText(entry->getLine());
    ui->completeLine->setToolTip(entry->isValid()
        ? lineToolTip
        : tr("<b>Source line</b><br/>This line could not be read (%1). It is written back exactly as read.")
              .arg(entry->getValidationError().toHtmlEscaped()));
}

void MesWidget::on_editCommentary_textChanged()
{
    if (updating)
        return;
    mesfile->setHeader(ui->editCommentary->toPlainText());
    setModifiedState(true);
}

void MesWidget::encodingChange(QString text)
{
    if (!encodingList().contains(text)) {
        say(stderr, "encodingChange(): invalid arg\n");
        return;
    }
    // Reading again in the new encoding drops unsaved edits: the old text means nothing in the new one.
    if (QTextCodec* chosen = QTextCodec::codecForName(text.toLatin1())) {
        codec = chosen;
        reloadMes();
    }
}

void MesWidget::on_reloadButton_clicked()
{
    if (yesNoDlg(tr("Reload"), tr("Really reload? You will lose all changes made")))
        reloadMes();
}

void MesWidget::on_saveButton_clicked()
{
    saveChangeToMem(currentRow, currentColumn);
    if (yesNoDlg(tr("Save"), tr("Overwrite file?")))
        saveFile(mesfile->getFilename());
}

void MesWidget::on_saveAsButton_clicked()
{
    saveChangeToMem(currentRow, currentColumn);
    const QString name = Prompt::saveFileName(
        this, tr("Save file"), QStringLiteral("."),
        tr("Arcanum Mes files (*.mes);;Arcanum Dialogue files (*.dlg);;All files (*.*)"));
    // Only a file that was written is opened: after a failure the edits stay on the page.
    if (!name.isEmpty() && saveFile(name))
        loadMes(name);
}

bool MesWidget::saveFile(const QString& path)
{
    if (!mesfile->save(path, codec)) {
        Prompt::message(this, QMessageBox::Critical, tr("Error saving file"),
                        tr("Could not save file to %1: unknown reason").arg(path));
        return false;
    }
    setModifiedState(false);
    return true;
}
