#pragma once

#include "Artfile.h"
#include "Document.h"

#include <QImage>
#include <QVector>

#include <functional>
#include <memory>

// An open art file. The page's lists and editors change it in place and record each change as one step;
// the edits below are whole steps of their own that announce themselves with changed().
class ArtDocument : public Document
{
    Q_OBJECT

public:
    // Null and the model's reason, with its offset, when the file is refused.
    static std::unique_ptr<ArtDocument> fromBytes(const QString& path, const QByteArray& bytes, QString& error);

    arcanum::Artfile& art() { return model; }
    const arcanum::Artfile& art() const { return model; }

    bool serialize(QByteArray& bytes, QString& error) const override;
    QString damage() const override;

    // Runs change on the model as one undo step named text and tells the page. Steps with the same
    // merge id and key in a row are one step (a spin box stepped several times).
    void edit(const QString& text, const std::function<void(arcanum::Artfile&)>& change, int mergeId = -1,
              int key = 0);
    void setFrameRate(quint32 framesPerSecond);
    void setActionFrame(quint32 frame);
    // The hotspot of one frame (the pixel that stands on the object's position).
    void setHotspot(unsigned image, unsigned frame, qint32 left, qint32 top);
    // The frame's pixels become the indices of an 8-bit image; its placement values stay.
    void replaceFrame(unsigned image, unsigned frame, const QImage& indexed);
    // A new frame after frame `after` in every image: image gets the picture (hotspot at its bottom
    // centre), the others an empty frame.
    void insertFrame(unsigned image, unsigned after, const QImage& indexed);
    // The frames of one image, in order, become the pictures; frames are added to every image when
    // there are more pictures than frames, and frames past the pictures stay as they are.
    void replaceImageFrames(unsigned image, const QVector<QImage>& indexed);
    // Everything of the file becomes what art holds (an art folder read back); the path stays.
    void replaceAll(const arcanum::Artfile& art);

protected:
    void restoreModel(const QByteArray& bytes) override;

private:
    explicit ArtDocument(const QString& path);
    // Moves the last frame of every image to position, shifting the frames from there on back by one.
    void moveLastFrameTo(unsigned position);
    static void setBottomCentreHotspot(arcanum::Artfile::Image& frame);

    arcanum::Artfile model;
};
