// The Art tab's animation preview: frames registered on their hotspots, playing, and its edits.
#include "ArtAnimationWidget.h"
#include "ArtDocument.h"
#include "ArtPageSupport.h"
#include "ArtHeaderWidget.h"
#include "ArtPreview.h"
#include "ArtWidget.h"
#include "Artfile.h"
#include "ScriptedAnswerer.h"
#include "UndoChecks.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QUndoStack>
#include <QtTest>

using arcanum::Artfile;

namespace {

const QRgb KEY = qRgb(0, 0, 255);
const QRgb RED = qRgb(255, 0, 0);

struct FrameShape
{
    quint32 width;
    quint32 height;
    qint32 left;
    qint32 top;
};

// Every image has the same frames: frame f is a solid rectangle of index 1 + f (red for frame 0)
// with the given placement; entry 0 is the blue transparent key.
Artfile makeArt(unsigned images, const QVector<FrameShape>& frames, quint32 frameRate)
{
    Artfile art;
    for (unsigned i = 0; i < images; ++i)
        art.newImage(0);
    for (int f = 0; f < frames.size(); ++f)
        art.newFrame(0);
    Artfile::Palette colours;
    for (unsigned i = 0; i < Artfile::PALETTE_SIZE; ++i)
        colours[i] = Artfile::Colour::fromArgb(qRgb(int(i), 200, int(255 - i)));
    colours[0] = Artfile::Colour::fromArgb(KEY);
    colours[1] = Artfile::Colour::fromArgb(RED);
    art.setPalette(0, colours);
    for (unsigned i = 0; i < images; ++i)
        for (int f = 0; f < frames.size(); ++f) {
            const FrameShape& shape = frames.at(f);
            Artfile::Image* frame = art.getImage(i, unsigned(f));
            frame->setData(shape.width, shape.height, QByteArray(int(shape.width * shape.height), char(1 + f)));
            frame->left = shape.left;
            frame->top = shape.top;
        }
    art.setFrameRate(frameRate);
    return art;
}

// The rectangle of non-background pixels of colour in a grab of the preview.
QRect paintedRect(const QImage& shot, QRgb colour)
{
    QRect found;
    for (int y = 0; y < shot.height(); ++y)
        for (int x = 0; x < shot.width(); ++x)
            if (shot.pixel(x, y) == colour)
                found |= QRect(x, y, 1, 1);
    return found;
}

} // namespace

class TestArtPreview : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

    std::unique_ptr<ArtWidget> openPage(const Artfile& art)
    {
        const QString file = dir.filePath(QStringLiteral("preview.art"));
        Artfile copy = art;
        if (!copy.save(file))
            qFatal("cannot write %s", qPrintable(file));
        auto page = ArtPageSupport::showPage(file);
        page->findChild<QTabWidget*>(QStringLiteral("tabsArtView"))->setCurrentWidget(page->animationWidget());
        return page;
    }

    template <typename T>
    static T* child(QWidget& parent, const char* name)
    {
        T* found = parent.findChild<T*>(QString::fromLatin1(name));
        if (!found)
            qFatal("no child %s", name);
        return found;
    }

