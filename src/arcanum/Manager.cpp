#include "Manager.h"

#include "gui.h"

namespace arcanum {

Manager::Manager()
    : baseDir(gui::getBaseDir())
{
}

Manager::~Manager() = default;

QString Manager::getBaseDirPath() const
{
    return baseDir.absolutePath();
}

bool Manager::setBaseDir(const QString& path)
{
    const QString previous = getBaseDirPath();
    // QDir reads an empty path as the working directory in some places and as nothing in others.
    baseDir.setPath(path.isEmpty() ? QStringLiteral(".") : QDir::toNativeSeparators(path));
    if (baseDir.exists()) {
        gui::setBaseDir(baseDir);
        return true;
    }
    baseDir.setPath(previous);
    return false;
}

void Manager::findFiles(const QString& subDir, const QStringList& patterns, QStringList& result)
{
    QDir dir(baseDir.path() + QLatin1Char('/') + subDir);
    dir.setFilter(QDir::Files | QDir::NoSymLinks | QDir::Readable | QDir::Writable);
    result = dir.entryList(patterns);
}

void Manager::findFiles(const QString& subDir, const QString& pattern, QStringList& result)
{
    findFiles(subDir, QStringList(pattern), result);
}

void Manager::reloadScr()
{
    scripts.clear();
    findFiles(SCRIPTS_DIR, QStringLiteral("*.scr"), scripts);
}

void Manager::reloadMes()
{
    messages.clear();
    findFiles(MES_DIR, QStringLiteral("*.mes"), messages);
}

void Manager::reloadRules()
{
    rules.clear();
    findFiles(RULES_DIR, QStringLiteral("*.mes"), rules);
}

void Manager::reloadSemes()
{
    semes.clear();
    findFiles(SEMES_DIR, QStringLiteral("*.mes"), semes);
}

void Manager::reloadOemes()
{
    oemes.clear();
    findFiles(OEMES_DIR, QStringLiteral("*.mes"), oemes);
}

void Manager::reloadDlg()
{
    dialogues.clear();
    findFiles(DLG_DIR, QStringLiteral("*.dlg"), dialogues);
}

void Manager::reloadProtos()
{
    prototypes.clear();
    findFiles(PROTO_DIR, QStringLiteral("*.pro"), prototypes);
}

void Manager::reloadAll()
{
    reloadScr();
    reloadMes();
    reloadRules();
    reloadSemes();
    reloadOemes();
    reloadProtos();
}

} // namespace arcanum
