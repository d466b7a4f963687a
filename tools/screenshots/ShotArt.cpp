// The Art tab with the sample beetle open, and the palette editor on its fire palette.
#include "ShotRegistry.h"

#include "ArtEditorWidget.h"
#include "ArtHeaderWidget.h"
#include "ArtWidget.h"
#include "DialogEditPalette.h"
#include "MainWindow.h"
#include "constants.h"

#include "ArtDocument.h"
#include "Document.h"

#include <QFile>
#include <QListWidget>

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

const ShotRegistration shot(40, "tab-4-art", &art);
const ShotRegistration paletteShot(41, "art-palette", &palette);

} // namespace
