#include "ArtFolder.h"

#include "ArtImageFile.h"
#include "ArtRunLength.h"
#include "SafeSave.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace arcanum {

namespace {
const QString KIND = QStringLiteral("loreka art folder");
constexpr int VERSION = 1;
const QString RAW = QStringLiteral("raw");
const QString RUN_LENGTH = QStringLiteral("run-length");
// The description of 8 directions × 64 run-length frames of 256 × 256 is under 30 MB; one many times
// larger is not an export of ours, and reading it whole could take all memory.
constexpr qint64 MAX_DESCRIPTION_BYTES = qint64(512) << 20;

QString base64(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

QString checksum(const QByteArray& pixels)
{
    return QString::fromLatin1(QCryptographicHash::hash(pixels, QCryptographicHash::Sha1).toHex());
}

// Copies a width × height block out of rows of rowWidth indices.
QByteArray crop(const QByteArray& rows, int rowWidth, int left, int top, int width, int height)
{
    QByteArray out;
    out.reserve(qsizetype(width) * height);
    for (int y = 0; y < height; ++y)
        out.append(rows.constData() + qsizetype(top + y) * rowWidth + left, width);
    return out;
}

void paste(QByteArray& rows, int rowWidth, int left, int top, const QByteArray& block, int width)
{
    for (int y = 0; y < block.size() / std::max(width, 1); ++y)
        std::copy_n(block.constData() + qsizetype(y) * width, width, rows.data() + qsizetype(top + y) * rowWidth + left);
}
} // namespace

QString ArtFolder::frameFileName(const QString& name, unsigned image, unsigned frame, const QString& suffix)
{
    return QStringLiteral("%1_i%2_f%3.%4").arg(name).arg(image).arg(frame).arg(suffix);
}

QString ArtFolder::sheetFileName(const QString& name, unsigned palette, const QString& suffix)
{
    return QStringLiteral("%1_p%2.%3").arg(name).arg(palette).arg(suffix);
}

QSize ArtFolder::sheetCell(const Artfile& art)
{
    QSize cell(1, 1);
    for (unsigned i = 0; i < art.getImageCount(); ++i) {
        for (unsigned f = 0; f < art.getFrameCount(); ++f) {
            const Artfile::Image& frame = art.frameAt(i, f);
            if (!art.framePixels(i, f).isEmpty())
                cell = cell.expandedTo(QSize(int(frame.width), int(frame.height)));
        }
    }
    return cell;
}

// ---------------------------------------------------------------------------------------------
// Writing

class ArtFolder::Writer
{
public:
    Writer(const Artfile& source, const QString& artName, const Options& chosen)
        : art(source)
        , name(artName)
        , options(chosen)
    {
    }

