#pragma once

#include "Artfile.h"

#include <QByteArray>
#include <QImage>
#include <QVector>

#include <array>
#include <vector>

namespace arcanum {

// Maps true-colour pixels onto a 256-colour art palette by the nearest colour in CIELAB, optionally with
// Floyd–Steinberg dithering. Pixels with alpha below one half become index 0; an opaque pixel never gets an
// index whose colour equals entry 0's (the transparent key: the game draws none of them).
//
// The distance is CIE94 (graphic arts weights) with the source pixel as the reference colour. CIEDE2000
// differs from it mainly by a hue rotation in the blues and by small-difference corrections that matter
// when judging near-identical colours, not when choosing among the 255 entries of a game palette; CIE94's
// weights depend only on the reference, so for one pixel they are constants and the lightness difference
// alone is a lower bound of the distance. That bound lets the search stop early on a palette sorted by
// lightness, which (with a cache of colours already seen) keeps matching an exact nearest search and fast.
class PaletteMatcher
{
public:
    explicit PaletteMatcher(const Artfile::Colour (&palette)[Artfile::PALETTE_SIZE]);

    // meanError is the mean CIE94 difference between source and result over 4 × 4 blocks of opaque pixels:
    // what the eye sees from a little way off, where dithering's pattern blends as it is meant to.
    struct Result
    {
        QByteArray indices;
        int width = 0;
        int height = 0;
        double meanError = 0;
    };
    Result match(const QImage& image, bool dither) const; // indices row-major, width*height bytes
    QImage toImage(const Result& result) const;           // indexed preview with the palette

    // The index an opaque pixel of this colour gets without dithering.
    quint8 nearest(QRgb colour) const;

    struct Lab
    {
        float l = 0;
        float a = 0;
        float b = 0;
    };
    static Lab toLab(QRgb colour);
    // CIE94 distance from reference to other, squared.
    static float distance94(const Lab& reference, const Lab& other);

private:
    class Cache;
    // Position in entries (not palette index) of the entry nearest to lab; hint is a position to try first.
    int search(const Lab& lab, int hint) const;
    quint8 lookUp(QRgb colour, Cache& cache, int& hint) const;
    void matchInParallel(const QImage& source, quint8* out) const;
    // Rows from … to - 1.
    void matchRows(const QImage& source, quint8* out, int from, int to, Cache& cache, int& hint) const;
    double blockError(const QImage& source, const QByteArray& indices) const;

    static constexpr int LIGHTNESS_STEPS = 101; // L* runs from 0 to 100
    static constexpr int BLOCK = 8;             // entries whose distances are worked out together
    std::vector<quint8> entries; // palette indices an opaque pixel may get, by lightness
    // Their colours in CIELAB and their chroma, one array per value, a block of padding on either side.
    struct Lanes
    {
        std::vector<float> l, a, b, chroma;
    } lanes;
    // For each whole lightness, the position of the first entry at least that light.
    std::array<int, LIGHTNESS_STEPS> firstAtLightness{};
    QVector<QRgb> colours;      // the palette as RGB, index 0 and its copies with alpha 0
};

} // namespace arcanum
