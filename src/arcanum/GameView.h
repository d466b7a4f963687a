#pragma once

#include "DatArchive.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

namespace arcanum {

// The game's files as the engine layers them, later layers winning: tig.dat; arcanum1.dat, arcanum2.dat …
// in number order; the loose folder data/; then the module's M.dat, M.patch0 … patch9 and last its loose
// folder modules/M/. Paths are relative to the data root ("art/item/x.art") with "/" between folders.
class GameView
{
public:
    struct Layer
    {
        QString name; // "tig.dat", "data/", "modules/Arcanum.patch0"
        QString path; // the archive file or the loose folder
        bool loose = false;
        std::shared_ptr<DatArchive> archive; // null for a loose folder
    };
    struct File
    {
        QString path; // as the winning layer spells it
        int layer = -1; // the layer that wins
        QVector<int> hidden; // the layers it hides, earliest first
        qint64 size = 0;
    };

    // Reads the directories of every layer below base; archives that cannot be read are listed in problems.
    void build(const QString& base, const QString& module = QStringLiteral("Arcanum"));

    const QVector<Layer>& layers() const { return layerList; }
    const QVector<File>& files() const { return fileList; }
    const QStringList& problems() const { return problemList; }
    // The file of a path, any letter case; null when the game has none.
    const File* find(const QString& path) const;
    // The bytes the engine would read for a path.
    bool read(const File& file, QByteArray& bytes, QString& error) const;
    // The files directly in folder ("scr", "mes"), any letter case, with one of the suffixes.
    QVector<const File*> filesIn(const QString& folder, const QStringList& suffixes) const;
    // Every file below folder, at any depth, with one of the suffixes.
    QVector<const File*> filesBelow(const QString& folder, const QStringList& suffixes) const;
    bool archived(const File& file) const { return !layerList.at(file.layer).loose; }
    // Where the file lies on disk; empty for an archived one.
    QString loosePath(const File& file) const;
    // Where a save of an archived file puts the loose copy that overrides it: below data/ for files of
    // tig.dat and arcanumN.dat, below modules/M/ for those of the module's archives.
    QString overridePath(const File& file) const;
    // "arcanum1.dat", or "data/ (overrides arcanum1.dat)".
    QString source(const File& file) const;
    // The modules a game directory offers: folders and archives below modules/, sorted.
    static QStringList modules(const QString& base);
    const QString& module() const { return moduleName; }

private:
    void addArchive(const QString& name, const QString& path);
    void addFolder(const QString& name, const QString& path);
    void add(int layer, const QString& path, qint64 size);

    QString basePath;
    QString moduleName;
    QVector<Layer> layerList;
    QVector<File> fileList;
    QHash<QString, int> byKey;
    QStringList problemList;
};

} // namespace arcanum
