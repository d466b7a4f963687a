#include "SafeSave.h"

#include <QSaveFile>

namespace arcanum {

SafeSave::Result SafeSave::write(const QString& path, const QByteArray& bytes, QString* error)
{
    QSaveFile file(path);
    Result result = Saved;
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly))
        result = OpenFailed;
    else if (file.write(bytes) != bytes.size() || !file.commit())
        result = WriteFailed;
    if (result != Saved && error)
        *error = file.errorString();
    return result;
}

} // namespace arcanum
