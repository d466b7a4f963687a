#include "ArtWidget.h"

#include "FormatRegistry.h"

#include "ArtAnimationWidget.h"
#include "ArtDocument.h"
#include "ArtEditorWidget.h"
#include "ArtHeaderWidget.h"
#include "ArtPreview.h"
#include "WheelGuard.h"
#include "ui_ArtWidget.h"

#include "ArtFolder.h"
#include "ArtImageFile.h"
#include "ArtMaker.h"
#include "ArtImageSource.h"
#include "DialogImportImage.h"
#include "Prompt.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>

namespace {
const int FRAME_MERGE_ID = 4001;
const unsigned DIRECTIONS = 8;
} // namespace

ArtWidget::ArtWidget(QWidget* parent)
    : Page(parent)
    , ui(std::make_unique<Ui_ArtWidget>())
{
    ui->setupUi(this);
    // The box reports the header's state; the file is not changed through it.
    ui->checkAnimated->setAttribute(Qt::WA_TransparentForMouseEvents);
    header = new ArtHeaderWidget(this);
    header->setMaximumHeight(240);
    editor = new ArtEditorWidget(this);
    animation = new ArtAnimationWidget(this);
    auto* views = new QTabWidget(this);
    views->setObjectName(QStringLiteral("tabsArtView"));
    views->addTab(editor, tr("Frame"));
    views->addTab(animation, tr("Animation"));
    ui->pageLayout->addWidget(header);
    ui->pageLayout->addWidget(views, 1);

    connect(header, &ArtHeaderWidget::selectionChanged, this, &ArtWidget::selectionChanged);
    connect(header, &ArtHeaderWidget::paletteEdited, this,
            [this](uint palette) { recordEdit(tr("Edit palette %1").arg(palette)); });
    connect(header, &ArtHeaderWidget::imagesAltered, this, [this] { recordEdit(tr("Add or delete image")); });
    connect(header, &ArtHeaderWidget::framesAltered, this, [this] { recordEdit(tr("Add or delete frame")); });
    connect(editor, &ArtEditorWidget::edited, this, [this](uint image, uint frame) {
        recordEdit(tr("Edit frame %1 of image %2").arg(frame).arg(image), FRAME_MERGE_ID,
                   int(image * 10000 + frame));
    });
    connect(animation, &ArtAnimationWidget::frameRateEdited, this, [this](uint framesPerSecond) {
        if (artDocument() != nullptr)
            artDocument()->setFrameRate(framesPerSecond);
    });
    connect(animation, &ArtAnimationWidget::actionFrameEdited, this, [this](uint frame) {
        if (artDocument() != nullptr)
            artDocument()->setActionFrame(frame);
    });
    connect(animation, &ArtAnimationWidget::hotspotDragged, this, [this](uint image, uint frame, qint32 left, qint32 top) {
        if (artDocument() != nullptr)
            artDocument()->setHotspot(image, frame, left, top);
    });
    addFolderButtons();
    connect(editor, &ArtEditorWidget::importRequested, this, &ArtWidget::importPicture);
    // The lists follow the preview while it stands still, so the frame tab shows the frame being looked at.
    ArtPreview* preview = animation->preview();
    connect(preview, &ArtPreview::frameChanged, this, [this, preview](int frame) {
        if (!preview->isPlaying())
            header->selectFrame(unsigned(frame));
    });
    connect(preview, &ArtPreview::playingChanged, this, [this, preview](bool playing) {
        if (!playing)
            header->selectFrame(unsigned(preview->frame()));
    });
    WheelGuard::install(this);
    refresh();
}

ArtWidget::~ArtWidget() = default;

QStringList ArtWidget::suffixes() const
{
    return arcanum::FormatRegistry::byKind(arcanum::FileFormat::Kind::Art)->suffixes;
}

QString ArtWidget::fileFilter() const
{
    return tr("Arcanum Art files (*.art);;All files (*)");
}

