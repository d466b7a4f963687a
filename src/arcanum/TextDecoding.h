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
    // Characters that stand for bytes the encoding could not read: where the first one is and how many.
    struct Unreadable
    {
        int firstLine = 0; // 1-based; 0 when every byte reads as a character
        int characters = 0;
        bool isClean() const { return characters == 0; }
    };

    // Reads bytes in codec and counts what came out as no character: replacement characters (invalid
    // UTF-8, a double-byte code page's bad pairs), and what a code page maps a byte it does not define
    // to (a C1 control, a private-use character).
    static Unreadable unreadable(QTextCodec* codec, const QByteArray& bytes);
    static Unreadable unreadable(const QString& decoded);
    static bool isUnreadable(char16_t character);

    // 1-based numbers of the lines that do not survive, in file order; empty when the file is clean.
    static QList<int> lossyLines(QTextCodec* codec, const QByteArray& bytes);
    // "Line 14 (and 13 more lines) cannot be read in UTF-8 without change" or an empty string.
    static QString describe(const QList<int>& lines, const QString& encoding);
};

} // namespace arcanum
