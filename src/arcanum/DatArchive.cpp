#include "DatArchive.h"

#include "Deflate.h"

#include <QCoreApplication>
#include <QHash>
#include <QtEndian>

namespace arcanum {

namespace {

const qint64 SHORT_TRAILER = 12;
const qint64 LONG_TRAILER = 28;
const qint64 ENTRY_FIELDS = 20; // the unused word, flags, size, packed size, offset
// Deflate cannot pack better than about 1032 to 1: an entry claiming more would make us allocate for nothing.
const qint64 MOST_INFLATION = 1032;

QString tr(const char* text)
{
    return QCoreApplication::translate("DatArchive", text);
}

quint32 word(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

// The engine compares lower-cased names byte by byte, "\" included.
QByteArray sortKey(const QString& name)
{
    return name.toLower().toLatin1();
}

} // namespace

QString DatArchive::Entry::path() const
{
    return QString(name).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

bool DatArchive::open(const QString& path, QString& error)
{
    list.clear();
    file.close();
    file.setFileName(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return false;
    }
    return readTrailer(error) && readDirectory(error);
}

bool DatArchive::hasTrailer(const QByteArray& bytes)
{
    if (bytes.size() < SHORT_TRAILER)
        return false;
    const QByteArray magic = bytes.mid(bytes.size() - SHORT_TRAILER, 4);
    return (magic == "1TAD" && bytes.size() >= LONG_TRAILER) || magic == " TAD";
}

bool DatArchive::readTrailer(QString& error)
{
    const qint64 size = file.size();
    if (size < SHORT_TRAILER) {
        error = tr("not an archive: %1 bytes are too few for its trailer").arg(size);
        return false;
    }
    file.seek(size - SHORT_TRAILER);
    const QByteArray tail = file.read(SHORT_TRAILER);
    const QByteArray magic = tail.left(4);
    if (magic == "1TAD" && size >= LONG_TRAILER)
        trailerSize = LONG_TRAILER;
    else if (magic == " TAD")
        trailerSize = SHORT_TRAILER;
    else {
        error = tr("not an archive: the file does not end in an archive trailer");
        return false;
    }
    const qint64 directorySize = word(tail, 8);
    directoryStart = size - directorySize;
    // The word before the directory holds its position; offsets count from where that says.
    if (directorySize < trailerSize + 4 || directoryStart < 4) {
        error = tr("the trailer gives a directory of %1 bytes, which does not fit the %2-byte file")
                    .arg(directorySize)
                    .arg(size);
        return false;
    }
    file.seek(directoryStart - 4);
    const QByteArray position = file.read(4);
    base = directoryStart - qint64(word(position, 0));
    if (base < 0 || base > directoryStart) {
        error = tr("the directory's own position (%1) lies outside the file").arg(word(position, 0));
        return false;
    }
    return true;
}

bool DatArchive::readDirectory(QString& error)
{
    file.seek(directoryStart);
    const QByteArray directory = file.read(file.size() - trailerSize - directoryStart);
    if (directory.size() < 4) {
        error = tr("the directory at byte %1 is too short for its count").arg(directoryStart);
        return false;
    }
    const quint32 count = word(directory, 0);
    // Each entry takes at least 21 bytes, so a count the directory cannot hold is refused before any allocation.
    if (qint64(count) > (directory.size() - 4) / (ENTRY_FIELDS + 1)) {
        error = tr("the directory counts %1 entries, more than its %2 bytes can hold").arg(count).arg(directory.size());
        return false;
    }
    list.reserve(qsizetype(count));
    qsizetype at = 4;
    for (quint32 i = 0; i < count; ++i)
        if (!readEntry(directory, at, error))
            return false;
    return true;
}

bool DatArchive::readEntry(const QByteArray& directory, qsizetype& at, QString& error)
{
    const qsizetype entryStart = at;
    if (directory.size() - at < 4) {
        error = tr("the directory ends inside entry %1").arg(list.size() + 1);
        return false;
    }
    const quint32 nameLength = word(directory, at);
    at += 4;
    if (nameLength == 0 || qint64(nameLength) + ENTRY_FIELDS > directory.size() - at) {
        error = tr("the name of entry %1 (at byte %2) runs past the directory's end")
                    .arg(list.size() + 1)
                    .arg(directoryStart + entryStart);
        return false;
    }
    Entry entry;
    // The stored name ends in a NUL; one inside it is reported by verify as the name it cuts short.
    entry.name = QString::fromLatin1(directory.constData() + at, qsizetype(nameLength) - 1);
    at += nameLength + 4;
    entry.flags = word(directory, at);
    entry.size = word(directory, at + 4);
    entry.packedSize = word(directory, at + 8);
    entry.offset = word(directory, at + 12);
    at += 16;
    list.append(entry);
    return true;
}

int DatArchive::find(const QString& name) const
{
    const QString wanted = QString(name).replace(QLatin1Char('/'), QLatin1Char('\\'));
    for (int i = 0; i < list.size(); ++i)
        if (!list[i].isFolder() && list[i].name.compare(wanted, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

bool DatArchive::read(const Entry& entry, QByteArray& bytes, QString& error)
{
    const QString where = QStringLiteral("%1/%2").arg(file.fileName(), entry.path());
    const qint64 start = base + entry.offset;
    if (entry.isFolder()) {
        error = tr("%1 is a folder").arg(where);
        return false;
    }
    const qint64 stored = entry.isCompressed() ? entry.packedSize : entry.size;
    if (start + stored > directoryStart - 4) {
        error = tr("%1 lies outside the archive's data (bytes %2 to %3)").arg(where).arg(start).arg(start + stored);
        return false;
    }
    if (entry.isCompressed() && qint64(entry.size) > qint64(entry.packedSize) * MOST_INFLATION + 64) {
        error = tr("%1 claims %2 bytes from %3 packed ones, more than a zlib stream can hold")
                    .arg(where)
                    .arg(entry.size)
                    .arg(entry.packedSize);
        return false;
    }
    file.seek(start);
    const QByteArray data = file.read(stored);
    if (data.size() != stored) {
        error = tr("%1 could not be read").arg(where);
        return false;
    }
    if (!entry.isCompressed()) {
        bytes = data;
        return true;
    }
    if (!Deflate::inflate(data, entry.size, bytes)) {
        error = tr("%1: the zlib stream is damaged or does not inflate to its %2 bytes").arg(where).arg(entry.size);
        bytes.clear();
        return false;
    }
    return true;
}

QString DatArchive::unsafeName(const QString& name)
{
    const QString path = QString(name).replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (path.isEmpty())
        return tr("an empty name");
    if (path.contains(QChar(0)))
        return tr("a NUL inside the name");
    if (path.startsWith(QLatin1Char('/')))
        return tr("an absolute path");
    if (path.size() >= 2 && path.at(1) == QLatin1Char(':'))
        return tr("a drive letter");
    if (path.split(QLatin1Char('/')).contains(QStringLiteral("..")))
        return tr("a \"..\" that leads out of the folder");
    return QString();
}

QStringList DatArchive::verify()
{
    QStringList problems;
    QHash<QByteArray, int> seen;
    QByteArray previous;
    for (int i = 0; i < list.size(); ++i) {
        const Entry& entry = list[i];
        const QString where = QStringLiteral("%1/%2").arg(file.fileName(), entry.path());
        const QString unsafe = unsafeName(entry.name);
        if (!unsafe.isEmpty())
            problems.append(tr("%1: the name holds %2").arg(where, unsafe));
        const QByteArray key = sortKey(entry.name);
        if (seen.contains(key))
            problems.append(tr("%1: the name is used again (first as entry %2)").arg(where).arg(seen.value(key) + 1));
        seen.insert(key, i);
        if (i > 0 && key < previous)
            problems.append(tr("%1: out of order, the engine's search will not find it").arg(where));
        previous = key;
        if (entry.isFolder())
            continue;
        if ((entry.flags & Stored) == 0 && entry.flags != Compressed)
            problems.append(tr("%1: flags 0x%2 are neither stored nor compressed").arg(where).arg(entry.flags, 0, 16));
        QByteArray bytes;
        QString error;
        if (!read(entry, bytes, error))
            problems.append(error);
    }
    return problems;
}

} // namespace arcanum
