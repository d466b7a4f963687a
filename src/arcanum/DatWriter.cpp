#include "DatWriter.h"

#include "DatArchive.h"
#include "Deflate.h"
#include "SafeSave.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QtEndian>

#include <algorithm>
#include <map>

namespace arcanum {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("DatWriter", text);
}

void put(QByteArray& out, quint32 value)
{
    char bytes[4];
    qToLittleEndian(value, bytes);
    out.append(bytes, 4);
}

struct Record
{
    QString name;
    quint32 flags = 0;
    quint32 size = 0;
    quint32 packedSize = 0;
    quint32 offset = 0;
};

// Every folder a name lies in ("a\b\c.art" → "a", "a\b"), spelt as the first file in order spells it.
void addFolders(const QString& name, std::map<QByteArray, QString>& folders)
{
    for (int slash = name.indexOf(QLatin1Char('\\')); slash > 0; slash = name.indexOf(QLatin1Char('\\'), slash + 1))
        folders.emplace(name.left(slash).toLower().toLatin1(), name.left(slash));
}

QByteArray directoryOf(const std::vector<Record>& records)
{
    QByteArray directory;
    put(directory, quint32(records.size()));
    quint32 namesTotal = 0;
    for (const Record& record : records) {
        const QByteArray name = record.name.toLatin1() + '\0';
        put(directory, quint32(name.size()));
        directory.append(name);
        put(directory, 0);
        put(directory, record.flags);
        put(directory, record.size);
        put(directory, record.packedSize);
        put(directory, record.offset);
        namesTotal += quint32(name.size());
    }
    // Our own 16-byte identifier in front of the magic, as current archives have one.
    directory.append("qtLoreka archive", 16);
    directory.append("1TAD", 4);
    put(directory, namesTotal);
    put(directory, quint32(directory.size() + 4));
    return directory;
}

} // namespace

bool DatWriter::write(const QString& path, QVector<File> files, QString& error, const Progress& progress)
{
    std::map<QByteArray, Record> sorted;
    for (File& file : files) {
        file.first.replace(QLatin1Char('/'), QLatin1Char('\\'));
        const QString unsafe = DatArchive::unsafeName(file.first);
        if (!unsafe.isEmpty()) {
            error = tr("%1: the name holds %2").arg(file.first, unsafe);
            return false;
        }
        if (!sorted.emplace(file.first.toLower().toLatin1(), Record{file.first}).second) {
            error = tr("%1: the name is given twice (letter case aside)").arg(file.first);
            return false;
        }
    }
    // Data in directory order, so the same files give the same archive whatever order they came in.
    QHash<QByteArray, const QByteArray*> bytesOf;
    for (const File& file : std::as_const(files))
        bytesOf.insert(file.first.toLower().toLatin1(), &file.second);
    QByteArray data;
    int done = 0;
    for (auto& [key, record] : sorted) {
        const QByteArray& bytes = *bytesOf.value(key);
        const QByteArray packed = Deflate::deflate(bytes);
        const bool shrinks = !packed.isEmpty() && packed.size() < bytes.size();
        record.flags = shrinks ? DatArchive::Compressed : DatArchive::Stored;
        record.size = quint32(bytes.size());
        record.packedSize = quint32(shrinks ? packed.size() : bytes.size());
        record.offset = quint32(data.size());
        data.append(shrinks ? packed : bytes);
        if (progress && !progress(++done, int(files.size()))) {
            error = tr("cancelled");
            return false;
        }
    }
    std::map<QByteArray, QString> folders;
    for (const auto& [key, record] : sorted)
        addFolders(record.name, folders);
    for (const auto& [key, folder] : folders)
        sorted.emplace(key, Record{folder, DatArchive::Folder});
    std::vector<Record> records;
    records.reserve(sorted.size());
    for (auto& [key, record] : sorted)
        records.push_back(record);
    // The word before the directory holds its position, so offsets count from the start of the file.
    put(data, quint32(data.size() + 4));
    data.append(directoryOf(records));
    return SafeSave::write(path, data, &error) == SafeSave::Saved;
}

bool DatWriter::packFolder(const QString& folder, const QString& path, QString& error, const Progress& progress)
{
    QVector<File> files;
    const QDir root(folder);
    QDirIterator it(folder, QDir::Files | QDir::NoSymLinks | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString name = it.next();
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly)) {
            error = tr("%1: %2").arg(name, file.errorString());
            return false;
        }
        files.append({root.relativeFilePath(name), file.readAll()});
    }
    return write(path, files, error, progress);
}

} // namespace arcanum
