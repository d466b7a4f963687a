#include "FileWalker.h"

#include <QDir>
#include <QDirIterator>

FileWalker::FileWalker(const QStringList& suffixes)
{
    for (const QString& suffix : suffixes)
        nameFilters << QStringLiteral("*.") + suffix;
}

QStringList FileWalker::files(const QString& folder) const
{
    QStringList found;
    QDirIterator it(folder, nameFilters, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        found << QDir::cleanPath(it.next());
    found.sort();
    return found;
}
