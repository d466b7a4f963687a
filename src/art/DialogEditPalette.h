#pragma once

#include "Artfile.h"

#include <QBrush>
#include <QDialog>
#include <QImage>

#include <memory>

class Ui_DialogEditPalette;

// Edits a working copy of one 256-colour palette while showing a frame in those colours;
// the caller takes the colours back only when the dialog is accepted.
class DialogEditPalette : public QDialog
{
    Q_OBJECT

public:
    explicit DialogEditPalette(QWidget* parent = nullptr);
    ~DialogEditPalette() override;

    void setImage(const QImage& image, const arcanum::Artfile::Colour (&palette)[arcanum::Artfile::PALETTE_SIZE]);
    arcanum::Artfile::Colour* getPalette() { return colours; }
    const arcanum::Artfile::Palette& palette() const { return colours; }
    const QImage& previewImage() const { return preview; }

    bool saveToFile(const QString& path);
    bool loadFromFile(const QString& path);

public slots:
    void updatePalette();
    void updateView();
    void updateControls();

private slots:
    void on_tablePalette_cellClicked(int row, int column);
    void on_buttonCopy_clicked();
    void on_buttonPaste_clicked();
    void on_buttonSave_clicked();
    void on_buttonLoad_clicked();
    void on_buttonOk_clicked();
    void on_buttonCancel_clicked();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void fillTable();
    static QBrush transparentCell();
    void setCell(int index);
    void fitCells();
    void takeWorkingColours();
    QString paletteDirectory() const;

    std::unique_ptr<Ui_DialogEditPalette> ui;
    arcanum::Artfile::Palette colours{};
    QImage preview;
};
