#pragma once

#include "Artfile.h"

#include <QByteArray>
#include <QImage>
#include <QString>

namespace arcanum {

// Image files going into and out of art frames: read with their size checked before any pixel is
// decoded, written as indexed PNGs with the art's palette.
class ArtImageFile
{
public:
    // Any format Qt reads. False and the reason, naming the file, for one that cannot be read or that is
    // larger than a frame can hold (Artfile::MAX_FRAME_PIXELS, 65535 a side).
    static bool read(const QString& path, QImage& image, QString& error);
    // width × height palette indices as an indexed PNG coloured with the palette, index 0 transparent.
    static bool writeIndexed(const QString& path, const QByteArray& indices, int width, int height,
                             const Artfile::Palette& palette, QString& error);
    // The palette indices of an image: taken as they are from an indexed image whose colours are the
    // palette's at every index it uses, matched to the nearest colours otherwise.
    static QByteArray indicesOf(const QImage& image, const Artfile::Palette& palette);
    // The indices of an 8-bit image, row after row, without the row padding.
    static QByteArray rowsOf(const QImage& indexed);
    // Whether a frame can be width × height pixels.
    static bool fitsAFrame(qint64 width, qint64 height);

    static constexpr int MAX_SIDE = 65535;
};

} // namespace arcanum