std::unique_ptr<Document> ArtWidget::fromBytes(const QString& path, const QByteArray& bytes, QString& error) const
{
    return ArtDocument::fromBytes(path, bytes, error);
}

ArtDocument* ArtWidget::artDocument() const
{
    return static_cast<ArtDocument*>(document());
}

void ArtWidget::showDocument()
{
    if (ArtDocument* shown = artDocument()) {
        shown->beginEdit();
        // An undo or redo puts back a whole art file: the lists and the frame are shown again.
        connect(shown, &Document::changed, this, [this] { refresh(true); });
        connect(shown, &Document::modifiedChanged, this, &ArtWidget::updateControls);
    }
    refresh();
}

void ArtWidget::refresh(bool keepPlace)
{
    arcanum::Artfile* art = artDocument() ? &artDocument()->art() : &empty;
    if (keepPlace)
        header->keepPlaceRefresh();
    else
        header->setArtfile(art);
    editor->setArtfile(art);
    animation->setArtfile(art);
    selectionChanged(header->currentPalette(), header->currentImage(), header->currentFrame());
    updateControls();
}

void ArtWidget::recordEdit(const QString& text, int mergeId, int key)
{
    if (artDocument() == nullptr)
        return;
    artDocument()->recordEdit(text, mergeId, key);
    // The lists and the frame editor changed the file in place: the preview's pictures are out of date.
    animation->setArtfile(&artDocument()->art());
}

void ArtWidget::updateControls()
{
    const ArtDocument* shown = artDocument();
    const bool loaded = shown != nullptr && shown->art().isLoaded();
    header->setEnabled(loaded);
    editor->setEnabled(loaded);
    animation->setEnabled(loaded);
    ui->buttonSave->setEnabled(loaded && shown->isModified());
    ui->buttonSaveAs->setEnabled(loaded);
    if (!folderButtons.isEmpty())
        folderButtons.first()->setEnabled(loaded);
    ui->checkAnimated->setEnabled(loaded);
    ui->checkAnimated->setChecked(loaded && shown->art().isAnimated());
    if (loaded)
        ui->labelFile->setText(QStringLiteral("<b>%1</b>").arg(shown->displayName().toHtmlEscaped()));
    else
        ui->labelFile->setText(tr("No art file open: double-click one in the list."));
}

void ArtWidget::on_buttonSave_clicked()
{
    save();
}

void ArtWidget::on_buttonSaveAs_clicked()
{
    saveAs();
}

void ArtWidget::selectionChanged(uint palette, uint image, uint frame)
{
    if (artDocument() == nullptr || !artDocument()->art().isLoaded())
        return;
    editor->setFrame(palette, image, frame);
    animation->setSelection(palette, image, frame);
}

QList<QWidget*> ArtWidget::fileControls() const
{
    return {ui->labelFile, ui->buttonSave, ui->buttonSaveAs};
}

// ---------------------------------------------------------------------------------------------
// Pictures coming in

QString ArtWidget::pictureFolder() const
{
    if (!lastImportFolder.isEmpty())
        return lastImportFolder;
    return document() && !document()->path().isEmpty() ? QFileInfo(document()->path()).absolutePath() : QString();
}

bool ArtWidget::readPictures(ArtEditorWidget::ImportKind kind, QVector<QImage>& sources, QStringList& names)
{
    QString error;
    if (kind == ArtEditorWidget::WholeImage) {
        const QString folder = Prompt::existingDirectory(this, tr("Import a folder of pictures"), pictureFolder());
        if (folder.isEmpty())
            return false;
        lastImportFolder = folder;
        if (ArtImageSource::readFolder(folder, sources, names, error))
            return true;
    } else {
        const QString path =
            Prompt::openFileName(this, tr("Import image"), pictureFolder(), ArtImageSource::fileFilter());
        if (path.isEmpty())
            return false;
        lastImportFolder = QFileInfo(path).absolutePath();
        QImage picture;
        if (arcanum::ArtImageFile::read(path, picture, error)) {
            sources = {picture};
            names = QStringList(QFileInfo(path).fileName());
            return true;
        }
    }
    Prompt::message(this, QMessageBox::Warning, tr("Import image"), tr("Nothing was imported: %1.").arg(error));
    return false;
}

