#include "DialogImportImage.h"

#include "ArtPreview.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace {
// The views are at most this wide and high; small sprites are enlarged by a whole factor to fill them.
const int VIEW_SIDE = 300;

QPixmap fitted(const QImage& image)
{
    if (image.isNull())
        return QPixmap();
    const int side = std::max(image.width(), image.height());
    QImage shown = side <= VIEW_SIDE ? image.scaled(image.size() * std::max(1, VIEW_SIDE / side))
                                     : image.scaled(VIEW_SIDE, VIEW_SIDE, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return QPixmap::fromImage(ArtPreview::overCheckerboard(shown));
}
} // namespace

DialogImportImage::DialogImportImage(const arcanum::Artfile::Colour (&palette)[arcanum::Artfile::PALETTE_SIZE],
                                     const QVector<QImage>& sources, const QStringList& names, QWidget* parent)
    : QDialog(parent)
    , matcher(palette)
    , pictures(sources)
    , labels(names)
{
    setWindowTitle(tr("Import image"));
    buildControls();
    match();
}

void DialogImportImage::buildControls()
{
    viewSource = new QLabel(this);
    viewResult = new QLabel(this);
    for (QLabel* view : {viewSource, viewResult}) {
        view->setMinimumSize(VIEW_SIDE, VIEW_SIDE);
        view->setAlignment(Qt::AlignCenter);
        view->setFrameShape(QFrame::StyledPanel);
    }
    viewSource->setObjectName(QStringLiteral("viewSource"));
    viewResult->setObjectName(QStringLiteral("viewResult"));
    labelName = new QLabel(this);
    labelName->setObjectName(QStringLiteral("labelName"));
    labelError = new QLabel(this);
    labelError->setObjectName(QStringLiteral("labelError"));
    labelError->setToolTip(tr("CIE94 colour difference between source and result: below 1 is hard to see, "
                              "above 5 is plain to see"));
    spinPicture = new QSpinBox(this);
    spinPicture->setObjectName(QStringLiteral("spinPicture"));
    spinPicture->setToolTip(tr("Which picture to look at"));
    spinPicture->setRange(1, std::max(1, int(pictures.size())));
    spinPicture->setPrefix(tr("Picture "));
    spinPicture->setSuffix(tr(" of %1").arg(pictures.size()));
    spinPicture->setVisible(pictures.size() > 1);
    checkDither = new QCheckBox(tr("Dither (Floyd–Steinberg)"), this);
    checkDither->setObjectName(QStringLiteral("checkDither"));
    checkDither->setToolTip(tr("Mix neighbouring colours to come closer to shades the palette lacks"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("buttonOk"));
    buttons->button(QDialogButtonBox::Ok)->setToolTip(tr("Put the result into the art file"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("buttonCancel"));
    buttons->button(QDialogButtonBox::Cancel)->setToolTip(tr("Leave the art file as it is"));

    auto* grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("Source"), this), 0, 0);
    grid->addWidget(new QLabel(tr("In the art's palette"), this), 0, 1);
    grid->addWidget(viewSource, 1, 0);
    grid->addWidget(viewResult, 1, 1);
    auto* options = new QHBoxLayout;
    options->addWidget(spinPicture);
    options->addWidget(labelName, 1);
    options->addWidget(checkDither);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(options);
    layout->addWidget(labelError);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(checkDither, &QCheckBox::toggled, this, &DialogImportImage::match);
    connect(spinPicture, &QSpinBox::valueChanged, this, [this](int number) { showPicture(number - 1); });
}

void DialogImportImage::setDither(bool dither)
{
    checkDither->setChecked(dither);
}

bool DialogImportImage::dither() const
{
    return checkDither->isChecked();
}

void DialogImportImage::match()
{
    matched.clear();
    for (const QImage& picture : pictures)
        matched.append(matcher.match(picture, dither()));
    showCurrent();
}

double DialogImportImage::meanError() const
{
    double weighted = 0;
    double pixels = 0;
    for (const arcanum::PaletteMatcher::Result& result : matched) {
        weighted += result.meanError * result.width * result.height;
        pixels += double(result.width) * result.height;
    }
    return pixels > 0 ? weighted / pixels : 0;
}

QVector<QImage> DialogImportImage::indexedImages() const
{
    QVector<QImage> images;
    for (const arcanum::PaletteMatcher::Result& result : matched)
        images.append(matcher.toImage(result));
    return images;
}

void DialogImportImage::showPicture(int index)
{
    current = std::clamp(index, 0, std::max(0, int(pictures.size()) - 1));
    spinPicture->setValue(current + 1);
    showCurrent();
}

void DialogImportImage::showCurrent()
{
    if (current >= matched.size())
        return;
    viewSource->setPixmap(fitted(pictures.at(current)));
    viewResult->setPixmap(fitted(matcher.toImage(matched.at(current))));
    const arcanum::PaletteMatcher::Result& result = matched.at(current);
    labelName->setText(tr("%1, %2 × %3 pixels").arg(labels.value(current), QString::number(result.width),
                                                     QString::number(result.height)));
    labelError->setText(pictures.size() > 1
                            ? tr("Mean colour error %1 (this picture %2)")
                                  .arg(meanError(), 0, 'f', 2)
                                  .arg(result.meanError, 0, 'f', 2)
                            : tr("Mean colour error %1").arg(result.meanError, 0, 'f', 2));
}
