// The Art tab and the palette editor, driven offscreen like a user would.
#include "ArtEditorWidget.h"
#include "ArtHeaderWidget.h"
#include "ArtWidget.h"
#include "ArtDocument.h"
#include "UndoChecks.h"
#include "ArtTestSupport.h"
#include "Artfile.h"
#include "DialogEditPalette.h"
#include "FormatChecks.h"
#include "PaletteMatcher.h"
#include "ScriptedAnswerer.h"
#include "gui.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

using arcanum::Artfile;
using ArtTestSupport::CoutCapture;
using ArtTestSupport::indices;

namespace {

// Palette p entry i is (red i, green 255 - i, blue p) with fourth byte 0x10 + p.
void fillPalette(Artfile::Palette& colours, unsigned p)
{
    for (unsigned i = 0; i < Artfile::PALETTE_SIZE; ++i)
        colours[i] = {quint8(p), quint8(255 - i), quint8(i), quint8(0x10 + p)};
}

// An art file whose frame (i, f) is 4 × 3 raw pixels counting up from 10 * i + f.
QString writeArt(const QString& path, unsigned images, unsigned frames, unsigned palettes)
{
    Artfile art;
    for (unsigned i = 0; i < images; ++i)
        art.newImage(0);
    for (unsigned f = 0; f < frames; ++f)
        art.newFrame(0);
    for (unsigned p = 1; p < palettes; ++p)
        art.newPalette(0);
    for (unsigned p = 0; p < palettes; ++p) {
        Artfile::Palette colours;
        fillPalette(colours, p);
        art.setPalette(p, colours);
    }
    for (unsigned i = 0; i < images; ++i) {
        for (unsigned f = 0; f < frames; ++f) {
            QByteArray pixels;
            for (int n = 0; n < 12; ++n)
                pixels.append(char(10 * i + f + n));
            art.getImage(i, f)->setData(4, 3, pixels);
            art.getImage(i, f)->left = qint32(i);
        }
    }
    art.setAnimated(true);
    return art.save(path) ? path : QString();
}

// An 8-bit frame of one index, as the palette editor gets it.
QImage plainFrame(QSize size, uint index)
{
    QImage frame(size, QImage::Format_Indexed8);
    frame.setColorCount(256);
    frame.fill(index);
    return frame;
}

template<typename T>
T* child(QWidget& parent, const char* name)
{
    T* found = parent.findChild<T*>(QString::fromLatin1(name));
    if (!found)
        qFatal("no child %s", name);
    return found;
}

void sendWheel(QWidget* target, int delta, Qt::KeyboardModifiers modifiers)
{
    const QPointF at(target->width() / 2.0, target->height() / 2.0);
    QWheelEvent event(at, target->mapToGlobal(at), QPoint(), QPoint(0, delta), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(target, &event);
}

void clickCell(QTableWidget* table, int row, int column)
{
    const QRect cell = table->visualItemRect(table->item(row, column));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell.center());
}

} // namespace

class TestArtWidgets : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

    QString path(const QString& name) const { return dir.filePath(name); }

    // A shown page with a file loaded, so clicks land where the user would click.
    std::unique_ptr<ArtWidget> openPage(unsigned images, unsigned frames, unsigned palettes)
    {
        const QString file = writeArt(path(QStringLiteral("page.art")), images, frames, palettes);
        auto page = std::make_unique<ArtWidget>();
        page->resize(900, 640);
        page->show();
        if (!QTest::qWaitForWindowExposed(page.get()))
            qWarning("page not exposed");
        openArt(*page, file);
        return page;
    }

    static bool openArt(ArtWidget& page, const QString& file)
    {
        ScriptedAnswerer quiet; // a refused file is reported in a message box
        return page.openFile(file);
    }

    static Artfile& art(ArtWidget& page) { return page.artDocument()->art(); }
    static bool modified(const ArtWidget& page) { return page.document() && page.document()->isModified(); }

