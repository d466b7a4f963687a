#include "ArtPreview.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using arcanum::Artfile;

namespace {
const int MARGIN = 6;
const int LABEL_HEIGHT = 16;
// A hotspot far outside its frame (a damaged or odd header) would ask for a huge cell; the cell stops here.
const int MAX_REACH = 1024;
const int CHECKER_SQUARE = 8;

QBrush makeCheckerboard()
{
    QPixmap tile(2 * CHECKER_SQUARE, 2 * CHECKER_SQUARE);
    tile.fill(Qt::white);
    QPainter painter(&tile);
    const QColor grey(0xcc, 0xcc, 0xcc);
    painter.fillRect(CHECKER_SQUARE, 0, CHECKER_SQUARE, CHECKER_SQUARE, grey);
    painter.fillRect(0, CHECKER_SQUARE, CHECKER_SQUARE, CHECKER_SQUARE, grey);
    return QBrush(tile);
}
} // namespace

ArtPreview::ArtPreview(QWidget* parent)
    : QWidget(parent)
    , checkerboard(makeCheckerboard())
{
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, &ArtPreview::advance);
    setMouseTracking(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QPoint ArtPreview::framePosition(QPoint anchor, const Artfile::Image& frame)
{
    return anchor - QPoint(frame.left, frame.top);
}

QImage ArtPreview::withoutKey(const QImage& indexed)
{
    if (indexed.format() != QImage::Format_Indexed8 || indexed.colorCount() == 0)
        return indexed;
    QImage keyed = indexed;
    QVector<QRgb> table = keyed.colorTable();
    const QRgb key = table.first();
    for (QRgb& colour : table)
        if (colour == key)
            colour = qRgba(0, 0, 0, 0);
    keyed.setColorTable(table);
    return keyed.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage ArtPreview::overCheckerboard(const QImage& image)
{
    QImage shown(image.size(), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&shown);
    painter.fillRect(shown.rect(), makeCheckerboard());
    painter.drawImage(0, 0, image);
    return shown;
}

// ---------------------------------------------------------------------------------------------
// What is shown

void ArtPreview::setArtfile(Artfile* file)
{
    artfile = file;
    cache.clear();
    measure();
    if (currentFrame >= frameCount())
        currentFrame = std::max(0, frameCount() - 1);
    if (artfile == nullptr || !artfile->isLoaded())
        setPlaying(false);
    else if (timer.isActive())
        timer.start(interval());
    updateGeometry();
    update();
}

void ArtPreview::setPaletteIndex(unsigned palette)
{
    if (palette == paletteIndex)
        return;
    paletteIndex = palette;
    cache.clear();
    update();
}

void ArtPreview::setImage(unsigned image)
{
    shownImage = image;
    update();
}

void ArtPreview::setAllImages(bool all)
{
    everyImage = all;
    updateGeometry();
    update();
}

void ArtPreview::setShowHotspot(bool show)
{
    hotspotShown = show;
    update();
}

void ArtPreview::setShowBox(bool show)
{
    boxShown = show;
    update();
}

void ArtPreview::setBackground(const QColor& colour)
{
    background = colour;
    update();
}

void ArtPreview::setZoom(int zoom)
{
    factor = std::clamp(zoom, 1, MAX_ZOOM);
    updateGeometry();
    update();
}

QVector<unsigned> ArtPreview::shownImages() const
{
    QVector<unsigned> shown;
    if (artfile == nullptr || !artfile->isLoaded())
        return shown;
    if (everyImage) {
        for (unsigned i = 0; i < artfile->getImageCount(); ++i)
            shown.append(i);
    } else if (shownImage < artfile->getImageCount()) {
        shown.append(shownImage);
    }
    return shown;
}

bool ArtPreview::isShown(unsigned image, unsigned frame) const
{
    return artfile != nullptr && artfile->isLoaded() && artfile->isImage(image, frame);
}

void ArtPreview::measure()
{
    extent = QRect();
    const unsigned images = artfile != nullptr && artfile->isLoaded() ? artfile->getImageCount() : 0;
    nameWidth = fontMetrics().horizontalAdvance(tr("Image %1").arg(std::max(images, 1u) - 1));
    if (images == 0)
        return;
    for (unsigned i = 0; i < artfile->getImageCount(); ++i)
        for (unsigned f = 0; f < artfile->getFrameCount(); ++f) {
            const Artfile::Image* frame = artfile->getImage(i, f);
            const QPoint at = framePosition(QPoint(), *frame);
            extent |= QRect(at.x(), at.y(), int(std::min<quint32>(frame->width, MAX_REACH)),
                            int(std::min<quint32>(frame->height, MAX_REACH)));
        }
    extent |= QRect(-1, -1, 3, 3); // the hotspot cross
    extent = extent.intersected(QRect(-MAX_REACH, -MAX_REACH, 2 * MAX_REACH, 2 * MAX_REACH));
}

// ---------------------------------------------------------------------------------------------
// Playing

int ArtPreview::frameCount() const
{
    return artfile != nullptr && artfile->isLoaded() ? int(artfile->getFrameCount()) : 0;
}

int ArtPreview::interval() const
{
    const quint32 rate = artfile != nullptr && artfile->isLoaded() ? artfile->frameRate() : 0;
    const quint32 perSecond = rate == 0 ? DEFAULT_FRAME_RATE : std::min<quint32>(rate, 1000);
    return int(std::lround(1000.0 / perSecond));
}

void ArtPreview::setFrame(int frame)
{
    const int count = frameCount();
    const int wanted = count == 0 ? 0 : std::clamp(frame, 0, count - 1);
    if (wanted == currentFrame)
        return;
    currentFrame = wanted;
    update();
    emit frameChanged(currentFrame);
}

void ArtPreview::step(int delta)
{
    const int count = frameCount();
    if (count > 0)
        setFrame(((currentFrame + delta) % count + count) % count);
}

void ArtPreview::setPlaying(bool play)
{
    play = play && frameCount() > 0;
    if (play == timer.isActive()) {
        if (play)
            timer.setInterval(interval());
        return;
    }
    if (play) {
        if (!looping && currentFrame == frameCount() - 1)
            setFrame(0);
        timer.start(interval());
    } else {
        timer.stop();
    }
    emit playingChanged(play);
}

void ArtPreview::advance()
{
    if (timer.interval() != interval())
        timer.setInterval(interval());
    if (!looping && currentFrame + 1 >= frameCount()) {
        setPlaying(false);
        return;
    }
    step(1);
}

// ---------------------------------------------------------------------------------------------
// Drawing

const QPixmap& ArtPreview::picture(unsigned image, unsigned frame)
{
    const quint64 key = (quint64(paletteIndex) << 48) | (quint64(image) << 24) | frame;
    auto found = cache.constFind(key);
    if (found != cache.constEnd())
        return *found;
    QImage converted;
    if (!artfile->convertTo(converted, paletteIndex, image, frame))
        return blank;
    return *cache.insert(key, QPixmap::fromImage(withoutKey(converted)));
}

// A cell is as wide as its stage, and never narrower than the image's name over it: a small sprite at
// zoom 1 would otherwise cut "Image 7" to "Image". The action mark after the name may be shortened.
QSize ArtPreview::cellSize() const
{
    const QSize inside = extent.isNull() ? QSize(64, 64) : extent.size() * factor;
    return QSize(std::max(inside.width(), nameWidth) + 2 * MARGIN, inside.height() + 2 * MARGIN + LABEL_HEIGHT);
}

int ArtPreview::columnsFor(int width) const
{
    const int count = std::max(1, int(shownImages().size()));
    const int fitting = std::clamp(width / std::max(1, cellSize().width()), 1, count);
    // Rows of equal length: eight directions that do not fit in one row become two rows of four.
    const int rows = (count + fitting - 1) / fitting;
    return (count + rows - 1) / rows;
}

QRect ArtPreview::cellRect(int index) const
{
    const int columns = columnsFor(width());
    const QSize cell = cellSize();
    return QRect(QPoint(index % columns * cell.width(), index / columns * cell.height()), cell);
}

QPoint ArtPreview::anchorOf(unsigned image) const
{
    const int index = int(shownImages().indexOf(image));
    if (index < 0)
        return QPoint();
    const QRect cell = cellRect(index);
    return cell.topLeft() + QPoint(MARGIN, MARGIN + LABEL_HEIGHT) - extent.topLeft() * factor;
}

QRect ArtPreview::frameRect(unsigned image, QPoint anchor) const
{
    const Artfile::Image* shown = artfile->getImage(image, unsigned(currentFrame));
    QPoint at = framePosition(QPoint(), *shown);
    if (int(image) == dragImage)
        at += dragOffset;
    return QRect(anchor + at * factor, QSize(int(shown->width), int(shown->height)) * factor);
}

QSize ArtPreview::sizeHint() const
{
    const int count = std::max(1, int(shownImages().size()));
    const QSize cell = cellSize();
    const int columns = std::min(count, 4);
    return QSize(columns * cell.width(), (count + columns - 1) / columns * cell.height());
}

QSize ArtPreview::minimumSizeHint() const
{
    return QSize(std::min(cellSize().width(), 200), std::min(cellSize().height(), 200));
}

int ArtPreview::heightForWidth(int width) const
{
    const int count = std::max(1, int(shownImages().size()));
    const int columns = columnsFor(width);
    return (count + columns - 1) / columns * cellSize().height();
}

void ArtPreview::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QVector<unsigned> shown = shownImages();
    if (shown.isEmpty() || !isShown(shown.first(), unsigned(currentFrame))) {
        painter.drawText(rect(), Qt::AlignCenter, tr("No frame"));
        return;
    }
    for (int index = 0; index < shown.size(); ++index)
        if (isShown(shown.at(index), unsigned(currentFrame)))
            paintCell(painter, shown.at(index), cellRect(index));
}

void ArtPreview::paintCell(QPainter& painter, unsigned image, const QRect& cell)
{
    const QPoint anchor = anchorOf(image);
    const QRect stage(cell.topLeft() + QPoint(MARGIN, MARGIN + LABEL_HEIGHT), extent.size() * factor);
    painter.fillRect(stage, background.isValid() ? QBrush(background) : checkerboard);
    const bool action = artfile->actionFrame() == quint32(currentFrame);
    painter.setPen(palette().color(QPalette::WindowText));
    const QString label = action ? tr("Image %1 · action").arg(image) : tr("Image %1").arg(image);
    const int labelWidth = cell.width() - 2 * MARGIN;
    painter.drawText(QRect(cell.left() + MARGIN, cell.top(), labelWidth, LABEL_HEIGHT), Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(label, Qt::ElideRight, labelWidth));
    const QRect framed = frameRect(image, anchor);
    painter.save();
    painter.setClipRect(stage);
    painter.drawPixmap(framed, picture(image, unsigned(currentFrame)));
    if (boxShown) {
        painter.setPen(QPen(QColor(0, 120, 215), 1, Qt::DashLine));
        painter.drawRect(framed.adjusted(0, 0, -1, -1));
    }
    if (hotspotShown || int(image) == dragImage) {
        const int arm = 6 + factor;
        painter.setPen(QPen(Qt::red, 1));
        const QPoint centre = anchor + QPoint(factor / 2, factor / 2);
        painter.drawLine(centre - QPoint(arm, 0), centre + QPoint(arm, 0));
        painter.drawLine(centre - QPoint(0, arm), centre + QPoint(0, arm));
    }
    painter.restore();
    if (action) {
        painter.setPen(QPen(QColor(220, 40, 40), 2));
        // In the margin around the stage, never over a pixel of the sprite.
        painter.drawRect(stage.adjusted(-2, -2, 1, 1));
    }
}

// ---------------------------------------------------------------------------------------------
// Dragging a frame against its hotspot

void ArtPreview::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || frameCount() == 0)
        return QWidget::mousePressEvent(event);
    const QVector<unsigned> shown = shownImages();
    for (int index = 0; index < shown.size(); ++index) {
        if (!cellRect(index).contains(event->position().toPoint()))
            continue;
        dragImage = int(shown.at(index));
        dragStart = event->position().toPoint();
        dragOffset = QPoint();
        playingBeforeDrag = isPlaying();
        setPlaying(false);
        setCursor(Qt::ClosedHandCursor);
        update();
        return;
    }
}

void ArtPreview::mouseMoveEvent(QMouseEvent* event)
{
    if (dragImage < 0)
        return QWidget::mouseMoveEvent(event);
    const QPoint moved = event->position().toPoint() - dragStart;
    const QPoint offset(int(std::floor(double(moved.x()) / factor + 0.5)),
                        int(std::floor(double(moved.y()) / factor + 0.5)));
    if (offset != dragOffset) {
        dragOffset = offset;
        update();
    }
}

void ArtPreview::mouseReleaseEvent(QMouseEvent* event)
{
    if (dragImage < 0 || event->button() != Qt::LeftButton)
        return QWidget::mouseReleaseEvent(event);
    const auto image = unsigned(dragImage);
    const QPoint offset = dragOffset;
    dragImage = -1;
    dragOffset = QPoint();
    unsetCursor();
    update();
    if (!offset.isNull() && isShown(image, unsigned(currentFrame))) {
        const Artfile::Image* frame = artfile->getImage(image, unsigned(currentFrame));
        // Moving the picture right by d puts the hotspot d pixels further left inside it.
        emit hotspotDragged(image, unsigned(currentFrame), frame->left - offset.x(), frame->top - offset.y());
    }
    if (playingBeforeDrag)
        setPlaying(true);
}
