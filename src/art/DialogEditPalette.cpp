#include "DialogEditPalette.h"

#include "ArtEditorWidget.h"

#include "Prompt.h"
#include "PaletteFile.h"
#include "gui.h"
#include "ui_DialogEditPalette.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>

#include <algorithm>
#include <iostream>

using arcanum::Artfile;

namespace {
const int SIDE = 16;
const char* const PALETTE_FILTER = QT_TRANSLATE_NOOP("DialogEditPalette", "Arcanum .art Palettes (*.aap)");
} // namespace

DialogEditPalette::DialogEditPalette(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui_DialogEditPalette>())
{
    ui->setupUi(this);
    QStringList hexColumns;
    QStringList hexRows;
    for (int i = 0; i < SIDE; ++i) {
        hexColumns << QString::number(i, 16).toUpper();
        hexRows << QString::number(i * SIDE, 16).toUpper().rightJustified(2, QLatin1Char('0'));
    }
    ui->tablePalette->setHorizontalHeaderLabels(hexColumns);
    ui->tablePalette->setVerticalHeaderLabels(hexRows);
    ui->tablePalette->horizontalHeader()->setMinimumSectionSize(8);
    ui->tablePalette->verticalHeader()->setMinimumSectionSize(8);
    // Whole-pixel cells leave a sliver of the table uncovered; let it read as margin, not as a row.
    QPalette tableColours = ui->tablePalette->palette();
    tableColours.setColor(QPalette::Base, tableColours.color(QPalette::Window));
    ui->tablePalette->setPalette(tableColours);
    ui->view->setAutoFillBackground(true);
    ui->view->setBackgroundRole(QPalette::Dark);
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &DialogEditPalette::updateControls);
    updateControls();
}

DialogEditPalette::~DialogEditPalette() = default;

void DialogEditPalette::setImage(const QImage& image, const Artfile::Colour (&palette)[Artfile::PALETTE_SIZE])
{
    preview = image;
    Artfile::copyPalette(palette, colours);
    fillTable();
    updatePalette();
    updateView();
    updateControls();
}

void DialogEditPalette::fillTable()
{
    ui->tablePalette->setRowCount(SIDE);
    ui->tablePalette->setColumnCount(SIDE);
    for (int index = 0; index < SIDE * SIDE; ++index)
        setCell(index);
}

// Entry 0 is never drawn by the game; its cell shows the same checkerboard as the picture's holes.
QBrush DialogEditPalette::transparentCell()
{
    QImage blank(1, 1, QImage::Format_Indexed8);
    blank.setColorTable({qRgb(0, 0, 0)});
    blank.fill(0);
    return QBrush(ArtEditorWidget::withTransparency(blank.scaled(16, 16)));
}

void DialogEditPalette::setCell(int index)
{
    QTableWidgetItem* item = ui->tablePalette->item(index / SIDE, index % SIDE);
    if (!item) {
        item = new QTableWidgetItem;
        ui->tablePalette->setItem(index / SIDE, index % SIDE, item);
    }
    const QColor colour(colours[index].toRgb());
    item->setBackground(index == 0 ? transparentCell() : QBrush(colour));
    item->setToolTip(tr("Index %1: red %2, green %3, blue %4%5")
                         .arg(index)
                         .arg(colour.red())
                         .arg(colour.green())
                         .arg(colour.blue())
                         .arg(index == 0 ? tr(" (not drawn: the game leaves it transparent)") : QString()));
}

void DialogEditPalette::updatePalette()
{
    if (preview.format() != QImage::Format_Indexed8)
        return;
    QVector<QRgb> table(int(Artfile::PALETTE_SIZE));
    for (unsigned i = 0; i < Artfile::PALETTE_SIZE; ++i)
        table[int(i)] = colours[i].toRgb();
    preview.setColorTable(table);
}

void DialogEditPalette::updateView()
{
    if (preview.isNull()) {
        ui->view->setText(tr("No frame to show"));
        return;
    }
    // Small sprites are blown up by whole factors so single pixels stay sharp.
    const QSize room = ui->scrollArea->viewport()->size();
    const int factor = std::clamp(std::min(room.width() / preview.width(), room.height() / preview.height()), 1, 8);
    ui->view->setPixmap(QPixmap::fromImage(ArtEditorWidget::withTransparency(preview.scaled(preview.size() * factor))));
}

