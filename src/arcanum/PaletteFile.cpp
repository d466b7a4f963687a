#include "PaletteFile.h"

#include "SafeSave.h"

#include <QCoreApplication>
#include <QFile>

namespace arcanum {

bool PaletteFile::read(const QString& path, Artfile::Palette& colours, QString& error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = file.errorString();
        return false;
    }
    const QByteArray bytes = file.read(Artfile::PALETTE_BYTES + 1);
    if (bytes.size() != qsizetype(Artfile::PALETTE_BYTES)) {
        error = QCoreApplication::translate("PaletteFile", "a palette file is %1 bytes long, this one %2%3")
                    .arg(Artfile::PALETTE_BYTES)
                    .arg(file.size())
                    .arg(bytes.size() < qsizetype(Artfile::PALETTE_BYTES) ? QString() : QStringLiteral(" or more"));
        return false;
    }
    Artfile::paletteFromBytes(bytes, colours);
    return true;
}

bool PaletteFile::write(const QString& path, const Artfile::Palette& colours, QString& error)
{
    return SafeSave::write(path, Artfile::paletteToBytes(colours), &error) == SafeSave::Saved;
}

} // namespace arcanum
