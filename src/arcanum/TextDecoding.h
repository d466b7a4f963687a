#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class QTextCodec;

namespace arcanum {

// Whether a text file's bytes survive being read and written back in one encoding. A line whose bytes
// come back different after decode + encode (invalid sequences, characters the encoding cannot write)
// would be damaged by a save that rewrites it, even if nobody edited it.
class TextDecoding
{
public:
    // 1-based numbers of the lines that do not survive, in file order; empty when the file is clean.
    static QList<int> lossyLines(QTextCodec* codec, const QByteArray& bytes);
    // "Line 14 (and 13 more lines) cannot be read in UTF-8 without change" or an empty string.
    static QString describe(const QList<int>& lines, const QString& encoding);
};

} // namespace arcanum
