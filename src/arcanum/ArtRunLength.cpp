#include "ArtRunLength.h"

#include <algorithm>

namespace arcanum {

namespace {
constexpr quint8 LITERAL_BIT = 0x80;
constexpr std::size_t MAX_RUN = 0x7F;
// Shorter repeats cost as much as literals and would only split literal runs.
constexpr std::size_t MIN_REPEAT = 3;
} // namespace

void ArtRunLength::decode(const QByteArray& data, quint8* pixels, std::size_t pixelCount)
{
    const auto* bytes = reinterpret_cast<const quint8*>(data.constData());
    const std::size_t size = std::size_t(data.size());
    std::size_t pos = 0;
    std::size_t out = 0;
    while (pos < size) {
        const quint8 control = bytes[pos++];
        const std::size_t n = control & MAX_RUN;
        const std::size_t room = pixelCount - out;
        if (control & LITERAL_BIT) {
            const std::size_t copied = std::min({n, size - pos, room});
            std::copy_n(bytes + pos, copied, pixels + out);
            out += copied;
            pos += n;
        } else {
            if (pos < size) {
                const std::size_t filled = std::min(n, room);
                std::fill_n(pixels + out, filled, bytes[pos]);
                out += filled;
            }
            ++pos;
        }
    }
}

quint64 ArtRunLength::decodedLength(const QByteArray& data)
{
    const auto* bytes = reinterpret_cast<const quint8*>(data.constData());
    const std::size_t size = std::size_t(data.size());
    std::size_t pos = 0;
    quint64 length = 0;
    while (pos < size) {
        const quint8 control = bytes[pos++];
        const std::size_t n = control & MAX_RUN;
        if (control & LITERAL_BIT) {
            length += std::min(n, size - pos);
            pos += std::min(n, size - pos);
        } else if (pos < size) {
            length += n;
            ++pos;
        }
    }
    return length;
}

quint64 ArtRunLength::mostPixels(quint64 dataSize)
{
    return dataSize / 2 * MAX_RUN;
}

std::size_t ArtRunLength::repeatLength(const quint8* pixels, std::size_t from, std::size_t count)
{
    std::size_t end = from + 1;
    while (end < count && end - from < MAX_RUN && pixels[end] == pixels[from])
        ++end;
    return end - from;
}

QByteArray ArtRunLength::encode(const quint8* pixels, std::size_t pixelCount)
{
    QByteArray out;
    std::size_t pos = 0;
    while (pos < pixelCount) {
        const std::size_t repeat = repeatLength(pixels, pos, pixelCount);
        if (repeat >= MIN_REPEAT) {
            out.append(char(repeat));
            out.append(char(pixels[pos]));
            pos += repeat;
            continue;
        }
        std::size_t end = pos + repeat;
        while (end < pixelCount && end - pos < MAX_RUN && repeatLength(pixels, end, pixelCount) < MIN_REPEAT)
            ++end;
        end = std::min(end, pos + MAX_RUN);
        out.append(char(LITERAL_BIT | (end - pos)));
        out.append(reinterpret_cast<const char*>(pixels + pos), qsizetype(end - pos));
        pos = end;
    }
    if (std::size_t(out.size()) == pixelCount)
        out.append(char(LITERAL_BIT)); // an empty literal run: decodes to nothing
    return out;
}

} // namespace arcanum
