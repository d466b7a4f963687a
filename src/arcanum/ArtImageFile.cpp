#include "ArtImageFile.h"

#include "PaletteMatcher.h"

#include <QImageReader>
#include <QImageWriter>

namespace arcanum {

bool ArtImageFile::fitsAFrame(qint64 width, qint64 height)
{
    return width > 0 && height > 0 && width <= MAX_SIDE && height <= MAX_SIDE
        && quint64(width) * quint64(height) <= Artfile::MAX_FRAME_PIXELS;
}

bool ArtImageFile::read(const QString& path, QImage& image, QString& error)
{
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.isValid() && !fitsAFrame(size.width(), size.height())) {
        error = QStringLiteral("%1: %2 × %3 pixels is larger than a frame can hold (%4 pixels, %5 a side)")
                    .arg(path).arg(size.width()).arg(size.height()).arg(Artfile::MAX_FRAME_PIXELS).arg(MAX_SIDE);
        return false;
    }
    QImage read;
    if (!reader.read(&read)) {
        error = QStringLiteral("%1: cannot be read as an image (%2)").arg(path, reader.errorString());
        return false;
    }
    if (!fitsAFrame(read.width(), read.height())) {
        error = QStringLiteral("%1: %2 × %3 pixels is no size a frame can have")
                    .arg(path).arg(read.width()).arg(read.height());
        return false;
    }
    image = read;
    return true;
}

bool ArtImageFile::writeIndexed(const QString& path, const QByteArray& indices, int width, int height,
                                const Artfile::Palette& palette, QString& error)
{
    QImage image(width, height, QImage::Format_Indexed8);
    if (image.isNull() || indices.size() != qsizetype(width) * height) {
        error = QStringLiteral("%1: a frame of %2 × %3 pixels cannot be drawn").arg(path).arg(width).arg(height);
        return false;
    }
    image.setColorTable(Artfile::colourTable(palette, true));
    for (int y = 0; y < height; ++y)
        std::copy_n(indices.constData() + qsizetype(y) * width, width, reinterpret_cast<char*>(image.scanLine(y)));
    QImageWriter writer(path, "png");
    if (!writer.write(image)) {
        error = QStringLiteral("%1: cannot be written (%2)").arg(path, writer.errorString());
        return false;
    }
    return true;
}

QByteArray ArtImageFile::rowsOf(const QImage& indexed)
{
    QByteArray out;
    out.reserve(qsizetype(indexed.width()) * indexed.height());
    for (int y = 0; y < indexed.height(); ++y)
        out.append(reinterpret_cast<const char*>(indexed.constScanLine(y)), indexed.width());
    return out;
}

QByteArray ArtImageFile::indicesOf(const QImage& image, const Artfile::Palette& palette)
{
    if (image.format() == QImage::Format_Indexed8 || image.format() == QImage::Format_Mono
        || image.format() == QImage::Format_MonoLSB) {
        const QImage indexed = image.convertToFormat(QImage::Format_Indexed8);
        const QVector<QRgb> table = indexed.colorTable();
        QByteArray indices = rowsOf(indexed);
        bool used[Artfile::PALETTE_SIZE] = {};
        for (char index : indices)
            used[quint8(index)] = true;
        bool same = table.size() <= int(Artfile::PALETTE_SIZE);
        for (int i = 1; same && i < table.size(); ++i)
            same = !used[i] || (table[i] & 0xFFFFFFu) == (palette[i].toRgb() & 0xFFFFFFu);
        for (int i = table.size(); same && i < int(Artfile::PALETTE_SIZE); ++i)
            same = !used[i];
        if (same)
            return indices;
    }
    return PaletteMatcher(palette).match(image, false).indices;
}

} // namespace arcanum
