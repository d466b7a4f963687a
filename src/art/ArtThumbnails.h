#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QString>
#include <QThreadPool>

#include <memory>

// Small pictures of art files (each file's first frame) for the lists, made on a thread of their own so
// the window never waits. A thumbnail is kept under its file's path, size and modification time; after
// revalidate() a file that changed on disk is drawn again, one that did not keeps its picture.
class ArtThumbnails : public QObject
{
    Q_OBJECT

public:
    static constexpr int SIDE = 32;

    // Where the bytes are: a loose file, or an entry of an archive.
    struct Source
    {
        QString loosePath;
        QString archivePath;
        QString entry;
    };

    explicit ArtThumbnails(QObject* parent = nullptr);
    ~ArtThumbnails() override;

    // The thumbnail of the file named id when it is made; otherwise a null image, after it was asked for
    // once: ready(id) follows when it is there (a file that is no art gets none and no signal).
    QImage thumbnail(const QString& id, const Source& source);
    // The files may have changed (the lists were read again): each is checked once more when next asked.
    void revalidate();
    // The first frame of the art file in bytes, keyed out, fitted into SIDE × SIDE; null for no art.
    static QImage render(const QByteArray& bytes);
    // How many thumbnails were drawn so far (a cached one is not drawn again).
    int drawnCount() const { return drawn; }
    // Blocks until every asked-for thumbnail is made (for tools and tests; the window never waits).
    void waitForDone();

signals:
    void ready(const QString& id);

private:
    struct Made
    {
        QString key;
        QImage image;
    };
    class Shelf;
    static QString keyOf(const Source& source);
    void start(const QString& id, const Source& source, const QString& key);

    QHash<QString, Made> made;
    QSet<QString> pending;
    QSet<QString> checked;
    QThreadPool pool;
    std::shared_ptr<Shelf> shelf;
    int drawn = 0;
};
