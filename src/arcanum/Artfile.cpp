#include "Artfile.h"

#include "ArtRunLength.h"
#include "LittleEndian.h"
#include "SafeSave.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <iostream>

namespace arcanum {

namespace {
constexpr unsigned ART_TYPE = 0;
constexpr unsigned WORD_4 = 4;
constexpr unsigned WORD_8 = 8;
constexpr unsigned PALETTE_MARKS = 12;
constexpr unsigned ANIMATION_WORD = 28;
constexpr unsigned FRAME_COUNT = 32;
constexpr unsigned DIRECTIONS = 8;
constexpr unsigned TILE_IMAGES = 225;
// Larger frames are damaged headers, not sprites; refusing them keeps one bad word from
// asking for gigabytes.
constexpr quint64 MAX_FRAME_PIXELS = quint64(1) << 26;

void appendPalette(QByteArray& out, const Artfile::Colour (&colours)[Artfile::PALETTE_SIZE])
{
    for (const Artfile::Colour& c : colours) {
        const char entry[4] = {char(c.blue), char(c.green), char(c.red), char(c.extra)};
        out.append(entry, 4);
    }
}

void say(const char* text)
{
    std::cout << text << std::endl;
}
} // namespace

Artfile::Colour Artfile::Colour::fromArgb(QRgb value)
{
    return {quint8(qBlue(value)), quint8(qGreen(value)), quint8(qRed(value)), quint8(qAlpha(value))};
}

bool Artfile::Colour::operator==(const Colour& other) const
{
    return blue == other.blue && green == other.green && red == other.red && extra == other.extra;
}

Artfile::Image::Image()
    : width(16)
    , height(16)
    , left(0)
    , top(0)
    , dx(0)
    , dy(0)
    , data(ArtRunLength::pack(QByteArray(256, '\0')))
{
    dataSize = quint32(data.size());
}

bool Artfile::drawable(const Image& frame)
{
    const quint64 pixels = quint64(frame.width) * frame.height;
    const bool unreachable = !frame.isRaw() && pixels > ArtRunLength::mostPixels(frame.dataSize);
    return pixels != 0 && pixels <= MAX_FRAME_PIXELS && !unreachable;
}

void Artfile::Image::setData(quint32 newWidth, quint32 newHeight, const QByteArray& bytes)
{
    width = newWidth;
    height = newHeight;
    data = bytes;
    dataSize = quint32(bytes.size());
}

Artfile::Artfile()
{
    clear();
}

void Artfile::clear()
{
    images.clear();
    trailer.clear();
    paletteCount = 1;
    frameCount = 0;
    path.clear();
}

quint32 Artfile::headerWord(unsigned offset) const
{
    return qFromLittleEndian<quint32>(header.data() + offset);
}

void Artfile::setHeaderWord(unsigned offset, quint32 value)
{
    qToLittleEndian(value, header.data() + offset);
}

// ---------------------------------------------------------------------------------------------
// Reading

bool Artfile::loadBytes(const QByteArray& bytes)
{
    clear();
    failure.clear();
    failureOffset = 0;
    if (parse(bytes))
        return true;
    clear();
    return false;
}

void Artfile::load(std::string newPath)
{
    QFile file(QFile::decodeName(QByteArray::fromStdString(newPath)));
    if (!file.open(QIODevice::ReadOnly)) {
        std::cout << "Cannot open file: " << newPath << std::endl;
        fail(0, QStringLiteral("cannot be opened"));
        return;
    }
    const QByteArray bytes = file.readAll();
    clear();
    failure.clear();
    failureOffset = 0;
    if (!parse(bytes)) {
        std::cout << "Artfile::load(): " << newPath << " is damaged or not an art file." << std::endl;
        clear();
        return;
    }
    path = newPath;
}

bool Artfile::parse(const QByteArray& bytes)
{
    if (bytes.size() < qsizetype(HEADER_SIZE))
        return fail(bytes.size(), QStringLiteral("the file ends inside the %1-byte header").arg(HEADER_SIZE));
    std::copy_n(reinterpret_cast<const quint8*>(bytes.constData()), HEADER_SIZE, header.begin());
    readCounts();
    qsizetype pos = HEADER_SIZE;
    if (!readPalettes(bytes, pos) || !readFrameHeaders(bytes, pos) || !readPixelData(bytes, pos))
        return false;
    trailer = bytes.mid(pos);
    return true;
}

void Artfile::readCounts()
{
    artTypeRead = headerWord(ART_TYPE);
    paletteCount = 1;
    paletteMark = headerWord(PALETTE_MARKS);
    for (unsigned i = MAX_PALETTES - 1; i > 0; --i) {
        const quint32 mark = headerWord(PALETTE_MARKS + 4 * i);
        if (mark != 0) {
            paletteCount = i + 1;
            paletteMark = mark;
            break;
        }
    }
    animationWord = headerWord(ANIMATION_WORD);
}

bool Artfile::readPalettes(const QByteArray& bytes, qsizetype& pos)
{
    if (bytes.size() - pos < qsizetype(paletteCount * PALETTE_BYTES))
        return fail(pos, QStringLiteral("%1 palettes need %2 bytes, %3 are left")
                             .arg(paletteCount).arg(paletteCount * PALETTE_BYTES).arg(bytes.size() - pos));
    for (unsigned p = 0; p < paletteCount; ++p) {
        paletteFromBytes(bytes.mid(pos, PALETTE_BYTES), palettes[p]);
        pos += PALETTE_BYTES;
    }
    return true;
}

bool Artfile::readFrameHeaders(const QByteArray& bytes, qsizetype& pos)
{
    const bool directions = artTypeRead == 0 || artTypeRead == 2;
    const quint64 imageTotal = directions ? DIRECTIONS : headerWord(FRAME_COUNT);
    const quint64 framesEach = directions ? headerWord(FRAME_COUNT) : 1;
    // A sprite without a frame has nothing to show and nothing a save could write back.
    if (imageTotal * framesEach == 0)
        return fail(FRAME_COUNT,
                    QStringLiteral("the header counts %1 images of %2 frames: no frame to show").arg(imageTotal).arg(framesEach));
    // Checked before anything is allocated: the counts come straight from the file.
    if (quint64(bytes.size() - pos) < imageTotal * framesEach * FRAME_HEADER_SIZE)
        return fail(pos, QStringLiteral("%1 images of %2 frames need %3 bytes of frame headers, %4 are left")
                             .arg(imageTotal).arg(framesEach).arg(imageTotal * framesEach * FRAME_HEADER_SIZE)
                             .arg(bytes.size() - pos));
    frameCount = unsigned(framesEach);
    images.assign(imageTotal, std::vector<Image>(framesEach));
    for (std::vector<Image>& frames : images) {
        for (Image& frame : frames) {
            frame.width = le::uint32At(bytes, pos);
            frame.height = le::uint32At(bytes, pos + 4);
            frame.dataSize = le::uint32At(bytes, pos + 8);
            frame.left = qint32(le::uint32At(bytes, pos + 12));
            frame.top = qint32(le::uint32At(bytes, pos + 16));
            frame.dx = qint32(le::uint32At(bytes, pos + 20));
            frame.dy = qint32(le::uint32At(bytes, pos + 24));
            pos += FRAME_HEADER_SIZE;
        }
    }
    return true;
}

bool Artfile::readPixelData(const QByteArray& bytes, qsizetype& pos)
{
    for (std::size_t i = 0; i < images.size(); ++i) {
        for (std::size_t f = 0; f < images[i].size(); ++f) {
            Image& frame = images[i][f];
            if (quint64(bytes.size() - pos) < frame.dataSize)
                return fail(pos, QStringLiteral("image %1 frame %2 needs %3 bytes of pixel data, %4 are left")
                                     .arg(i).arg(f).arg(frame.dataSize).arg(bytes.size() - pos));
            frame.data = bytes.mid(pos, qsizetype(frame.dataSize));
            pos += qsizetype(frame.dataSize);
        }
    }
    return true;
}

bool Artfile::fail(qsizetype offset, const QString& why)
{
    failureOffset = quint64(offset);
    failure = why;
    return false;
}

quint64 Artfile::frameDataOffset(unsigned image, unsigned frame) const
{
    quint64 offset = HEADER_SIZE + quint64(paletteCount) * PALETTE_BYTES;
    for (const std::vector<Image>& frames : images)
        offset += quint64(frames.size()) * FRAME_HEADER_SIZE;
    for (unsigned i = 0; i < images.size(); ++i) {
        for (unsigned f = 0; f < images[i].size(); ++f) {
            if (i == image && f == frame)
                return offset;
            offset += images[i][f].data.size();
        }
    }
    return offset;
}

// ---------------------------------------------------------------------------------------------
// Writing

QByteArray Artfile::toBytes() const
{
    if (images.empty())
        return {};
    std::vector<QByteArray> paletteBytes;
    for (unsigned p = 0; p < paletteCount; ++p)
        paletteBytes.push_back(paletteToBytes(palettes[p]));
    return assemble(headerBytes(), paletteBytes, images, trailer);
}

QByteArray Artfile::headerBytes() const
{
    return QByteArray(reinterpret_cast<const char*>(header.data()), HEADER_SIZE);
}

QByteArray Artfile::assemble(const QByteArray& header, const std::vector<QByteArray>& paletteBytes,
                             const std::vector<std::vector<Image>>& frames, const QByteArray& trailer)
{
    QByteArray out = header;
    for (const QByteArray& palette : paletteBytes)
        out.append(palette);
    for (const std::vector<Image>& row : frames) {
        for (const Image& frame : row) {
            for (quint32 word : {frame.width, frame.height, frame.dataSize, quint32(frame.left), quint32(frame.top),
                                 quint32(frame.dx), quint32(frame.dy)})
                le::appendUInt32(out, word);
        }
    }
    for (const std::vector<Image>& row : frames) {
        for (const Image& frame : row)
            out.append(frame.data);
    }
    out.append(trailer);
    return out;
}

QVector<QRgb> Artfile::colourTable(const Palette& colours, bool transparentKey)
{
    QVector<QRgb> table(PALETTE_SIZE);
    for (unsigned i = 0; i < PALETTE_SIZE; ++i)
        table[int(i)] = colours[i].toRgb();
    if (transparentKey)
        table[0] &= 0xFFFFFFu;
    return table;
}

bool Artfile::save(const QString& target)
{
    if (images.empty()) {
        say("Cannot save: Artfile is empty.");
        return false;
    }
    switch (SafeSave::write(target, toBytes())) {
    case SafeSave::OpenFailed:
        std::cout << "Cannot open file: " << QFile::encodeName(target).constData() << std::endl;
        return false;
    case SafeSave::WriteFailed:
        std::cout << "Artfile::save(): could not write " << QFile::encodeName(target).constData() << std::endl;
        return false;
    case SafeSave::Saved:
        break;
    }
    return true;
}

bool Artfile::combHeader()
{
    for (unsigned i = 0; i < MAX_PALETTES; ++i)
        setHeaderWord(PALETTE_MARKS + 4 * i, i == 0 || i < paletteCount ? paletteMark : 0);
    setHeaderWord(ANIMATION_WORD, animationWord);
    const unsigned imageCount = getImageCount();
    if (imageCount == DIRECTIONS) {
        setHeaderWord(ART_TYPE, 0);
        setHeaderWord(FRAME_COUNT, frameCount);
    } else if (imageCount == TILE_IMAGES) {
        setHeaderWord(ART_TYPE, 5);
        setHeaderWord(WORD_4, 8);
        setHeaderWord(WORD_8, 8);
        setHeaderWord(ANIMATION_WORD, TILE_IMAGES - 1);
        setHeaderWord(FRAME_COUNT, TILE_IMAGES);
    } else {
        setHeaderWord(ART_TYPE, 1);
        setHeaderWord(FRAME_COUNT, imageCount);
    }
    return true;
}

void Artfile::setActionFrame(quint32 frame)
{
    animationWord = frame;
    setHeaderWord(ANIMATION_WORD, frame);
}

void Artfile::setAnimated(bool animated)
{
    animationWord = animated ? 2 : 0;
    combHeader();
}

// ---------------------------------------------------------------------------------------------
// Palettes

Artfile::Colour* Artfile::getPalette(unsigned index)
{
    if (index >= paletteCount) {
        say("Cannot getPalette(): wrong palette index requested.");
        return nullptr;
    }
    return palettes[index];
}

bool Artfile::setPalette(unsigned index, const Colour (&colours)[PALETTE_SIZE])
{
    if (index >= paletteCount) {
        say("Cannot setPalette(): wrong palette index requested.");
        return false;
    }
    copyPalette(colours, palettes[index]);
    return true;
}

void Artfile::copyPalette(const Colour (&src)[PALETTE_SIZE], Colour (&dst)[PALETTE_SIZE])
{
    std::copy(std::begin(src), std::end(src), std::begin(dst));
}

bool Artfile::newPalette(unsigned fromIndex)
{
    if (paletteCount >= MAX_PALETTES || fromIndex >= paletteCount)
        return false;
    copyPalette(palettes[fromIndex], palettes[paletteCount]);
    ++paletteCount;
    combHeader();
    return true;
}

bool Artfile::deletePalette(unsigned index)
{
    if (paletteCount == 0 || index >= paletteCount)
        return false;
    for (unsigned p = index; p + 1 < paletteCount; ++p)
        copyPalette(palettes[p + 1], palettes[p]);
    --paletteCount;
    combHeader();
    return true;
}

QByteArray Artfile::paletteToBytes(const Colour (&colours)[PALETTE_SIZE])
{
    QByteArray out;
    appendPalette(out, colours);
    return out;
}

void Artfile::paletteFromBytes(const QByteArray& bytes, Colour (&colours)[PALETTE_SIZE])
{
    const qsizetype entries = std::min<qsizetype>(bytes.size() / 4, PALETTE_SIZE);
    for (qsizetype i = 0; i < entries; ++i) {
        const auto* entry = reinterpret_cast<const quint8*>(bytes.constData() + 4 * i);
        colours[i] = {entry[0], entry[1], entry[2], entry[3]};
    }
}

// ---------------------------------------------------------------------------------------------
// Images and frames

Artfile::Image* Artfile::getImage(unsigned image, unsigned frame)
{
    if (!isImage(image, frame)) {
        say("Cannot getImage(): wrong frame requested.");
        return nullptr;
    }
    return &images[image][frame];
}

bool Artfile::isImage(unsigned image, unsigned frame) const
{
    return image < images.size() && frame < frameCount && frame < images[image].size();
}

bool Artfile::newImage(unsigned)
{
    images.emplace_back(frameCount);
    return combHeader();
}

bool Artfile::deleteImage(unsigned index)
{
    if (index >= images.size())
        return false;
    images.erase(images.begin() + index);
    return combHeader();
}

bool Artfile::newFrame(unsigned)
{
    for (std::vector<Image>& frames : images)
        frames.emplace_back();
    ++frameCount;
    return combHeader();
}

bool Artfile::deleteFrame(unsigned index)
{
    if (index >= frameCount)
        return false;
    for (std::vector<Image>& frames : images)
        frames.erase(frames.begin() + index);
    --frameCount;
    return combHeader();
}

// ---------------------------------------------------------------------------------------------
// Conversion to and from screen images

bool Artfile::convertTo(QImage& out, unsigned palette, unsigned image, unsigned frame)
{
    if (images.empty()) {
        say("Cannot convertTo: Artfile is empty.");
        return false;
    }
    if (palette >= paletteCount) {
        say("Cannot convertTo: wrong palette requested.");
        return false;
    }
    const Image* source = getImage(image, frame);
    if (!source) {
        say("Cannot convertTo: wrong frame requested.");
        return false;
    }
    if (!drawable(*source)) {
        say("Cannot convertTo: frame size out of range.");
        return false;
    }
    QImage result(int(source->width), int(source->height), QImage::Format_Indexed8);
    if (result.isNull()) {
        say("Cannot convertTo: out of memory.");
        return false;
    }
    result.setColorTable(colourTable(palettes[palette], false));
    const QByteArray pixels = framePixels(image, frame);
    for (int y = 0; y < result.height(); ++y)
        std::copy_n(pixels.constData() + qsizetype(y) * result.width(), result.width(),
                    reinterpret_cast<char*>(result.scanLine(y)));
    lastRunLength = !source->isRaw();
    out = result;
    return true;
}

void Artfile::convertFrom(const QImage& source, unsigned image, unsigned frame, bool)
{
    if (!isImage(image, frame)) {
        say("Cannot convertFrom: wrong frame requested.");
        return;
    }
    if (source.isNull()) {
        say("Cannot convertFrom: source is null.");
        return;
    }
    const QImage indexed = source.convertToFormat(QImage::Format_Indexed8);
    const auto width = std::size_t(indexed.width());
    QByteArray bytes;
    bytes.reserve(qsizetype(width) * indexed.height());
    for (int y = 0; y < indexed.height(); ++y)
        bytes.append(reinterpret_cast<const char*>(indexed.constScanLine(y)), qsizetype(width));
    setFramePixels(image, frame, quint32(indexed.width()), quint32(indexed.height()), bytes);
}

bool Artfile::setFramePixels(unsigned image, unsigned frame, quint32 width, quint32 height, const QByteArray& indices)
{
    if (!isImage(image, frame) || quint64(width) * height != quint64(indices.size()) || indices.isEmpty())
        return false;
    images[image][frame].setData(width, height, ArtRunLength::pack(indices));
    combHeader();
    return true;
}

QByteArray Artfile::framePixels(unsigned image, unsigned frame) const
{
    if (!isImage(image, frame))
        return {};
    const Image& source = images[image][frame];
    if (!drawable(source))
        return {};
    const quint64 pixels = quint64(source.width) * source.height;
    QByteArray out(qsizetype(pixels), '\0');
    auto* target = reinterpret_cast<quint8*>(out.data());
    if (source.isRaw())
        std::copy_n(source.data.constData(), out.size(), out.data());
    else
        ArtRunLength::decode(source.data, target, std::size_t(pixels));
    return out;
}

} // namespace arcanum
