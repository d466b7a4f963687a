// Pixels going into art frames: nearest-colour matching to a palette and the frame encoding chosen on save.
#include "ArtRunLength.h"
#include "Artfile.h"
#include "FormatChecks.h"
#include "PaletteMatcher.h"

#include <QHash>

#include <QtTest>

#include <limits>

using arcanum::Artfile;
using arcanum::ArtRunLength;
using arcanum::PaletteMatcher;

namespace {

struct Palette
{
    Artfile::Colour colours[Artfile::PALETTE_SIZE]{};
};

// Entries given in order from index 0; the rest repeat the last one given.
Palette paletteOf(const QList<QRgb>& rgb)
{
    Palette p;
    for (unsigned i = 0; i < Artfile::PALETTE_SIZE; ++i)
        p.colours[i] = Artfile::Colour::fromArgb(rgb.at(std::min<int>(int(i), int(rgb.size()) - 1)) & 0xFFFFFFu);
    return p;
}

// A palette of many scattered colours, black at the key.
Palette scatteredPalette(unsigned seed)
{
    const QByteArray noise = FormatChecks::randomBytes(3 * 256, seed);
    QList<QRgb> rgb{qRgb(0, 0, 0)};
    for (int i = 1; i < 256; ++i)
        rgb << qRgb(quint8(noise[3 * i]), quint8(noise[3 * i + 1]), quint8(noise[3 * i + 2]));
    return paletteOf(rgb);
}

QImage noiseImage(int width, int height, unsigned seed)
{
    const QByteArray noise = FormatChecks::randomBytes(width * height * 4, seed);
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto* p = reinterpret_cast<const quint8*>(noise.constData()) + 4 * (y * width + x);
            image.setPixel(x, y, qRgba(p[0], p[1], p[2], p[3]));
        }
    }
    return image;
}

// Every entry tried: the answer the matcher's pruned, cached search must give.
quint8 bruteForceNearest(const Palette& palette, QRgb colour)
{
    const QRgb key = palette.colours[0].toRgb();
    const PaletteMatcher::Lab lab = PaletteMatcher::toLab(colour);
    float best = std::numeric_limits<float>::max();
    quint8 bestIndex = 1;
    for (unsigned i = 1; i < Artfile::PALETTE_SIZE; ++i) {
        if (palette.colours[i].toRgb() == key)
            continue;
        const float d = PaletteMatcher::distance94(lab, PaletteMatcher::toLab(palette.colours[i].toRgb()));
        if (d < best) {
            best = d;
            bestIndex = quint8(i);
        }
    }
    return bestIndex;
}

} // namespace

class TestArtPixels : public QObject
{
    Q_OBJECT

private slots:
    void nearestColour_data()
    {
        QTest::addColumn<QList<QRgb>>("palette");
        QTest::addColumn<QRgb>("pixel");
        QTest::addColumn<int>("index");
        const QRgb black = qRgb(0, 0, 0);
        const QRgb white = qRgb(255, 255, 255);
        QTest::newRow("exact colour") << QList<QRgb>{black, qRgb(255, 0, 0), qRgb(0, 255, 0), qRgb(0, 0, 255)}
                                      << qRgb(0, 255, 0) << 2;
        QTest::newRow("black is not the black key")
            << QList<QRgb>{black, white, qRgb(10, 10, 10), qRgb(128, 128, 128)} << black << 2;
        QTest::newRow("near-black is not the black key")
            << QList<QRgb>{black, white, qRgb(12, 12, 12)} << qRgb(3, 2, 3) << 2;
        QTest::newRow("copies of the key are skipped")
            << QList<QRgb>{black, black, black, qRgb(40, 40, 40), black} << qRgb(1, 1, 1) << 3;
        QTest::newRow("magenta key, magenta pixel")
            << QList<QRgb>{qRgb(255, 0, 255), qRgb(255, 0, 255), qRgb(200, 0, 200), qRgb(0, 200, 0)}
            << qRgb(255, 0, 255) << 2;
        QTest::newRow("equal entries: the lower index")
            << QList<QRgb>{black, white, qRgb(90, 20, 20), qRgb(90, 20, 20)} << qRgb(100, 20, 20) << 2;
        // 44 is nearer 64 than 20 in sRGB steps (20 against 24) but nearer 20 in lightness (about 10 against 11).
        QTest::newRow("lightness, not sRGB steps")
            << QList<QRgb>{black, qRgb(20, 20, 20), qRgb(64, 64, 64)} << qRgb(40, 40, 40) << 1;
    }

