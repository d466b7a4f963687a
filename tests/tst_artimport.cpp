// Pictures coming into the Art tab: files, new frames, folders and the clipboard, matched to the palette
// in the import dialog before anything changes.
#include "ArtDocument.h"
#include "ArtEditorWidget.h"
#include "ArtPageSupport.h"
#include "ArtWidget.h"
#include "Artfile.h"
#include "DialogImportImage.h"
#include "FormatChecks.h"
#include "ScriptedAnswerer.h"
#include "UndoChecks.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUndoStack>
#include <QtEndian>
#include <QtTest>

using arcanum::Artfile;

namespace {

// Entry i is a grey of i except a few exact colours the pictures below use; entry 0 is magenta (the key).
void fillPalette(Artfile::Palette& colours)
{
    for (unsigned i = 0; i < Artfile::PALETTE_SIZE; ++i)
        colours[i] = Artfile::Colour::fromArgb(qRgb(int(i), int(i), int(i)));
    colours[0] = Artfile::Colour::fromArgb(qRgb(255, 0, 255));
    colours[10] = Artfile::Colour::fromArgb(qRgb(200, 30, 30));
    colours[11] = Artfile::Colour::fromArgb(qRgb(30, 160, 40));
}

QString writeArt(const QString& path, unsigned frames)
{
    Artfile art;
    for (unsigned i = 0; i < 8; ++i)
        art.newImage(0);
    for (unsigned f = 0; f < frames; ++f)
        art.newFrame(0);
    Artfile::Palette colours;
    fillPalette(colours);
    art.setPalette(0, colours);
    for (unsigned i = 0; i < 8; ++i)
        for (unsigned f = 0; f < frames; ++f) {
            art.getImage(i, f)->setData(2, 2, QByteArray(4, char(20 + f)));
            art.getImage(i, f)->left = 1;
            art.getImage(i, f)->top = 1;
        }
    return art.save(path) ? path : QString();
}

// 3 × 2 pixels: red, green, a near-magenta that must not become the key, and a half-transparent one.
QImage crafted(QRgb first = qRgb(200, 30, 30))
{
    QImage picture(3, 2, QImage::Format_ARGB32);
    picture.setPixel(0, 0, first);
    picture.setPixel(1, 0, qRgb(30, 160, 40));
    picture.setPixel(2, 0, qRgb(254, 1, 254));
    picture.setPixel(0, 1, qRgba(200, 30, 30, 100));
    picture.setPixel(1, 1, qRgb(128, 128, 128));
    picture.setPixel(2, 1, qRgb(0, 0, 0));
    return picture;
}

} // namespace

class TestArtImport : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

    QString path(const QString& name) const { return dir.filePath(name); }

    std::unique_ptr<ArtWidget> openPage(unsigned frames)
    {
        return ArtPageSupport::showPage(writeArt(path(QStringLiteral("import.art")), frames));
    }

    static void trigger(ArtWidget& page, const char* action)
    {
        auto* found = page.findChild<QAction*>(QString::fromLatin1(action));
        if (!found)
            qFatal("no action %s", action);
        found->trigger();
    }

    static Artfile& art(ArtWidget& page) { return page.artDocument()->art(); }

