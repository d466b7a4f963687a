#include "ArtEditorWidget.h"

#include "ArtPreview.h"
#include "Artfile.h"
#include "Prompt.h"
#include "gui.h"
#include "ui_ArtEditorWidget.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QPushButton>
#include <QWheelEvent>


using arcanum::Artfile;

namespace {
struct ExportFormat
{
    const char* suffix;
    const char* format;
};
const ExportFormat EXPORT_FORMATS[] = {{"BMP", "BMP"}, {"JPG", "JPG"}, {"PNG", "PNG"}, {"TIF", "TIFF"}};

// The spin boxes cover less than a 32-bit word; a stored value outside their range is shown clamped.
int clampToSpin(const QSpinBox* spin, qint32 value)
{
    return std::clamp<qint32>(value, spin->minimum(), spin->maximum());
}
} // namespace

ArtEditorWidget::ArtEditorWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ArtEditorWidget>())
{
    ui->setupUi(this);
    ui->view->setAutoFillBackground(true);
    ui->view->setBackgroundRole(QPalette::Dark);
    ui->scrollArea->viewport()->installEventFilter(this);
    ui->view->installEventFilter(this);
    for (QSpinBox* spin : {ui->spinLeft, ui->spinTop, ui->spinDX, ui->spinDY})
        connect(spin, &QSpinBox::valueChanged, this, &ArtEditorWidget::updateValues);
    addImportButton();
    clear();
}

ArtEditorWidget::~ArtEditorWidget() = default;

void ArtEditorWidget::addImportButton()
{
    buttonImport = new QPushButton(tr("Import image"), this);
    buttonImport->setObjectName(QStringLiteral("buttonImportImage"));
    buttonImport->setToolTip(tr("Bring a picture (PNG, BMP, GIF, TIFF, JPG) into the file, its colours matched "
                                "to the palette"));
    auto* menu = new QMenu(buttonImport);
    const struct
    {
        ImportKind kind;
        const char* name;
        QString text;
    } entries[] = {{ReplaceFrame, "actionImportReplace", tr("Replace this frame…")},
                   {NewFrame, "actionImportNewFrame", tr("As a new frame after this one…")},
                   {WholeImage, "actionImportFolder", tr("A folder of pictures as this whole image…")}};
    for (const auto& entry : entries) {
        QAction* action = menu->addAction(entry.text);
        action->setObjectName(QString::fromLatin1(entry.name));
        connect(action, &QAction::triggered, this, [this, kind = entry.kind] { emit importRequested(kind); });
    }
    buttonImport->setMenu(menu);
    ui->sideLayout->insertWidget(ui->sideLayout->indexOf(ui->buttonFromClipboard) + 1, buttonImport);
}

void ArtEditorWidget::setArtfile(Artfile* file)
{
    artfile = file;
    updateEditor();
}

void ArtEditorWidget::clear()
{
    picture = QImage();
    showText(tr("No frame"));
    setControlsEnabled(false);
}

void ArtEditorWidget::updateEditor()
{
    clear();
    if (artfile && artfile->isLoaded())
        setFrame(0, 0, 0);
}

void ArtEditorWidget::setFrame(unsigned palette, unsigned image, unsigned frame)
{
    updating = true;
    paletteIndex = palette;
    imageIndex = image;
    frameIndex = frame;
    QImage converted;
    if (artfile && artfile->convertTo(converted, palette, image, frame)) {
        picture = converted;
        showPicture();
        fillValues();
        setControlsEnabled(true);
    } else {
        clear();
        showText(tr("This frame cannot be shown."));
    }
    updating = false;
}

void ArtEditorWidget::fillValues()
{
    const Artfile::Image* frame = artfile->getImage(imageIndex, frameIndex);
    ui->spinLeft->setValue(clampToSpin(ui->spinLeft, frame->left));
    ui->spinTop->setValue(clampToSpin(ui->spinTop, frame->top));
    ui->spinDX->setValue(clampToSpin(ui->spinDX, frame->dx));
    ui->spinDY->setValue(clampToSpin(ui->spinDY, frame->dy));
    ui->labelInfo->setText(tr("%1 × %2 pixels, %3")
                               .arg(frame->width)
                               .arg(frame->height)
                               .arg(artfile->lastConvertedWasRunLength() ? tr("run-length") : tr("raw")));
}

