#include "PaletteMatcher.h"

#include <algorithm>
#include <atomic>
#include <array>
#include <cmath>
#include <cstring>
#include <thread>

namespace arcanum {

namespace {
constexpr int OPAQUE_FROM = 128; // alpha below one half is transparent
constexpr int ERROR_BLOCK = 4;
// When every entry has the key's colour there is no right answer; the first index after the key at least
// stays opaque in the file.
constexpr quint8 FALLBACK_INDEX = 1;
// CIE94, graphic arts: kL = 1, K1 = 0.045, K2 = 0.015.
constexpr float K1 = 0.045f;
constexpr float K2 = 0.015f;

const std::array<float, 256>& linearTable()
{
    static const std::array<float, 256> table = [] {
        std::array<float, 256> t{};
        for (int i = 0; i < 256; ++i) {
            const double c = i / 255.0;
            t[std::size_t(i)] = float(c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4));
        }
        return t;
    }();
    return table;
}

// The cube root of a positive float: an estimate from the exponent bits, then two Halley steps (each
// cubes the relative error), exact to float precision and several times faster than std::cbrt.
float cubeRoot(float x)
{
    quint32 bits = 0;
    std::memcpy(&bits, &x, sizeof bits);
    bits = bits / 3 + 709921077u;
    float y = 0;
    std::memcpy(&y, &bits, sizeof y);
    for (int step = 0; step < 2; ++step) {
        const float cube = y * y * y;
        y *= (cube + 2.0f * x) / (2.0f * cube + x);
    }
    return y;
}

float labCurve(float t)
{
    constexpr float EPSILON = 216.0f / 24389.0f; // (6/29)^3
    constexpr float SLOPE = 24389.0f / 27.0f / 116.0f;
    return t > EPSILON ? cubeRoot(t) : SLOPE * t + 16.0f / 116.0f;
}

// Linear sRGB (D65) to CIELAB.
PaletteMatcher::Lab labFromLinear(float r, float g, float b)
{
    const float x = (0.4124564f * r + 0.3575761f * g + 0.1804375f * b) / 0.95047f;
    const float y = 0.2126729f * r + 0.7151522f * g + 0.0721750f * b;
    const float z = (0.0193339f * r + 0.1191920f * g + 0.9503041f * b) / 1.08883f;
    const float fx = labCurve(x);
    const float fy = labCurve(y);
    const float fz = labCurve(z);
    return {116.0f * fy - 16.0f, 500.0f * (fx - fy), 200.0f * (fy - fz)};
}

QRgb rgbOnly(QRgb colour)
{
    return colour & 0xFFFFFFu;
}
} // namespace

// Colours already matched in one run: most images repeat their colours, and neighbours share them.
class PaletteMatcher::Cache
{
public:
    Cache()
        : keys(SIZE, EMPTY)
        , values(SIZE, 0)
    {
    }
    bool find(QRgb colour, quint8& index) const
    {
        const std::size_t slot = slotOf(colour);
        if (keys[slot] != colour)
            return false;
        index = values[slot];
        return true;
    }
    void store(QRgb colour, quint8 index)
    {
        const std::size_t slot = slotOf(colour);
        keys[slot] = colour;
        values[slot] = index;
    }

private:
    static constexpr std::size_t BITS = 16;
    static constexpr std::size_t SIZE = std::size_t(1) << BITS;
    static constexpr quint32 EMPTY = 0xFFFFFFFFu; // no 24-bit colour
    static std::size_t slotOf(QRgb colour) { return (colour * 2654435761u) >> (32 - BITS); }

    std::vector<quint32> keys;
    std::vector<quint8> values;
};

