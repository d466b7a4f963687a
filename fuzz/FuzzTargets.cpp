#include "FuzzTargets.h"

#include "ArtFolder.h"
#include "Artfile.h"
#include "DatArchive.h"
#include "DatWriter.h"
#include "DialogueFile.h"
#include "FormatRegistry.h"
#include "Mesfile.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QVector>
#include <QImage>
#include <QTemporaryDir>
#include <QTextCodec>

#include <algorithm>
#include <cstring>
#include <iostream>
#include <memory>
#include <streambuf>

namespace fuzz {

namespace {

// One directory per process, so parallel fuzzers and tests never share files.
const QTemporaryDir& workDir()
{
    static const QTemporaryDir dir;
    return dir;
}

QString workPath(const char* name, const char* suffix)
{
    return workDir().filePath(QLatin1String(name) + QLatin1String(suffix));
}

QString writeInput(const std::uint8_t* data, std::size_t size, const char* suffix)
{
    const QString path = workPath("input", suffix);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(reinterpret_cast<const char*>(data), qint64(size));
    return path;
}

QByteArray readBack(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Saves what the input loaded to, loads that into a fresh model and saves again; returns 1 when what
// we wrote does not load or save, or (where the format is stable) when the two saves differ.
// load(path, model) returns false when the file is refused, save(model, path) when a loaded model
// cannot be saved.
enum Stability { Stable, Grows };

template <typename Model, typename Load, typename Save>
int roundTrip(const std::uint8_t* data, std::size_t size, const char* suffix, Load load, Save save,
              Stability stability = Stable)
{
    const QString input = writeInput(data, size, suffix);
    const QString first = workPath("first", suffix);
    const QString second = workPath("second", suffix);
    QFile::remove(first);
    QFile::remove(second);
    auto loaded = std::make_unique<Model>();
    if (!load(input, *loaded) || !save(*loaded, first))
        return 0;
    auto reloaded = std::make_unique<Model>();
    if (!load(first, *reloaded))
        return 1; // what we wrote ourselves must load
    if (!save(*reloaded, second))
        return 1;
    return stability == Grows || readBack(first) == readBack(second) ? 0 : 1;
}

QTextCodec* cp1251()
{
    return QTextCodec::codecForName("Windows-1251");
}

QTextCodec* utf8()
{
    return QTextCodec::codecForName("UTF-8");
}

template <typename Model>
int roundTripTable(const std::uint8_t* data, std::size_t size, const char* suffix, QTextCodec* codec,
                   Stability stability = Stable)
{
    return roundTrip<Model>(
        data, size, suffix, [codec](const QString& path, Model& model) { return model.loadFile(path, codec); },
        [codec](Model& model, const QString& path) { return model.save(path, codec); }, stability);
}

// Every frame through every palette: the conversion reads the pixel data the way the page shows it.
void convertEveryFrame(arcanum::Artfile& art)
{
    QImage image;
    for (unsigned palette = 0; palette < art.getPaletteCount(); ++palette) {
        for (unsigned i = 0; i < art.getImageCount(); ++i) {
            for (unsigned frame = 0; frame < art.getFrameCount(); ++frame)
                art.convertTo(image, palette, i, frame);
        }
    }
}

class NullBuffer : public std::streambuf
{
protected:
    int overflow(int c) override { return c; }
    std::streamsize xsputn(const char*, std::streamsize count) override { return count; }
};

void dropMessages(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtFatalMsg) {
        std::cerr << text.toLocal8Bit().constData() << std::endl;
        std::abort();
    }
}

// What a file of the named format rewrites to must load and rewrite to the same bytes again.
int roundTripFormat(const char* name, const std::uint8_t* data, std::size_t size, QTextCodec* codec)
{
    const arcanum::FileFormat* format = arcanum::FormatRegistry::byName(QLatin1String(name));
    // The script reader takes its number from the file name.
    const QString path = QStringLiteral("00001fuzz.") + format->name;
    const QByteArray input = QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size));
    QByteArray first;
    QByteArray second;
    QString error;
    if (!format->rewrite(path, input, codec, first, error))
        return 0;
    if (!format->rewrite(path, first, codec, second, error))
        return 1;
    return first == second ? 0 : 1;
}

const Target TARGETS[] = {
    {"mes-utf8", ".mes", &roundTripMesUtf8},
    {"mes-cp1251", ".mes", &roundTripMesCp1251},
    {"dlg-table", ".dlg", &roundTripDialogueTable},
    {"dlg", ".dlg", &roundTripDialogue},
    {"scr", ".scr", &roundTripScript},
    {"art", ".art", &roundTripArt},
    {"pro", ".pro", &roundTripProto},
    {"aap", ".aap", &roundTripPalette},
    {"dat", ".dat", &roundTripArchive},
    {"art-folder", ".json", &roundTripArtFolder},
};

} // namespace

