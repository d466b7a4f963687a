#include "ArtDocument.h"

#include "ArtRunLength.h"

#include <QFile>

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
                undrawn.append(tr("image %1 frame %2").arg(image + 1).arg(frame + 1));
        }
    if (undrawn.isEmpty())
        return QString();
    return tr("frames whose pixel data is far too short for their size are listed but not drawn (%1 of them): %2")
        .arg(undrawn.size())
        .arg(undrawn.mid(0, 5).join(QStringLiteral(", ")) + (undrawn.size() > 5 ? QStringLiteral(" …") : QString()));
}
