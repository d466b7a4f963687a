#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace arcanum {

// One sprite file: up to four 256-colour palettes and a grid of images × frames of 8-bit pixels.
// Frames stay in the file's own encoding (raw or run-length) until a frame's pixels are replaced,
// and the header words this model does not interpret are written back as read.
class Artfile
{
public:
    static constexpr unsigned HEADER_SIZE = 132;
    static constexpr unsigned FRAME_HEADER_SIZE = 28;
    static constexpr unsigned PALETTE_SIZE = 256;
    static constexpr unsigned PALETTE_BYTES = 1024;
    static constexpr unsigned MAX_PALETTES = 4;
    // Larger frames are damaged headers, not sprites; refusing them keeps one bad word from asking for
    // gigabytes.
    static constexpr quint64 MAX_FRAME_PIXELS = quint64(1) << 26;

    // One palette entry in file order: blue, green, red and a fourth byte the game leaves alone.
    struct Colour
    {
        quint8 blue = 0;
        quint8 green = 0;
        quint8 red = 0;
        quint8 extra = 0;

        // Always opaque: no palette index is transparent on screen.
        QRgb toRgb() const { return qRgb(red, green, blue); }
        // Keeps all four bytes: the alpha of the value becomes the fourth byte.
        static Colour fromArgb(QRgb value);
        bool operator==(const Colour& other) const;
        bool operator!=(const Colour& other) const { return !(*this == other); }
    };
    using Palette = Colour[PALETTE_SIZE];

    // One frame: its header record and its pixel data exactly as stored in the file.
    class Image
    {
    public:
        Image();

        // Raw when the data holds exactly one byte per pixel; run-length encoded otherwise.
        bool isRaw() const { return quint64(width) * height == dataSize; }
        // Replaces the pixel data (already encoded); dataSize follows the data.
        void setData(quint32 newWidth, quint32 newHeight, const QByteArray& bytes);

        quint32 width;
        quint32 height;
        quint32 dataSize;
        qint32 left;
        qint32 top;
        qint32 dx;
        qint32 dy;
        QByteArray data;
    };

    Artfile();

    // Reads a whole art file; a file that cannot be read completely leaves an empty model.
    void load(std::string path);
    // Writes the file through a temporary file; false when it is empty or could not be written.
    bool save(const QString& path);
    // Reads the bytes of an art file as load reads a file; false (and an empty model with the reason in
    // loadFailure) for bytes that are not one.
    bool loadBytes(const QByteArray& bytes);
    // The bytes save would write (empty when there are no images).
    QByteArray toBytes() const;
    bool isLoaded() const { return !images.empty(); }
    // Why the last load left the model empty, and the file offset where reading gave up.
    const QString& loadFailure() const { return failure; }
    quint64 loadFailureOffset() const { return failureOffset; }
    // Where a frame's pixel data starts in the bytes toBytes writes (as read, for an untouched file).
    quint64 frameDataOffset(unsigned image, unsigned frame) const;
    void clear();
    const std::string& getPath() const { return path; }
    void setPath(const std::string& newPath) { path = newPath; }

    unsigned getPaletteCount() const { return paletteCount; }
    unsigned getImageCount() const { return unsigned(images.size()); }
    unsigned getFrameCount() const { return frameCount; }

    bool isAnimated() const { return animationWord > 1; }
    void setAnimated(bool animated);

    Colour* getPalette(unsigned index);
    bool setPalette(unsigned index, const Colour (&colours)[PALETTE_SIZE]);
    static void copyPalette(const Colour (&src)[PALETTE_SIZE], Colour (&dst)[PALETTE_SIZE]);
    bool newPalette(unsigned fromIndex);
    bool deletePalette(unsigned index);

    // The 1024 bytes of a palette file; fromPaletteBytes reads as many whole entries as there are.
    static QByteArray paletteToBytes(const Colour (&colours)[PALETTE_SIZE]);
    static void paletteFromBytes(const QByteArray& bytes, Colour (&colours)[PALETTE_SIZE]);

