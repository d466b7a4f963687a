#pragma once

#include "constants.h"

#include <QDir>
#include <QStringList>

namespace arcanum {

// Knows the game's base directory and which data files of each kind lie below it.
class Manager
{
public:
    explicit Manager(const QString& base = QString());
    ~Manager();

    QStringList scripts;
    QStringList messages;
    QStringList rules;
    QStringList semes;
    QStringList oemes;
    QStringList dialogues;
    QStringList prototypes;

    QString getBaseDirPath() const;
    // Accepts only an existing directory; a rejected one leaves the directory as it was.
    bool setBaseDir(const QString& path);

    void findFiles(const QString& subDir, const QStringList& patterns, QStringList& result);
    void findFiles(const QString& subDir, const QString& pattern, QStringList& result);

    void reloadScr();
    void reloadMes();
    void reloadRules();
    void reloadSemes();
    void reloadOemes();
    void reloadDlg();
    void reloadProtos();
    // Dialogues are opened through the dialogue editor's own file chooser, so they are not scanned here.
    void reloadAll();

private:
    void reload(QStringList& list, const QString& subDir, const QString& pattern);

    QDir baseDir;
};

} // namespace arcanum
