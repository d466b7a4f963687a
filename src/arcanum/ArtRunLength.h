#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

namespace arcanum {

// The run-length pixel encoding of art frames. A control byte c opens each run, n = c & 0x7F:
// with the high bit set n literal pixels follow, otherwise one byte follows that repeats n times.
// Runs run on across row ends.
class ArtRunLength
{
public:
    // Decodes into pixels (pixelCount bytes, left to right, rows top to bottom). Output that would fall
    // after the last pixel is dropped and a run cut short by the end of data emits what it has;
    // pixels no run reaches are left as they are.
    static void decode(const QByteArray& data, quint8* pixels, std::size_t pixelCount);
    // How many pixels the data would produce if nothing were cut off: compared with a frame's pixel
    // count it tells a frame whose runs over- or under-fill it.
    static quint64 decodedLength(const QByteArray& data);

    // The most pixels dataSize bytes can decode to: every two bytes a repeat run of the longest length.
    static quint64 mostPixels(quint64 dataSize);

    // Encodes pixelCount pixels. The result never has exactly pixelCount bytes, because a frame whose
    // data size equals its pixel count is read as raw.
    static QByteArray encode(const quint8* pixels, std::size_t pixelCount);
    // What a frame stores for these pixels: their runs when that is smaller, the raw pixels otherwise
    // (the game reads both), so it is never larger than raw.
    static QByteArray pack(const QByteArray& pixels);

private:
    static std::size_t repeatLength(const quint8* pixels, std::size_t from, std::size_t count);
};

} // namespace arcanum
