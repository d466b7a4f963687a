// The Art tab with the sample beetle open, and the palette editor on its fire palette.
#include "ShotRegistry.h"

#include "ArtAnimationWidget.h"
#include "ArtEditorWidget.h"
#include "ArtHeaderWidget.h"
#include "ArtWidget.h"
#include "ArtPreview.h"
#include "DialogEditPalette.h"
#include "DialogImportImage.h"
#include "MainWindow.h"
#include "constants.h"

#include "ArtDocument.h"
#include "Document.h"

#include <QCheckBox>
#include <QFile>
#include <QListWidget>
#include <QPainter>
#include <QRadialGradient>
#include <QSpinBox>
#include <QTabWidget>

namespace {

const QString SPRITE = QStringLiteral("sample_beetle.art");

void openSprite(MainWindow& window)
{
    ShotRegistry::showTab(window, 3);
    ArtWidget* page = window.artPage();
    const QString path = QDir::current().absoluteFilePath(arcanum::ART_DIR + SPRITE);
    if (!page->document() || page->document()->path() != path)
        page->openFile(path);
}

void select(ArtWidget* page, const char* list, int row)
{
    if (auto* widget = page->findChild<QListWidget*>(QString::fromLatin1(list)))
        widget->setCurrentRow(row);
}

QWidget* art(MainWindow& window)
{
    openSprite(window);
    ArtWidget* page = window.artPage();
    page->animationWidget()->preview()->setPlaying(false);
    page->findChild<QTabWidget*>(QStringLiteral("tabsArtView"))->setCurrentWidget(page->editorWidget());
    page->editorWidget()->setZoom(4);
    select(page, "listImages", 3);
    select(page, "listFrames", 1);
    return nullptr;
}

QWidget* palette(MainWindow& window)
{
    openSprite(window);
    ArtWidget* page = window.artPage();
    if (!page->artDocument())
        return nullptr;
    arcanum::Artfile& file = page->artDocument()->art();
    const unsigned index = 1;
    arcanum::Artfile::Colour* colours = file.getPalette(index);
    if (!colours)
        return nullptr;
    arcanum::Artfile::Palette copy;
    std::copy_n(colours, arcanum::Artfile::PALETTE_SIZE, copy);
    QImage frame;
    file.convertTo(frame, index, page->headerWidget()->currentImage(), page->headerWidget()->currentFrame());
    // Shown without a modal loop so the picture can be taken; it closes after the grab.
    auto* dialog = new DialogEditPalette(&window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setImage(frame, copy);
    dialog->show();
    return dialog;
}

// All eight directions of the beetle walking, hotspots shown, on the Animation tab.
QWidget* preview(MainWindow& window)
{
    openSprite(window);
    ArtWidget* page = window.artPage();
    auto* views = page->findChild<QTabWidget*>(QStringLiteral("tabsArtView"));
    views->setCurrentWidget(page->animationWidget());
    page->findChild<QCheckBox*>(QStringLiteral("checkAllImages"))->setChecked(true);
    page->findChild<QCheckBox*>(QStringLiteral("checkHotspot"))->setChecked(true);
    page->findChild<QSpinBox*>(QStringLiteral("spinPreviewZoom"))->setValue(2);
    ArtPreview* shown = page->animationWidget()->preview();
    shown->setPlaying(true);
    shown->setFrame(1);
    return nullptr;
}

// A drawn true-colour picture (a shaded ball with a soft shadow) matched to the beetle's palette.
QWidget* importDialog(MainWindow& window)
{
    openSprite(window);
    ArtWidget* page = window.artPage();
    if (!page->artDocument())
        return nullptr;
    QImage picture(64, 64, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 90));
        painter.drawEllipse(QRectF(14, 46, 40, 12));
        QRadialGradient light(QPointF(26, 22), 30);
        light.setColorAt(0, QColor(250, 240, 170));
        light.setColorAt(0.5, QColor(90, 170, 60));
        light.setColorAt(1, QColor(20, 60, 30));
        painter.setBrush(light);
        painter.drawEllipse(QRectF(10, 8, 44, 44));
    }
    arcanum::Artfile::Palette colours;
    std::copy_n(page->artDocument()->art().getPalette(0), arcanum::Artfile::PALETTE_SIZE, colours);
    auto* dialog = new DialogImportImage(colours, {picture}, {QStringLiteral("ball.png")}, &window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    return dialog;
}

const ShotRegistration shot(40, "tab-4-art", &art);
const ShotRegistration previewShot(42, "art-preview", &preview);
const ShotRegistration importShot(43, "art-import", &importDialog);
const ShotRegistration paletteShot(41, "art-palette", &palette);

} // namespace