    bool writeInto(const QString& folder, QString& error)
    {
        QJsonObject description{{"kind", KIND},
                                {"version", VERSION},
                                {"header", base64(art.headerBytes())},
                                {"frameRate", qint64(art.frameRate())},
                                {"actionFrame", qint64(art.actionFrame())},
                                {"trailer", base64(art.trailerBytes())},
                                {"pngPalette", int(options.palette)}};
        QJsonArray palettes;
        for (unsigned p = 0; p < art.getPaletteCount(); ++p)
            palettes.append(base64(Artfile::paletteToBytes(art.paletteAt(p))));
        description.insert("palettes", palettes);
        QJsonArray images;
        for (unsigned i = 0; i < art.getImageCount(); ++i) {
            QJsonArray frames;
            for (unsigned f = 0; f < art.getFrameCount(); ++f) {
                QJsonObject frame;
                if (!writeFrame(folder, i, f, frame, error))
                    return false;
                frames.append(frame);
            }
            images.append(frames);
        }
        description.insert("images", images);
        if (!sheetPixels.isEmpty()) { // no sheet when not one frame can be drawn
            const QString sheet = sheetFileName(name, options.palette, QStringLiteral("png"));
            description.insert("sheet", sheet);
            if (!ArtImageFile::writeIndexed(QDir(folder).filePath(sheet), sheetPixels, sheetSize.width(),
                                            sheetSize.height(), art.paletteAt(options.palette), error))
                return false;
        }
        const QString json = QDir(folder).filePath(name + QStringLiteral(".json"));
        QString why;
        if (SafeSave::write(json, QJsonDocument(description).toJson(), &why) != SafeSave::Saved) {
            error = QStringLiteral("%1: cannot be written (%2)").arg(json, why);
            return false;
        }
        return true;
    }

private:
    bool writeFrame(const QString& folder, unsigned i, unsigned f, QJsonObject& out, QString& error)
    {
        const Artfile::Image& frame = art.frameAt(i, f);
        out = {{"width", qint64(frame.width)}, {"height", qint64(frame.height)}, {"left", frame.left},
               {"top", frame.top},             {"dx", frame.dx},                 {"dy", frame.dy},
               {"encoding", frame.isRaw() ? RAW : RUN_LENGTH}};
        const QByteArray pixels = art.framePixels(i, f);
        if (pixels.isEmpty() || !frame.isRaw())
            out.insert("data", base64(frame.data));
        if (pixels.isEmpty()) // a damaged size: nothing to draw, the bytes are all there is
            return true;
        out.insert("pixels", checksum(pixels));
        if (options.sheet) {
            placeOnSheet(i, f, pixels, int(frame.width));
            return true;
        }
        const QString file = frameFileName(name, i, f, QStringLiteral("png"));
        out.insert("file", file);
        return ArtImageFile::writeIndexed(QDir(folder).filePath(file), pixels, int(frame.width),
                                          int(frame.height), art.paletteAt(options.palette), error);
    }

    void placeOnSheet(unsigned i, unsigned f, const QByteArray& pixels, int width)
    {
        if (sheetPixels.isEmpty()) {
            cell = sheetCell(art);
            sheetSize = QSize(cell.width() * int(art.getFrameCount()), cell.height() * int(art.getImageCount()));
            sheetPixels = QByteArray(qsizetype(sheetSize.width()) * sheetSize.height(), '\0');
        }
        paste(sheetPixels, sheetSize.width(), int(f) * cell.width(), int(i) * cell.height(), pixels, width);
    }

    const Artfile& art;
    QString name;
    Options options;
    QSize cell;
    QSize sheetSize;
    QByteArray sheetPixels;
};

bool ArtFolder::write(const Artfile& art, const QString& name, const QString& dir, const Options& options,
                      QString& error)
{
    if (!art.isLoaded() || options.palette >= art.getPaletteCount()) {
        error = QStringLiteral("%1: the art has no palette %2").arg(name).arg(options.palette);
        return false;
    }
    if (options.sheet) {
        const QSize cell = sheetCell(art);
        if (!ArtImageFile::fitsAFrame(qint64(cell.width()) * art.getFrameCount(),
                                      qint64(cell.height()) * art.getImageCount())) {
            error = QStringLiteral("%1: the frames make a sheet too large for one image; export them one by one")
                        .arg(name);
            return false;
        }
    }
    const QString target = QDir::cleanPath(QDir(dir).absolutePath());
    const QString parent = QFileInfo(target).path();
    if (!QDir().mkpath(parent)) {
        error = QStringLiteral("%1: cannot be created").arg(parent);
        return false;
    }
    QTemporaryDir staging(QDir(parent).filePath(QStringLiteral(".loreka-export-XXXXXX")));
    if (!staging.isValid()) {
        error = QStringLiteral("%1: no temporary folder can be made here (%2)").arg(parent, staging.errorString());
        return false;
    }
    if (!Writer(art, name, options).writeInto(staging.path(), error))
        return false;
    // Everything is written: now the files move into place, a rename each.
    if (!QFileInfo::exists(target)) {
        if (!QDir().rename(staging.path(), target)) {
            error = QStringLiteral("%1: cannot be created").arg(target);
            return false;
        }
        staging.setAutoRemove(false);
        return true;
    }
    const QDir from(staging.path());
    for (const QString& file : from.entryList(QDir::Files)) {
        const QString to = QDir(target).filePath(file);
        QFile::remove(to);
        if (!QFile::rename(from.filePath(file), to)) {
            error = QStringLiteral("%1: cannot be written").arg(to);
            return false;
        }
    }
    return true;
}

// ---------------------------------------------------------------------------------------------
// Reading

class ArtFolder::Reader
{
public:
    explicit Reader(const QString& folder)
        : dir(folder)
    {
    }

