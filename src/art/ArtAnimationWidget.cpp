#include "ArtAnimationWidget.h"

#include "ArtPreview.h"
#include "Artfile.h"
#include "Prompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

using arcanum::Artfile;

namespace {
enum Background { CHECKERBOARD, BLACK, WHITE, CHOSEN };

template <typename T>
T* named(T* widget, const char* name, const QString& toolTip)
{
    widget->setObjectName(QString::fromLatin1(name));
    widget->setToolTip(toolTip);
    return widget;
}
} // namespace

ArtAnimationWidget::ArtAnimationWidget(QWidget* parent)
    : QWidget(parent)
{
    buildControls();
    fillControls();
}

void ArtAnimationWidget::buildControls()
{
    view = new ArtPreview(this);
    view->setObjectName(QStringLiteral("preview"));
    view->setToolTip(tr("Drag a frame to move it against its hotspot (the red cross)"));
    buttonPlay = named(new QPushButton(tr("Play"), this), "buttonPlay", tr("Play or pause the animation"));
    buttonPlay->setCheckable(true);
    buttonBack = named(new QPushButton(tr("◀ Step"), this), "buttonStepBack", tr("Show the frame before"));
    buttonForward = named(new QPushButton(tr("Step ▶"), this), "buttonStepForward", tr("Show the next frame"));
    checkLoop = named(new QCheckBox(tr("Loop"), this), "checkLoop", tr("Start again after the last frame"));
    checkLoop->setChecked(true);
    labelFrame = named(new QLabel(this), "labelPreviewFrame", QString());
    spinFrameRate = named(new QSpinBox(this), "spinFrameRate",
                          tr("Frames per second the game plays (header word at byte 4; 0 plays at %1)")
                              .arg(ArtPreview::DEFAULT_FRAME_RATE));
    spinFrameRate->setRange(0, 1000);
    spinFrameRate->setSuffix(tr(" fps"));
    // 0 is what many files hold; saying "0 fps" beside a playing preview reads as a fault.
    spinFrameRate->setSpecialValueText(tr("not set (%1 fps)").arg(ArtPreview::DEFAULT_FRAME_RATE));
    spinActionFrame = named(new QSpinBox(this), "spinActionFrame",
                            tr("The frame on which an attack or a spell takes effect (header word at byte 28)"));
    checkAllImages = named(new QCheckBox(tr("All directions"), this), "checkAllImages",
                           tr("Play every image of the file side by side"));
    checkHotspot = named(new QCheckBox(tr("Hotspot"), this), "checkHotspot",
                         tr("Show the hotspot: the pixel that stands on the object's position"));
    checkBox = named(new QCheckBox(tr("Frame box"), this), "checkFrameBox", tr("Outline each frame's rectangle"));
    comboBackground = named(new QComboBox(this), "comboBackground", tr("What transparent pixels show"));
    comboBackground->addItems({tr("Checkerboard"), tr("Black"), tr("White"), tr("Colour…")});
    spinZoom = named(new QSpinBox(this), "spinPreviewZoom", tr("Shown size only"));
    spinZoom->setRange(1, ArtPreview::MAX_ZOOM);
    spinZoom->setSuffix(QStringLiteral("×"));

    auto* playing = new QHBoxLayout;
    for (QWidget* control : std::initializer_list<QWidget*>{buttonPlay, buttonBack, buttonForward, checkLoop, labelFrame})
        playing->addWidget(control);
    playing->addStretch();
    auto* rateLabel = new QLabel(tr("Speed"), this);
    rateLabel->setBuddy(spinFrameRate);
    auto* actionLabel = new QLabel(tr("Action frame"), this);
    actionLabel->setBuddy(spinActionFrame);
    for (QWidget* control : std::initializer_list<QWidget*>{rateLabel, spinFrameRate, actionLabel, spinActionFrame})
        playing->addWidget(control);

    auto* showing = new QHBoxLayout;
    for (QWidget* control : std::initializer_list<QWidget*>{checkAllImages, checkHotspot, checkBox})
        showing->addWidget(control);
    showing->addStretch();
    auto* backgroundLabel = new QLabel(tr("Background"), this);
    backgroundLabel->setBuddy(comboBackground);
    auto* zoomLabel = new QLabel(tr("Zoom"), this);
    zoomLabel->setBuddy(spinZoom);
    for (QWidget* control : std::initializer_list<QWidget*>{backgroundLabel, comboBackground, zoomLabel, spinZoom})
        showing->addWidget(control);

    auto* area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("previewArea"));
    area->setWidgetResizable(true);
    // The cells wrap to the width; only a tall grid scrolls.
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(view);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(playing);
    layout->addLayout(showing);
    layout->addWidget(area, 1);

    connect(buttonPlay, &QPushButton::toggled, view, &ArtPreview::setPlaying);
    connect(view, &ArtPreview::playingChanged, this, [this](bool nowPlaying) {
        buttonPlay->setChecked(nowPlaying);
        buttonPlay->setText(nowPlaying ? tr("Pause") : tr("Play"));
    });
    connect(buttonBack, &QPushButton::clicked, view, [this] { view->step(-1); });
    connect(buttonForward, &QPushButton::clicked, view, [this] { view->step(1); });
    connect(checkLoop, &QCheckBox::toggled, view, &ArtPreview::setLoop);
    connect(view, &ArtPreview::frameChanged, this, &ArtAnimationWidget::showFrameNumber);
    connect(checkAllImages, &QCheckBox::toggled, view, &ArtPreview::setAllImages);
    connect(checkHotspot, &QCheckBox::toggled, view, &ArtPreview::setShowHotspot);
    connect(checkBox, &QCheckBox::toggled, view, &ArtPreview::setShowBox);
    connect(spinZoom, &QSpinBox::valueChanged, view, &ArtPreview::setZoom);
    connect(comboBackground, &QComboBox::activated, this, &ArtAnimationWidget::chooseBackground);
    connect(view, &ArtPreview::hotspotDragged, this, &ArtAnimationWidget::hotspotDragged);
    connect(spinFrameRate, &QSpinBox::valueChanged, this, [this](int value) {
        if (!updating)
            emit frameRateEdited(uint(value));
    });
    connect(spinActionFrame, &QSpinBox::valueChanged, this, [this](int value) {
        if (!updating)
            emit actionFrameEdited(uint(value));
    });
}

