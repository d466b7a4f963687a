#include "HexWidget.h"

#include "ui_HexWidget.h"

#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

namespace {
// Rows shown before the view scrolls: enough for a whole wall block.
constexpr int VISIBLE_ROWS = 17;

QString hex(unsigned long value, int digits)
{
    return QStringLiteral("%1").arg(value, digits, 16, QLatin1Char('0')).toUpper();
}
} // namespace

HexWidget::HexWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_HexWidget>())
{
    ui->setupUi(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QFont mono(QStringLiteral("DejaVu Sans Mono"));
    mono.setStyleHint(QFont::Monospace);
    mono.setPointSize(font().pointSize() > 0 ? std::max(8, font().pointSize() - 1) : 9);
    ui->table->setFont(mono);
    ui->table->horizontalHeader()->setFont(mono);
    ui->table->verticalHeader()->setFont(mono);
    QStringList columns;
    for (int column = 0; column < COLUMNS; ++column)
        columns << hex(static_cast<unsigned long>(column), 2);
    ui->table->setHorizontalHeaderLabels(columns);
    const int cell = QFontMetrics(mono).horizontalAdvance(QStringLiteral("00")) + 10;
    ui->table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ui->table->horizontalHeader()->setDefaultSectionSize(cell);
    ui->table->horizontalHeader()->setMinimumSectionSize(cell);
    ui->table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    ui->table->verticalHeader()->setDefaultSectionSize(QFontMetrics(mono).height() + 6);
    setData(nullptr, 0, 0);
}

HexWidget::~HexWidget() = default;

void HexWidget::setLabel(const QString& text)
{
    ui->labelTitle->setText(text);
}

void HexWidget::setData(const unsigned char* data, unsigned long dataSize, unsigned int dataBase)
{
    size = data ? dataSize : 0;
    base = dataBase;
    ui->table->clearContents();
    const int rows = static_cast<int>(size / COLUMNS + 1);
    ui->table->setRowCount(rows);
    QStringList rowLabels;
    for (int row = 0; row < rows; ++row)
        rowLabels << hex(base + static_cast<unsigned long>(row) * COLUMNS, 4);
    ui->table->setVerticalHeaderLabels(rowLabels);
    for (unsigned long i = 0; i < size; ++i) {
        auto* item = new QTableWidgetItem(hex(data[i], 2));
        item->setTextAlignment(Qt::AlignCenter);
        ui->table->setItem(static_cast<int>(i / COLUMNS), static_cast<int>(i % COLUMNS), item);
    }
    ui->labelPosition->clear();
    fitHeight();
}

QString HexWidget::positionText() const
{
    return ui->labelPosition->text();
}

void HexWidget::on_table_currentCellChanged(int row, int column, int, int)
{
    const long offset = static_cast<long>(row) * COLUMNS + column;
    if (row < 0 || column < 0 || static_cast<unsigned long>(offset) >= size) {
        ui->labelPosition->clear();
        return;
    }
    ui->labelPosition->setText(hex(base + static_cast<unsigned long>(offset), 8));
}

// The whole width of 20 columns, and as many rows as there are up to VISIBLE_ROWS.
void HexWidget::fitHeight()
{
    QTableWidget* table = ui->table;
    const int rows = std::min(table->rowCount(), VISIBLE_ROWS);
    const int frame = 2 * table->frameWidth();
    const int height = table->horizontalHeader()->sizeHint().height()
                       + rows * table->verticalHeader()->defaultSectionSize() + frame;
    table->setFixedHeight(height);
    const int scrollBar = table->rowCount() > VISIBLE_ROWS ? table->verticalScrollBar()->sizeHint().width() : 0;
    table->setFixedWidth(table->verticalHeader()->sizeHint().width() + COLUMNS * table->horizontalHeader()->defaultSectionSize()
                         + frame + scrollBar);
}
