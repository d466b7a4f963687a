#pragma once

#include "PaletteMatcher.h"

#include <QDialog>
#include <QImage>
#include <QStringList>
#include <QVector>

class QCheckBox;
class QLabel;
class QSpinBox;

// Shows pictures matched to an art palette beside their sources, with the mean colour error, before
// they go into the file. Dithering can be switched on and off; every picture is matched again then.
class DialogImportImage : public QDialog
{
    Q_OBJECT

public:
    // names label the pictures (file names); sources are any images Qt reads.
    DialogImportImage(const arcanum::Artfile::Colour (&palette)[arcanum::Artfile::PALETTE_SIZE],
                      const QVector<QImage>& sources, const QStringList& names, QWidget* parent = nullptr);

    void setDither(bool dither);
    bool dither() const;
    // The matched pictures as 8-bit images of palette indices, in the order of the sources.
    QVector<QImage> indexedImages() const;
    const QVector<arcanum::PaletteMatcher::Result>& results() const { return matched; }
    // Mean colour error over every picture, weighted by their pixels.
    double meanError() const;
    // Which picture the two views show.
    void showPicture(int index);

private:
    void buildControls();
    void match();
    void showCurrent();

    arcanum::PaletteMatcher matcher;
    QVector<QImage> pictures;
    QStringList labels;
    QVector<arcanum::PaletteMatcher::Result> matched;
    int current = 0;
    QLabel* viewSource = nullptr;
    QLabel* viewResult = nullptr;
    QLabel* labelName = nullptr;
    QLabel* labelError = nullptr;
    QSpinBox* spinPicture = nullptr;
    QCheckBox* checkDither = nullptr;
};
