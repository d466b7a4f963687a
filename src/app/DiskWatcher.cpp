#include "DiskWatcher.h"

#include <QFileInfo>

DiskWatcher::DiskWatcher(QObject* parent)
    : QObject(parent)
{
    connect(&watcher, &QFileSystemWatcher::fileChanged, this, &DiskWatcher::onChanged);
}

void DiskWatcher::watch(const QStringList& paths)
{
    const QStringList old = watcher.files();
    if (!old.isEmpty())
        watcher.removePaths(old);
    QHash<QString, Stamp> stamps;
    for (const QString& path : paths) {
        if (path.isEmpty() || !QFileInfo::exists(path))
            continue;
        watcher.addPath(path);
        stamps.insert(path, known.value(path, stampOf(path)));
    }
    known = stamps;
}

void DiskWatcher::savedByUs(const QString& path)
{
    known.insert(path, stampOf(path));
    if (!watcher.files().contains(path) && QFileInfo::exists(path))
        watcher.addPath(path);
}

DiskWatcher::Stamp DiskWatcher::stampOf(const QString& path)
{
    const QFileInfo info(path);
    return Stamp{info.lastModified(), info.exists() ? info.size() : -1};
}

void DiskWatcher::onChanged(const QString& path)
{
    if (!known.contains(path))
        return;
    if (QFileInfo::exists(path) && !watcher.files().contains(path))
        watcher.addPath(path);
    const Stamp now = stampOf(path);
    if (now == known.value(path))
        return;
    known.insert(path, now);
    emit changedOnDisk(path);
}