void DialogEditPalette::updateControls()
{
    ui->buttonCopy->setEnabled(true);
    const QClipboard* clipboard = QGuiApplication::clipboard();
    ui->buttonPaste->setEnabled(clipboard->mimeData() && clipboard->mimeData()->hasImage());
}

void DialogEditPalette::on_tablePalette_cellClicked(int row, int column)
{
    const QTableWidgetItem* item = ui->tablePalette->item(row, column);
    if (!item)
        return;
    const QColor chosen = Prompt::color(this, item->background().color());
    if (!chosen.isValid())
        return;
    const int index = row * SIDE + column;
    // A chosen colour has no fourth byte of its own: it is stored as 0.
    colours[index] = Artfile::Colour::fromArgb(chosen.rgb() & RGB_MASK);
    setCell(index);
    if (preview.format() == QImage::Format_Indexed8)
        preview.setColor(index, colours[index].toRgb());
    updateView();
}

void DialogEditPalette::on_buttonCopy_clicked()
{
    QGuiApplication::clipboard()->setImage(preview);
    updateControls();
}

void DialogEditPalette::on_buttonPaste_clicked()
{
    const QImage image = QGuiApplication::clipboard()->image();
    if (image.isNull() || image.depth() != 8 || image.colorCount() == 0) {
        std::cout << "Paste: bad clipboard image palette." << std::endl;
        return;
    }
    const QVector<QRgb> table = image.colorTable();
    // Entries the clipboard image does not have become black.
    for (unsigned i = 0; i < Artfile::PALETTE_SIZE; ++i)
        colours[i] = i < unsigned(table.size()) ? Artfile::Colour::fromArgb(table[int(i)]) : Artfile::Colour{};
    takeWorkingColours();
}

void DialogEditPalette::takeWorkingColours()
{
    updatePalette();
    // setImage copies its palette argument into the working colours, so hand it a copy.
    Artfile::Palette working;
    Artfile::copyPalette(colours, working);
    setImage(preview, working);
}

QString DialogEditPalette::paletteDirectory() const
{
    return gui::getBaseDir().filePath(QStringLiteral("data/art"));
}

void DialogEditPalette::on_buttonSave_clicked()
{
    const QString path = Prompt::saveFileName(this, tr("Save Palette"), paletteDirectory(), tr(PALETTE_FILTER));
    if (!path.isEmpty())
        saveToFile(path);
}

void DialogEditPalette::on_buttonLoad_clicked()
{
    const QString path = Prompt::openFileName(this, tr("Load Palette"), paletteDirectory(), tr(PALETTE_FILTER));
    if (path.isEmpty() || !loadFromFile(path))
        return;
    takeWorkingColours();
}

bool DialogEditPalette::saveToFile(const QString& path)
{
    QString error;
    if (arcanum::PaletteFile::write(path, colours, error))
        return true;
    Prompt::message(this, QMessageBox::Warning, tr("Save failed"),
                    tr("Could not save %1: %2").arg(QDir::toNativeSeparators(path), error));
    return false;
}

bool DialogEditPalette::loadFromFile(const QString& path)
{
    QString error;
    if (arcanum::PaletteFile::read(path, colours, error))
        return true;
    Prompt::message(this, QMessageBox::Warning, tr("Cannot open file"),
                    tr("Could not open %1: %2").arg(QDir::toNativeSeparators(path), error));
    return false;
}

void DialogEditPalette::on_buttonOk_clicked()
{
    done(1);
}

void DialogEditPalette::on_buttonCancel_clicked()
{
    done(0);
}

void DialogEditPalette::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    fitCells();
    updateView();
}

void DialogEditPalette::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    fitCells();
    updateView();
}

void DialogEditPalette::fitCells()
{
    const QSize room = ui->tablePalette->viewport()->size();
    const int width = std::max(1, (room.width() - 1) / SIDE);
    const int height = std::max(1, (room.height() - 1) / SIDE);
    for (int i = 0; i < SIDE; ++i) {
        ui->tablePalette->setColumnWidth(i, width);
        ui->tablePalette->setRowHeight(i, height);
    }
}