    void nearestColour()
    {
        QFETCH(QList<QRgb>, palette);
        QFETCH(QRgb, pixel);
        QFETCH(int, index);
        const Palette p = paletteOf(palette);
        const PaletteMatcher matcher(p.colours);
        QCOMPARE(int(matcher.nearest(pixel)), index);
        QCOMPARE(int(bruteForceNearest(p, pixel)), index);
        QImage image(3, 2, QImage::Format_ARGB32);
        image.fill(pixel);
        const PaletteMatcher::Result plain = matcher.match(image, false);
        QCOMPARE(plain.indices, QByteArray(6, char(index)));
    }

    void matchingEqualsAFullSearch_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed : {1u, 2u, 3u})
            QTest::addRow("seed %u", seed) << seed;
    }

    void matchingEqualsAFullSearch()
    {
        QFETCH(unsigned, seed);
        const Palette palette = scatteredPalette(seed);
        const PaletteMatcher matcher(palette.colours);
        QImage image = noiseImage(64, 48, seed + 10);
        for (int y = 0; y < image.height(); ++y) // opaque, except a band below one half
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, (image.pixel(x, y) & 0xFFFFFFu) | (y < 4 ? 0x7F000000u : 0xFF000000u));
        const PaletteMatcher::Result result = matcher.match(image, false);
        QCOMPARE(result.width, 64);
        QCOMPARE(result.height, 48);
        QCOMPARE(result.indices.size(), 64 * 48);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const quint8 got = quint8(result.indices[y * 64 + x]);
                const quint8 wanted = y < 4 ? 0 : bruteForceNearest(palette, image.pixel(x, y));
                if (got != wanted)
                    QFAIL(qPrintable(QStringLiteral("pixel %1,%2: index %3, nearest is %4").arg(x).arg(y).arg(got).arg(wanted)));
            }
        }
    }

    // A picture large enough to be matched by several threads gets the index each pixel gets on its own.
    void threadsGiveTheIndicesOfOnePass()
    {
        const Palette palette = scatteredPalette(7);
        const PaletteMatcher matcher(palette.colours);
        const QImage colours = noiseImage(64, 64, 17); // 4 096 colours, so each is looked up once below
        QImage image(320, 256, QImage::Format_ARGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, colours.pixel((x * 7 + y) % 64, (y * 3 + x / 5) % 64) | (x % 50 == 0 ? 0u : 0xFF000000u));
        const PaletteMatcher::Result result = matcher.match(image, false);
        QHash<QRgb, quint8> nearest;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                if (qAlpha(pixel) < 128) {
                    QCOMPARE(int(quint8(result.indices[y * image.width() + x])), 0);
                    continue;
                }
                if (!nearest.contains(pixel))
                    nearest.insert(pixel, matcher.nearest(pixel));
                if (quint8(result.indices[y * image.width() + x]) != nearest.value(pixel))
                    QFAIL(qPrintable(QStringLiteral("pixel %1,%2 differs").arg(x).arg(y)));
            }
        }
    }

    void alphaBelowOneHalfIsTransparent()
    {
        const PaletteMatcher matcher(paletteOf({qRgb(0, 0, 0), qRgb(255, 255, 255)}).colours);
        QImage image(4, 1, QImage::Format_ARGB32);
        const QRgb alphas[4] = {qRgba(255, 255, 255, 0), qRgba(255, 255, 255, 127), qRgba(255, 255, 255, 128),
                                qRgba(0, 0, 0, 255)};
        for (int x = 0; x < 4; ++x)
            image.setPixel(x, 0, alphas[x]);
        for (bool dither : {false, true})
            QCOMPARE(matcher.match(image, dither).indices, QByteArray::fromHex("00000101"));
    }

    void ditheringLowersTheErrorOfAGradient()
    {
        QList<QRgb> grays{qRgb(255, 0, 255)};
        for (int level = 0; level <= 255; level += 51)
            grays << qRgb(level, level, level);
        const Palette palette = paletteOf(grays);
        const PaletteMatcher matcher(palette.colours);
        QImage gradient(256, 32, QImage::Format_RGB32);
        for (int y = 0; y < gradient.height(); ++y)
            for (int x = 0; x < gradient.width(); ++x)
                gradient.setPixel(x, y, qRgb(x, x, x));
        const PaletteMatcher::Result plain = matcher.match(gradient, false);
        const PaletteMatcher::Result dithered = matcher.match(gradient, true);
        QVERIFY2(dithered.meanError < plain.meanError * 0.5,
                 qPrintable(QStringLiteral("%1 dithered, %2 plain").arg(dithered.meanError).arg(plain.meanError)));
        QVERIFY(plain.meanError > 1.0);
        QVERIFY(!dithered.indices.contains('\0'));
        QVERIFY(dithered.indices != plain.indices);
        // An exact palette colour has nothing to diffuse.
        QImage flat(16, 16, QImage::Format_RGB32);
        flat.fill(qRgb(102, 102, 102));
        QCOMPARE(matcher.match(flat, true).meanError, 0.0);
    }

    void previewUsesThePalette()
    {
        const Palette palette = paletteOf({qRgb(0, 255, 0), qRgb(255, 0, 0), qRgb(0, 0, 255), qRgb(0, 255, 0)});
        const PaletteMatcher matcher(palette.colours);
        QImage image(2, 2, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        image.setPixel(1, 0, qRgb(250, 0, 0));
        image.setPixel(0, 1, qRgb(0, 0, 200));
        const QImage preview = matcher.toImage(matcher.match(image, false));
        QCOMPARE(preview.format(), QImage::Format_Indexed8);
        QCOMPARE(preview.pixelIndex(1, 0), 1);
        QCOMPARE(preview.pixelIndex(0, 1), 2);
        QCOMPARE(preview.pixelIndex(0, 0), 0);
        QCOMPARE(qAlpha(preview.pixel(0, 0)), 0);
        QCOMPARE(preview.pixel(1, 0), qRgb(255, 0, 0));
        QVERIFY(matcher.toImage(PaletteMatcher::Result{}).isNull());
    }

    void packedFrameDecodesAndIsNeverLarger_data()
    {
        QTest::addColumn<QByteArray>("pixels");
        const QByteArray noise = FormatChecks::randomBytes(4096, 5);
        QTest::newRow("one pixel") << QByteArray(1, '\3');
        QTest::newRow("blank 16x16") << QByteArray(256, '\0');
        QTest::newRow("longer than a run") << QByteArray(1000, '\7');
        QTest::newRow("noise") << noise;
        QTest::newRow("pairs") << QByteArray("\1\1\2\2\3\3\4\4\5\5\6\6", 12).repeated(40);
        QTest::newRow("stripes of 3") << QByteArray("\0\0\0\1\1\1", 6).repeated(100);
        QTest::newRow("sprite on a clear ground")
            << QByteArray(300, '\0') + noise.left(130) + QByteArray(200, '\0') + noise.mid(200, 3) + QByteArray(2, '\0');
        QTest::newRow("127 literals then a run") << noise.left(127) + QByteArray(127, '\11');
    }

    void packedFrameDecodesAndIsNeverLarger()
    {
        QFETCH(QByteArray, pixels);
        const QByteArray packed = ArtRunLength::pack(pixels);
        QVERIFY(packed.size() <= pixels.size());
        if (packed.size() == pixels.size()) { // raw: a frame whose data size is its pixel count
            QCOMPARE(packed, pixels);
            return;
        }
        QCOMPARE(ArtRunLength::decodedLength(packed), quint64(pixels.size()));
        QByteArray decoded(pixels.size(), '\x55');
        ArtRunLength::decode(packed, reinterpret_cast<quint8*>(decoded.data()), std::size_t(decoded.size()));
        QCOMPARE(decoded, pixels);
    }
};

QTEST_GUILESS_MAIN(TestArtPixels)
#include "tst_artpixels.moc"
