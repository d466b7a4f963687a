#pragma once

#include "FileFormat.h"

#include <QVector>

namespace arcanum {

// The formats the project reads and writes, looked up by name or by a file's suffix.
class FormatRegistry
{
public:
    static const QVector<FileFormat>& formats();
    static const FileFormat* byName(const QString& name);
    static const FileFormat* byKind(FileFormat::Kind kind);
    // By the suffix of path, in any letter case; null for a file of no known kind.
    static const FileFormat* byPath(const QString& path);
    // Every suffix of every format, for scanning folders.
    static QStringList suffixes();
    // "Message files (*.mes *.MES)" for a file dialog.
    static QString nameFilter(FileFormat::Kind kind);
};

} // namespace arcanum
