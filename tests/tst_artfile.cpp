// The art file model: reading, writing, header rebuilding, structural edits and frame conversion.
#include "ArtRunLength.h"
#include "Artfile.h"
#include "ArtTestSupport.h"
#include "FormatChecks.h"

#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

using arcanum::Artfile;
using ArtTestSupport::CoutCapture;
using ArtTestSupport::indices;

namespace {

struct Frame
{
    quint32 width;
    quint32 height;
    QByteArray data;
    qint32 left = 0;
    qint32 top = 0;
    qint32 dx = 0;
    qint32 dy = 0;
};

void appendWord(QByteArray& out, quint32 value)
{
    char bytes[4];
    qToLittleEndian(value, bytes);
    out.append(bytes, 4);
}

// Bytes of an art file as the game lays them out; palette p entry i is (i, p, 255 - i, 0x40 + p).
struct ArtBytes
{
    quint32 artType = 0;
    quint32 marks[4] = {1, 0, 0, 0};
    quint32 animation = 0;
    quint32 frameCountWord = 1;
    unsigned palettes = 1;
    std::vector<Frame> frames; // image-major
    QByteArray tail;
    QByteArray trailer;

    QByteArray bytes() const
    {
        QByteArray out;
        for (quint32 word : {artType, 0x11111111u, 0x22222222u, marks[0], marks[1], marks[2], marks[3], animation,
                             frameCountWord})
            appendWord(out, word);
        out.append(tail.isEmpty() ? FormatChecks::randomBytes(96, 7) : tail);
        for (unsigned p = 0; p < palettes; ++p) {
            for (int i = 0; i < 256; ++i) {
                const char entry[4] = {char(i), char(p), char(255 - i), char(0x40 + p)};
                out.append(entry, 4);
            }
        }
        for (const Frame& f : frames) {
            for (quint32 word : {f.width, f.height, quint32(f.data.size()), quint32(f.left), quint32(f.top),
                                 quint32(f.dx), quint32(f.dy)})
                appendWord(out, word);
        }
        for (const Frame& f : frames)
            out.append(f.data);
        return out + trailer;
    }
};

QByteArray raw(int count, char first = 0)
{
    QByteArray out;
    for (int i = 0; i < count; ++i)
        out.append(char(first + i));
    return out;
}

quint32 wordOf(const QByteArray& bytes, int offset)
{
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

// Eight images of the given frames each, with two palettes and a mix of raw and run-length frames.
ArtBytes directions(quint32 artType, unsigned framesEach)
{
    ArtBytes art;
    art.artType = artType;
    art.marks[1] = 1;
    art.palettes = 2;
    art.animation = 8;
    art.frameCountWord = framesEach;
    for (unsigned i = 0; i < 8 * framesEach; ++i) {
        if (i % 2)
            art.frames.push_back({3, 3, QByteArray("\x04\x01\x85\x02\x03\x04\x05\x06", 8), -5, 7, -1, 2});
        else
            art.frames.push_back({2, 2, raw(4, char(i)), 1, -2, 3, -4});
    }
    return art;
}

} // namespace

class TestArtfile : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

    QString file(const QString& name) const { return dir.filePath(name); }

    // Writes bytes and loads them into art.
    void loadBytes(Artfile& art, const QByteArray& bytes, const QString& name = QStringLiteral("in.art"))
    {
        QVERIFY(FormatChecks::writeFile(file(name), bytes));
        art.load(QFile::encodeName(file(name)).toStdString());
    }

private slots:
    void initTestCase() { QVERIFY(dir.isValid()); }