PaletteMatcher::PaletteMatcher(const Artfile::Colour (&palette)[Artfile::PALETTE_SIZE])
{
    const QRgb key = palette[0].toRgb();
    colours.resize(Artfile::PALETTE_SIZE);
    for (unsigned i = 0; i < Artfile::PALETTE_SIZE; ++i) {
        const QRgb rgb = palette[i].toRgb();
        if (i == 0 || rgb == key) {
            colours[int(i)] = rgbOnly(rgb); // alpha 0: not drawn
            continue;
        }
        colours[int(i)] = rgb;
        entries.push_back(quint8(i));
    }
    std::vector<Lab> labs(Artfile::PALETTE_SIZE);
    for (const quint8 index : entries)
        labs[index] = toLab(colours[index]);
    std::stable_sort(entries.begin(), entries.end(), [&labs](quint8 x, quint8 y) { return labs[x].l < labs[y].l; });
    // Padded by a block on either side, so a block read from any entry stays inside the arrays.
    for (std::vector<float>* lane : {&lanes.l, &lanes.a, &lanes.b, &lanes.chroma})
        lane->assign(entries.size() + 2 * std::size_t(BLOCK), 0.0f);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const Lab& lab = labs[entries[i]];
        lanes.l[i + BLOCK] = lab.l;
        lanes.a[i + BLOCK] = lab.a;
        lanes.b[i + BLOCK] = lab.b;
        lanes.chroma[i + BLOCK] = std::sqrt(lab.a * lab.a + lab.b * lab.b);
    }
    const auto lightest = lanes.l.begin() + BLOCK;
    for (int l = 0; l < LIGHTNESS_STEPS; ++l)
        firstAtLightness[std::size_t(l)] =
            int(std::lower_bound(lightest, lightest + std::ptrdiff_t(entries.size()), float(l)) - lightest);
}

PaletteMatcher::Lab PaletteMatcher::toLab(QRgb colour)
{
    const auto& linear = linearTable();
    return labFromLinear(linear[std::size_t(qRed(colour))], linear[std::size_t(qGreen(colour))],
                         linear[std::size_t(qBlue(colour))]);
}

float PaletteMatcher::distance94(const Lab& reference, const Lab& other)
{
    const float c1 = std::sqrt(reference.a * reference.a + reference.b * reference.b);
    const float c2 = std::sqrt(other.a * other.a + other.b * other.b);
    const float sc = 1.0f + K1 * c1;
    const float sh = 1.0f + K2 * c1;
    const float dl = reference.l - other.l;
    const float da = reference.a - other.a;
    const float db = reference.b - other.b;
    const float dc = c1 - c2;
    const float dh2 = std::max(0.0f, da * da + db * db - dc * dc);
    return dl * dl + dc * dc / (sc * sc) + dh2 / (sh * sh);
}

// Distances are worked out a block of entries at a time from plain arrays, which the compiler turns into
// vector arithmetic; which of them count is then decided one entry at a time, in the order of the search.
int PaletteMatcher::search(const Lab& lab, int hint) const
{
    const int count = int(entries.size());
    const float c1 = std::sqrt(lab.a * lab.a + lab.b * lab.b);
    const float chromaWeight = 1.0f / ((1.0f + K1 * c1) * (1.0f + K1 * c1));
    const float hueWeight = 1.0f / ((1.0f + K2 * c1) * (1.0f + K2 * c1));
    std::array<float, BLOCK> block{};
    const auto distances = [&](int first) {
        const std::size_t from = std::size_t(first + BLOCK);
        const float* l = lanes.l.data() + from;
        const float* a = lanes.a.data() + from;
        const float* b = lanes.b.data() + from;
        const float* chroma = lanes.chroma.data() + from;
        for (int k = 0; k < BLOCK; ++k) {
            const float dl = lab.l - l[k];
            const float da = lab.a - a[k];
            const float db = lab.b - b[k];
            const float dc = c1 - chroma[k];
            const float dh2 = std::max(0.0f, da * da + db * db - dc * dc);
            block[std::size_t(k)] = dl * dl + dc * dc * chromaWeight + dh2 * hueWeight;
        }
    };
    const auto lightness = [this](int i) { return lanes.l[std::size_t(i + BLOCK)]; };
    // The first entry at least as light as the pixel: from the table of whole lightness values, then a step
    // or two.
    int start = firstAtLightness[std::size_t(std::clamp(int(lab.l), 0, LIGHTNESS_STEPS - 1))];
    while (start < count && lightness(start) < lab.l)
        ++start;
    int best = hint >= 0 && hint < count ? hint : std::min(start, count - 1);
    distances(best);
    float bestDistance = block[0];
    int bestIndex = entries[std::size_t(best)];
    // Equal distances go to the lower palette index, whichever way the search came. Without branches: which
    // of two near entries is nearer is a coin toss the processor cannot predict.
    const auto consider = [&](int i, float d) {
        const int index = entries[std::size_t(i)];
        const bool nearer = (d < bestDistance) | ((d == bestDistance) & (index < bestIndex));
        bestDistance = nearer ? d : bestDistance;
        best = nearer ? i : best;
        bestIndex = nearer ? index : bestIndex;
    };
    // The lightness difference alone bounds the distance from below: past it nothing can be nearer.
    bool done = false;
    for (int first = start; first < count && !done; first += BLOCK) {
        distances(first);
        for (int k = 0; k < BLOCK && first + k < count && !done; ++k) {
            const float dl = lightness(first + k) - lab.l;
            done = dl * dl > bestDistance;
            if (!done)
                consider(first + k, block[std::size_t(k)]);
        }
    }
    done = false;
    for (int last = start - 1; last >= 0 && !done; last -= BLOCK) {
        distances(last - BLOCK + 1);
        for (int k = 0; k < BLOCK && last - k >= 0 && !done; ++k) {
            const float dl = lab.l - lightness(last - k);
            done = dl * dl > bestDistance;
            if (!done)
                consider(last - k, block[std::size_t(BLOCK - 1 - k)]);
        }
    }
    return best;
}

