#pragma once

#include <QImage>
#include <QString>

namespace arcanum {
class Artfile;
}

// `loreka export FILE.art OUTDIR`: every frame of every image as "<name>_i<image>_f<frame>.<ext>",
// or with --sheet one sprite sheet per palette, "<name>_p<palette>.<ext>" (images as rows, frames as
// columns, each cell as large as the largest frame).
class ExportCommand
{
public:
    ExportCommand(const QString& format, bool sheet);
    // Only this palette; by default frames use palette 0 and sheets are made for every palette.
    void onlyPalette(int palette) { chosenPalette = palette; }
    int run(const QString& artPath, const QString& outDir);
    // Loads an art file for a command; false after saying on standard error why it could not be.
    static bool loadArt(const QString& artPath, arcanum::Artfile& art);

private:
    bool exportFrames(arcanum::Artfile& art, unsigned palette);
    bool exportSheet(arcanum::Artfile& art, unsigned palette);
    bool write(const QImage& image, const QString& fileName);
    static void place(const QImage& frame, QImage& target, int x, int y);

    QString format;
    bool sheet;
    int chosenPalette = -1;
    QString outDir;
    QString name;
};
