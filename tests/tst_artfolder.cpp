// Art files to and from their folder form (indexed PNGs or a sheet plus a JSON description), and new art
// files made from true-colour images.
#include "ArtFolder.h"
#include "ArtImageFile.h"
#include "ArtMaker.h"
#include "ArtRunLength.h"
#include "Artfile.h"
#include "FormatChecks.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <cmath>

using arcanum::ArtFolder;
using arcanum::ArtImageFile;
using arcanum::ArtMaker;
using arcanum::Artfile;

namespace {

constexpr int SIDE = 20;

// Palette p entry i: every entry a different colour, entry 0 the key.
QByteArray paletteBytes(unsigned p)
{
    QByteArray out;
    for (int i = 0; i < 256; ++i) {
        const char entry[4] = {char(i), char((i * 7 + int(p) * 50) & 0xFF), char(255 - i), char(p)};
        out.append(entry, 4);
    }
    return out;
}

// A sprite of a few colours on a clear ground, different per image and frame.
QByteArray spritePixels(int width, int height, unsigned image, unsigned frame)
{
    QByteArray pixels(width * height, '\0');
    for (int y = 2; y < height - 2; ++y)
        for (int x = 3 + int(frame); x < width - 3; ++x)
            pixels[y * width + x] = char(1 + (x / 4 + y / 3 + int(image)) % 40);
    return pixels;
}

// Bytes of an art file of 8 directions × 3 frames and two palettes written by our own model, plus the
// things a lossless form must carry: header words the model does not read, a raw frame, a frame whose
// runs overfill it, one whose size is damaged, and bytes after the last frame.
QByteArray generatedArt()
{
    QByteArray header = FormatChecks::randomBytes(int(Artfile::HEADER_SIZE), 11);
    const quint32 words[9] = {0, 15, 0x22222222u, 1, 1, 0, 0, 2, 3}; // type, fps, ?, marks × 4, action, frames
    for (int w = 0; w < 9; ++w)
        qToLittleEndian(words[w], header.data() + 4 * w);
    std::vector<std::vector<Artfile::Image>> frames(8, std::vector<Artfile::Image>(3));
    for (unsigned i = 0; i < 8; ++i) {
        for (unsigned f = 0; f < 3; ++f) {
            Artfile::Image& frame = frames[i][f];
            const QByteArray pixels = spritePixels(SIDE, SIDE + int(i), i, f);
            frame.setData(SIDE, quint32(SIDE) + i, arcanum::ArtRunLength::encode(
                                                   reinterpret_cast<const quint8*>(pixels.constData()), std::size_t(pixels.size())));
            frame.left = int(i) - 3;
            frame.top = SIDE - 1;
            frame.dx = int(f);
            frame.dy = -int(f);
        }
    }
    frames[1][2].setData(SIDE, SIDE, spritePixels(SIDE, SIDE, 1, 2));                        // raw
    frames[2][0].setData(4, 2, QByteArray::fromHex("0a05"));                                  // runs overfill
    frames[3][1].setData(100000, 100000, QByteArray::fromHex("0201"));                        // damaged size
    return Artfile::assemble(header, {paletteBytes(0), paletteBytes(1)}, frames, QByteArray("tail bytes"));
}

Artfile load(const QByteArray& bytes)
{
    Artfile art;
    if (!art.loadBytes(bytes))
        qWarning() << art.loadFailure();
    return art;
}

QJsonObject readJson(const QString& path)
{
    return QJsonDocument::fromJson(FormatChecks::readFile(path)).object();
}

void writeJson(const QString& path, const QJsonObject& object)
{
    QVERIFY(FormatChecks::writeFile(path, QJsonDocument(object).toJson()));
}

QImage shadedBall(int side, int hue)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double dx = (x - side / 2.0) / (side / 2.5);
            const double dy = (y - side / 2.0) / (side / 2.5);
            if (dx * dx + dy * dy <= 1) {
                const double light = 0.3 + 0.7 * std::sqrt(1 - dx * dx - dy * dy);
                image.setPixelColor(x, y, QColor::fromHsv(hue, 200, int(255 * light)));
            }
        }
    }
    return image;
}

} // namespace

