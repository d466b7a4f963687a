#pragma once

#include "Artfile.h"

#include <QString>

namespace arcanum {

// A palette file (.aap): the 256 colours of one art palette, 1024 bytes in the art file's own order.
class PaletteFile
{
public:
    // False and the reason (a file that is not 1024 bytes long, one that cannot be opened).
    static bool read(const QString& path, Artfile::Palette& colours, QString& error);
    // Through a temporary file; false and the reason when it could not be written.
    static bool write(const QString& path, const Artfile::Palette& colours, QString& error);
};

} // namespace arcanum
