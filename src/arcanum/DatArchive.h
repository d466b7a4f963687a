#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QVector>

namespace arcanum {

// A game archive (.dat) opened for reading: its directory in memory, each entry's bytes read from the
// file when asked for. Names are kept as stored ("art\item\x.art", any letter case).
class DatArchive
{
public:
    enum Flag : quint32 { Stored = 1, Compressed = 2, Folder = 0x400 };

    struct Entry
    {
        QString name;
        quint32 flags = 0;
        quint32 size = 0;
        quint32 packedSize = 0;
        quint32 offset = 0;

        bool isFolder() const { return (flags & Folder) != 0; }
        bool isCompressed() const { return flags == Compressed; }
        // The name with "/" between folders.
        QString path() const;
    };

    // Reads the trailer and the directory; false and the reason when the file is no archive or its
    // directory does not fit the file.
    bool open(const QString& path, QString& error);
    QString path() const { return file.fileName(); }
    const QVector<Entry>& entries() const { return list; }
    // The entry of a name, "/" or "\" between folders, any letter case; -1 when there is none.
    int find(const QString& name) const;
    // The unpacked bytes of an entry; false and the reason (naming the entry) when they cannot be had.
    bool read(const Entry& entry, QByteArray& bytes, QString& error);
    // Everything the engine would reject or hide: bad names, duplicates, order, entries outside the file,
    // streams that do not inflate to their size. One line per problem; empty for a sound archive.
    QStringList verify();
    // Why a name cannot be a file below a folder ("..", an absolute path, a drive letter, a NUL); empty when it can.
    static QString unsafeName(const QString& name);
    // Whether bytes end in an archive's trailer, the signature of an archive.
    static bool hasTrailer(const QByteArray& bytes);

private:
    bool readTrailer(QString& error);
    bool readDirectory(QString& error);
    bool readEntry(const QByteArray& directory, qsizetype& at, QString& error);

    QFile file;
    QVector<Entry> list;
    qint64 directoryStart = 0;
    qint64 base = 0;
    qint64 trailerSize = 0;
};

} // namespace arcanum