private slots:
    void initTestCase() { QVERIFY(dir.isValid()); }

    void buttonsFollowTheCounts_data()
    {
        QTest::addColumn<unsigned>("palettes");
        QTest::addColumn<unsigned>("images");
        QTest::addColumn<unsigned>("frames");
        QTest::addColumn<bool>("paletteNew");
        QTest::addColumn<bool>("paletteDelete");
        QTest::addColumn<bool>("imageDelete");
        QTest::addColumn<bool>("frameDelete");
        QTest::newRow("one of each") << 1u << 1u << 1u << true << false << false << false;
        QTest::newRow("four palettes") << 4u << 2u << 1u << false << true << true << false;
        QTest::newRow("eight images, two frames") << 2u << 8u << 2u << true << true << true << true;
    }

    void buttonsFollowTheCounts()
    {
        QFETCH(unsigned, palettes);
        QFETCH(unsigned, images);
        QFETCH(unsigned, frames);
        auto page = openPage(images, frames, palettes);
        QFETCH(bool, paletteNew);
        QFETCH(bool, paletteDelete);
        QFETCH(bool, imageDelete);
        QFETCH(bool, frameDelete);
        QCOMPARE(child<QPushButton>(*page, "paletteButtonNew")->isEnabled(), paletteNew);
        QCOMPARE(child<QPushButton>(*page, "paletteButtonDelete")->isEnabled(), paletteDelete);
        QVERIFY(child<QPushButton>(*page, "imageButtonNew")->isEnabled());
        QCOMPARE(child<QPushButton>(*page, "imageButtonDelete")->isEnabled(), imageDelete);
        QVERIFY(child<QPushButton>(*page, "frameButtonNew")->isEnabled());
        QCOMPARE(child<QPushButton>(*page, "frameButtonDelete")->isEnabled(), frameDelete);
        QCOMPARE(child<QListWidget>(*page, "listPalettes")->item(int(palettes) - 1)->text(),
                 QStringLiteral("Palette %1").arg(palettes - 1));
        QVERIFY(child<QCheckBox>(*page, "checkAnimated")->isChecked());
    }

    void refusedFilesSayWhy()
    {
        const QString junk = path(QStringLiteral("junk.art"));
        QVERIFY(FormatChecks::writeFile(junk, QByteArray("{1}{x}\r\n")));
        ArtWidget page;
        ScriptedAnswerer answers;
        QVERIFY(!page.openFile(junk));
        QVERIFY(answers.last(QStringLiteral("message"))->text.contains(QStringLiteral("(at byte")));
        QVERIFY(!page.document());
        QVERIFY(!page.headerWidget()->isEnabled());
        QVERIFY(!child<QPushButton>(page, "buttonSave")->isEnabled());
        QVERIFY(!child<QPushButton>(page, "frameButtonNew")->isEnabled());

        const QString good = writeArt(path(QStringLiteral("good.art")), 1, 1, 1);
        QVERIFY(page.openFile(good));
        const QString cut = path(QStringLiteral("cut.art"));
        QVERIFY(FormatChecks::writeFile(cut, FormatChecks::readFile(good).left(200)));
        QVERIFY(!page.openFile(cut));
        QVERIFY2(answers.last(QStringLiteral("message"))->text.contains(QStringLiteral("cut.art")),
                 qPrintable(answers.last(QStringLiteral("message"))->text));
        QCOMPARE(page.document()->path(), good); // the page keeps the file it showed
    }

    void everyEditUndoes_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("new frame") << "frameButtonNew";
        QTest::newRow("delete frame") << "frameButtonDelete";
        QTest::newRow("new palette") << "paletteButtonNew";
        QTest::newRow("delete palette") << "paletteButtonDelete";
    }

    void everyEditUndoes()
    {
        QFETCH(QString, button);
        auto page = openPage(8, 2, 2);
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes << QMessageBox::Yes;
        QVERIFY(checkUndoRedo(*page->document(), [&] {
            QTest::mouseClick(page->findChild<QPushButton*>(button), Qt::LeftButton);
        }, 1));
    }

    void placementValuesUndoInOneStep()
    {
        auto page = openPage(8, 2, 1);
        QList<QSpinBox*> spins = page->editorWidget()->findChildren<QSpinBox*>();
        spins.removeIf([](QSpinBox* spin) { return spin->objectName() == QLatin1String("spinZoom"); });
        QVERIFY(!spins.isEmpty());
        QVERIFY(checkUndoRedo(*page->document(), [&] {
            spins.first()->setValue(spins.first()->value() + 1);
            spins.first()->setValue(spins.first()->value() + 1);
        }, 1));
    }

    void deletingTheLastFrameSelectsTheOneBefore()
    {
        auto page = openPage(8, 3, 1);
        auto* images = child<QListWidget>(*page, "listImages");
        auto* frames = child<QListWidget>(*page, "listFrames");
        images->setCurrentRow(5);
        frames->setCurrentRow(2);
        QVERIFY(!modified(*page));
        QTest::mouseClick(child<QPushButton>(*page, "frameButtonDelete"), Qt::LeftButton);
        QCOMPARE(art(*page).getFrameCount(), 2u);
        QCOMPARE(frames->count(), 2);
        QCOMPARE(frames->currentRow(), 1);
        QCOMPARE(images->currentRow(), 5);
        QVERIFY(modified(*page));
        QCOMPARE(indices(page->editorWidget()->frameImage()).at(0), char(51));

        QTest::mouseClick(child<QPushButton>(*page, "frameButtonNew"), Qt::LeftButton);
        QCOMPARE(frames->currentRow(), 2);
        QCOMPARE(page->editorWidget()->frameImage().size(), QSize(16, 16));

        images->setCurrentRow(3);
        frames->setCurrentRow(1);
        QTest::mouseClick(child<QPushButton>(*page, "imageButtonDelete"), Qt::LeftButton);
        QCOMPARE(art(*page).getImageCount(), 7u);
        QCOMPARE(images->currentRow(), 3);
        QCOMPARE(frames->currentRow(), 1);
        QCOMPARE(indices(page->editorWidget()->frameImage()).at(0), char(41));
    }

    void paletteNewCopiesTheSelectedPalette()
    {
        auto page = openPage(8, 1, 2);
        child<QListWidget>(*page, "listPalettes")->setCurrentRow(1);
        QTest::mouseClick(child<QPushButton>(*page, "paletteButtonNew"), Qt::LeftButton);
        Artfile& model = art(*page);
        QCOMPARE(model.getPaletteCount(), 3u);
        QCOMPARE(model.getPalette(2)[7], model.getPalette(1)[7]);
        QCOMPARE(child<QListWidget>(*page, "listPalettes")->currentRow(), 2);
        QCOMPARE(page->editorWidget()->frameImage().color(0), model.getPalette(2)[0].toRgb());
    }

    void placementSpinsEditOnlyWhatMoved()
    {
        const QString file = path(QStringLiteral("far.art"));
        writeArt(file, 1, 1, 1);
        Artfile far;
        far.load(QFile::encodeName(file).toStdString());
        far.getImage(0, 0)->left = 300000;
        far.getImage(0, 0)->dy = -7;
        QVERIFY(far.save(file));

        ArtWidget page;
        openArt(page, file);
        QCOMPARE(child<QSpinBox>(page, "spinLeft")->value(), 200000);
        QCOMPARE(child<QSpinBox>(page, "spinDY")->value(), -7);
        QVERIFY(!modified(page));
        child<QSpinBox>(page, "spinTop")->setValue(12);
        const Artfile::Image* frame = art(page).getImage(0, 0);
        QCOMPARE(frame->top, 12);
        QCOMPARE(frame->left, 300000);
        QCOMPARE(frame->dy, -7);
        QVERIFY(modified(page));
    }

    void copyAndPasteGoThroughTheClipboard()
    {
        auto page = openPage(8, 2, 2);
        child<QListWidget>(*page, "listPalettes")->setCurrentRow(1);
        child<QListWidget>(*page, "listImages")->setCurrentRow(2);
        child<QSpinBox>(*page, "spinDX")->setValue(-4);
        QTest::mouseClick(child<QPushButton>(*page, "buttonToClipboard"), Qt::LeftButton);
        const QImage copied = QGuiApplication::clipboard()->image();
        QCOMPARE(copied.format(), QImage::Format_Indexed8);
        QCOMPARE(indices(copied), art(*page).getImage(2, 0)->data);
        QCOMPARE(copied.color(9), art(*page).getPalette(1)[9].toRgb());

        // A true-colour picture is matched to the selected palette in the import dialog.
        QImage source(10, 7, QImage::Format_RGB32);
        source.fill(qRgb(200, 10, 10));
        source.setPixel(3, 2, qRgb(20, 240, 1));
        QGuiApplication::clipboard()->setImage(source);
        ScriptedAnswerer answers;
        answers.dialogs << [](QDialog&) { return int(QDialog::Accepted); };
        QTest::mouseClick(child<QPushButton>(*page, "buttonFromClipboard"), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("dialog"))->title, QStringLiteral("Import image"));
        Artfile::Palette selected;
        std::copy_n(art(*page).getPalette(1), Artfile::PALETTE_SIZE, selected);
        const QByteArray expected = arcanum::PaletteMatcher(selected).match(source, false).indices;
        const Artfile::Image* frame = art(*page).getImage(2, 0);
        QCOMPARE(frame->width, 10u);
        QCOMPARE(frame->height, 7u);
        QCOMPARE(art(*page).framePixels(2, 0), expected);
        QVERIFY(frame->dataSize < 70u); // two colours in long runs: stored run-length encoded
        QCOMPARE(frame->left, 2);
        QCOMPARE(frame->dx, -4);
        QCOMPARE(child<QSpinBox>(*page, "spinDX")->value(), -4);
        QCOMPARE(page->editorWidget()->frameImage().size(), QSize(10, 7));
        QVERIFY(modified(*page));

        // An indexed image comes back with its indices untouched.
        QGuiApplication::clipboard()->setImage(copied);
        QTest::mouseClick(child<QPushButton>(*page, "buttonFromClipboard"), Qt::LeftButton);
        QCOMPARE(art(*page).framePixels(2, 0), indices(copied));
    }

    void exportWritesFourImagesUnderTheBaseDirectory()
    {
        QTemporaryDir base;
        gui::setBaseDir(QDir(base.path()));
        auto page = openPage(8, 1, 1);
        page->editorWidget()->setZoom(5);
        ScriptedAnswerer answers;
        QTest::mouseClick(child<QPushButton>(*page, "buttonExport"), Qt::LeftButton);
        gui::settings.remove(QStringLiteral("Directories"));
        for (const char* suffix : {"BMP", "JPG", "PNG", "TIF"}) {
            const QImage exported(base.filePath(QStringLiteral("data/qtLoreka.export.") + QLatin1String(suffix)));
            QCOMPARE(exported.size(), QSize(4, 3));
        }
        QCOMPARE(answers.count(QStringLiteral("message")), 1);
        QCOMPARE(answers.last(QStringLiteral("message"))->title, QStringLiteral("Export"));
        QCOMPARE(answers.last(QStringLiteral("message"))->text, QStringLiteral("Exported as BMP, JPG, PNG and TIFF."));
    }

    void saveAsWritesTheModel()
    {
        auto page = openPage(8, 2, 1);
        QTest::mouseClick(child<QPushButton>(*page, "frameButtonNew"), Qt::LeftButton);
        ScriptedAnswerer answers;
        QTest::mouseClick(child<QPushButton>(*page, "buttonSaveAs"), Qt::LeftButton);
        QVERIFY(modified(*page));
        const QString target = path(QStringLiteral("saved \u00e4.art"));
        answers.fileNames << target;
        QTest::mouseClick(child<QPushButton>(*page, "buttonSaveAs"), Qt::LeftButton);
        QCOMPARE(answers.count(QStringLiteral("save")), 2);
        QCOMPARE(answers.last(QStringLiteral("save"))->title, QStringLiteral("Save As"));
        QVERIFY(answers.last(QStringLiteral("save"))->text.endsWith(
            QStringLiteral("|Arcanum Art files (*.art);;All files (*)")));
        QCOMPARE(page->document()->path(), target);
        QVERIFY(!modified(*page));
        QCOMPARE(FormatChecks::readFile(target), art(*page).toBytes());

        ArtWidget reopened;
        openArt(reopened, target);
        QCOMPARE(art(reopened).getFrameCount(), 3u);
    }

    void zoomChangesOnlyTheView()
    {
        auto page = openPage(8, 1, 1);
        ArtEditorWidget* editor = page->editorWidget();
        auto* view = child<QLabel>(*page, "view");
        editor->setZoom(3);
        QCOMPARE(view->pixmap().size(), QSize(12, 9));
        QCOMPARE(editor->frameImage().size(), QSize(4, 3));
        QWidget* viewport = child<QScrollArea>(*page, "scrollArea")->viewport();
        sendWheel(viewport, 120, Qt::ControlModifier);
        QCOMPARE(editor->zoom(), 4);
        sendWheel(viewport, -120, Qt::NoModifier);
        QCOMPARE(editor->zoom(), 4);
        for (int i = 0; i < 10; ++i)
            sendWheel(viewport, 120, Qt::ControlModifier);
        QCOMPARE(editor->zoom(), ArtEditorWidget::MAX_ZOOM);
        QCOMPARE(view->pixmap().size(), QSize(32, 24));
        QTest::mouseClick(child<QPushButton>(*page, "buttonToClipboard"), Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(4, 3));
    }

    void paletteDialogEditsTheClickedIndex()
    {
        auto page = openPage(8, 1, 2);
        auto* palettes = child<QListWidget>(*page, "listPalettes");
        QCOMPARE(palettes->toolTip(), QStringLiteral("Double-click to edit palette"));
        ScriptedAnswerer answers;
        answers.colors << QColor(10, 20, 30);
        answers.dialogs << [](QDialog& dialog) {
            dialog.show();
            clickCell(child<QTableWidget>(dialog, "tablePalette"), 2, 5);
            QTest::mouseClick(child<QPushButton>(dialog, "buttonOk"), Qt::LeftButton);
            return dialog.result();
        };
        const QRect row = palettes->visualItemRect(palettes->item(1));
        // A real double-click: the first click selects, the second press arrives as a double-click.
        QTest::mouseClick(palettes->viewport(), Qt::LeftButton, {}, row.center());
        QTest::mouseDClick(palettes->viewport(), Qt::LeftButton, {}, row.center());
        QCOMPARE(answers.count(QStringLiteral("dialog")), 1);
        QCOMPARE(answers.last(QStringLiteral("dialog"))->title, QStringLiteral("Edit palette"));
        QCOMPARE(answers.last(QStringLiteral("color"))->text, QColor(37, 255 - 37, 1).name());
        QCOMPARE(art(*page).getPalette(1)[37], (Artfile::Colour{30, 20, 10, 0}));
        QCOMPARE(art(*page).getPalette(1)[36].extra, quint8(0x11));
        QCOMPARE(page->editorWidget()->frameImage().color(37), qRgb(10, 20, 30));
        QVERIFY(modified(*page));
    }

    void cancelledPaletteDialogChangesNothing()
    {
        auto page = openPage(8, 1, 1);
        const QByteArray before = art(*page).toBytes();
        const QString aap = path(QStringLiteral("other.aap"));
        Artfile::Palette other;
        fillPalette(other, 3);
        QVERIFY(FormatChecks::writeFile(aap, Artfile::paletteToBytes(other)));
        QImage tiny(1, 1, QImage::Format_Indexed8);
        tiny.setColorTable({qRgb(1, 2, 3)});
        QGuiApplication::clipboard()->setImage(tiny);

        ScriptedAnswerer answers;
        answers.colors << QColor(Qt::white);
        answers.fileNames << aap;
        answers.dialogs << [](QDialog& dialog) {
            dialog.show();
            clickCell(child<QTableWidget>(dialog, "tablePalette"), 0, 0);
            QTest::mouseClick(child<QPushButton>(dialog, "buttonPaste"), Qt::LeftButton);
            QTest::mouseClick(child<QPushButton>(dialog, "buttonLoad"), Qt::LeftButton);
            QTest::mouseClick(child<QPushButton>(dialog, "buttonCancel"), Qt::LeftButton);
            return dialog.result();
        };
        QVERIFY(!page->headerWidget()->editPalette(0));
        QCOMPARE(answers.count(QStringLiteral("open")), 1);
        QCOMPARE(answers.last(QStringLiteral("open"))->title, QStringLiteral("Load Palette"));
        QCOMPARE(art(*page).toBytes(), before);
        QVERIFY(!modified(*page));
    }

    void paletteFileRoundTrips()
    {
        Artfile::Palette colours;
        fillPalette(colours, 2);
        DialogEditPalette dialog;
        dialog.setImage(plainFrame(QSize(2, 1), 3), colours);
        const QString aap = path(QStringLiteral("saved.aap"));
        ScriptedAnswerer answers;
        answers.fileNames << aap;
        QTest::mouseClick(child<QPushButton>(dialog, "buttonSave"), Qt::LeftButton);
        QCOMPARE(answers.last(QStringLiteral("save"))->title, QStringLiteral("Save Palette"));
        QVERIFY(answers.last(QStringLiteral("save"))->text.endsWith(QStringLiteral("|Arcanum .art Palettes (*.aap)")));
        QCOMPARE(FormatChecks::readFile(aap).size(), 1024);
        QCOMPARE(FormatChecks::readFile(aap), Artfile::paletteToBytes(colours));

        answers.colors << QColor(Qt::black);
        dialog.show();
        clickCell(child<QTableWidget>(dialog, "tablePalette"), 0, 3);
        QCOMPARE(dialog.getPalette()[3], (Artfile::Colour{0, 0, 0, 0}));
        QCOMPARE(dialog.previewImage().pixel(0, 0), qRgb(0, 0, 0));
        answers.fileNames << aap;
        QTest::mouseClick(child<QPushButton>(dialog, "buttonLoad"), Qt::LeftButton);
        QVERIFY(std::equal(std::begin(colours), std::end(colours), dialog.getPalette()));
        QCOMPARE(dialog.previewImage().pixel(1, 0), colours[3].toRgb());
        QCOMPARE(child<QTableWidget>(dialog, "tablePalette")->item(0, 3)->background().color().rgb(),
                 colours[3].toRgb());
    }

    // Entry 0 is not drawn by the game: the editor shows the checkerboard there, in the cell and the picture.
    void paletteEditorShowsEntryZeroAsTransparent()
    {
        Artfile::Palette colours;
        fillPalette(colours, 2);
        colours[0] = Artfile::Colour::fromArgb(qRgb(255, 0, 0));
        DialogEditPalette dialog;
        dialog.setImage(plainFrame(QSize(2, 1), 0), colours);
        dialog.show();
        const QImage shown = child<QLabel>(dialog, "view")->pixmap().toImage();
        QVERIFY(!shown.isNull());
        QVERIFY(shown.pixel(0, 0) == qRgb(255, 255, 255) || shown.pixel(0, 0) == qRgb(0xcc, 0xcc, 0xcc));
        QVERIFY(!child<QTableWidget>(dialog, "tablePalette")->item(0, 0)->background().textureImage().isNull());
        QVERIFY(child<QTableWidget>(dialog, "tablePalette")->item(0, 1)->background().textureImage().isNull());
    }

    void pastedPaletteKeepsFourthBytesAndFillsBlack()
    {
        Artfile::Palette colours;
        fillPalette(colours, 1);
        DialogEditPalette dialog;
        dialog.setImage(QImage(), colours);
        QImage source(1, 1, QImage::Format_Indexed8);
        source.setColorTable({qRgba(1, 2, 3, 0x80), qRgb(4, 5, 6)});
        QGuiApplication::clipboard()->setImage(source);
        QVERIFY(child<QPushButton>(dialog, "buttonPaste")->isEnabled());
        QTest::mouseClick(child<QPushButton>(dialog, "buttonPaste"), Qt::LeftButton);
        QCOMPARE(dialog.getPalette()[0], (Artfile::Colour{3, 2, 1, 0x80}));
        QCOMPARE(dialog.getPalette()[1], (Artfile::Colour{6, 5, 4, 0xFF}));
        QCOMPARE(dialog.getPalette()[2], (Artfile::Colour{}));
        QCOMPARE(dialog.getPalette()[255], (Artfile::Colour{}));

        QImage trueColour(2, 2, QImage::Format_RGB32);
        trueColour.fill(Qt::blue);
        QGuiApplication::clipboard()->setImage(trueColour);
        CoutCapture out;
        QTest::mouseClick(child<QPushButton>(dialog, "buttonPaste"), Qt::LeftButton);
        QCOMPARE(out.text(), QStringLiteral("Paste: bad clipboard image palette.\n"));
        QCOMPARE(dialog.getPalette()[1], (Artfile::Colour{6, 5, 4, 0xFF}));
    }

    void dialogCopyPutsThePreviewOnTheClipboard()
    {
        Artfile::Palette colours;
        fillPalette(colours, 0);
        DialogEditPalette dialog;
        dialog.setImage(plainFrame(QSize(3, 2), 7), colours);
        QTest::mouseClick(child<QPushButton>(dialog, "buttonCopy"), Qt::LeftButton);
        const QImage copied = QGuiApplication::clipboard()->image();
        QCOMPARE(copied.size(), QSize(3, 2));
        QCOMPARE(copied.pixel(2, 1), colours[7].toRgb());
    }
};

QTEST_MAIN(TestArtWidgets)
#include "tst_artwidgets.moc"