private slots:
    void initTestCase() { QVERIFY(dir.isValid()); }

    void framesStandOnTheirHotspot_data()
    {
        QTest::addColumn<FrameShape>("shape");
        QTest::addColumn<int>("zoom");
        QTest::newRow("hotspot inside") << FrameShape{10, 6, 3, 5} << 1;
        QTest::newRow("hotspot at the top left") << FrameShape{4, 4, 0, 0} << 1;
        QTest::newRow("hotspot outside, negative") << FrameShape{5, 3, -7, -2} << 1;
        QTest::newRow("zoomed") << FrameShape{6, 2, 5, 1} << 3;
    }

    // The picture's top left pixel lands at the anchor minus the hotspot, scaled by the zoom.
    void framesStandOnTheirHotspot()
    {
        QFETCH(FrameShape, shape);
        QFETCH(int, zoom);
        // A second frame with another hotspot widens the extent: the anchor must not follow one frame.
        Artfile art = makeArt(1, {shape, FrameShape{3, 3, -20, 30}}, 10);
        Artfile::Image frame = *art.getImage(0, 0);
        QCOMPARE(ArtPreview::framePosition(QPoint(100, 50), frame), QPoint(100 - shape.left, 50 - shape.top));

        ArtPreview preview;
        preview.setArtfile(&art);
        preview.setZoom(zoom);
        preview.resize(preview.sizeHint());
        preview.setBackground(Qt::black);
        const QImage shot = preview.grab().toImage();
        const QPoint anchor = preview.anchorOf(0);
        QCOMPARE(paintedRect(shot, RED),
                 QRect(anchor - QPoint(shape.left, shape.top) * zoom,
                       QSize(int(shape.width), int(shape.height)) * zoom));

        // The second frame stands on the same anchor.
        preview.step(1);
        const QImage second = preview.grab().toImage();
        const QRgb colour = art.getPalette(0)[2].toRgb();
        QCOMPARE(paintedRect(second, colour).topLeft(), anchor + QPoint(20, -30) * zoom);
    }

    void transparentPixelsShowTheBackground()
    {
        Artfile art = makeArt(1, {FrameShape{4, 4, 0, 0}}, 10);
        art.getImage(0, 0)->data[5] = 0;
        ArtPreview preview;
        preview.setArtfile(&art);
        preview.resize(preview.sizeHint());
        const QColor chosen(10, 120, 30);
        preview.setBackground(chosen);
        const QPoint anchor = preview.anchorOf(0);
        QImage shot = preview.grab().toImage();
        QCOMPARE(shot.pixel(anchor + QPoint(1, 1)), chosen.rgb());
        QCOMPARE(shot.pixel(anchor), RED);
        QVERIFY(paintedRect(shot, KEY).isNull());
        preview.setBackground(QColor());
        shot = preview.grab().toImage();
        const QRgb board = shot.pixel(anchor + QPoint(1, 1));
        QVERIFY(board == qRgb(255, 255, 255) || board == qRgb(0xcc, 0xcc, 0xcc));
    }

    void allDirectionsPlaySideBySide()
    {
        Artfile art = makeArt(8, {FrameShape{6, 6, 3, 3}, FrameShape{6, 6, 3, 3}}, 10);
        ArtPreview preview;
        preview.setArtfile(&art);
        preview.setAllImages(true);
        preview.resize(2000, 400);
        QSet<int> columns;
        for (unsigned image = 0; image < 8; ++image) {
            QVERIFY(!preview.anchorOf(image).isNull());
            columns.insert(preview.anchorOf(image).x());
        }
        QCOMPARE(columns.size(), 8);
        // Frames of 6 pixels still leave room for each image's name over them.
        QVERIFY(preview.anchorOf(1).x() - preview.anchorOf(0).x()
                > preview.fontMetrics().horizontalAdvance(QStringLiteral("Image 7")));
        const QImage shot = preview.grab().toImage();
        QCOMPARE(paintedRect(shot, RED).width(), preview.anchorOf(7).x() - preview.anchorOf(0).x() + 6);
        QCOMPARE(preview.cachedPictures(), 8);
        // Narrow, the cells wrap into rows instead of widening the page.
        preview.resize(preview.minimumSizeHint().width(), 400);
        QVERIFY(preview.heightForWidth(preview.width()) > preview.heightForWidth(2000));
    }

    void playbackTimingFollowsTheFrameRate_data()
    {
        QTest::addColumn<quint32>("rate");
        QTest::addColumn<int>("interval");
        QTest::newRow("25 fps") << 25u << 40;
        QTest::newRow("8 fps") << 8u << 125;
        QTest::newRow("0 plays at the default") << 0u << 100;
    }

    void playbackTimingFollowsTheFrameRate()
    {
        QFETCH(quint32, rate);
        QFETCH(int, interval);
        Artfile art = makeArt(1, {FrameShape{2, 2, 0, 0}}, rate);
        ArtPreview preview;
        preview.setArtfile(&art);
        QCOMPARE(preview.interval(), interval);
    }

    void playbackStepsAndLoops()
    {
        Artfile art = makeArt(1, QVector<FrameShape>(3, FrameShape{2, 2, 0, 0}), 50);
        ArtPreview preview;
        preview.setArtfile(&art);
        QSignalSpy frames(&preview, &ArtPreview::frameChanged);
        QElapsedTimer clock;
        clock.start();
        preview.setPlaying(true);
        QTRY_VERIFY_WITH_TIMEOUT(frames.size() >= 4, 5000);
        preview.setPlaying(false);
        // Four ticks at 20 ms each cannot come sooner than the frame rate allows.
        QVERIFY(clock.elapsed() >= 4 * 20 - 5);
        QList<int> seen;
        for (const QList<QVariant>& call : frames)
            seen.append(call.at(0).toInt());
        QCOMPARE(seen.mid(0, 4), (QList<int>{1, 2, 0, 1}));

        // Without looping the last frame stays and playing stops.
        preview.setLoop(false);
        preview.setFrame(1);
        QSignalSpy stopped(&preview, &ArtPreview::playingChanged);
        preview.setPlaying(true);
        QTRY_VERIFY_WITH_TIMEOUT(!preview.isPlaying(), 5000);
        QCOMPARE(preview.frame(), 2);
        QCOMPARE(stopped.last().at(0).toBool(), false);
        // Playing again starts over.
        preview.setPlaying(true);
        QCOMPARE(preview.frame(), 0);
        preview.setPlaying(false);

        preview.step(-1);
        QCOMPARE(preview.frame(), 2);
        preview.step(2);
        QCOMPARE(preview.frame(), 1);
    }

    void playButtonAndStepsDriveThePreview()
    {
        auto page = openPage(makeArt(8, QVector<FrameShape>(4, FrameShape{8, 8, 4, 7}), 30));
        ArtPreview* preview = page->animationWidget()->preview();
        QTest::mouseClick(child<QPushButton>(*page, "buttonStepForward"), Qt::LeftButton);
        QTest::mouseClick(child<QPushButton>(*page, "buttonStepForward"), Qt::LeftButton);
        QCOMPARE(preview->frame(), 2);
        QCOMPARE(child<QLabel>(*page, "labelPreviewFrame")->text(), QStringLiteral("Frame 2 of 4"));
        QTest::mouseClick(child<QPushButton>(*page, "buttonStepBack"), Qt::LeftButton);
        QCOMPARE(preview->frame(), 1);
        auto* play = child<QPushButton>(*page, "buttonPlay");
        QTest::mouseClick(play, Qt::LeftButton);
        QVERIFY(preview->isPlaying());
        QCOMPARE(play->text(), QStringLiteral("Pause"));
        QTest::mouseClick(play, Qt::LeftButton);
        QVERIFY(!preview->isPlaying());
        child<QCheckBox>(*page, "checkAllImages")->setChecked(true);
        QVERIFY(preview->allImages());
        QVERIFY(!page->document()->isModified());
    }

    void headerSpinsAreUndoableSteps_data()
    {
        QTest::addColumn<QString>("spin");
        QTest::addColumn<int>("value");
        QTest::newRow("frame rate") << "spinFrameRate" << 12;
        QTest::newRow("action frame") << "spinActionFrame" << 3;
    }

    void headerSpinsAreUndoableSteps()
    {
        QFETCH(QString, spin);
        QFETCH(int, value);
        auto page = openPage(makeArt(8, QVector<FrameShape>(5, FrameShape{8, 8, 4, 7}), 10));
        auto* box = page->findChild<QSpinBox*>(spin);
        QVERIFY(checkUndoRedo(*page->document(), [&] {
            box->setValue(value - 1);
            box->setValue(value);
        }, 1));
        const Artfile& art = page->artDocument()->art();
        QCOMPARE(spin == QLatin1String("spinFrameRate") ? art.frameRate() : art.actionFrame(), quint32(value));
        QCOMPARE(art.headerWord(spin == QLatin1String("spinFrameRate") ? 4 : 28), quint32(value));
        page->document()->undoStack()->undo();
        QCOMPARE(box->value(), spin == QLatin1String("spinFrameRate") ? 10 : 0);
        QCOMPARE(page->animationWidget()->preview()->interval(), spin == QLatin1String("spinFrameRate") ? 100 : 100);
    }

    void draggingAFrameMovesItsHotspotInOneStep()
    {
        auto page = openPage(makeArt(8, QVector<FrameShape>(3, FrameShape{8, 8, 4, 7}), 10));
        ArtPreview* preview = page->animationWidget()->preview();
        child<QSpinBox>(*page, "spinPreviewZoom")->setValue(2);
        preview->setFrame(1);
        // The lists follow the preview's frame, so the frame tab shows the one being moved.
        QCOMPARE(child<QListWidget>(*page, "listFrames")->currentRow(), 1);
        const QPoint start = preview->anchorOf(0) - QPoint(2, 2);
        QVERIFY(checkUndoRedo(*page->document(), [&] {
            QTest::mousePress(preview, Qt::LeftButton, {}, start);
            QTest::mouseMove(preview, start + QPoint(4, 0));
            QTest::mouseMove(preview, start + QPoint(6, -4));
            QTest::mouseRelease(preview, Qt::LeftButton, {}, start + QPoint(6, -4));
        }, 1));
        const Artfile::Image* moved = page->artDocument()->art().getImage(0, 1);
        // Three pixels right and two up at zoom 2: the hotspot is that much further left and lower inside.
        QCOMPARE(moved->left, 4 - 3);
        QCOMPARE(moved->top, 7 + 2);
        QCOMPARE(page->artDocument()->art().getImage(0, 0)->left, 4);
        QCOMPARE(page->document()->undoStack()->text(page->document()->undoStack()->index() - 1),
                 QStringLiteral("Move frame 1 of image 0")); // as the lists number them
        // The page shows the change: the frame's spin boxes and the preview's picture.
        QCOMPARE(preview->frame(), 1);
        QCOMPARE(child<QSpinBox>(*page, "spinLeft")->value(), 1);

        // A click without moving changes nothing.
        const int steps = page->document()->undoStack()->count();
        QTest::mouseClick(preview, Qt::LeftButton, {}, start);
        QCOMPARE(page->document()->undoStack()->count(), steps);
    }

    void undoKeepsTheSelectedFrame()
    {
        auto page = openPage(makeArt(8, QVector<FrameShape>(3, FrameShape{8, 8, 4, 7}), 10));
        auto* images = page->findChild<QListWidget*>(QStringLiteral("listImages"));
        auto* frames = page->findChild<QListWidget*>(QStringLiteral("listFrames"));
        images->setCurrentRow(5);
        frames->setCurrentRow(2);
        page->artDocument()->setHotspot(5, 2, 1, 1);
        QCOMPARE(images->currentRow(), 5);
        QCOMPARE(frames->currentRow(), 2);
        page->document()->undoStack()->undo();
        QCOMPARE(images->currentRow(), 5);
        QCOMPARE(frames->currentRow(), 2);
        QCOMPARE(child<QSpinBox>(*page, "spinLeft")->value(), 4);
    }

    // A converted picture is kept until the file changes; a change shows the new pixels.
    void changedFramesAreConvertedAgain()
    {
        auto page = openPage(makeArt(1, {FrameShape{4, 4, 0, 0}}, 10));
        ArtPreview* preview = page->animationWidget()->preview();
        preview->setBackground(Qt::black);
        const QPoint anchor = preview->anchorOf(0);
        QCOMPARE(preview->grab().toImage().pixel(anchor), RED);
        QCOMPARE(preview->cachedPictures(), 1);
        QImage green(4, 4, QImage::Format_Indexed8);
        green.setColorCount(256);
        green.fill(7);
        page->artDocument()->replaceFrame(0, 0, green);
        QCOMPARE(preview->grab().toImage().pixel(anchor), page->artDocument()->art().getPalette(0)[7].toRgb());
        page->document()->undoStack()->undo();
        QCOMPARE(preview->grab().toImage().pixel(anchor), RED);
    }

    // Edits the lists and the frame editor make in place reach the preview too.
    void listEditsReachThePreview()
    {
        auto page = openPage(makeArt(8, QVector<FrameShape>(2, FrameShape{4, 4, 0, 0}), 10));
        ArtPreview* preview = page->animationWidget()->preview();
        preview->setBackground(Qt::black);
        QCOMPARE(preview->grab().toImage().pixel(preview->anchorOf(0)), RED);
        QTest::mouseClick(child<QPushButton>(*page, "frameButtonNew"), Qt::LeftButton);
        QCOMPARE(preview->frameCount(), 3);
        // A colour changed in the palette editor shows in the next picture drawn.
        preview->setFrame(0);
        ScriptedAnswerer answers;
        answers.colors << QColor(0, 255, 0);
        answers.dialogs << [](QDialog& dialog) {
            dialog.show();
            auto* table = dialog.findChild<QTableWidget*>(QStringLiteral("tablePalette"));
            QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualItemRect(table->item(0, 1)).center());
            QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("buttonOk")), Qt::LeftButton);
            return dialog.result();
        };
        QVERIFY(page->headerWidget()->editPalette(0));
        QCOMPARE(preview->grab().toImage().pixel(preview->anchorOf(0)), qRgb(0, 255, 0));
    }

    void insertedFrameGoesAfterTheSelectedOne()
    {
        auto page = openPage(makeArt(8, QVector<FrameShape>(3, FrameShape{8, 8, 4, 7}), 10));
        QImage picture(6, 5, QImage::Format_Indexed8);
        picture.setColorCount(256);
        picture.fill(9);
        const QByteArray third = page->artDocument()->art().getImage(1, 2)->data;
        QVERIFY(checkUndoRedo(*page->document(), [&] { page->artDocument()->insertFrame(1, 0, picture); }, 1));
        const Artfile& art = page->artDocument()->art();
        QCOMPARE(art.getFrameCount(), 4u);
        const Artfile::Image* added = const_cast<Artfile&>(art).getImage(1, 1);
        QCOMPARE(added->width, 6u);
        QCOMPARE(art.framePixels(1, 1), QByteArray(30, char(9)));
        QCOMPARE(added->left, 3);
        QCOMPARE(added->top, 4);
        QCOMPARE(const_cast<Artfile&>(art).getImage(1, 3)->data, third);
        QCOMPARE(const_cast<Artfile&>(art).getImage(0, 1)->width, 16u); // the other image gets an empty frame
    }
};

Q_DECLARE_METATYPE(FrameShape)

QTEST_MAIN(TestArtPreview)
#include "tst_artpreview.moc"