    bool read(Artfile& art, QString& error)
    {
        if (!findDescription(error) || !readDescription(error) || !readSheet(error))
            return false;
        std::vector<std::vector<Artfile::Image>> frames;
        const QJsonArray images = description.value("images").toArray();
        for (int i = 0; i < images.size(); ++i) {
            frames.emplace_back();
            const QJsonArray row = images.at(i).toArray();
            if (i > 0 && row.size() != images.at(0).toArray().size())
                return disagree(QStringLiteral("image %1 has %2 frames, image 0 has %3")
                                    .arg(i).arg(row.size()).arg(images.at(0).toArray().size()), error);
            for (int f = 0; f < row.size(); ++f) {
                Artfile::Image frame;
                if (!readFrame(row.at(f).toObject(), i, f, frame, error))
                    return false;
                frames.back().push_back(frame);
            }
        }
        Artfile loaded;
        if (!loaded.loadBytes(Artfile::assemble(header, paletteBytes, frames, trailer)))
            return disagree(QStringLiteral("its header does not describe the frames listed: %1").arg(loaded.loadFailure()),
                            error);
        if (loaded.getImageCount() != frames.size() || loaded.getFrameCount() != frames.front().size()
            || loaded.getPaletteCount() != paletteBytes.size())
            return disagree(QStringLiteral("its header counts %1 images of %2 frames and %3 palettes, it lists %4 of %5 and %6")
                                .arg(loaded.getImageCount()).arg(loaded.getFrameCount()).arg(loaded.getPaletteCount())
                                .arg(frames.size()).arg(frames.front().size()).arg(paletteBytes.size()),
                            error);
        art = loaded;
        return true;
    }

private:
    bool findDescription(QString& error)
    {
        if (!dir.exists()) {
            error = QStringLiteral("%1: no such folder").arg(dir.path());
            return false;
        }
        const QStringList all = dir.entryList(QDir::Files);
        if (all.isEmpty()) {
            error = QStringLiteral("%1: the folder is empty, there is nothing to import").arg(dir.path());
            return false;
        }
        const QStringList found = dir.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
        if (found.size() != 1) {
            error = found.isEmpty()
                ? QStringLiteral("%1: no art description (.json) beside the images; `loreka art export` writes one")
                      .arg(dir.path())
                : QStringLiteral("%1: more than one .json (%2); keep the one the export wrote").arg(dir.path(), found.join(", "));
            return false;
        }
        jsonPath = dir.filePath(found.first());
        return true;
    }

