#include "ArtRunLength.h"

#include <algorithm>

namespace arcanum {

namespace {
constexpr quint8 LITERAL_BIT = 0x80;
constexpr std::size_t MAX_RUN = 0x7F;
// Shorter repeats cost as much as literals and would only split literal runs.
constexpr std::size_t MIN_REPEAT = 3;
} // namespace

namespace {

// Walks the runs of the data once; decoding and counting must agree on how a run cut short by the
// end of the data is read. literal(bytes, n) gets the n bytes a literal run still has; repeat(value, n)
// a repeat run whose value byte is present.
template <typename Literal, typename Repeat>
void forEachRun(const QByteArray& data, Literal literal, Repeat repeat)
{
    const auto* bytes = reinterpret_cast<const quint8*>(data.constData());
    const std::size_t size = std::size_t(data.size());
    std::size_t pos = 0;
    while (pos < size) {
        const quint8 control = bytes[pos++];
        const std::size_t n = control & MAX_RUN;
        if (control & LITERAL_BIT) {
            const std::size_t present = std::min(n, size - pos);
            literal(bytes + pos, present);
            pos += present;
        } else {
            if (pos < size)
                repeat(bytes[pos], n);
            ++pos;
        }
    }
}

} // namespace

void ArtRunLength::decode(const QByteArray& data, quint8* pixels, std::size_t pixelCount)
{
    std::size_t out = 0;
    forEachRun(
        data,
        [&](const quint8* from, std::size_t n) {
            const std::size_t copied = std::min(n, pixelCount - out);
            std::copy_n(from, copied, pixels + out);
            out += copied;
        },
        [&](quint8 value, std::size_t n) {
            const std::size_t filled = std::min(n, pixelCount - out);
            std::fill_n(pixels + out, filled, value);
            out += filled;
        });
}

quint64 ArtRunLength::decodedLength(const QByteArray& data)
{
    quint64 length = 0;
    const auto count = [&length](auto, std::size_t n) { length += n; };
    forEachRun(data, count, count);
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

QByteArray ArtRunLength::pack(const QByteArray& pixels)
{
    QByteArray runs = encode(reinterpret_cast<const quint8*>(pixels.constData()), std::size_t(pixels.size()));
    return runs.size() < pixels.size() ? runs : pixels;
}

} // namespace arcanum