int roundTripMesUtf8(const std::uint8_t* data, std::size_t size)
{
    return roundTripFormat("mes", data, size, utf8());
}

int roundTripMesCp1251(const std::uint8_t* data, std::size_t size)
{
    return roundTripFormat("mes", data, size, cp1251());
}

// The table writes text after a line's last field twice, as it always has, so each save grows.
int roundTripDialogueTable(const std::uint8_t* data, std::size_t size)
{
    return roundTripTable<arcanum::DialogueFile>(data, size, ".dlg", cp1251(), Grows);
}

int roundTripDialogue(const std::uint8_t* data, std::size_t size)
{
    return roundTripFormat("dlg", data, size, cp1251());
}

int roundTripScript(const std::uint8_t* data, std::size_t size)
{
    return roundTripFormat("scr", data, size, nullptr);
}

int roundTripArt(const std::uint8_t* data, std::size_t size)
{
    arcanum::Artfile art;
    if (art.loadBytes(QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size))))
        convertEveryFrame(art);
    return roundTripFormat("art", data, size, nullptr);
}

int roundTripProto(const std::uint8_t* data, std::size_t size)
{
    return roundTripFormat("pro", data, size, nullptr);
}

int roundTripArtFolder(const std::uint8_t* data, std::size_t size)
{
    const QString in = workDir().filePath(QStringLiteral("folder-in"));
    const QString out = workDir().filePath(QStringLiteral("folder-out"));
    QDir(in).removeRecursively();
    QDir(out).removeRecursively();
    QDir().mkpath(in);
    QFile description(QDir(in).filePath(QStringLiteral("sprite.json")));
    if (!description.open(QIODevice::WriteOnly) || description.write(reinterpret_cast<const char*>(data), qint64(size)) != qint64(size))
        return 0;
    description.close();
    arcanum::Artfile art;
    QString error;
    if (!arcanum::ArtFolder::read(in, art, error))
        return 0;
    arcanum::Artfile again;
    if (!arcanum::ArtFolder::write(art, QStringLiteral("sprite"), out, {}, error)
        || !arcanum::ArtFolder::read(out, again, error))
        return 1;
    return again.toBytes() == art.toBytes() ? 0 : 1;
}

int roundTripPalette(const std::uint8_t* data, std::size_t size)
{
    return roundTripFormat("aap", data, size, nullptr);
}

namespace {

// The files of an archive that are safe to unpack, with their bytes; false when it cannot be opened.
bool unpack(const QString& path, QVector<arcanum::DatWriter::File>& files)
{
    arcanum::DatArchive archive;
    QString error;
    if (!archive.open(path, error))
        return false;
    archive.verify();
    for (const arcanum::DatArchive::Entry& entry : archive.entries()) {
        QByteArray bytes;
        if (!entry.isFolder() && arcanum::DatArchive::unsafeName(entry.name).isEmpty()
            && archive.read(entry, bytes, error))
            files.append({entry.name, bytes});
    }
    return true;
}

} // namespace

int roundTripArchive(const std::uint8_t* data, std::size_t size)
{
    QVector<arcanum::DatWriter::File> files;
    if (!unpack(writeInput(data, size, ".dat"), files))
        return 0;
    // Names that differ only in letter case cannot both be written; the first one stays.
    QSet<QString> seen;
    files.erase(std::remove_if(files.begin(), files.end(),
                               [&seen](const arcanum::DatWriter::File& file) {
                                   const QString key = QString(file.first).replace(QLatin1Char('\\'), QLatin1Char('/')).toLower();
                                   if (seen.contains(key))
                                       return true;
                                   seen.insert(key);
                                   return false;
                               }),
                files.end());
    const QString first = workPath("first", ".dat");
    const QString second = workPath("second", ".dat");
    QString error;
    QVector<arcanum::DatWriter::File> again;
    if (!arcanum::DatWriter::write(first, files, error) || !unpack(first, again)
        || !arcanum::DatWriter::write(second, again, error))
        return 1;
    return readBack(first) == readBack(second) ? 0 : 1;
}

const Target* targets(std::size_t* count)
{
    *count = sizeof TARGETS / sizeof TARGETS[0];
    return TARGETS;
}

const Target* findTarget(const char* kind)
{
    for (const Target& target : TARGETS) {
        if (std::strcmp(target.kind, kind) == 0)
            return &target;
    }
    return nullptr;
}

void silence()
{
    static NullBuffer nothing;
    std::cout.rdbuf(&nothing);
    qInstallMessageHandler(dropMessages);
}

} // namespace fuzz
