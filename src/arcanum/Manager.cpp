#include "Manager.h"

namespace arcanum {

Manager::Manager(const QString& base)
    : baseDir(base.isEmpty() ? QStringLiteral(".") : base)
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
    if (baseDir.exists())
        return true;
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

void Manager::reload(QStringList& list, const QString& subDir, const QString& pattern)
{
    list.clear();
    findFiles(subDir, pattern, list);
}

void Manager::reloadScr()
{
    reload(scripts, SCRIPTS_DIR, QStringLiteral("*.scr"));
}

void Manager::reloadMes()
{
    reload(messages, MES_DIR, QStringLiteral("*.mes"));
}

void Manager::reloadRules()
{
    reload(rules, RULES_DIR, QStringLiteral("*.mes"));
}

void Manager::reloadSemes()
{
    reload(semes, SEMES_DIR, QStringLiteral("*.mes"));
}

void Manager::reloadOemes()
{
    reload(oemes, OEMES_DIR, QStringLiteral("*.mes"));
}

void Manager::reloadDlg()
{
    reload(dialogues, DLG_DIR, QStringLiteral("*.dlg"));
}

void Manager::reloadProtos()
{
    reload(prototypes, PROTO_DIR, QStringLiteral("*.pro"));
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
