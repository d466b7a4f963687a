#include "ArtCommand.h"

#include "CommandLine.h"
#include "ExportCommand.h"

#include "ArtFolder.h"
#include "ArtImageFile.h"
#include "ArtMaker.h"
#include "Artfile.h"
#include "PaletteFile.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QTextStream>

using arcanum::Artfile;

namespace {

// A whole number from 0, or nothing.
bool readCount(const QString& text, quint32& value)
{
    bool ok = false;
    const qulonglong number = text.toULongLong(&ok);
    if (!ok || number > 0xFFFFFFFFull)
        return false;
    value = quint32(number);
    return true;
}

QStringList imagesIn(const QString& dir)
{
    QStringList patterns;
    for (const QByteArray& suffix : QImageReader::supportedImageFormats())
        patterns << QStringLiteral("*.") + QString::fromLatin1(suffix);
    QStringList files;
    for (const QString& name : QDir(dir).entryList(patterns, QDir::Files, QDir::Name))
        files << QDir(dir).filePath(name);
    return files;
}

} // namespace

ArtCommand::ArtCommand(const Options& chosen)
    : options(chosen)
{
}

int ArtCommand::run(const QStringList& operands)
{
    const QString sub = operands.value(0);
    const QStringList rest = operands.mid(1);
    if (sub == QLatin1String("export") && rest.size() == 2)
        return exportFolder(rest.at(0), rest.at(1));
    if (sub == QLatin1String("import") && rest.size() == 2)
        return importFolder(rest.at(0), rest.at(1));
    if (sub == QLatin1String("from-images") && rest.size() >= 2)
        return fromImages(rest.mid(0, rest.size() - 1), rest.last());
    if (sub == QLatin1String("info") && rest.size() == 1)
        return info(rest.at(0));
    const QStringList known = {"export", "import", "from-images", "info"};
    return usage(known.contains(sub) ? QStringLiteral("wrong number of arguments for art %1").arg(sub)
                                     : QStringLiteral("art takes export, import, from-images or info"));
}

int ArtCommand::exportFolder(const QString& artPath, const QString& dir)
{
    quint32 palette = 0;
    if (!options.palette.isEmpty() && !readCount(options.palette, palette))
        return usage(QStringLiteral("--palette takes a number from 0"));
    Artfile art;
    if (!ExportCommand::loadArt(artPath, art))
        return CommandLine::Failure;
    QString error;
    if (palette >= art.getPaletteCount())
        return fail(QStringLiteral("%1: has no palette %2").arg(artPath).arg(palette));
    if (!arcanum::ArtFolder::write(art, QFileInfo(artPath).completeBaseName(), dir, {options.sheet, palette}, error))
        return fail(error);
    QTextStream(stdout) << "art folder written to " << QDir::toNativeSeparators(QDir(dir).absolutePath()) << Qt::endl;
    return CommandLine::Clean;
}

int ArtCommand::importFolder(const QString& dir, const QString& artPath)
{
    Artfile art;
    QString error;
    if (!arcanum::ArtFolder::read(dir, art, error))
        return fail(error);
    if (!art.save(artPath))
        return fail(QStringLiteral("%1: cannot be written").arg(artPath));
    return written(artPath, art);
}

int ArtCommand::fromImages(const QStringList& inputs, const QString& artPath)
{
    arcanum::ArtMaker::Settings settings;
    settings.dither = options.dither;
    if (!options.fps.isEmpty() && !readCount(options.fps, settings.frameRate))
        return usage(QStringLiteral("--fps takes a whole number of frames per second"));
    if (!options.action.isEmpty() && !readCount(options.action, settings.actionFrame))
        return usage(QStringLiteral("--action takes a frame number from 0"));
    if (!options.hotspot.isEmpty()) {
        const QRegularExpressionMatch point =
            QRegularExpression(QStringLiteral("^(-?\\d{1,9}),(-?\\d{1,9})$")).match(options.hotspot);
        if (!point.hasMatch())
            return usage(QStringLiteral("--hotspot takes X,Y (pixels from the frame's top left corner)"));
        settings.ownHotspot = true;
        settings.hotspot = QPoint(point.captured(1).toInt(), point.captured(2).toInt());
    }
    if (!options.palette.isEmpty() && !options.from.isEmpty())
        return usage(QStringLiteral("--palette and --from both choose the palette: give one"));
    if (QFileInfo(artPath).suffix().toLower() != QLatin1String("art"))
        return fail(QStringLiteral("%1: the new art file's name must end in .art").arg(artPath));
    QString error;
    if (!options.palette.isEmpty()) {
        if (!arcanum::PaletteFile::read(options.palette, settings.palette, error))
            return fail(QStringLiteral("%1: %2").arg(options.palette, error));
        settings.ownPalette = true;
    } else if (!options.from.isEmpty()) {
        Artfile source;
        if (!ExportCommand::loadArt(options.from, source))
            return CommandLine::Failure;
        Artfile::copyPalette(source.paletteAt(0), settings.palette);
        settings.ownPalette = true;
    }
    std::vector<std::vector<QImage>> images;
    if (!readFrames(inputs, images))
        return CommandLine::Failure;
    Artfile art;
    if (!arcanum::ArtMaker::make(images, settings, art, error))
        return fail(QStringLiteral("%1: %2").arg(artPath, error));
    if (!art.save(artPath))
        return fail(QStringLiteral("%1: cannot be written").arg(artPath));
    return written(artPath, art);
}

