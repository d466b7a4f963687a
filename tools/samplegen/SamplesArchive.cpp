// A small game archive beside the loose data, so the Game tab has layers to show: one file only in the
// archive, and an older copy of a loose message file that the loose one overrides.
#include "SampleRegistry.h"

#include "DatWriter.h"

namespace {

bool writeArchive(const QDir& game)
{
    const QVector<arcanum::DatWriter::File> files = {
        {QStringLiteral("mes/sample_items.mes"),
         QByteArrayLiteral("// The archived version; the loose data/mes/sample_items.mes overrides it\r\n"
                           "{100}{Old dagger}\r\n")},
        {QStringLiteral("mes/archived_notes.mes"),
         QByteArrayLiteral("// This message file lives only in the archive\r\n"
                           "{1}{Opened from arcanum1.dat}\r\n"
                           "{2}{Saving it writes a loose copy to data/mes/}\r\n")}};
    QString error;
    return arcanum::DatWriter::write(game.filePath(QStringLiteral("arcanum1.dat")), files, error);
}

const SampleRegistration registration("archive", &writeArchive);

} // namespace