    // Read-only views for writers of other forms; image and frame must exist (isImage), palette be below
    // getPaletteCount.
    const Image& frameAt(unsigned image, unsigned frame) const { return images[image][frame]; }
    const Palette& paletteAt(unsigned palette) const { return palettes[palette]; }
    // The 132 header bytes as they will be written, and the bytes kept after the last frame.
    QByteArray headerBytes() const;
    const QByteArray& trailerBytes() const { return trailer; }
    // The bytes of a file of these parts, in the game's order; the header must hold their counts.
    static QByteArray assemble(const QByteArray& header, const std::vector<QByteArray>& paletteBytes,
                               const std::vector<std::vector<Image>>& frames, const QByteArray& trailer);
    // The palette as a colour table; with transparentKey, entry 0 has alpha 0 as the game leaves it undrawn.
    static QVector<QRgb> colourTable(const Palette& colours, bool transparentKey);

    Image* getImage(unsigned image, unsigned frame);
    bool isImage(unsigned image, unsigned frame) const;
    bool newImage(unsigned);
    bool deleteImage(unsigned index);
    bool newFrame(unsigned);
    bool deleteFrame(unsigned index);

    bool combHeader();
    quint32 headerWord(unsigned offset) const;
    // Frames per second the game plays the animation at (header word 4).
    quint32 frameRate() const { return headerWord(4); }
    void setFrameRate(quint32 framesPerSecond) { setHeaderWord(4, framesPerSecond); }
    // The frame on which an attack or a spell takes effect (header word 28).
    quint32 actionFrame() const { return animationWord; }
    void setActionFrame(quint32 frame);

    // Frame as an 8-bit indexed image coloured with a palette; false (and out unchanged) on failure.
    bool convertTo(QImage& out, unsigned palette, unsigned image, unsigned frame);
    // Replaces a frame's pixels and size by the indices of source, stored as ArtRunLength::pack does.
    void convertFrom(const QImage& source, unsigned image, unsigned frame, bool);
    // Replaces a frame's pixels (width × height palette indices, row after row) and size, stored run-length
    // encoded when that is smaller; false for a frame that does not exist or indices of the wrong count.
    bool setFramePixels(unsigned image, unsigned frame, quint32 width, quint32 height, const QByteArray& indices);
    // The frame's palette indices, row after row; empty when the frame cannot be drawn (see convertTo).
    QByteArray framePixels(unsigned image, unsigned frame) const;
    // Whether the frame last shown by convertTo was run-length encoded.
    bool lastConvertedWasRunLength() const { return lastRunLength; }

private:
    void setHeaderWord(unsigned offset, quint32 value);
    bool parse(const QByteArray& bytes);
    void readCounts();
    bool readPalettes(const QByteArray& bytes, qsizetype& pos);
    bool readFrameHeaders(const QByteArray& bytes, qsizetype& pos);
    bool readPixelData(const QByteArray& bytes, qsizetype& pos);
    bool fail(qsizetype offset, const QString& why);
    // Whether a frame's size is one a frame can have and its data could fill: larger frames are damaged
    // headers, and drawing them would only cost memory and time for a picture that is nearly all blank.
    static bool drawable(const Image& frame);

    std::string path;
    quint32 artTypeRead = 0;
    quint32 paletteMark = 1;
    std::array<quint8, HEADER_SIZE> header{};
    Colour palettes[MAX_PALETTES][PALETTE_SIZE]{};
    unsigned paletteCount = 1;
    quint32 animationWord = 0;
    unsigned frameCount = 0;
    bool lastRunLength = false;
    std::vector<std::vector<Image>> images;
    // Bytes after the last frame's pixel data, written back unchanged.
    QByteArray trailer;
    QString failure;
    quint64 failureOffset = 0;
};

} // namespace arcanum
