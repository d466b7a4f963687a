#pragma once

#include <QByteArray>
#include <QString>

namespace arcanum {

// Writes a whole file through a temporary one that replaces it only when every byte is written,
// so a failed save never leaves a half-written file behind.
class SafeSave
{
public:
    enum Result { Saved, OpenFailed, WriteFailed };

    // error, when given, receives the file system's reason for a failure.
    static Result write(const QString& path, const QByteArray& bytes, QString* error = nullptr);
};

} // namespace arcanum
