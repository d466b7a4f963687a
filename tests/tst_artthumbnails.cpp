// Thumbnails of art files for the lists: drawn in the background, kept while the file stays the same.
#include "ArtThumbnails.h"
#include "Artfile.h"
#include "DatWriter.h"
#include "FormatChecks.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using arcanum::Artfile;

namespace {

// One image of one frame, width × height of index 1 in the given colour; entry 0 (the key) is magenta.
QByteArray artBytes(int width, int height, QRgb colour)
{
    Artfile art;
    art.newImage(0);
    art.newFrame(0);
    Artfile::Palette colours{};
    colours[0] = Artfile::Colour::fromArgb(qRgb(255, 0, 255));
    colours[1] = Artfile::Colour::fromArgb(colour);
    art.setPalette(0, colours);
    QByteArray pixels(width * height, char(1));
    pixels[0] = 0;
    art.setFramePixels(0, 0, quint32(width), quint32(height), pixels);
    return art.toBytes();
}

} // namespace

class TestArtThumbnails : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

private slots:
    void initTestCase() { QVERIFY(dir.isValid()); }

    void firstFrameFittedAndKeyed()
    {
        const QImage small = ArtThumbnails::render(artBytes(10, 6, qRgb(0, 200, 0)));
        QCOMPARE(small.size(), QSize(ArtThumbnails::SIDE, ArtThumbnails::SIDE));
        const int left = (ArtThumbnails::SIDE - 10) / 2;
        const int top = (ArtThumbnails::SIDE - 6) / 2;
        QCOMPARE(qAlpha(small.pixel(left, top)), 0); // the key
        QCOMPARE(small.pixel(left + 1, top), qRgb(0, 200, 0));
        QCOMPARE(qAlpha(small.pixel(0, 0)), 0);
        const QImage large = ArtThumbnails::render(artBytes(128, 64, qRgb(0, 0, 200)));
        QCOMPARE(large.pixel(ArtThumbnails::SIDE / 2, ArtThumbnails::SIDE / 2), qRgb(0, 0, 200));
        QVERIFY(ArtThumbnails::render(QByteArray("no art")).isNull());
    }

    void madeInTheBackgroundAndCached()
    {
        const QString loose = dir.filePath(QStringLiteral("green.art"));
        QVERIFY(FormatChecks::writeFile(loose, artBytes(8, 8, qRgb(0, 200, 0))));
        const QString archive = dir.filePath(QStringLiteral("pack.dat"));
        QString error;
        QVERIFY2(arcanum::DatWriter::write(archive, {{QStringLiteral("art\\item\\red.art"), artBytes(8, 8, qRgb(200, 0, 0))}},
                                           error), qPrintable(error));
        ArtThumbnails thumbnails;
        QSignalSpy ready(&thumbnails, &ArtThumbnails::ready);
        const ArtThumbnails::Source fromDisk{loose, QString(), QString()};
        const ArtThumbnails::Source fromArchive{QString(), archive, QStringLiteral("art/item/red.art")};
        // Asking returns at once with nothing; the pictures come with the signal.
        QVERIFY(thumbnails.thumbnail(QStringLiteral("green"), fromDisk).isNull());
        QVERIFY(thumbnails.thumbnail(QStringLiteral("red"), fromArchive).isNull());
        QVERIFY(thumbnails.thumbnail(QStringLiteral("green"), fromDisk).isNull()); // asked once only
        QTRY_COMPARE(ready.size(), 2);
        QCOMPARE(thumbnails.drawnCount(), 2);
        const int middle = ArtThumbnails::SIDE / 2;
        QCOMPARE(thumbnails.thumbnail(QStringLiteral("green"), fromDisk).pixel(middle, middle), qRgb(0, 200, 0));
        QCOMPARE(thumbnails.thumbnail(QStringLiteral("red"), fromArchive).pixel(middle, middle), qRgb(200, 0, 0));

        // Unchanged files keep their pictures after the lists are read again.
        thumbnails.revalidate();
        QVERIFY(!thumbnails.thumbnail(QStringLiteral("green"), fromDisk).isNull());
        QCOMPARE(thumbnails.drawnCount(), 2);

        // A file of another size is drawn again.
        QVERIFY(FormatChecks::writeFile(loose, artBytes(12, 12, qRgb(0, 0, 200))));
        thumbnails.revalidate();
        QVERIFY(thumbnails.thumbnail(QStringLiteral("green"), fromDisk).isNull());
        QTRY_COMPARE(ready.size(), 3);
        QCOMPARE(thumbnails.thumbnail(QStringLiteral("green"), fromDisk).pixel(middle, middle), qRgb(0, 0, 200));
    }

    void noArtGivesNoPicture()
    {
        const QString junk = dir.filePath(QStringLiteral("junk.art"));
        QVERIFY(FormatChecks::writeFile(junk, QByteArray("not an art file")));
        ArtThumbnails thumbnails;
        QSignalSpy ready(&thumbnails, &ArtThumbnails::ready);
        QVERIFY(thumbnails.thumbnail(QStringLiteral("junk"), {junk, QString(), QString()}).isNull());
        QVERIFY(thumbnails.thumbnail(QStringLiteral("gone"), {dir.filePath(QStringLiteral("missing.art")), QString(), QString()}).isNull());
        thumbnails.waitForDone();
        QCOMPARE(thumbnails.drawnCount(), 2);
        QCOMPARE(ready.size(), 0);
        QVERIFY(thumbnails.thumbnail(QStringLiteral("junk"), {junk, QString(), QString()}).isNull());
        QCOMPARE(thumbnails.drawnCount(), 2); // not tried again while the file stays the same
    }

    // Many files: asking for all of them returns at once; the worker draws them meanwhile.
    void askingNeverWaits()
    {
        ArtThumbnails thumbnails;
        const QByteArray bytes = artBytes(256, 256, qRgb(10, 20, 30));
        QVector<ArtThumbnails::Source> sources;
        for (int i = 0; i < 40; ++i) {
            const QString path = dir.filePath(QStringLiteral("many%1.art").arg(i));
            QVERIFY(FormatChecks::writeFile(path, bytes));
            sources.append({path, QString(), QString()});
        }
        QSignalSpy ready(&thumbnails, &ArtThumbnails::ready);
        for (int i = 0; i < sources.size(); ++i)
            QVERIFY(thumbnails.thumbnail(QString::number(i), sources.at(i)).isNull());
        QVERIFY(ready.size() < sources.size()); // nothing arrives until the event loop runs
        QTRY_COMPARE_WITH_TIMEOUT(ready.size(), int(sources.size()), 20000);
    }
};

QTEST_MAIN(TestArtThumbnails)
#include "tst_artthumbnails.moc"