quint8 PaletteMatcher::lookUp(QRgb colour, Cache& cache, int& hint) const
{
    quint8 index = 0;
    if (cache.find(colour, index))
        return index;
    if (entries.empty())
        return FALLBACK_INDEX;
    hint = search(toLab(colour), hint);
    index = entries[std::size_t(hint)];
    cache.store(colour, index);
    return index;
}

quint8 PaletteMatcher::nearest(QRgb colour) const
{
    if (entries.empty())
        return FALLBACK_INDEX;
    return entries[std::size_t(search(toLab(colour), -1))];
}

PaletteMatcher::Result PaletteMatcher::match(const QImage& image, bool dither) const
{
    Result result;
    if (image.isNull())
        return result;
    const QImage source = image.convertToFormat(QImage::Format_ARGB32);
    result.width = source.width();
    result.height = source.height();
    result.indices = QByteArray(qsizetype(result.width) * result.height, '\0');
    auto* out = reinterpret_cast<quint8*>(result.indices.data());
    if (!dither) {
        matchInParallel(source, out);
    } else {
        Cache cache;
        int hint = -1;
        // Serpentine Floyd–Steinberg in sRGB values; the error of a pixel goes to its opaque neighbours only.
        const int width = result.width;
        std::vector<std::array<float, 3>> current(std::size_t(width) + 2), next(std::size_t(width) + 2);
        for (int y = 0; y < result.height; ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(source.constScanLine(y));
            quint8* target = out + std::size_t(y) * std::size_t(width);
            const bool leftward = y % 2 == 1;
            const int step = leftward ? -1 : 1;
            std::fill(next.begin(), next.end(), std::array<float, 3>{});
            for (int n = 0; n < width; ++n) {
                const int x = leftward ? width - 1 - n : n;
                if (qAlpha(row[x]) < OPAQUE_FROM) {
                    target[x] = 0;
                    continue;
                }
                const std::array<float, 3>& carried = current[std::size_t(x + 1)];
                const float wanted[3] = {qRed(row[x]) + carried[0], qGreen(row[x]) + carried[1],
                                         qBlue(row[x]) + carried[2]};
                int rounded[3];
                for (int c = 0; c < 3; ++c)
                    rounded[c] = int(std::clamp(wanted[c], 0.0f, 255.0f) + 0.5f);
                const quint8 index = lookUp(qRgb(rounded[0], rounded[1], rounded[2]) & 0xFFFFFFu, cache, hint);
                target[x] = index;
                const QRgb got = colours[index];
                const float error[3] = {wanted[0] - float(qRed(got)), wanted[1] - float(qGreen(got)),
                                        wanted[2] - float(qBlue(got))};
                for (int c = 0; c < 3; ++c) {
                    current[std::size_t(x + 1 + step)][std::size_t(c)] += error[c] * 7.0f / 16.0f;
                    next[std::size_t(x + 1 - step)][std::size_t(c)] += error[c] * 3.0f / 16.0f;
                    next[std::size_t(x + 1)][std::size_t(c)] += error[c] * 5.0f / 16.0f;
                    next[std::size_t(x + 1 + step)][std::size_t(c)] += error[c] * 1.0f / 16.0f;
                }
            }
            std::swap(current, next);
        }
    }
    result.meanError = blockError(source, result.indices);
    return result;
}

