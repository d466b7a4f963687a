#include "SampleRegistry.h"

#include "SafeSave.h"
#include "constants.h"

#include <QTextStream>

#include <algorithm>

namespace {
std::vector<SampleRegistry::Entry>& registry()
{
    static std::vector<SampleRegistry::Entry> entries;
    return entries;
}
} // namespace

void SampleRegistry::add(const QString& name, Writer write)
{
    registry().push_back({name, write});
    std::sort(registry().begin(), registry().end(),
              [](const Entry& a, const Entry& b) { return a.name < b.name; });
}

const std::vector<SampleRegistry::Entry>& SampleRegistry::all()
{
    return registry();
}

bool SampleRegistry::writeAll(const QDir& gameDir)
{
    for (const QString& sub : {arcanum::SCRIPTS_DIR, arcanum::MES_DIR, arcanum::RULES_DIR, arcanum::SEMES_DIR,
                               arcanum::OEMES_DIR, arcanum::DLG_DIR, arcanum::PROTO_DIR, arcanum::ART_DIR})
        gameDir.mkpath(sub);
    bool ok = true;
    for (const Entry& entry : registry()) {
        if (!entry.write(gameDir)) {
            QTextStream(stderr) << "SampleRegistry::writeAll(): writer " << entry.name << " failed\n";
            ok = false;
        }
    }
    return ok;
}

bool SampleRegistry::writeBytes(const QDir& gameDir, const QString& relativePath, const QByteArray& bytes)
{
    return arcanum::SafeSave::write(gameDir.filePath(relativePath), bytes) == arcanum::SafeSave::Saved;
}