    bool readDescription(QString& error)
    {
        QFile file(jsonPath);
        if (!file.open(QIODevice::ReadOnly)) {
            error = QStringLiteral("%1: cannot be opened").arg(jsonPath);
            return false;
        }
        if (file.size() > MAX_DESCRIPTION_BYTES) {
            error = QStringLiteral("%1: %2 bytes is larger than any art description (%3 at most)")
                        .arg(jsonPath).arg(file.size()).arg(MAX_DESCRIPTION_BYTES);
            return false;
        }
        QJsonParseError parse;
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parse);
        if (!document.isObject()) {
            error = QStringLiteral("%1: not JSON (%2 at offset %3)").arg(jsonPath, parse.errorString()).arg(parse.offset);
            return false;
        }
        description = document.object();
        if (description.value("kind").toString() != KIND || description.value("version").toInt() != VERSION)
            return disagree(QStringLiteral("not an art description of version %1 (\"kind\": \"%2\")").arg(VERSION).arg(KIND),
                            error);
        header = bytesOf("header");
        trailer = bytesOf("trailer");
        if (header.size() != qsizetype(Artfile::HEADER_SIZE))
            return disagree(QStringLiteral("\"header\" holds %1 bytes, not %2").arg(header.size()).arg(Artfile::HEADER_SIZE),
                            error);
        // The two header words a modder may want to change by hand; equal to the header's when untouched.
        for (const auto& [key, offset] : {std::pair{"frameRate", 4}, std::pair{"actionFrame", 28}}) {
            if (!description.contains(QLatin1String(key)))
                continue;
            const std::optional<quint32> value = word(description, key);
            if (!value)
                return disagree(QStringLiteral("\"%1\" needs a whole number from 0").arg(QLatin1String(key)), error);
            qToLittleEndian(*value, header.data() + offset);
        }
        const QJsonArray palettes = description.value("palettes").toArray();
        for (int p = 0; p < palettes.size(); ++p) {
            paletteBytes.push_back(QByteArray::fromBase64(palettes.at(p).toString().toLatin1()));
            if (paletteBytes.back().size() != qsizetype(Artfile::PALETTE_BYTES))
                return disagree(QStringLiteral("palette %1 holds %2 bytes, not %3")
                                    .arg(p).arg(paletteBytes.back().size()).arg(Artfile::PALETTE_BYTES),
                                error);
        }
        const int colouredBy = description.value("pngPalette").toInt(-1);
        if (paletteBytes.empty() || paletteBytes.size() > Artfile::MAX_PALETTES || colouredBy < 0
            || colouredBy >= int(paletteBytes.size()))
            return disagree(QStringLiteral("lists %1 palettes and colours its images with palette %2")
                                .arg(paletteBytes.size()).arg(colouredBy),
                            error);
        Artfile::paletteFromBytes(paletteBytes[std::size_t(colouredBy)], palette);
        const QJsonArray images = description.value("images").toArray();
        if (images.isEmpty() || images.at(0).toArray().isEmpty())
            return disagree(QStringLiteral("lists no frame"), error);
        return true;
    }

    // The sheet's indices, when the frames are on one.
    bool readSheet(QString& error)
    {
        const QString sheetName = description.value("sheet").toString();
        if (sheetName.isEmpty())
            return true;
        QImage image;
        if (!readImage(sheetName, image, error))
            return false;
        const QJsonArray images = description.value("images").toArray();
        const int columns = int(images.at(0).toArray().size());
        const int rows = int(images.size());
        if (image.width() % columns != 0 || image.height() % rows != 0) {
            error = QStringLiteral("%1: %2 × %3 pixels is not a grid of %4 frames by %5 images of equal cells")
                        .arg(dir.filePath(sheetName)).arg(image.width()).arg(image.height()).arg(columns).arg(rows);
            return false;
        }
        sheet = ArtImageFile::indicesOf(image, palette);
        sheetWidth = image.width();
        cell = QSize(image.width() / columns, image.height() / rows);
        return true;
    }

    bool readImage(const QString& name, QImage& image, QString& error)
    {
        const QString path = dir.filePath(name);
        if (name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\')) || !QFileInfo::exists(path)) {
            error = QStringLiteral("%1: missing, %2 names it").arg(path, jsonPath);
            return false;
        }
        return ArtImageFile::read(path, image, error);
    }

