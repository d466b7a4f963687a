#include "ArtThumbnails.h"

#include "ArtPreview.h"
#include "Artfile.h"
#include "DatArchive.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QPainter>
#include <QPointer>
#include <QtConcurrent>

#include <map>

// The archives the worker reads from, each opened once: a DatArchive reads through one file handle,
// so the worker keeps its own rather than sharing the window's.
class ArtThumbnails::Shelf
{
public:
    bool read(const Source& source, QByteArray& bytes)
    {
        if (source.archivePath.isEmpty()) {
            QFile loose(source.loosePath);
            if (!loose.open(QIODevice::ReadOnly))
                return false;
            bytes = loose.readAll();
            return true;
        }
        QMutexLocker lock(&mutex);
        std::unique_ptr<arcanum::DatArchive>& archive = archives[source.archivePath];
        QString error;
        if (!archive) {
            archive = std::make_unique<arcanum::DatArchive>();
            if (!archive->open(source.archivePath, error))
                return false;
        }
        const int entry = archive->find(source.entry);
        return entry >= 0 && archive->read(archive->entries().at(entry), bytes, error);
    }

private:
    QMutex mutex;
    std::map<QString, std::unique_ptr<arcanum::DatArchive>> archives;
};

ArtThumbnails::ArtThumbnails(QObject* parent)
    : QObject(parent)
    , shelf(std::make_shared<Shelf>())
{
    // One thread: thumbnails come in the order they were asked for and never crowd out the window's work.
    pool.setMaxThreadCount(1);
}

ArtThumbnails::~ArtThumbnails()
{
    pool.clear();
    pool.waitForDone();
}

QString ArtThumbnails::keyOf(const Source& source)
{
    const QFileInfo file(source.archivePath.isEmpty() ? source.loosePath : source.archivePath);
    return QStringLiteral("%1|%2|%3|%4")
        .arg(file.absoluteFilePath(), source.entry)
        .arg(file.size())
        .arg(file.lastModified().toMSecsSinceEpoch());
}

QImage ArtThumbnails::thumbnail(const QString& id, const Source& source)
{
    if (pending.contains(id))
        return QImage();
    auto found = made.constFind(id);
    if (found != made.constEnd() && checked.contains(id))
        return found->image;
    const QString key = keyOf(source);
    checked.insert(id);
    if (found != made.constEnd() && found->key == key)
        return found->image;
    start(id, source, key);
    return QImage();
}

void ArtThumbnails::revalidate()
{
    checked.clear();
}

void ArtThumbnails::start(const QString& id, const Source& source, const QString& key)
{
    pending.insert(id);
    QPointer<ArtThumbnails> owner(this);
    std::shared_ptr<Shelf> archives = shelf;
    // Runs on the pool; the result comes back to this object's thread as a queued call.
    auto work = [owner, archives, id, source, key] {
        QByteArray bytes;
        const QImage image = archives->read(source, bytes) ? render(bytes) : QImage();
        QMetaObject::invokeMethod(
            owner.data(),
            [owner, id, key, image] {
                if (!owner)
                    return;
                owner->pending.remove(id);
                owner->made.insert(id, {key, image});
                ++owner->drawn;
                if (!image.isNull())
                    emit owner->ready(id);
            },
            Qt::QueuedConnection);
    };
    // The result comes back through the queued call, not the future.
    static_cast<void>(QtConcurrent::run(&pool, work));
}

void ArtThumbnails::waitForDone()
{
    pool.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

QImage ArtThumbnails::render(const QByteArray& bytes)
{
    arcanum::Artfile art;
    QImage frame;
    if (!art.loadBytes(bytes) || !art.convertTo(frame, 0, 0, 0))
        return QImage();
    QImage keyed = ArtPreview::withoutKey(frame);
    if (keyed.width() > SIDE || keyed.height() > SIDE)
        keyed = keyed.scaled(SIDE, SIDE, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    // Centred on a square, so every row of the list lines up.
    QImage square(SIDE, SIDE, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((SIDE - keyed.width()) / 2, (SIDE - keyed.height()) / 2, keyed);
    return square;
}
