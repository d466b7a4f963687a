#pragma once

#include "FileFormat.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace arcanum {

// What a file's bytes say it is, whatever its name: a prototype by its signature, an archive by its
// trailer, an art file that reads whole, a script whose size is its header's line count, a text file
// by its first entry (seven items on a line make a dialogue, two a message file). Used to tell a file
// of one kind saved under another's extension; says nothing when the bytes are no clear sign.
class FileSignature
{
public:
    struct Sign
    {
        FileFormat::Kind kind;
        QString evidence; // "signature 119 at offset 0"
    };

    // The kind the bytes show, leaving out `except` (the kind the file's name claims, which its own
    // reader judges better).
    static std::optional<Sign> sniff(const QByteArray& bytes, FileFormat::Kind except);

private:
    static std::optional<Sign> textKind(const QByteArray& bytes);
    static bool isScript(const QByteArray& bytes);
};

} // namespace arcanum
