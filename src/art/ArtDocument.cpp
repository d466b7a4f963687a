#include "ArtDocument.h"

#include "ArtRunLength.h"

#include <QFile>

#include <algorithm>

namespace {
const int FRAME_RATE_MERGE_ID = 4101;
const int ACTION_FRAME_MERGE_ID = 4102;
} // namespace

std::unique_ptr<ArtDocument> ArtDocument::fromBytes(const QString& path, const QByteArray& bytes, QString& error)
{
    std::unique_ptr<ArtDocument> document(new ArtDocument(path));
    if (!document->model.loadBytes(bytes)) {
        error = tr("%1 (at byte %2)").arg(document->model.loadFailure()).arg(document->model.loadFailureOffset());
        return nullptr;
    }
    document->model.setPath(QFile::encodeName(path).toStdString());
    return document;
}

ArtDocument::ArtDocument(const QString& path)
    : Document(path)
{
}

bool ArtDocument::serialize(QByteArray& bytes, QString& error) const
{
    bytes = model.toBytes();
    if (bytes.isEmpty() && model.isLoaded()) {
        error = tr("an art file needs at least one image");
        return false;
    }
    return true;
}

void ArtDocument::restoreModel(const QByteArray& bytes)
{
    model.loadBytes(bytes);
    model.setPath(QFile::encodeName(path()).toStdString());
}

QString ArtDocument::damage() const
{
    QStringList undrawn;
    // The model hands out frames for editing only; nothing here changes them.
    auto& frames = const_cast<arcanum::Artfile&>(model);
    for (unsigned image = 0; image < model.getImageCount(); ++image)
        for (unsigned frame = 0; frame < model.getFrameCount(); ++frame) {
            const arcanum::Artfile::Image* found = frames.getImage(image, frame);
            const quint64 pixels = found ? quint64(found->width) * found->height : 0;
            if (found && !found->isRaw() && pixels > arcanum::ArtRunLength::mostPixels(found->dataSize))
                undrawn.append(tr("image %1 frame %2").arg(image).arg(frame));
        }
    if (undrawn.isEmpty())
        return QString();
    return tr("frames whose pixel data is far too short for their size are listed but not drawn (%1 of them): %2")
        .arg(undrawn.size())
        .arg(undrawn.mid(0, 5).join(QStringLiteral(", ")) + (undrawn.size() > 5 ? QStringLiteral(" …") : QString()));
}

// ---------------------------------------------------------------------------------------------
// Edits of their own

void ArtDocument::edit(const QString& text, const std::function<void(arcanum::Artfile&)>& change, int mergeId,
                       int key)
{
    beginEdit();
    change(model);
    recordEdit(text, mergeId, key);
    emit changed();
}

void ArtDocument::setFrameRate(quint32 framesPerSecond)
{
    if (framesPerSecond != model.frameRate())
        edit(tr("Frame rate %1").arg(framesPerSecond),
             [framesPerSecond](arcanum::Artfile& art) { art.setFrameRate(framesPerSecond); }, FRAME_RATE_MERGE_ID);
}

void ArtDocument::setActionFrame(quint32 frame)
{
    if (frame != model.actionFrame())
        edit(tr("Action frame %1").arg(frame), [frame](arcanum::Artfile& art) { art.setActionFrame(frame); },
             ACTION_FRAME_MERGE_ID);
}

void ArtDocument::setHotspot(unsigned image, unsigned frame, qint32 left, qint32 top)
{
    const arcanum::Artfile::Image* shown = model.isImage(image, frame) ? model.getImage(image, frame) : nullptr;
    if (shown == nullptr || (shown->left == left && shown->top == top))
        return;
    edit(tr("Move frame %1 of image %2").arg(frame).arg(image), [=](arcanum::Artfile& art) {
        arcanum::Artfile::Image* moved = art.getImage(image, frame);
        moved->left = left;
        moved->top = top;
    });
}

void ArtDocument::replaceFrame(unsigned image, unsigned frame, const QImage& indexed)
{
    if (!model.isImage(image, frame) || indexed.isNull())
        return;
    edit(tr("Replace frame %1 of image %2").arg(frame).arg(image),
         [&](arcanum::Artfile& art) { art.convertFrom(indexed, image, frame, false); });
}

void ArtDocument::insertFrame(unsigned image, unsigned after, const QImage& indexed)
{
    if (image >= model.getImageCount() || indexed.isNull())
        return;
    const unsigned position = std::min(after + 1, model.getFrameCount());
    edit(tr("New frame %1 of image %2").arg(position).arg(image), [&](arcanum::Artfile& art) {
        art.newFrame(after);
        moveLastFrameTo(position);
        art.convertFrom(indexed, image, position, false);
        setBottomCentreHotspot(*art.getImage(image, position));
    });
}

void ArtDocument::replaceImageFrames(unsigned image, const QVector<QImage>& indexed)
{
    if (image >= model.getImageCount() || indexed.isEmpty())
        return;
    edit(tr("Replace the frames of image %1").arg(image), [&](arcanum::Artfile& art) {
        const unsigned before = art.getFrameCount();
        while (art.getFrameCount() < unsigned(indexed.size()))
            art.newFrame(art.getFrameCount());
        for (int f = 0; f < indexed.size(); ++f) {
            art.convertFrom(indexed.at(f), image, unsigned(f), false);
            if (unsigned(f) >= before)
                setBottomCentreHotspot(*art.getImage(image, unsigned(f)));
        }
    });
}

void ArtDocument::replaceAll(const arcanum::Artfile& art)
{
    edit(tr("Import art folder"), [&art](arcanum::Artfile& model) {
        const std::string kept = model.getPath();
        model = art;
        model.setPath(kept);
    });
}

void ArtDocument::moveLastFrameTo(unsigned position)
{
    const unsigned last = model.getFrameCount() - 1;
    for (unsigned image = 0; image < model.getImageCount(); ++image) {
        const arcanum::Artfile::Image moved = *model.getImage(image, last);
        for (unsigned f = last; f > position; --f)
            *model.getImage(image, f) = *model.getImage(image, f - 1);
        *model.getImage(image, position) = moved;
    }
}

void ArtDocument::setBottomCentreHotspot(arcanum::Artfile::Image& frame)
{
    frame.left = qint32(frame.width / 2);
    frame.top = qint32(frame.height) - 1;
}