class TestArtFolder : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir scratch;

    QString exported(const QByteArray& bytes, const QString& tag, ArtFolder::Options options = {})
    {
        const QString dir = scratch.filePath(tag);
        QString error;
        if (!ArtFolder::write(load(bytes), QStringLiteral("sprite"), dir, options, error))
            qWarning() << error;
        return dir;
    }

    void expectFailure(const QString& dir, const QString& fragment)
    {
        Artfile art = load(generatedArt());
        const QByteArray before = art.toBytes();
        QString error;
        QVERIFY(!ArtFolder::read(dir, art, error));
        QVERIFY2(error.contains(fragment), qPrintable(error));
        QCOMPARE(art.toBytes(), before);
    }

private slots:
    void unchangedFolderImportsByteForByte_data()
    {
        QTest::addColumn<bool>("sheet");
        QTest::addColumn<unsigned>("palette");
        QTest::newRow("frames") << false << 0u;
        QTest::newRow("frames coloured by palette 1") << false << 1u;
        QTest::newRow("sheet") << true << 0u;
        QTest::newRow("sheet coloured by palette 1") << true << 1u;
    }

    void unchangedFolderImportsByteForByte()
    {
        QFETCH(bool, sheet);
        QFETCH(unsigned, palette);
        const QByteArray original = generatedArt();
        QVERIFY(load(original).isLoaded());
        const QString dir = exported(original, QTest::currentDataTag(), {sheet, palette});
        const QStringList pngs = QDir(dir).entryList({"*.png"}, QDir::Files);
        QCOMPARE(pngs.size(), sheet ? 1 : 8 * 3 - 1); // the damaged frame has no picture
        const QImage first(QDir(dir).filePath(pngs.first()));
        QCOMPARE(first.format(), QImage::Format_Indexed8);
        QCOMPARE(first.color(5) & 0xFFFFFFu, load(original).paletteAt(palette)[5].toRgb() & 0xFFFFFFu);
        QCOMPARE(qAlpha(first.color(0)), 0);
        if (sheet)
            QCOMPARE(first.size(), QSize(3 * SIDE, 8 * (SIDE + 7)));
        Artfile back;
        QString error;
        QVERIFY2(ArtFolder::read(dir, back, error), qPrintable(error));
        QCOMPARE(back.toBytes(), original);
        QCOMPARE(back.frameRate(), 15u);
        QCOMPARE(back.actionFrame(), 2u);
    }

    // Frames of damaged sizes have no picture: their bytes travel in the JSON, even when no frame has one.
    void framesWithoutPicturesKeepTheirBytes()
    {
        QByteArray header(int(Artfile::HEADER_SIZE), '\0');
        qToLittleEndian(quint32(1), header.data());      // images of one frame
        qToLittleEndian(quint32(1), header.data() + 12); // one palette
        qToLittleEndian(quint32(2), header.data() + 32); // two images
        std::vector<std::vector<Artfile::Image>> frames(2, std::vector<Artfile::Image>(1));
        frames[0][0].setData(70000, 2, QByteArray::fromHex("05030507"));
        frames[1][0].setData(0, 0, QByteArray());
        const QByteArray original = Artfile::assemble(header, {paletteBytes(0)}, frames, QByteArray());
        QVERIFY(load(original).isLoaded());
        for (bool sheet : {false, true}) {
            const QString dir = exported(original, QStringLiteral("pictureless_%1").arg(sheet), {sheet, 0});
            QCOMPARE(QDir(dir).entryList({"*.png"}, QDir::Files), QStringList());
            Artfile back;
            QString error;
            QVERIFY2(ArtFolder::read(dir, back, error), qPrintable(error));
            QCOMPARE(back.toBytes(), original);
        }
    }

    void editedFrameIsEncodedAfresh_data()
    {
        QTest::addColumn<bool>("trueColour");
        QTest::newRow("indexed PNG") << false;
        QTest::newRow("re-saved in true colour") << true;
    }

    void editedFrameIsEncodedAfresh()
    {
        QFETCH(bool, trueColour);
        const QByteArray original = generatedArt();
        const Artfile source = load(original);
        const QString dir = exported(original, QStringLiteral("edited_%1").arg(trueColour));
        // Direction 4 frame 1 gets a wider picture; the raw frame 1/2 is painted over in one colour.
        const QString wide = QDir(dir).filePath(QStringLiteral("sprite_i4_f1.png"));
        QImage picture(wide);
        picture = picture.copy(0, 0, SIDE + 6, picture.height());
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, 0, uint(x % 30));
        QByteArray widePixels = ArtImageFile::rowsOf(picture);
        const QString flat = QDir(dir).filePath(QStringLiteral("sprite_i1_f2.png"));
        QImage painted(flat);
        painted.fill(9);
        for (QImage* image : {&picture, &painted}) {
            if (trueColour)
                *image = image->convertToFormat(QImage::Format_ARGB32);
        }
        QVERIFY(picture.save(wide));
        QVERIFY(painted.save(flat));
        Artfile back;
        QString error;
        QVERIFY2(ArtFolder::read(dir, back, error), qPrintable(error));
        QCOMPARE(back.framePixels(4, 1), widePixels);
        QCOMPARE(back.frameAt(4, 1).width, quint32(SIDE + 6));
        QCOMPARE(back.frameAt(4, 1).data, arcanum::ArtRunLength::pack(widePixels));
        QCOMPARE(back.frameAt(4, 1).left, 1);
        QCOMPARE(back.framePixels(1, 2), QByteArray(SIDE * SIDE, '\11'));
        QVERIFY(!back.frameAt(1, 2).isRaw()); // one colour: runs are smaller than the raw pixels
        for (unsigned i = 0; i < 8; ++i) {
            for (unsigned f = 0; f < 3; ++f) {
                if ((i == 4 && f == 1) || (i == 1 && f == 2))
                    continue;
                QCOMPARE(back.frameAt(i, f).data, source.frameAt(i, f).data);
            }
        }
        QCOMPARE(back.trailerBytes(), source.trailerBytes());
        QCOMPARE(back.headerBytes(), source.headerBytes());
    }

    void editedFrameRateAndActionFrameReachTheHeader()
    {
        const QByteArray original = generatedArt();
        const QString dir = exported(original, QStringLiteral("rate"));
        const QString jsonPath = QDir(dir).filePath(QStringLiteral("sprite.json"));
        QJsonObject json = readJson(jsonPath);
        QCOMPARE(json.value("frameRate").toInt(), 15);
        json.insert("frameRate", 24);
        json.insert("actionFrame", 1);
        writeJson(jsonPath, json);
        Artfile back;
        QString error;
        QVERIFY2(ArtFolder::read(dir, back, error), qPrintable(error));
        QCOMPARE(back.frameRate(), 24u);
        QCOMPARE(back.actionFrame(), 1u);
        QByteArray wanted = original;
        qToLittleEndian(quint32(24), wanted.data() + 4);
        qToLittleEndian(quint32(1), wanted.data() + 28);
        QCOMPARE(back.toBytes(), wanted);
    }

    void editedSheetCellChangesOneFrame()
    {
        const QByteArray original = generatedArt();
        const QString dir = exported(original, QStringLiteral("edited_sheet"), {true, 0});
        const QString path = QDir(dir).filePath(QStringLiteral("sprite_p0.png"));
        QImage sheet(path);
        const int cellHeight = sheet.height() / 8;
        sheet.setPixel(SIDE + 5, 5 * cellHeight + 6, 200); // direction 5 frame 1
        QVERIFY(sheet.save(path));
        Artfile back;
        QString error;
        QVERIFY2(ArtFolder::read(dir, back, error), qPrintable(error));
        const Artfile source = load(original);
        QByteArray wanted = source.framePixels(5, 1);
        wanted[6 * SIDE + 5] = char(200);
        QCOMPARE(back.framePixels(5, 1), wanted);
        QCOMPARE(back.frameAt(5, 0).data, source.frameAt(5, 0).data);
    }

    void exportIntoAFolderKeepsOtherFiles()
    {
        const QString dir = scratch.filePath(QStringLiteral("busy"));
        QVERIFY(QDir().mkpath(dir));
        QVERIFY(FormatChecks::writeFile(QDir(dir).filePath("notes.txt"), "mine"));
        QString error;
        QVERIFY(ArtFolder::write(load(generatedArt()), QStringLiteral("sprite"), dir, {}, error));
        QCOMPARE(FormatChecks::readFile(QDir(dir).filePath("notes.txt")), QByteArray("mine"));
        // A failed export leaves nothing behind, not even its temporary folder.
        const QString none = scratch.filePath(QStringLiteral("never"));
        QVERIFY(!ArtFolder::write(load(generatedArt()), QStringLiteral("sprite"), none, {false, 2}, error));
        QVERIFY(error.contains(QStringLiteral("no palette 2")));
        QVERIFY(!QFileInfo::exists(none));
        QCOMPARE(QDir(scratch.path()).entryList({".loreka-export-*"}, QDir::AllEntries | QDir::Hidden), QStringList());
    }

    void badFoldersAreRefused_data()
    {
        QTest::addColumn<QString>("damage");
        QTest::addColumn<QString>("message");
        QTest::newRow("missing frame PNG") << "remove sprite_i6_f2.png" << "sprite_i6_f2.png: missing, ";
        QTest::newRow("header counts other frames") << "frames word 5" << "its header";
        QTest::newRow("short palette") << "short palette" << "palette 1 holds 1020 bytes";
        QTest::newRow("ragged images") << "drop a frame" << "image 7 has 2 frames";
        QTest::newRow("not a description") << "kind" << "not an art description";
        QTest::newRow("placement not a number") << "left text" << "image 0 frame 0: its size and placement";
        QTest::newRow("frame rate not a number") << "frameRate" << "\"frameRate\" needs a whole number";
        QTest::newRow("picture of no size") << "width" << "image 0 frame 0 has a picture but 4294967295 × 20";
        QTest::newRow("file outside the folder") << "escape" << "missing";
        QTest::newRow("no description") << "remove sprite.json" << "no art description";
        QTest::newRow("two descriptions") << "copy sprite.json" << "more than one .json";
        QTest::newRow("frame too large") << "huge" << "larger than a frame can hold";
    }

    void badFoldersAreRefused()
    {
        QFETCH(QString, damage);
        QFETCH(QString, message);
        const QString dir = exported(generatedArt(), QStringLiteral("bad_") + QTest::currentDataTag());
        const QString jsonPath = QDir(dir).filePath(QStringLiteral("sprite.json"));
        QJsonObject json = readJson(jsonPath);
        QJsonArray images = json.value("images").toArray();
        if (damage.startsWith(QLatin1String("remove ")))
            QVERIFY(QFile::remove(QDir(dir).filePath(damage.mid(7))));
        else if (damage == QLatin1String("copy sprite.json"))
            QVERIFY(QFile::copy(jsonPath, QDir(dir).filePath(QStringLiteral("other.json"))));
        else if (damage == QLatin1String("huge"))
            QVERIFY(FormatChecks::writeFile(QDir(dir).filePath(QStringLiteral("sprite_i0_f0.png")), FormatChecks::pngHeaderOnly(70000, 3)));
        else {
            if (damage == QLatin1String("frames word 5")) {
                QByteArray header = QByteArray::fromBase64(json.value("header").toString().toLatin1());
                qToLittleEndian(quint32(5), header.data() + 32);
                json.insert("header", QString::fromLatin1(header.toBase64()));
            } else if (damage == QLatin1String("short palette")) {
                QJsonArray palettes = json.value("palettes").toArray();
                palettes[1] = QString::fromLatin1(paletteBytes(1).left(1020).toBase64());
                json.insert("palettes", palettes);
            } else if (damage == QLatin1String("drop a frame")) {
                QJsonArray last = images.at(7).toArray();
                last.removeLast();
                images[7] = last;
            } else if (damage == QLatin1String("frameRate")) {
                json.insert("frameRate", -3);
            } else if (damage == QLatin1String("kind")) {
                json.insert("kind", "something else");
            } else if (damage == QLatin1String("left text") || damage == QLatin1String("escape")
                       || damage == QLatin1String("width")) {
                QJsonArray row = images.at(0).toArray();
                QJsonObject frame = row.at(0).toObject();
                if (damage == QLatin1String("escape"))
                    frame.insert("file", "../../etc/passwd");
                else if (damage == QLatin1String("width"))
                    frame.insert("width", 4294967295.0);
                else
                    frame.insert("left", "ten");
                row[0] = frame;
                images[0] = row;
            }
            json.insert("images", images);
            writeJson(jsonPath, json);
        }
        expectFailure(dir, message);
    }

    void sheetOffTheGridIsRefused()
    {
        const QString dir = exported(generatedArt(), QStringLiteral("bad_sheet"), {true, 0});
        const QString path = QDir(dir).filePath(QStringLiteral("sprite_p0.png"));
        QImage sheet(path);
        QVERIFY(sheet.copy(0, 0, sheet.width() - 1, sheet.height()).save(path));
        expectFailure(dir, QStringLiteral("is not a grid of 3 frames by 8 images"));
    }

    void emptyFolderIsRefused()
    {
        const QString dir = scratch.filePath(QStringLiteral("empty"));
        QVERIFY(QDir().mkpath(dir));
        expectFailure(dir, QStringLiteral("the folder is empty"));
    }

    void newArtFromImages()
    {
        std::vector<std::vector<QImage>> directions;
        for (int d = 0; d < 8; ++d)
            directions.push_back({shadedBall(32, d * 40), shadedBall(32, d * 40 + 10)});
        ArtMaker::Settings settings;
        settings.frameRate = 12;
        settings.actionFrame = 1;
        Artfile art;
        QString error;
        QVERIFY2(ArtMaker::make(directions, settings, art, error), qPrintable(error));
        QCOMPARE(art.getImageCount(), 8u);
        QCOMPARE(art.getFrameCount(), 2u);
        QCOMPARE(art.frameRate(), 12u);
        QCOMPARE(art.actionFrame(), 1u);
        const Artfile::Palette& palette = art.paletteAt(0);
        const QRgb key = palette[0].toRgb();
        int colours = 0;
        for (unsigned i = 1; i < 256; ++i)
            colours += palette[i].toRgb() != key ? 1 : 0;
        QVERIFY(colours > 16 && colours <= 255);
        // The bytes read back as the same sprite.
        Artfile reread = load(art.toBytes());
        QCOMPARE(reread.getImageCount(), 8u);
        for (unsigned d = 0; d < 8; ++d) {
            const QByteArray pixels = reread.framePixels(d, 1);
            QCOMPARE(pixels.size(), 32 * 32);
            QCOMPARE(pixels.at(0), '\0'); // the clear corner
            const quint8 centre = quint8(pixels.at(16 * 32 + 16));
            QVERIFY(centre != 0 && palette[centre].toRgb() != key);
            const QColor wanted = directions[d][1].pixelColor(16, 16);
            const QColor got = QColor(palette[centre].toRgb());
            QVERIFY2(std::abs(wanted.red() - got.red()) + std::abs(wanted.green() - got.green())
                         + std::abs(wanted.blue() - got.blue()) < 40,
                     qPrintable(QStringLiteral("direction %1: %2 for %3").arg(d).arg(got.name(), wanted.name())));
            QCOMPARE(reread.frameAt(d, 1).left, 16);
            QCOMPARE(reread.frameAt(d, 1).top, 31);
        }
    }

    void newArtKeepsAGivenPaletteAndHotspot()
    {
        Artfile::Palette palette{};
        palette[0] = Artfile::Colour::fromArgb(qRgb(0, 0, 0) & 0xFFFFFFu);
        palette[1] = Artfile::Colour::fromArgb(qRgb(1, 1, 1) & 0xFFFFFFu);
        palette[2] = Artfile::Colour::fromArgb(qRgb(250, 250, 250) & 0xFFFFFFu);
        for (unsigned i = 3; i < 256; ++i)
            palette[i] = palette[2];
        QImage image(5, 4, QImage::Format_ARGB32);
        image.fill(qRgb(0, 0, 0));
        image.setPixel(0, 0, qRgba(255, 255, 255, 40));
        ArtMaker::Settings settings;
        settings.ownPalette = true;
        Artfile::copyPalette(palette, settings.palette);
        settings.ownHotspot = true;
        settings.hotspot = QPoint(-2, 7);
        Artfile art;
        QString error;
        QVERIFY(ArtMaker::make({{image}, {image}, {image}}, settings, art, error));
        QCOMPARE(art.getImageCount(), 3u);
        QCOMPARE(art.getFrameCount(), 1u);
        QVERIFY(std::equal(std::begin(palette), std::end(palette), art.paletteAt(0)));
        QByteArray wanted(20, '\1'); // black is drawn with the near-black entry, never the black key
        wanted[0] = '\0';
        QCOMPARE(art.framePixels(2, 0), wanted);
        QCOMPARE(art.frameAt(2, 0).left, -2);
        QCOMPARE(art.frameAt(2, 0).top, 7);
        QVERIFY(load(art.toBytes()).isLoaded());
    }

    void quantizedKeyIsAColourNoPixelHas()
    {
        QImage image(2, 1, QImage::Format_RGB32);
        image.setPixel(0, 0, qRgb(0, 0, 0));
        image.setPixel(1, 0, qRgb(255, 0, 255));
        Artfile::Palette palette{};
        QString error;
        QVERIFY(ArtMaker::quantize({&image}, palette, error));
        const QRgb key = palette[0].toRgb();
        QVERIFY(key != qRgb(0, 0, 0) && key != qRgb(255, 0, 255));
        QCOMPARE(palette[1].toRgb() == key, false);
        QCOMPARE(palette[255].toRgb(), key);
    }

    void unevenDirectionsAreRefused()
    {
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(Qt::red);
        Artfile art;
        QString error;
        QVERIFY(!ArtMaker::make({{image, image}, {image, image}}, {}, art, error));
        QVERIFY2(error.contains(QStringLiteral("2 images of 2 frames")), qPrintable(error));
        QVERIFY(!art.isLoaded());
    }

    void imageFilesTooLargeForAFrameAreRefused()
    {
        const QString path = scratch.filePath(QStringLiteral("wide.png"));
        QVERIFY(FormatChecks::writeFile(path, FormatChecks::pngHeaderOnly(70000, 3)));
        QImage image;
        QString error;
        QVERIFY(!ArtImageFile::read(path, image, error));
        QVERIFY2(error.startsWith(path + QStringLiteral(": 70000 × 3 pixels is larger than a frame can hold")),
                 qPrintable(error));
        QVERIFY(ArtImageFile::fitsAFrame(8192, 8192));
        QVERIFY(!ArtImageFile::fitsAFrame(8193, 8192));
        QVERIFY(!ArtImageFile::fitsAFrame(0, 5));
    }
};

QTEST_GUILESS_MAIN(TestArtFolder)
#include "tst_artfolder.moc"