bool ArtWidget::canHold(ArtEditorWidget::ImportKind kind, unsigned pictures)
{
    const arcanum::Artfile& art = artDocument()->art();
    // Only a sprite of eight directions stores more than one frame per image.
    const bool addsFrames =
        kind == ArtEditorWidget::NewFrame || (kind == ArtEditorWidget::WholeImage && pictures > art.getFrameCount());
    if (!addsFrames || art.getImageCount() == DIRECTIONS)
        return true;
    Prompt::message(this, QMessageBox::Warning, tr("Import image"),
                    tr("Nothing was imported: only a file of %1 images (directions) can have more than one frame "
                       "each, and this one has %2.")
                        .arg(DIRECTIONS)
                        .arg(art.getImageCount()));
    return false;
}

void ArtWidget::importPicture(ArtEditorWidget::ImportKind kind)
{
    ArtDocument* shown = artDocument();
    if (shown == nullptr || !shown->art().isLoaded())
        return;
    const unsigned palette = header->currentPalette();
    const unsigned image = header->currentImage();
    const unsigned frame = header->currentFrame();
    QVector<QImage> sources;
    QStringList names;
    if (kind == ArtEditorWidget::Paste) {
        const QImage pasted = QGuiApplication::clipboard()->image();
        if (pasted.isNull()) {
            Prompt::message(this, QMessageBox::Information, tr("Paste"), tr("The clipboard holds no picture."));
            return;
        }
        // Indices from an 8-bit picture (a frame copied here) are kept as they are.
        if (pasted.format() == QImage::Format_Indexed8) {
            shown->replaceFrame(image, frame, pasted);
            return;
        }
        sources = {pasted};
        names = QStringList(tr("the clipboard"));
    } else if (!readPictures(kind, sources, names)) {
        return;
    }
    if (!canHold(kind, unsigned(sources.size())))
        return;
    const arcanum::Artfile::Colour* colours = shown->art().getPalette(palette);
    if (colours == nullptr)
        return;
    arcanum::Artfile::Palette copy;
    std::copy_n(colours, arcanum::Artfile::PALETTE_SIZE, copy);
    DialogImportImage dialog(copy, sources, names, this);
    if (Prompt::run(dialog) != QDialog::Accepted)
        return;
    const QVector<QImage> indexed = dialog.indexedImages();
    switch (kind) {
    case ArtEditorWidget::ReplaceFrame:
    case ArtEditorWidget::Paste:
        shown->replaceFrame(image, frame, indexed.first());
        break;
    case ArtEditorWidget::NewFrame:
        shown->insertFrame(image, frame, indexed.first());
        header->selectFrame(frame + 1);
        break;
    case ArtEditorWidget::WholeImage:
        shown->replaceImageFrames(image, indexed);
        header->selectFrame(0);
        break;
    }
}

// ---------------------------------------------------------------------------------------------
// Art folders and new art

void ArtWidget::addFolderButtons()
{
    auto* exportButton = new QPushButton(tr("Export…"), this);
    exportButton->setObjectName(QStringLiteral("buttonExportFolder"));
    exportButton->setToolTip(tr("Write every frame as a PNG with the selected palette, plus a JSON file that "
                                "keeps the rest: importing the folder gives this file back"));
    auto* menu = new QMenu(exportButton);
    QAction* frames = menu->addAction(tr("One PNG per frame…"));
    frames->setObjectName(QStringLiteral("actionExportFrames"));
    connect(frames, &QAction::triggered, this, [this] { exportFolder(false); });
    QAction* sheet = menu->addAction(tr("One sprite sheet (images as rows, frames as columns)…"));
    sheet->setObjectName(QStringLiteral("actionExportSheet"));
    connect(sheet, &QAction::triggered, this, [this] { exportFolder(true); });
    exportButton->setMenu(menu);
    auto* importButton = new QPushButton(tr("Import…"), this);
    importButton->setObjectName(QStringLiteral("buttonImportFolder"));
    importButton->setToolTip(tr("Read a folder written by Export (its PNGs may have been edited) into this file"));
    connect(importButton, &QPushButton::clicked, this, &ArtWidget::importFolder);
    const int at = ui->fileLayout->indexOf(ui->buttonSave);
    ui->fileLayout->insertWidget(at, importButton);
    ui->fileLayout->insertWidget(at, exportButton);
    folderButtons = {exportButton, importButton};
}

