#pragma once

#include "Artfile.h"

#include <QColor>
#include <QHash>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

// Plays the frames of an art file registered on their hotspots: a frame's picture is placed at the
// anchor minus its hotspot, so the sprite stands still while it animates. Shows one image (a direction)
// or all of them side by side, every one on the same frame. Pictures are converted once and kept as
// pixmaps until the file changes, so a tick of the timer only draws.
class ArtPreview : public QWidget
{
    Q_OBJECT

public:
    // Played when the header's frame rate is 0.
    static constexpr unsigned DEFAULT_FRAME_RATE = 10;
    static constexpr int MAX_ZOOM = 8;

    explicit ArtPreview(QWidget* parent = nullptr);

    // Where the top left pixel of a frame lands when its hotspot stands on anchor.
    static QPoint framePosition(QPoint anchor, const arcanum::Artfile::Image& frame);
    // The picture as the game draws it: entry 0, and every entry of exactly its colour, transparent.
    static QImage withoutKey(const QImage& indexed);
    // The image over the checkerboard that stands for "nothing drawn here".
    static QImage overCheckerboard(const QImage& image);

    // A new file, or the file changed: the cached pictures are dropped, the frame stays where it can.
    void setArtfile(arcanum::Artfile* file);
    void setPaletteIndex(unsigned palette);
    void setImage(unsigned image);
    unsigned image() const { return shownImage; }
    void setAllImages(bool all);
    bool allImages() const { return everyImage; }
    void setShowHotspot(bool show);
    void setShowBox(bool show);
    // An invalid colour shows the checkerboard behind transparent pixels.
    void setBackground(const QColor& colour);
    void setZoom(int factor);
    int zoom() const { return factor; }

    int frame() const { return currentFrame; }
    int frameCount() const;
    void setFrame(int frame);
    // Wraps around at either end.
    void step(int delta);
    void setPlaying(bool play);
    bool isPlaying() const { return timer.isActive(); }
    // Without looping, playing stops on the last frame.
    void setLoop(bool loop) { looping = loop; }
    bool loops() const { return looping; }
    // Milliseconds between frames at the header's frame rate.
    int interval() const;
    // Where the hotspot of image stands in the widget (the cell's anchor); null when it is not shown.
    QPoint anchorOf(unsigned image) const;
    // How many pictures are converted and kept.
    int cachedPictures() const { return int(cache.size()); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

signals:
    void frameChanged(int frame);
    void playingChanged(bool playing);
    // The user dragged a frame against its hotspot cross: the hotspot it should get.
    void hotspotDragged(uint image, uint frame, qint32 left, qint32 top);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void advance();
    void measure();
    const QPixmap& picture(unsigned image, unsigned frame);
    QVector<unsigned> shownImages() const;
    int columnsFor(int width) const;
    QSize cellSize() const;
    QRect cellRect(int index) const;
    QRect frameRect(unsigned image, QPoint anchor) const;
    void paintCell(QPainter& painter, unsigned image, const QRect& cell);
    bool isShown(unsigned image, unsigned frame) const;

    arcanum::Artfile* artfile = nullptr;
    QTimer timer;
    QHash<quint64, QPixmap> cache;
    QPixmap blank;
    // The union of every frame's rectangle around its hotspot at (0, 0), in frame pixels.
    QRect extent;
    int nameWidth = 0; // of the longest "Image N" over a cell
    QBrush checkerboard;
    QColor background;
    unsigned paletteIndex = 0;
    unsigned shownImage = 0;
    int currentFrame = 0;
    int factor = 1;
    bool everyImage = false;
    bool hotspotShown = false;
    bool boxShown = false;
    bool looping = true;
    // A drag in progress: which image, where it started and how far the frame has moved (frame pixels).
    int dragImage = -1;
    QPoint dragStart;
    QPoint dragOffset;
    bool playingBeforeDrag = false;
};