    void roundTripIsByteExact_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("type 0, eight images") << directions(0, 2).bytes();
        QTest::newRow("type 2, eight images") << directions(2, 1).bytes();
        ArtBytes single;
        single.artType = 1;
        single.frameCountWord = 3;
        single.marks[0] = 9;
        single.frames = {{4, 1, raw(4)}, {2, 3, QByteArray("\x06\x09", 2), -1, -1, -1, -1}, {1, 1, raw(1, 'x')}};
        QTest::newRow("single frames") << single.bytes();
        ArtBytes trailing = single;
        trailing.trailer = QByteArray("unknown tail");
        QTest::newRow("bytes after the pixel data") << trailing.bytes();
        ArtBytes fourPalettes = directions(0, 1);
        fourPalettes.marks[3] = 3;
        fourPalettes.palettes = 4;
        QTest::newRow("four palettes") << fourPalettes.bytes();
    }

    void roundTripIsByteExact()
    {
        QFETCH(QByteArray, bytes);
        Artfile art;
        loadBytes(art, bytes);
        QVERIFY(art.isLoaded());
        QVERIFY(art.save(file(QStringLiteral("out.art"))));
        QCOMPARE(FormatChecks::readFile(file(QStringLiteral("out.art"))), bytes);
    }

    void countsFollowTheArtType_data()
    {
        QTest::addColumn<quint32>("artType");
        QTest::addColumn<unsigned>("images");
        QTest::addColumn<unsigned>("frames");
        QTest::newRow("type 0") << 0u << 8u << 3u;
        QTest::newRow("type 2") << 2u << 8u << 3u;
        QTest::newRow("type 1") << 1u << 3u << 1u;
        QTest::newRow("type 5") << 5u << 3u << 1u;
    }

    void countsFollowTheArtType()
    {
        QFETCH(quint32, artType);
        QFETCH(unsigned, images);
        QFETCH(unsigned, frames);
        ArtBytes bytes;
        bytes.artType = artType;
        bytes.frameCountWord = 3;
        bytes.frames.assign(images * frames, {2, 1, raw(2)});
        Artfile art;
        loadBytes(art, bytes.bytes());
        QCOMPARE(art.getImageCount(), images);
        QCOMPARE(art.getFrameCount(), frames);
    }

    void artTypeTwoIsKeptUntilAnEdit()
    {
        const QByteArray bytes = directions(2, 2).bytes();
        Artfile art;
        loadBytes(art, bytes);
        QVERIFY(art.save(file(QStringLiteral("same.art"))));
        QCOMPARE(wordOf(FormatChecks::readFile(file(QStringLiteral("same.art"))), 0), 2u);
        QVERIFY(art.newFrame(0));
        QVERIFY(art.deleteFrame(2));
        QVERIFY(art.save(file(QStringLiteral("edited.art"))));
        const QByteArray edited = FormatChecks::readFile(file(QStringLiteral("edited.art")));
        QCOMPARE(wordOf(edited, 0), 0u);
        QCOMPARE(edited.mid(4), bytes.mid(4));
    }

    void paletteMarksGiveCountAndMark()
    {
        ArtBytes bytes = directions(0, 1);
        bytes.marks[0] = 5;
        bytes.marks[1] = 0;
        bytes.marks[2] = 7;
        bytes.palettes = 3;
        Artfile art;
        loadBytes(art, bytes.bytes());
        QCOMPARE(art.getPaletteCount(), 3u);
        QCOMPARE(art.getPalette(2)[10].green, quint8(2));
        QVERIFY(art.newFrame(0));
        for (unsigned word = 0; word < 4; ++word)
            QCOMPARE(art.headerWord(12 + 4 * word), word < 3 ? 7u : 0u);
    }

    void headerIsRebuiltFromCounts_data()
    {
        QTest::addColumn<unsigned>("images");
        QTest::addColumn<quint32>("artType");
        QTest::addColumn<quint32>("frameCountWord");
        QTest::addColumn<quint32>("word4");
        QTest::addColumn<quint32>("animation");
        QTest::newRow("8 images") << 8u << 0u << 2u << 0x11111111u << 6u;
        QTest::newRow("225 images") << 225u << 5u << 225u << 8u << 224u;
        QTest::newRow("3 images") << 3u << 1u << 3u << 0x11111111u << 6u;
    }

    void headerIsRebuiltFromCounts()
    {
        QFETCH(unsigned, images);
        QFETCH(quint32, artType);
        QFETCH(quint32, frameCountWord);
        QFETCH(quint32, word4);
        QFETCH(quint32, animation);
        ArtBytes bytes;
        bytes.artType = 1;
        bytes.animation = 6;
        bytes.frameCountWord = images;
        bytes.frames.assign(images, {1, 1, raw(1)});
        Artfile art;
        loadBytes(art, bytes.bytes());
        QCOMPARE(art.getImageCount(), images);
        QVERIFY(art.newFrame(0));
        QCOMPARE(art.headerWord(0), artType);
        QCOMPARE(art.headerWord(4), word4);
        QCOMPARE(art.headerWord(8), word4 == 8 ? 8u : 0x22222222u);
        QCOMPARE(art.headerWord(28), animation);
        QCOMPARE(art.headerWord(32), frameCountWord);
    }

    void palettesAreAddedAndRemovedWithinBounds()
    {
        Artfile art;
        loadBytes(art, directions(0, 1).bytes());
        QVERIFY(!art.newPalette(2)); // names no palette
        QVERIFY(art.newPalette(1));
        QCOMPARE(art.getPalette(2)[0].green, quint8(1));
        QVERIFY(art.newPalette(0));
        QCOMPARE(art.getPaletteCount(), 4u);
        QVERIFY(!art.newPalette(0));
        QCOMPARE(art.getPaletteCount(), 4u);
        QCOMPARE(art.headerWord(24), 1u);

        QVERIFY(!art.deletePalette(4));
        QVERIFY(art.deletePalette(0));
        QCOMPARE(art.getPalette(0)[0].green, quint8(1));
        QCOMPARE(art.getPaletteCount(), 3u);
        QCOMPARE(art.headerWord(24), 0u);

        CoutCapture out;
        QVERIFY(!art.getPalette(3));
        Artfile::Palette colours{};
        QVERIFY(!art.setPalette(3, colours));
        QCOMPARE(out.text(), QStringLiteral("Cannot getPalette(): wrong palette index requested.\n"
                                            "Cannot setPalette(): wrong palette index requested.\n"));
    }

    void framesAndImagesRejectBadIndices()
    {
        Artfile art;
        loadBytes(art, directions(0, 2).bytes());
        QVERIFY(!art.deleteFrame(2));
        QVERIFY(!art.deleteImage(8));
        QCOMPARE(art.getImageCount(), 8u);
        QCOMPARE(art.getFrameCount(), 2u);
        QVERIFY(art.deleteImage(7));
        QVERIFY(art.newImage(0));
        QCOMPARE(art.getImage(7, 1)->dataSize, 7u); // blank: three runs

        CoutCapture out;
        QVERIFY(!art.getImage(0, 2));
        QVERIFY(!art.isImage(8, 0));
        QCOMPARE(out.text(), QStringLiteral("Cannot getImage(): wrong frame requested.\n"));
    }

    void newFrameIsBlankEncodedSquare()
    {
        Artfile art;
        loadBytes(art, directions(0, 1).bytes());
        QVERIFY(art.newFrame(0));
        const Artfile::Image* frame = art.getImage(4, 1);
        QCOMPARE(frame->width, 16u);
        QCOMPARE(frame->height, 16u);
        QCOMPARE(frame->data, QByteArray::fromHex("7f007f00820000"));
        QCOMPARE(frame->dataSize, 7u);
        QImage image;
        QVERIFY(art.convertTo(image, 1, 4, 1));
        QCOMPARE(image.format(), QImage::Format_Indexed8);
        QCOMPARE(image.size(), QSize(16, 16));
        QCOMPARE(indices(image), QByteArray(256, '\0'));
        QCOMPARE(image.color(0), qRgba(255, 1, 0, 255));
        QCOMPARE(image.pixel(15, 15), qRgba(255, 1, 0, 255));
        QVERIFY(art.lastConvertedWasRunLength());
    }

    void pixelsAreDecoded_data()
    {
        QTest::addColumn<quint32>("width");
        QTest::addColumn<quint32>("height");
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<QByteArray>("pixels");
        QTest::addColumn<bool>("runLength");
        const auto b = [](std::initializer_list<int> values) {
            QByteArray out;
            for (int v : values)
                out.append(char(v));
            return out;
        };
        QTest::newRow("raw when size is width × height, even if it looks like runs")
            << 2u << 2u << b({0x84, 1, 2, 3}) << b({0x84, 1, 2, 3}) << false;
        QTest::newRow("literal") << 2u << 2u << b({0x84, 1, 2, 3, 4}) << b({1, 2, 3, 4}) << true;
        QTest::newRow("repeat") << 2u << 2u << b({0x04, 7}) << b({7, 7, 7, 7}) << true;
        QTest::newRow("0x80 emits nothing") << 2u << 2u << b({0x80, 0x02, 5, 0x82, 6, 7}) << b({5, 5, 6, 7}) << true;
        QTest::newRow("0x00 eats its byte") << 2u << 2u << b({0x00, 9, 0x04, 3, 0x80}) << b({3, 3, 3, 3}) << true;
        QTest::newRow("runs cross rows") << 3u << 2u << b({0x05, 1, 0x81, 2}) << b({1, 1, 1, 1, 1, 2}) << true;
        QTest::newRow("more data than pixels") << 2u << 2u << b({0x7F, 8, 0x84, 1, 1, 1, 1}) << b({8, 8, 8, 8}) << true;
        QTest::newRow("literal past the last row") << 2u << 2u << b({0x02, 1, 0x85, 2, 3, 4}) << b({1, 1, 2, 3}) << true;
        QTest::newRow("data ends early") << 2u << 2u << b({0x02, 5}) << b({5, 5, 0, 0}) << true;
        QTest::newRow("literal cut by the end") << 2u << 3u << b({0x85, 1, 2}) << b({1, 2, 0, 0, 0, 0}) << true;
        QTest::newRow("repeat without value") << 2u << 2u << b({0x81, 4, 0x03}) << b({4, 0, 0, 0}) << true;
    }

    void pixelsAreDecoded()
    {
        QFETCH(quint32, width);
        QFETCH(quint32, height);
        QFETCH(QByteArray, data);
        QFETCH(QByteArray, pixels);
        QFETCH(bool, runLength);
        ArtBytes bytes;
        bytes.artType = 1;
        bytes.frames = {{width, height, data}};
        Artfile art;
        loadBytes(art, bytes.bytes());
        QImage image;
        QVERIFY(art.convertTo(image, 0, 0, 0));
        QCOMPARE(image.size(), QSize(int(width), int(height)));
        QCOMPARE(indices(image), pixels);
        QCOMPARE(art.lastConvertedWasRunLength(), runLength);
    }

    void encoderRoundTrips_data()
    {
        QTest::addColumn<QByteArray>("pixels");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("one pixel") << QByteArray(1, '\5');
        QTest::newRow("long repeat") << QByteArray(300, '\7');
        QTest::newRow("no repeats") << raw(200);
        QTest::newRow("mixed") << QByteArray(5, '\0') + raw(3, 9) + QByteArray(2, '\1') + QByteArray(130, '\2') + raw(4);
        QTest::newRow("random") << FormatChecks::randomBytes(1000, 3);
    }

    void encoderRoundTrips()
    {
        QFETCH(QByteArray, pixels);
        const auto* in = reinterpret_cast<const quint8*>(pixels.constData());
        const QByteArray encoded = arcanum::ArtRunLength::encode(in, std::size_t(pixels.size()));
        QVERIFY(encoded.size() != pixels.size());
        QByteArray decoded(pixels.size(), '\x55');
        arcanum::ArtRunLength::decode(encoded, reinterpret_cast<quint8*>(decoded.data()), std::size_t(decoded.size()));
        QCOMPARE(decoded, pixels);
    }

    // Replaced pixels are stored as runs only where runs are smaller: nine pixels with two repeats take eight bytes.
    void convertedFrameIsStoredSmallest()
    {
        Artfile art;
        loadBytes(art, directions(0, 2).bytes());
        QImage image;
        QVERIFY(art.convertTo(image, 1, 0, 1));
        QVERIFY(art.lastConvertedWasRunLength());
        const QByteArray before = indices(image);
        art.convertFrom(image, 0, 1, false);
        const Artfile::Image* frame = art.getImage(0, 1);
        QCOMPARE(frame->dataSize, quint32(arcanum::ArtRunLength::pack(before).size()));
        QVERIFY(frame->dataSize <= 9u);
        QCOMPARE(art.framePixels(0, 1), before);
        QCOMPARE(frame->left, -5);
        QCOMPARE(frame->dy, 2);
        QVERIFY(art.convertTo(image, 0, 0, 1));
        QCOMPARE(indices(image), before);
    }

    void trueColourSourceIsIndexedByQt()
    {
        Artfile art;
        loadBytes(art, directions(0, 1).bytes());
        QImage source(5, 3, QImage::Format_RGB32);
        source.fill(Qt::red);
        source.setPixel(4, 2, qRgb(0, 0, 255));
        art.convertFrom(source, 2, 0, false);
        const Artfile::Image* frame = art.getImage(2, 0);
        QCOMPARE(frame->width, 5u);
        QCOMPARE(frame->height, 3u);
        QCOMPARE(frame->dataSize, 4u); // 14 red and one blue: two runs
        QCOMPARE(art.framePixels(2, 0), indices(source.convertToFormat(QImage::Format_Indexed8)));
        QCOMPARE(frame->left, 1);
    }

    void conversionFailuresSayWhy()
    {
        Artfile art;
        ArtBytes single;
        single.artType = 1;
        single.frames = {{2, 1, raw(2)}};
        QImage image(1, 1, QImage::Format_RGB32);
        {
            CoutCapture out;
            QVERIFY(!art.convertTo(image, 0, 0, 0));
            QCOMPARE(out.text(), QStringLiteral("Cannot convertTo: Artfile is empty.\n"));
        }
        loadBytes(art, single.bytes());
        CoutCapture out;
        QVERIFY(!art.convertTo(image, 1, 0, 0));
        QVERIFY(!art.convertTo(image, 0, 0, 1));
        art.convertFrom(image, 1, 0, false);
        art.convertFrom(QImage(), 0, 0, false);
        QCOMPARE(out.text(), QStringLiteral("Cannot convertTo: wrong palette requested.\n"
                                            "Cannot getImage(): wrong frame requested.\n"
                                            "Cannot convertTo: wrong frame requested.\n"
                                            "Cannot convertFrom: wrong frame requested.\n"
                                            "Cannot convertFrom: source is null.\n"));
        QCOMPARE(image.size(), QSize(1, 1));
        QCOMPARE(art.getImage(0, 0)->data, raw(2));
    }

    void damagedHeadersAreRefusedWithoutHugeAllocations_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("loads");
        ArtBytes manyFrames = directions(0, 1);
        manyFrames.frameCountWord = 0xFFFFFFFF;
        QTest::newRow("frame count of type 0") << manyFrames.bytes() << false;
        ArtBytes manyImages;
        manyImages.artType = 1;
        manyImages.frameCountWord = 0x7FFFFFFF;
        QTest::newRow("image count of type 1") << manyImages.bytes() << false;
        ArtBytes bigData;
        bigData.artType = 1;
        bigData.frames = {{2, 2, raw(4)}};
        QByteArray bigBytes = bigData.bytes();
        qToLittleEndian(0xFFFFFFF0u, bigBytes.data() + 132 + 1024 + 8);
        QTest::newRow("data size") << bigBytes << false;
        ArtBytes hugeFrame;
        hugeFrame.artType = 1;
        hugeFrame.frames = {{0xFFFFFFFF, 0xFFFFFFFF, QByteArray("\x7F\x01", 2)}};
        QTest::newRow("frame size") << hugeFrame.bytes() << true;
        ArtBytes unfillable; // 4096 x 4096 claimed, one run of 127 pixels present
        unfillable.artType = 1;
        unfillable.frames = {{4096, 4096, QByteArray("\x7F\x01", 2)}};
        QTest::newRow("frame larger than its data fills") << unfillable.bytes() << true;
        QTest::newRow("short header") << QByteArray(131, '\0') << false;
        ArtBytes marks = directions(0, 1);
        marks.marks[3] = 1; // four palettes claimed, two present
        QTest::newRow("palette marks") << marks.bytes() << false;
        ArtBytes noFrames = directions(0, 1);
        noFrames.frameCountWord = 0;
        QTest::newRow("no frame at all") << noFrames.bytes() << false;
    }

    void damagedHeadersAreRefusedWithoutHugeAllocations()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, loads);
        Artfile art;
        loadBytes(art, bytes);
        QCOMPARE(art.isLoaded(), loads);
        QImage image;
        QVERIFY(!art.convertTo(image, 0, 0, 0));
        QVERIFY(image.isNull());
    }

    void everyPrefixAndCorruptionSurvives()
    {
        const QByteArray bytes = directions(0, 2).bytes();
        const QString path = file(QStringLiteral("prefix.art"));
        FormatChecks::forEveryPrefix(bytes, path, [&](const QString& p) {
            Artfile art;
            art.load(QFile::encodeName(p).toStdString());
            QCOMPARE(art.isLoaded(), QFileInfo(p).size() == bytes.size());
        });
        for (unsigned seed = 1; seed <= 200; ++seed) {
            Artfile art;
            loadBytes(art, FormatChecks::corrupt(bytes, seed, 6), QStringLiteral("corrupt.art"));
            QImage image;
            for (unsigned i = 0; i < art.getImageCount(); ++i) {
                for (unsigned f = 0; f < art.getFrameCount(); ++f)
                    art.convertTo(image, 0, i, f);
            }
        }
    }

    void missingFileLeavesModelAlone()
    {
        Artfile art;
        loadBytes(art, directions(0, 1).bytes());
        CoutCapture out;
        art.load(QFile::encodeName(file(QStringLiteral("missing.art"))).toStdString());
        QVERIFY(art.isLoaded());
        QVERIFY(out.text().startsWith(QStringLiteral("Cannot open file: ")));
    }

    void nonAsciiPathsWork()
    {
        const QString name = QStringLiteral("\u0416\u0443\u043a-beetle \u00fc.art");
        Artfile art;
        loadBytes(art, directions(0, 1).bytes(), name);
        QVERIFY(art.isLoaded());
        QCOMPARE(QFile::decodeName(QByteArray::fromStdString(art.getPath())), file(name));
        QVERIFY(art.save(file(QStringLiteral("\u00e9crit.art"))));
        QCOMPARE(FormatChecks::readFile(file(QStringLiteral("\u00e9crit.art"))), directions(0, 1).bytes());
    }

    void emptyOrUnwritableSaveFails()
    {
        Artfile art;
        CoutCapture out;
        QVERIFY(!art.save(file(QStringLiteral("empty.art"))));
        QVERIFY(!QFile::exists(file(QStringLiteral("empty.art"))));
        loadBytes(art, directions(0, 1).bytes());
        QVERIFY(!art.save(file(QStringLiteral("no/such/dir/x.art"))));
        QVERIFY(out.text().startsWith(QStringLiteral("Cannot save: Artfile is empty.\nCannot open file: ")));
    }

    void paletteBytesRoundTrip()
    {
        Artfile art;
        loadBytes(art, directions(0, 1).bytes());
        Artfile::Palette colours;
        std::copy_n(art.getPalette(1), Artfile::PALETTE_SIZE, colours);
        const QByteArray bytes = Artfile::paletteToBytes(colours);
        QCOMPARE(bytes.size(), 1024);
        QCOMPARE(bytes.left(8), QByteArray("\x00\x01\xFF\x41\x01\x01\xFE\x41", 8));
        Artfile::Palette back{};
        Artfile::paletteFromBytes(bytes, back);
        QVERIFY(std::equal(std::begin(back), std::end(back), std::begin(colours)));
        Artfile::paletteFromBytes(QByteArray("\x09\x08\x07\x06\x05", 5), back);
        QCOMPARE(back[0], (Artfile::Colour{9, 8, 7, 6}));
        QCOMPARE(back[1], colours[1]);
    }
};

QTEST_GUILESS_MAIN(TestArtfile)
#include "tst_artfile.moc"
