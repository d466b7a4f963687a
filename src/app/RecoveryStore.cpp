#include "RecoveryStore.h"

#include "SafeSave.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
const char* const NOTE_SUFFIX = ".path";
}

RecoveryStore::RecoveryStore(const QString& folder)
    : dir(folder)
{
}

QString RecoveryStore::baseName(const QString& original) const
{
    const QByteArray hash = QCryptographicHash::hash(original.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
    const QString suffix = QFileInfo(original).suffix().toLower();
    return dir + QLatin1Char('/') + QString::fromLatin1(hash) + QLatin1Char('.') + suffix;
}

bool RecoveryStore::keep(const QString& original, const QByteArray& bytes)
{
    if (!QDir().mkpath(dir))
        return false;
    const QString base = baseName(original);
    return arcanum::SafeSave::write(base, bytes) == arcanum::SafeSave::Saved
        && arcanum::SafeSave::write(base + QLatin1String(NOTE_SUFFIX), original.toUtf8()) == arcanum::SafeSave::Saved;
}

void RecoveryStore::drop(const QString& original)
{
    const QString base = baseName(original);
    QFile::remove(base);
    QFile::remove(base + QLatin1String(NOTE_SUFFIX));
}

QList<RecoveryStore::Copy> RecoveryStore::copies() const
{
    QList<Copy> found;
    const QDir folder(dir);
    for (const QString& note : folder.entryList({QStringLiteral("*") + QLatin1String(NOTE_SUFFIX)}, QDir::Files)) {
        QFile file(folder.filePath(note));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString bytesPath = folder.filePath(note.chopped(int(qstrlen(NOTE_SUFFIX))));
        if (QFileInfo::exists(bytesPath))
            found.append(Copy{QString::fromUtf8(file.readAll()), bytesPath});
    }
    return found;
}

void RecoveryStore::clear()
{
    const QList<Copy> all = copies();
    for (const Copy& copy : all)
        drop(copy.original);
}
