#include "SafeSave.h"

#include <QSaveFile>

namespace arcanum {

SafeSave::Result SafeSave::write(const QString& path, const QByteArray& bytes, QString* error)
{
    QSaveFile file(path);
    Result result = Saved;
    // Unbuffered, so a write the disk cuts short shows in write()'s count: a buffered QSaveFile
    // flushes inside commit(), takes a partial write for success and puts the truncated file in place.
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        result = OpenFailed;
    else if (file.write(bytes) != bytes.size() || !file.commit())
        result = WriteFailed;
    if (result != Saved && error)
        *error = file.errorString();
    return result;
}

} // namespace arcanum
