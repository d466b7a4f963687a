#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>

// Tells when an open file changes on disk, except through our own saves. A save replaces the file
// through a temporary one, which ends the watch on the old inode: every event re-arms the watch.
class DiskWatcher : public QObject
{
    Q_OBJECT

public:
    explicit DiskWatcher(QObject* parent = nullptr);

    // Watches exactly these paths (the open documents' files).
    void watch(const QStringList& paths);
    // Remembers the file as our own save left it, so the event it causes is not reported.
    void savedByUs(const QString& path);

signals:
    void changedOnDisk(const QString& path);

private:
    struct Stamp
    {
        QDateTime modified;
        qint64 size = -1;
        bool operator==(const Stamp& other) const { return modified == other.modified && size == other.size; }
    };
    static Stamp stampOf(const QString& path);
    void onChanged(const QString& path);

    QFileSystemWatcher watcher;
    QHash<QString, Stamp> known;
};