private slots:
    void initTestCase() { QVERIFY(dir.isValid()); }

    void importedPictureIsMatchedToThePalette()
    {
        auto page = openPage(2);
        const QString png = path(QStringLiteral("red.png"));
        QVERIFY(crafted().save(png));
        page->findChild<QListWidget*>(QStringLiteral("listImages"))->setCurrentRow(3);
        page->findChild<QListWidget*>(QStringLiteral("listFrames"))->setCurrentRow(1);
        ScriptedAnswerer answers;
        answers.fileNames << png;
        QString errorShown;
        bool bothShown = false;
        answers.dialogs << [&errorShown, &bothShown](QDialog& dialog) {
            dialog.show();
            errorShown = dialog.findChild<QLabel*>(QStringLiteral("labelError"))->text();
            bothShown = !dialog.findChild<QLabel*>(QStringLiteral("viewSource"))->pixmap().isNull()
                        && !dialog.findChild<QLabel*>(QStringLiteral("viewResult"))->pixmap().isNull();
            QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("buttonOk")), Qt::LeftButton);
            return dialog.result();
        };
        QVERIFY(checkUndoRedo(*page->document(), [&] { trigger(*page, "actionImportReplace"); }, 1));
        QCOMPARE(answers.last(QStringLiteral("open"))->title, QStringLiteral("Import image"));
        const QByteArray pixels = art(*page).framePixels(3, 1);
        QCOMPARE(pixels.size(), 6);
        QCOMPARE(pixels.at(0), char(10));
        QCOMPARE(pixels.at(1), char(11));
        QVERIFY(pixels.at(2) != 0);                 // opaque near-magenta never becomes the key
        QCOMPARE(pixels.at(3), char(0));            // alpha below one half
        QCOMPARE(quint8(pixels.at(4)), quint8(128));
        QVERIFY(bothShown);
        QVERIFY(errorShown.startsWith(QStringLiteral("Mean colour error ")));
        // The placement values stay with the frame.
        QCOMPARE(art(*page).getImage(3, 1)->left, 1);
        QCOMPARE(art(*page).getImage(2, 1)->width, 2u);
    }

    void ditherRematchesEveryPicture()
    {
        Artfile::Palette colours;
        fillPalette(colours);
        // A smooth ramp of a colour the palette lacks.
        QImage ramp(64, 16, QImage::Format_RGB32);
        for (int y = 0; y < ramp.height(); ++y)
            for (int x = 0; x < ramp.width(); ++x)
                ramp.setPixel(x, y, qRgb(120 + x, 60, 20 + x));
        DialogImportImage dialog(colours, {ramp, crafted()}, {QStringLiteral("ramp"), QStringLiteral("small")});
        const QByteArray plain = dialog.results().first().indices;
        dialog.findChild<QCheckBox*>(QStringLiteral("checkDither"))->setChecked(true);
        QVERIFY(dialog.dither());
        QVERIFY(dialog.results().first().indices != plain);
        QCOMPARE(dialog.indexedImages().size(), 2);
        QCOMPARE(dialog.indexedImages().at(1).format(), QImage::Format_Indexed8);
        dialog.showPicture(1);
        QVERIFY(dialog.findChild<QLabel*>(QStringLiteral("labelName"))->text().startsWith(QStringLiteral("small")));
    }

    void newFrameGoesAfterTheSelectedOne()
    {
        auto page = openPage(3);
        const QString png = path(QStringLiteral("green.png"));
        QVERIFY(crafted(qRgb(30, 160, 40)).save(png));
        page->findChild<QListWidget*>(QStringLiteral("listImages"))->setCurrentRow(5);
        page->findChild<QListWidget*>(QStringLiteral("listFrames"))->setCurrentRow(0);
        ScriptedAnswerer answers;
        answers.fileNames << png;
        answers.dialogs << [](QDialog&) { return int(QDialog::Accepted); };
        trigger(*page, "actionImportNewFrame");
        QCOMPARE(art(*page).getFrameCount(), 4u);
        QCOMPARE(art(*page).framePixels(5, 1).at(0), char(11));
        QCOMPARE(art(*page).framePixels(5, 2), QByteArray(4, char(21)));
        QCOMPARE(page->findChild<QListWidget*>(QStringLiteral("listFrames"))->currentRow(), 1);
        QCOMPARE(page->document()->undoStack()->count(), 1);
    }

    void folderBecomesTheWholeImage()
    {
        auto page = openPage(2);
        QTemporaryDir folder;
        // Natural order: 2 before 10.
        QVERIFY(crafted(qRgb(200, 30, 30)).save(folder.filePath(QStringLiteral("walk10.png"))));
        QVERIFY(crafted(qRgb(30, 160, 40)).save(folder.filePath(QStringLiteral("walk2.png"))));
        QVERIFY(crafted(qRgb(128, 128, 128)).save(folder.filePath(QStringLiteral("walk1.bmp"))));
        QVERIFY(FormatChecks::writeFile(folder.filePath(QStringLiteral("notes.txt")), "not a picture"));
        page->findChild<QListWidget*>(QStringLiteral("listImages"))->setCurrentRow(6);
        ScriptedAnswerer answers;
        answers.fileNames << folder.path();
        int pictures = 0;
        answers.dialogs << [&pictures](QDialog& dialog) {
            pictures = int(static_cast<DialogImportImage&>(dialog).results().size());
            return int(QDialog::Accepted);
        };
        QVERIFY(checkUndoRedo(*page->document(), [&] { trigger(*page, "actionImportFolder"); }, 1));
        QCOMPARE(answers.count(QStringLiteral("directory")), 1);
        QCOMPARE(pictures, 3);
        QCOMPARE(art(*page).getFrameCount(), 3u);
        QCOMPARE(quint8(art(*page).framePixels(6, 0).at(0)), quint8(128));
        QCOMPARE(art(*page).framePixels(6, 1).at(0), char(11));
        QCOMPARE(art(*page).framePixels(6, 2).at(0), char(10));
        // The added frame gets its hotspot at the bottom centre; the others keep theirs.
        QCOMPARE(art(*page).getImage(6, 2)->left, 1);
        QCOMPARE(art(*page).getImage(6, 2)->top, 1);
        QCOMPARE(art(*page).getImage(6, 0)->left, 1);
        QCOMPARE(art(*page).framePixels(0, 2), QByteArray(256, '\0'));
    }

    void badInputSaysWhichFileAndChangesNothing_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        // A BMP header that claims 9000 × 9000 pixels: refused before anything is decoded.
        QByteArray huge(54, '\0');
        huge[0] = 'B';
        huge[1] = 'M';
        qToLittleEndian<quint32>(54, huge.data() + 10);
        qToLittleEndian<quint32>(40, huge.data() + 14);
        qToLittleEndian<qint32>(9000, huge.data() + 18);
        qToLittleEndian<qint32>(9000, huge.data() + 22);
        qToLittleEndian<quint16>(1, huge.data() + 26);
        qToLittleEndian<quint16>(24, huge.data() + 28);
        QTest::newRow("larger than a frame") << "actionImportReplace" << "huge.bmp" << huge
                                             << "is larger than a frame can hold";
        QTest::newRow("not a picture") << "actionImportNewFrame" << "broken.png" << QByteArray("\x89PNG junk")
                                       << "cannot be read as an image";
        QTest::newRow("empty folder") << "actionImportFolder" << "" << QByteArray() << "holds no pictures";
    }

    void badInputSaysWhichFileAndChangesNothing()
    {
        QFETCH(QString, action);
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        auto page = openPage(2);
        const QByteArray before = art(*page).toBytes();
        QTemporaryDir folder;
        const QString target = name.isEmpty() ? folder.path() : folder.filePath(name);
        if (!name.isEmpty())
            QVERIFY(FormatChecks::writeFile(target, bytes));
        ScriptedAnswerer answers;
        answers.fileNames << target;
        trigger(*page, qPrintable(action));
        QCOMPARE(answers.count(QStringLiteral("dialog")), 0);
        const QString said = answers.last(QStringLiteral("message"))->text;
        QVERIFY2(said.contains(QDir::toNativeSeparators(target)) && said.contains(reason), qPrintable(said));
        QCOMPARE(art(*page).toBytes(), before);
        QVERIFY(!page->document()->isModified());
    }

    // A file of single frames cannot store a second frame per image: refused before anything changes.
    void framesAreAddedOnlyToDirections()
    {
        Artfile single;
        single.newImage(0);
        single.newImage(0);
        single.newFrame(0);
        const QString file = path(QStringLiteral("single.art"));
        QVERIFY(single.save(file));
        auto page = ArtPageSupport::showPage(file);
        const QString png = path(QStringLiteral("one.png"));
        QVERIFY(crafted().save(png));
        ScriptedAnswerer answers;
        answers.fileNames << png;
        answers.dialogs << [](QDialog&) { return int(QDialog::Accepted); };
        trigger(*page, "actionImportNewFrame");
        QVERIFY(answers.last(QStringLiteral("message"))->text.contains(QStringLiteral("only a file of 8 images")));
        QCOMPARE(answers.count(QStringLiteral("dialog")), 0);
        QVERIFY(!page->document()->isModified());
        QCOMPARE(art(*page).getFrameCount(), 1u);
    }

    void exportedFolderImportsBackAsOneStep()
    {
        auto page = openPage(2);
        const QByteArray original = art(*page).toBytes();
        QTemporaryDir folder;
        ScriptedAnswerer answers;
        answers.fileNames << folder.path();
        trigger(*page, "actionExportSheet");
        QCOMPARE(answers.last(QStringLiteral("message"))->icon, QMessageBox::Information);
        QVERIFY(!QDir(folder.path()).entryList({QStringLiteral("*.json")}).isEmpty());

        page->artDocument()->setHotspot(0, 0, 7, 7);
        answers.fileNames << folder.path();
        QTest::mouseClick(page->findChild<QPushButton*>(QStringLiteral("buttonImportFolder")), Qt::LeftButton);
        QCOMPARE(art(*page).toBytes(), original);
        QCOMPARE(page->document()->undoStack()->count(), 2);
        page->document()->undoStack()->undo();
        QCOMPARE(art(*page).getImage(0, 0)->left, 7);

        // A folder that is no art folder: said in the window, nothing changes.
        QTemporaryDir empty;
        answers.fileNames << empty.path();
        const QByteArray before = art(*page).toBytes();
        QTest::mouseClick(page->findChild<QPushButton*>(QStringLiteral("buttonImportFolder")), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("message"))->icon, QMessageBox::Warning);
        QVERIFY(answers.last(QStringLiteral("message"))->text.startsWith(QStringLiteral("Nothing was imported")));
        QCOMPARE(art(*page).toBytes(), before);
    }

    void newArtFromAFolderOfDirections()
    {
        QTemporaryDir folder;
        for (int direction = 0; direction < 8; ++direction) {
            const QString sub = QStringLiteral("dir%1").arg(direction);
            QVERIFY(QDir(folder.path()).mkdir(sub));
            for (int frame = 0; frame < 2; ++frame) {
                QImage picture(5, 4, QImage::Format_ARGB32);
                picture.fill(Qt::transparent);
                picture.setPixel(2, 3, qRgb(40 * direction, 100 + 50 * frame, 10));
                QVERIFY(picture.save(folder.filePath(QStringLiteral("%1/f%2.png").arg(sub).arg(frame))));
            }
        }
        ArtWidget page;
        ScriptedAnswerer answers;
        answers.fileNames << folder.path();
        QVERIFY(page.newFromImages());
        QVERIFY(page.document() != nullptr);
        QVERIFY(page.document()->path().isEmpty());
        QVERIFY(page.document()->isModified());
        QCOMPARE(art(page).getImageCount(), 8u);
        QCOMPARE(art(page).getFrameCount(), 2u);
        const QByteArray pixels = art(page).framePixels(3, 1);
        QCOMPARE(pixels.at(0), char(0));
        QCOMPARE(art(page).getPalette(0)[quint8(pixels.at(2 + 3 * 5))].toRgb(), qRgb(120, 150, 10));

        // A folder without pictures makes nothing and says so.
        QTemporaryDir empty;
        answers.fileNames << empty.path();
        QVERIFY(!page.newFromImages());
        QVERIFY(answers.last(QStringLiteral("message"))->text.contains(QDir::toNativeSeparators(empty.path())));
        QCOMPARE(art(page).getImageCount(), 8u);
    }

    void cancelledDialogChangesNothing()
    {
        auto page = openPage(2);
        QImage picture = crafted();
        QGuiApplication::clipboard()->setImage(picture);
        ScriptedAnswerer answers;
        answers.dialogs << [](QDialog&) { return int(QDialog::Rejected); };
        QTest::mouseClick(page->findChild<QPushButton*>(QStringLiteral("buttonFromClipboard")), Qt::LeftButton);
        QCOMPARE(answers.count(QStringLiteral("dialog")), 1);
        QVERIFY(!page->document()->isModified());
    }
};

QTEST_MAIN(TestArtImport)
#include "tst_artimport.moc"