bool ArtWidget::exportFolder(bool sheet)
{
    ArtDocument* shown = artDocument();
    if (shown == nullptr || !shown->art().isLoaded())
        return false;
    const QString dir = Prompt::existingDirectory(this, tr("Export art to folder"), pictureFolder());
    if (dir.isEmpty())
        return false;
    lastImportFolder = dir;
    const QString name = shown->path().isEmpty() ? tr("untitled") : QFileInfo(shown->path()).completeBaseName();
    QString error;
    if (!arcanum::ArtFolder::write(shown->art(), name, dir, {sheet, header->currentPalette()}, error)) {
        Prompt::message(this, QMessageBox::Warning, tr("Export"), tr("Nothing was exported: %1.").arg(error));
        return false;
    }
    Prompt::message(this, QMessageBox::Information, tr("Export"),
                    tr("%1 written to %2.").arg(name, QDir::toNativeSeparators(dir)));
    return true;
}

bool ArtWidget::importFolder()
{
    const QString dir = Prompt::existingDirectory(this, tr("Import art folder"), pictureFolder());
    if (dir.isEmpty())
        return false;
    lastImportFolder = dir;
    arcanum::Artfile read;
    QString error;
    if (!arcanum::ArtFolder::read(dir, read, error)) {
        Prompt::message(this, QMessageBox::Warning, tr("Import"), tr("Nothing was imported: %1.").arg(error));
        return false;
    }
    if (artDocument() != nullptr && artDocument()->art().isLoaded())
        artDocument()->replaceAll(read);
    else
        showUnsaved(read);
    return true;
}

bool ArtWidget::newFromImages()
{
    const QString dir = Prompt::existingDirectory(this, tr("New art from images"), pictureFolder());
    if (dir.isEmpty())
        return false;
    lastImportFolder = dir;
    std::vector<std::vector<QImage>> images;
    QString error;
    const QStringList directions = QDir(dir).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    bool read = true;
    if (directions.isEmpty()) {
        QVector<QImage> pictures;
        QStringList names;
        read = ArtImageSource::readFolder(dir, pictures, names, error);
        for (const QImage& picture : pictures)
            images.push_back({picture});
    } else {
        for (const QString& direction : directions) {
            QVector<QImage> pictures;
            QStringList names;
            read = read && ArtImageSource::readFolder(QDir(dir).filePath(direction), pictures, names, error);
            images.emplace_back(pictures.begin(), pictures.end());
        }
    }
    arcanum::Artfile made;
    if (!read || !arcanum::ArtMaker::make(images, arcanum::ArtMaker::Settings(), made, error)) {
        Prompt::message(this, QMessageBox::Warning, tr("New art from images"),
                        tr("No art file was made: %1.").arg(error));
        return false;
    }
    if (!settle())
        return false;
    showUnsaved(made);
    return true;
}

void ArtWidget::showUnsaved(const arcanum::Artfile& art)
{
    QString error;
    std::unique_ptr<Document> made = ArtDocument::fromBytes(QString(), art.toBytes(), error);
    if (!made) {
        Prompt::message(this, QMessageBox::Warning, tr("New art"), error);
        return;
    }
    made->markUnsaved();
    setDocument(std::move(made));
}
