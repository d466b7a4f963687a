#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

class QTextCodec;

namespace arcanum {

// One kind of game file as every part of the project knows it: the editor routes a file to its
// page by it, `loreka` picks its reader, the fuzzers, benchmarks and tests run its round trip.
struct FileFormat
{
    enum class Kind { Message, Dialogue, Script, Art, Palette, Prototype, Archive };

    // Reads the bytes as the editor reads them and gives back what a save would write; false with
    // the reason when the file is refused. path only names the file (a script takes its number
    // from it); nothing is read from disk. codec is for the text formats; null means the kind's default
    // (UTF-8 for message files, Windows-1251 for dialogue files).
    using Rewrite = bool (*)(const QString& path, const QByteArray& bytes, QTextCodec* codec, QByteArray& out,
                             QString& error);

    Kind kind;
    QString name;          // "mes", "dlg" … also the folder of its fuzzing seeds
    QStringList suffixes;  // lower case, without the dot
    QString description;   // "message file"
    bool text;             // read through a text codec
    Rewrite rewrite;       // null for archives, which are read entry by entry
};

} // namespace arcanum
