#include "ArtHeaderWidget.h"

#include "Artfile.h"
#include "DialogEditPalette.h"
#include "Prompt.h"
#include "ui_ArtHeaderWidget.h"

#include <algorithm>

using arcanum::Artfile;

namespace {
unsigned rowOf(const QListWidget* list)
{
    return unsigned(std::max(0, list->currentRow()));
}
} // namespace

ArtHeaderWidget::ArtHeaderWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ArtHeaderWidget>())
{
    ui->setupUi(this);
    updateControls();
}

ArtHeaderWidget::~ArtHeaderWidget() = default;

void ArtHeaderWidget::setArtfile(Artfile* file)
{
    artfile = file;
    updateHeader();
    updateControls();
}

void ArtHeaderWidget::selectFrame(unsigned frame)
{
    if (int(frame) < ui->listFrames->count())
        ui->listFrames->setCurrentRow(int(frame));
}

unsigned ArtHeaderWidget::currentPalette() const
{
    return rowOf(ui->listPalettes);
}

unsigned ArtHeaderWidget::currentImage() const
{
    return rowOf(ui->listImages);
}

unsigned ArtHeaderWidget::currentFrame() const
{
    return rowOf(ui->listFrames);
}

void ArtHeaderWidget::keepPlaceRefresh()
{
    refill(ui->listPalettes->currentRow(), ui->listImages->currentRow(), ui->listFrames->currentRow());
    updateControls();
}

void ArtHeaderWidget::updateHeader()
{
    refill(0, 0, 0);
}

void ArtHeaderWidget::refill(int palette, int image, int frame)
{
    updating = true;
    const bool loaded = artfile && artfile->isLoaded();
    fillList(ui->listPalettes, tr("Palette %1"), loaded ? artfile->getPaletteCount() : 0, palette);
    fillList(ui->listImages, tr("Image %1"), loaded ? artfile->getImageCount() : 0, image);
    fillList(ui->listFrames, tr("Frame %1"), loaded ? artfile->getFrameCount() : 0, frame);
    updating = false;
}

void ArtHeaderWidget::fillList(QListWidget* list, const QString& label, unsigned count, int row)
{
    list->clear();
    for (unsigned i = 0; i < count; ++i)
        list->addItem(label.arg(i));
    if (count > 0)
        list->setCurrentRow(std::clamp(row, 0, int(count) - 1));
}

void ArtHeaderWidget::updateControls()
{
    const bool loaded = artfile && artfile->isLoaded();
    const unsigned palettes = loaded ? artfile->getPaletteCount() : 0;
    ui->paletteButtonNew->setEnabled(loaded && palettes < Artfile::MAX_PALETTES);
    ui->paletteButtonDelete->setEnabled(loaded && palettes >= 2);
    ui->imageButtonNew->setEnabled(loaded);
    ui->imageButtonDelete->setEnabled(loaded && artfile->getImageCount() >= 2);
    ui->frameButtonNew->setEnabled(loaded);
    ui->frameButtonDelete->setEnabled(loaded && artfile->getFrameCount() >= 2);
}

void ArtHeaderWidget::emitSelection()
{
    if (!updating)
        emit selectionChanged(currentPalette(), currentImage(), currentFrame());
}

// ---------------------------------------------------------------------------------------------
// New and Delete: each keeps the user's place, selecting what was added or the row that took
// the deleted one's place (the one before it when the last row went).

void ArtHeaderWidget::afterChange(Column column, int row)
{
    int rows[] = {ui->listPalettes->currentRow(), ui->listImages->currentRow(), ui->listFrames->currentRow()};
    rows[column] = row;
    refill(rows[PALETTES], rows[IMAGES], rows[FRAMES]);
    updateControls();
    if (column == PALETTES)
        emit paletteEdited(currentPalette());
    else if (column == IMAGES)
        emit imagesAltered();
    else
        emit framesAltered();
    emitSelection();
}

void ArtHeaderWidget::on_paletteButtonNew_clicked()
{
    if (artfile && artfile->newPalette(currentPalette()))
        afterChange(PALETTES, int(artfile->getPaletteCount()) - 1);
}

void ArtHeaderWidget::on_paletteButtonDelete_clicked()
{
    const unsigned row = currentPalette();
    if (artfile && artfile->deletePalette(row))
        afterChange(PALETTES, int(row));
}

void ArtHeaderWidget::on_imageButtonNew_clicked()
{
    if (artfile && artfile->newImage(currentImage()))
        afterChange(IMAGES, int(artfile->getImageCount()) - 1);
}

void ArtHeaderWidget::on_imageButtonDelete_clicked()
{
    const unsigned row = currentImage();
    if (artfile && artfile->deleteImage(row))
        afterChange(IMAGES, int(row));
}

void ArtHeaderWidget::on_frameButtonNew_clicked()
{
    if (artfile && artfile->newFrame(currentFrame()))
        afterChange(FRAMES, int(artfile->getFrameCount()) - 1);
}

void ArtHeaderWidget::on_frameButtonDelete_clicked()
{
    const unsigned row = currentFrame();
    if (artfile && artfile->deleteFrame(row))
        afterChange(FRAMES, int(row));
}

// ---------------------------------------------------------------------------------------------
// Selection and the palette editor

void ArtHeaderWidget::on_listPalettes_currentRowChanged(int /*row*/)
{
    emitSelection();
}

void ArtHeaderWidget::on_listImages_currentRowChanged(int /*row*/)
{
    emitSelection();
}

void ArtHeaderWidget::on_listFrames_currentRowChanged(int /*row*/)
{
    emitSelection();
}

void ArtHeaderWidget::on_listPalettes_itemDoubleClicked(QListWidgetItem* item)
{
    if (item)
        editPalette(unsigned(ui->listPalettes->row(item)));
}

bool ArtHeaderWidget::editPalette(unsigned index)
{
    if (!artfile)
        return false;
    const Artfile::Colour* colours = artfile->getPalette(index);
    if (!colours)
        return false;
    Artfile::Palette palette;
    std::copy_n(colours, Artfile::PALETTE_SIZE, palette);
    QImage frame;
    artfile->convertTo(frame, index, currentImage(), currentFrame());

    DialogEditPalette dialog(this);
    dialog.setImage(frame, palette);
    if (Prompt::run(dialog) != QDialog::Accepted)
        return false;
    artfile->setPalette(index, dialog.palette());
    emit paletteEdited(index);
    emitSelection();
    return true;
}
