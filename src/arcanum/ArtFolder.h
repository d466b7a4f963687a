#pragma once

#include "Artfile.h"

#include <QJsonObject>
#include <QString>

#include <vector>

namespace arcanum {

// The lossless folder form of an art file: every frame as an indexed PNG (or all of them on one sprite
// sheet, images as rows and frames as columns) plus "<name>.json" with all the PNGs cannot hold: the
// header bytes, the palettes, the bytes after the last frame, each frame's placement values and
// encoding, and for each frame a checksum of its pixels with, where its stored bytes are not simply its
// pixels, those bytes. Importing an unchanged folder gives the file back byte for byte; a frame whose
// PNG was edited is encoded afresh, and the JSON's "frameRate" and "actionFrame", when edited, replace
// those header words.
class ArtFolder
{
public:
    struct Options
    {
        bool sheet = false;
        unsigned palette = 0; // the palette the PNGs are coloured with
    };

    // Writes the folder form of art into dir (created when missing); the files are written to a temporary
    // folder beside it first, so a failure leaves dir as it was. False and the reason, naming the file.
    static bool write(const Artfile& art, const QString& name, const QString& dir, const Options& options,
                      QString& error);
    // Reads the folder form in dir back into art. False (art untouched) and the reason, naming the file.
    static bool read(const QString& dir, Artfile& art, QString& error);

    // The file names today's and the lossless export share.
    static QString frameFileName(const QString& name, unsigned image, unsigned frame, const QString& suffix);
    static QString sheetFileName(const QString& name, unsigned palette, const QString& suffix);
    // The size of a sheet's cells: the largest frame that can be drawn, at least 1 × 1.
    static QSize sheetCell(const Artfile& art);

private:
    class Writer;
    class Reader;
};

} // namespace arcanum
