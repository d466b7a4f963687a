#pragma once

#include <QWidget>

#include <memory>

namespace arcanum {
class Artfile;
}
class Ui_ArtHeaderWidget;
class QListWidget;
class QListWidgetItem;

// Lists the palettes, images and frames of the art file, adds and deletes them and opens
// the palette editor; tells its owner what changed and which frame is selected.
class ArtHeaderWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ArtHeaderWidget(QWidget* parent = nullptr);
    ~ArtHeaderWidget() override;

    void setArtfile(arcanum::Artfile* file);
    // The file changed: the lists are filled again, keeping the selected rows where they still exist.
    void keepPlaceRefresh();
    void updateHeader();
    void updateControls();
    // Opens the palette editor on a palette, showing the selected frame; true when it was accepted.
    bool editPalette(unsigned index);

    // Selects a frame row as a click would.
    void selectFrame(unsigned frame);
    unsigned currentPalette() const;
    unsigned currentImage() const;
    unsigned currentFrame() const;

signals:
    void selectionChanged(uint palette, uint image, uint frame);
    void paletteEdited(uint palette);
    void imagesAltered();
    void framesAltered();

private slots:
    void on_paletteButtonNew_clicked();
    void on_paletteButtonDelete_clicked();
    void on_imageButtonNew_clicked();
    void on_imageButtonDelete_clicked();
    void on_frameButtonNew_clicked();
    void on_frameButtonDelete_clicked();
    void on_listPalettes_currentRowChanged(int row);
    void on_listImages_currentRowChanged(int row);
    void on_listFrames_currentRowChanged(int row);
    void on_listPalettes_itemDoubleClicked(QListWidgetItem* item);

private:
    // Refills the lists and selects the given rows (each clamped to its list).
    void refill(int palette, int image, int frame);
    static void fillList(QListWidget* list, const QString& label, unsigned count, int row);
    void emitSelection();
    enum Column { PALETTES, IMAGES, FRAMES };
    // After New or Delete in one column: refill with that column on row, tell what changed.
    void afterChange(Column column, int row);

    std::unique_ptr<Ui_ArtHeaderWidget> ui;
    arcanum::Artfile* artfile = nullptr;
    bool updating = false;
};
