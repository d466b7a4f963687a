#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>

#include <functional>

namespace arcanum {

// Writes a game archive the engine can search: entries sorted by lower-cased name with a folder entry for
// every folder, each file zlib-compressed unless that does not make it smaller.
class DatWriter
{
public:
    using File = QPair<QString, QByteArray>; // name with "/" or "\" between folders, and its bytes
    // Called after each file with how many are done; returning false cancels (nothing is written).
    using Progress = std::function<bool(int done, int total)>;

    // Through a temporary file; false and the reason (an unsafe or repeated name, a write that failed).
    static bool write(const QString& path, QVector<File> files, QString& error, const Progress& progress = {});
    // Every regular file below folder, named relative to it.
    static bool packFolder(const QString& folder, const QString& path, QString& error, const Progress& progress = {});
};

} // namespace arcanum
