#include "ExportCommand.h"

#include "CommandLine.h"
#include "FileDump.h"

#include "ArtFolder.h"
#include "Artfile.h"
#include "FileFormat.h"
#include "FormatRegistry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstring>
#include <QTextStream>

#include <algorithm>

using arcanum::Artfile;

namespace {
const QStringList FORMATS = {"png", "bmp", "jpg", "tiff"};
}

ExportCommand::ExportCommand(const QString& imageFormat, bool asSheet)
    : format(imageFormat)
    , sheet(asSheet)
{
}

int ExportCommand::run(const QString& artPath, const QString& targetDir)
{
    QTextStream err(stderr);
    if (!FORMATS.contains(format)) {
        err << "loreka: --format takes png, bmp, jpg or tiff" << Qt::endl;
        return CommandLine::Failure;
    }
    Artfile art;
    if (!loadArt(artPath, art))
        return CommandLine::Failure;
    if (chosenPalette >= int(art.getPaletteCount())) {
        err << artPath << ": error: has no palette " << chosenPalette << Qt::endl;
        return CommandLine::Failure;
    }
    outDir = targetDir;
    name = QFileInfo(artPath).completeBaseName();
    if (!QDir().mkpath(outDir)) {
        err << outDir << ": error: cannot be created" << Qt::endl;
        return CommandLine::Failure;
    }
    const unsigned first = chosenPalette < 0 ? 0 : unsigned(chosenPalette);
    const unsigned last = chosenPalette < 0 && sheet ? art.getPaletteCount() : first + 1;
    for (unsigned palette = first; palette < last; ++palette) {
        if (!(sheet ? exportSheet(art, palette) : exportFrames(art, palette)))
            return CommandLine::Failure;
    }
    return CommandLine::Clean;
}

bool ExportCommand::loadArt(const QString& artPath, Artfile& art)
{
    QTextStream err(stderr);
    const arcanum::FileFormat* kind = arcanum::FormatRegistry::byPath(artPath);
    if (!kind || kind->kind != arcanum::FileFormat::Kind::Art) {
        err << artPath << ": error: not an art file (.art)" << Qt::endl;
        return false;
    }
    art.load(QFile::encodeName(artPath).toStdString());
    if (!art.isLoaded()) {
        err << artPath << ": error: " << FileDump::artFailure(art) << Qt::endl;
        return false;
    }
    return true;
}

bool ExportCommand::exportFrames(Artfile& art, unsigned palette)
{
    for (unsigned i = 0; i < art.getImageCount(); ++i) {
        for (unsigned f = 0; f < art.getFrameCount(); ++f) {
            QImage frame;
            // A frame too large or empty to draw is skipped: there is nothing to write.
            if (art.convertTo(frame, palette, i, f) && !write(frame, arcanum::ArtFolder::frameFileName(name, i, f, format)))
                return false;
        }
    }
    return true;
}

bool ExportCommand::exportSheet(Artfile& art, unsigned palette)
{
    const QSize cell = arcanum::ArtFolder::sheetCell(art);
    const int cellWidth = cell.width();
    const int cellHeight = cell.height();
    std::vector<std::vector<QImage>> frames(art.getImageCount(), std::vector<QImage>(art.getFrameCount()));
    for (unsigned i = 0; i < art.getImageCount(); ++i) {
        for (unsigned f = 0; f < art.getFrameCount(); ++f)
            art.convertTo(frames[i][f], palette, i, f);
    }
    QImage sheetImage(cellWidth * int(std::max(art.getFrameCount(), 1u)), cellHeight * int(art.getImageCount()),
                      QImage::Format_ARGB32);
    if (sheetImage.isNull())
        return false;
    sheetImage.fill(Qt::transparent);
    for (unsigned i = 0; i < frames.size(); ++i) {
        for (unsigned f = 0; f < frames[i].size(); ++f)
            place(frames[i][f], sheetImage, int(f) * cellWidth, int(i) * cellHeight);
    }
    return write(sheetImage, arcanum::ArtFolder::sheetFileName(name, palette, format));
}

// Copies the frame's pixels, in colour, to the top left corner of its cell.
void ExportCommand::place(const QImage& frame, QImage& target, int x, int y)
{
    if (frame.isNull())
        return;
    const QImage colours = frame.convertToFormat(QImage::Format_ARGB32);
    for (int row = 0; row < colours.height(); ++row)
        std::memcpy(target.scanLine(y + row) + std::size_t(x) * 4, colours.constScanLine(row),
                    std::size_t(colours.width()) * 4);
}

bool ExportCommand::write(const QImage& image, const QString& fileName)
{
    const QString path = QDir(outDir).filePath(fileName);
    // JPEG has no alpha channel and no palettes.
    const QImage saved = format == QLatin1String("jpg") ? image.convertToFormat(QImage::Format_RGB32) : image;
    if (saved.save(path, format.toLatin1().constData()))
        return true;
    QTextStream(stderr) << path << ": error: cannot be written" << Qt::endl;
    return false;
}