// Files are images of one frame each; folders are directions, their images (by name) the frames.
bool ArtCommand::readFrames(const QStringList& inputs, std::vector<std::vector<QImage>>& images)
{
    const bool folders = QFileInfo(inputs.first()).isDir();
    for (const QString& input : inputs) {
        if (QFileInfo(input).isDir() != folders) {
            fail(QStringLiteral("%1: give image files (one frame each) or folders (one direction each), not both").arg(input));
            return false;
        }
        const QStringList files = folders ? imagesIn(input) : QStringList{input};
        if (files.isEmpty()) {
            fail(QStringLiteral("%1: the folder holds no images").arg(input));
            return false;
        }
        std::vector<QImage> frames;
        for (const QString& file : files) {
            QImage image;
            QString error;
            if (!arcanum::ArtImageFile::read(file, image, error)) {
                fail(error);
                return false;
            }
            frames.push_back(image);
        }
        if (folders)
            images.push_back(frames);
        else
            images.push_back({frames.front()});
    }
    return true;
}

int ArtCommand::info(const QString& artPath)
{
    Artfile art;
    if (!ExportCommand::loadArt(artPath, art))
        return CommandLine::Failure;
    QTextStream out(stdout);
    const quint32 type = art.headerWord(0);
    const bool directions = type == 0 || type == 2;
    out << artPath << ": " << art.getImageCount() << (directions ? " directions" : " images") << " of "
        << art.getFrameCount() << (art.getFrameCount() == 1 ? " frame" : " frames") << ", "
        << art.getPaletteCount() << (art.getPaletteCount() == 1 ? " palette" : " palettes") << Qt::endl;
    out << "frame rate: " << art.frameRate() << " frames per second" << Qt::endl;
    out << "action frame: " << art.actionFrame() << Qt::endl;
    for (unsigned i = 0; i < art.getImageCount(); ++i) {
        for (unsigned f = 0; f < art.getFrameCount(); ++f) {
            const Artfile::Image& frame = art.frameAt(i, f);
            out << (directions ? "direction " : "image ") << i << " frame " << f << ": " << frame.width << "x"
                << frame.height << ", hotspot " << frame.left << "," << frame.top << ", offset " << frame.dx << ","
                << frame.dy << ", " << (frame.isRaw() ? "raw" : "run-length") << " " << frame.dataSize << " bytes"
                << Qt::endl;
        }
    }
    return CommandLine::Clean;
}

int ArtCommand::written(const QString& artPath, const Artfile& art)
{
    QTextStream(stdout) << artPath << " written: " << art.getImageCount()
                        << (art.getImageCount() == 1 ? " image of " : " images of ") << art.getFrameCount()
                        << (art.getFrameCount() == 1 ? " frame" : " frames") << Qt::endl;
    return CommandLine::Clean;
}

// The library's messages start with the file they are about: "FILE: what".
int ArtCommand::fail(const QString& message)
{
    const qsizetype colon = message.indexOf(QLatin1String(": "));
    QTextStream err(stderr);
    if (colon < 0)
        err << "loreka: error: " << message << Qt::endl;
    else
        err << message.left(colon) << ": error: " << message.mid(colon + 2) << Qt::endl;
    return CommandLine::Failure;
}

int ArtCommand::usage(const QString& message)
{
    return CommandLine::usageError(message);
}