void ArtAnimationWidget::setArtfile(Artfile* file)
{
    artfile = file;
    view->setArtfile(file);
    fillControls();
}

void ArtAnimationWidget::setSelection(unsigned palette, unsigned image, unsigned frame)
{
    view->setPaletteIndex(palette);
    view->setImage(image);
    if (!view->isPlaying())
        view->setFrame(int(frame));
}

void ArtAnimationWidget::fillControls()
{
    updating = true;
    const bool loaded = artfile != nullptr && artfile->isLoaded();
    const int frames = loaded ? int(artfile->getFrameCount()) : 0;
    spinFrameRate->setValue(loaded ? int(std::min<quint32>(artfile->frameRate(), 1000)) : 0);
    // A header may name a frame the file does not have: it is shown as it is, not clamped.
    const int action = loaded ? int(std::min<quint32>(artfile->actionFrame(), 100000)) : 0;
    spinActionFrame->setRange(0, std::max(frames - 1, action));
    spinActionFrame->setValue(action);
    for (QWidget* control : findChildren<QWidget*>())
        if (control != view)
            control->setEnabled(loaded);
    updating = false;
    showFrameNumber();
}

void ArtAnimationWidget::showFrameNumber()
{
    const int frames = view->frameCount();
    labelFrame->setText(frames == 0 ? QString() : tr("Frame %1 of %2").arg(view->frame()).arg(frames));
}

void ArtAnimationWidget::chooseBackground(int index)
{
    switch (index) {
    case CHECKERBOARD:
        view->setBackground(QColor());
        break;
    case BLACK:
        view->setBackground(Qt::black);
        break;
    case WHITE:
        view->setBackground(Qt::white);
        break;
    default: {
        const QColor picked = Prompt::color(this, chosenColour.isValid() ? chosenColour : QColor(Qt::darkGreen));
        if (picked.isValid())
            chosenColour = picked;
        view->setBackground(chosenColour.isValid() ? chosenColour : QColor());
        break;
    }
    }
}