    bool readFrame(const QJsonObject& in, int i, int f, Artfile::Image& frame, QString& error)
    {
        const QString where = QStringLiteral("image %1 frame %2").arg(i).arg(f);
        const std::optional<quint32> width = word(in, "width");
        const std::optional<quint32> height = word(in, "height");
        const std::optional<quint32> left = word(in, "left", true);
        const std::optional<quint32> top = word(in, "top", true);
        const std::optional<quint32> dx = word(in, "dx", true);
        const std::optional<quint32> dy = word(in, "dy", true);
        if (!width || !height || !left || !top || !dx || !dy)
            return disagree(where + QStringLiteral(": its size and placement need whole numbers"), error);
        frame.left = qint32(*left);
        frame.top = qint32(*top);
        frame.dx = qint32(*dx);
        frame.dy = qint32(*dy);
        const QByteArray stored = QByteArray::fromBase64(in.value("data").toString().toLatin1());
        if (!in.contains("pixels")) { // a frame the export could not draw keeps its bytes
            frame.setData(*width, *height, stored);
            return true;
        }
        if (!ArtImageFile::fitsAFrame(*width, *height))
            return disagree(QStringLiteral("%1 has a picture but %2 × %3 pixels is no size a picture can have")
                                .arg(where).arg(*width).arg(*height),
                            error);
        QByteArray pixels;
        QSize size;
        if (!framePixels(in, where, f, i, QSize(int(*width), int(*height)), pixels, size, error))
            return false;
        const bool unchanged = size == QSize(int(*width), int(*height)) && checksum(pixels) == in.value("pixels").toString();
        if (unchanged && in.value("encoding").toString() == RAW)
            frame.setData(*width, *height, pixels);
        else if (unchanged && in.value("encoding").toString() == RUN_LENGTH && !stored.isEmpty())
            frame.setData(*width, *height, stored);
        else
            frame.setData(quint32(size.width()), quint32(size.height()), ArtRunLength::pack(pixels));
        return true;
    }

    bool framePixels(const QJsonObject& in, const QString& where, int f, int i, QSize listed, QByteArray& pixels,
                     QSize& size, QString& error)
    {
        if (!sheet.isEmpty()) {
            if (listed.width() > cell.width() || listed.height() > cell.height())
                return disagree(QStringLiteral("%1 is %2 × %3 pixels, the sheet's cells %4 × %5")
                                    .arg(where).arg(listed.width()).arg(listed.height()).arg(cell.width()).arg(cell.height()),
                                error);
            pixels = crop(sheet, sheetWidth, f * cell.width(), i * cell.height(), listed.width(), listed.height());
            size = listed;
            return true;
        }
        const QString file = in.value("file").toString();
        if (file.isEmpty())
            return disagree(where + QStringLiteral(" names no image file"), error);
        QImage image;
        if (!readImage(file, image, error))
            return false;
        pixels = ArtImageFile::indicesOf(image, palette);
        size = image.size();
        return true;
    }

    QByteArray bytesOf(const char* key) const
    {
        return QByteArray::fromBase64(description.value(QLatin1String(key)).toString().toLatin1());
    }

    // A 32-bit header word: unsigned, or with isSigned any value of a signed word.
    static std::optional<quint32> word(const QJsonObject& in, const char* key, bool isSigned = false)
    {
        const QJsonValue value = in.value(QLatin1String(key));
        const double number = value.toDouble(-1e300);
        const double low = isSigned ? -2147483648.0 : 0.0;
        const double high = isSigned ? 2147483647.0 : 4294967295.0;
        if (!value.isDouble() || number != double(qint64(number)) || number < low || number > high)
            return std::nullopt;
        return quint32(qint64(number));
    }

    bool disagree(const QString& what, QString& error) const
    {
        error = QStringLiteral("%1: %2").arg(jsonPath.isEmpty() ? dir.path() : jsonPath, what);
        return false;
    }

    QDir dir;
    QString jsonPath;
    QJsonObject description;
    QByteArray header;
    QByteArray trailer;
    std::vector<QByteArray> paletteBytes;
    Artfile::Palette palette{};
    QByteArray sheet;
    int sheetWidth = 0;
    QSize cell;
};

bool ArtFolder::read(const QString& dir, Artfile& art, QString& error)
{
    return Reader(dir).read(art, error);
}

} // namespace arcanum