// Without dithering every pixel is matched on its own and the nearest entry does not depend on where a
// search starts, so threads can match bands of rows at once, each with a cache of its own, and give the
// very indices one pass would. Bands are handed out as threads come free, since a picture's colours (and
// so its searches) are rarely spread evenly; small pictures are not worth a thread.
void PaletteMatcher::matchInParallel(const QImage& source, quint8* out) const
{
    constexpr qint64 PIXELS_PER_THREAD = 32 * 1024;
    constexpr unsigned MOST_THREADS = 8;
    constexpr int BAND_ROWS = 8;
    const int height = source.height();
    const qint64 pixels = qint64(source.width()) * height;
    const unsigned cores = std::max(1u, std::min(std::thread::hardware_concurrency(), MOST_THREADS));
    const int threads = int(std::clamp<qint64>(pixels / PIXELS_PER_THREAD, 1, cores));
    std::atomic<int> nextBand{0};
    const auto work = [this, &source, out, &nextBand, height] {
        Cache cache;
        int hint = -1;
        for (int from = nextBand++ * BAND_ROWS; from < height; from = nextBand++ * BAND_ROWS)
            matchRows(source, out, from, std::min(height, from + BAND_ROWS), cache, hint);
    };
    std::vector<std::thread> workers;
    for (int thread = 1; thread < threads; ++thread)
        workers.emplace_back(work);
    work();
    for (std::thread& worker : workers)
        worker.join();
}

void PaletteMatcher::matchRows(const QImage& source, quint8* out, int from, int to, Cache& cache, int& hint) const
{
    const int width = source.width();
    for (int y = from; y < to; ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        quint8* target = out + std::size_t(y) * std::size_t(width);
        for (int x = 0; x < width; ++x)
            target[x] = qAlpha(row[x]) < OPAQUE_FROM ? 0 : lookUp(rgbOnly(row[x]), cache, hint);
    }
}

double PaletteMatcher::blockError(const QImage& source, const QByteArray& indices) const
{
    const auto& linear = linearTable();
    const auto* pixels = reinterpret_cast<const quint8*>(indices.constData());
    const int width = source.width();
    double total = 0;
    quint64 counted = 0;
    for (int top = 0; top < source.height(); top += ERROR_BLOCK) {
        for (int left = 0; left < width; left += ERROR_BLOCK) {
            float wanted[3] = {0, 0, 0};
            float got[3] = {0, 0, 0};
            int count = 0;
            for (int y = top; y < std::min(top + ERROR_BLOCK, source.height()); ++y) {
                const auto* row = reinterpret_cast<const QRgb*>(source.constScanLine(y));
                for (int x = left; x < std::min(left + ERROR_BLOCK, width); ++x) {
                    if (qAlpha(row[x]) < OPAQUE_FROM)
                        continue;
                    const QRgb chosen = colours[pixels[std::size_t(y) * std::size_t(width) + std::size_t(x)]];
                    wanted[0] += linear[std::size_t(qRed(row[x]))];
                    wanted[1] += linear[std::size_t(qGreen(row[x]))];
                    wanted[2] += linear[std::size_t(qBlue(row[x]))];
                    got[0] += linear[std::size_t(qRed(chosen))];
                    got[1] += linear[std::size_t(qGreen(chosen))];
                    got[2] += linear[std::size_t(qBlue(chosen))];
                    ++count;
                }
            }
            if (count == 0)
                continue;
            const Lab a = labFromLinear(wanted[0] / count, wanted[1] / count, wanted[2] / count);
            const Lab b = labFromLinear(got[0] / count, got[1] / count, got[2] / count);
            total += std::sqrt(double(distance94(a, b))) * count;
            counted += quint64(count);
        }
    }
    return counted == 0 ? 0.0 : total / double(counted);
}

QImage PaletteMatcher::toImage(const Result& result) const
{
    if (result.width <= 0 || result.height <= 0
        || result.indices.size() != qsizetype(result.width) * result.height)
        return {};
    QImage image(result.width, result.height, QImage::Format_Indexed8);
    if (image.isNull())
        return image;
    image.setColorTable(colours);
    for (int y = 0; y < result.height; ++y)
        std::copy_n(result.indices.constData() + qsizetype(y) * result.width, result.width,
                    reinterpret_cast<char*>(image.scanLine(y)));
    return image;
}

} // namespace arcanum