void ArtEditorWidget::setControlsEnabled(bool enabled)
{
    for (QWidget* control : std::initializer_list<QWidget*>{ui->groupFrame, ui->buttonExport, ui->buttonToClipboard,
                                                            ui->buttonFromClipboard, buttonImport})
        control->setEnabled(enabled);
    if (!enabled)
        ui->labelInfo->clear();
}

bool ArtEditorWidget::takeSpin(const QSpinBox* spin, qint32& value)
{
    // Only a value the user moved is written, so one edit never clamps its three neighbours.
    if (spin->value() == clampToSpin(spin, value))
        return false;
    value = spin->value();
    return true;
}

void ArtEditorWidget::updateValues()
{
    if (updating || !artfile || !artfile->isImage(imageIndex, frameIndex))
        return;
    Artfile::Image* frame = artfile->getImage(imageIndex, frameIndex);
    bool changed = takeSpin(ui->spinLeft, frame->left);
    changed = takeSpin(ui->spinTop, frame->top) || changed;
    changed = takeSpin(ui->spinDX, frame->dx) || changed;
    changed = takeSpin(ui->spinDY, frame->dy) || changed;
    if (changed)
        emit edited(imageIndex, frameIndex);
}

// ---------------------------------------------------------------------------------------------
// Showing and zooming

// The game does not draw palette entry 0 nor any entry of exactly its colour: those pixels show the
// checkerboard behind the sprite, as they would show the ground in the game.
QImage ArtEditorWidget::withTransparency(const QImage& indexed)
{
    if (indexed.format() != QImage::Format_Indexed8 || indexed.colorCount() == 0)
        return indexed;
    return ArtPreview::overCheckerboard(ArtPreview::withoutKey(indexed));
}

void ArtEditorWidget::showPicture()
{
    const int factor = zoom();
    const QImage scaled = factor == 1 ? picture : picture.scaled(picture.size() * factor);
    ui->view->setPixmap(QPixmap::fromImage(withTransparency(scaled)));
}

void ArtEditorWidget::showText(const QString& text)
{
    ui->view->setPixmap(QPixmap());
    ui->view->setText(text);
}

int ArtEditorWidget::zoom() const
{
    return ui->spinZoom->value();
}

void ArtEditorWidget::setZoom(int factor)
{
    ui->spinZoom->setValue(factor);
}

void ArtEditorWidget::on_spinZoom_valueChanged(int /*factor*/)
{
    if (!picture.isNull())
        showPicture();
}

bool ArtEditorWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        auto* wheel = static_cast<QWheelEvent*>(event);
        if (wheel->modifiers() & Qt::ControlModifier) {
            const int steps = wheel->angleDelta().y();
            if (steps != 0)
                setZoom(zoom() + (steps > 0 ? 1 : -1));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

// ---------------------------------------------------------------------------------------------
// Export and clipboard

void ArtEditorWidget::on_buttonExport_clicked()
{
    QImage image;
    if (picture.isNull() || !artfile->convertTo(image, paletteIndex, imageIndex, frameIndex))
        return;
    const QDir base = gui::getBaseDir();
    base.mkpath(QStringLiteral("data"));
    for (const ExportFormat& format : EXPORT_FORMATS) {
        const QString path = base.filePath(QStringLiteral("data/qtLoreka.export.") + QLatin1String(format.suffix));
        if (!image.save(path, format.format)) {
            Prompt::message(this, QMessageBox::Warning, tr("Export"), tr("Could not write %1.").arg(path));
            return;
        }
    }
    Prompt::message(this, QMessageBox::Information, tr("Export"), tr("Exported as BMP, JPG, PNG and TIFF."));
}

void ArtEditorWidget::on_buttonToClipboard_clicked()
{
    QImage image;
    if (artfile && artfile->convertTo(image, paletteIndex, imageIndex, frameIndex))
        QGuiApplication::clipboard()->setImage(image);
}

void ArtEditorWidget::on_buttonFromClipboard_clicked()
{
    emit importRequested(Paste);
}
