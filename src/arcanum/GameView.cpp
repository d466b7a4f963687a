#include "GameView.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace arcanum {

void GameView::build(const QString& base, const QString& module)
{
    layerList.clear();
    fileList.clear();
    byKey.clear();
    problemList.clear();
    basePath = base;
    moduleName = module;
    const QDir root(base);
    addArchive(QStringLiteral("tig.dat"), root.filePath(QStringLiteral("tig.dat")));
    // arcanum1.dat, arcanum2.dat … in number order, not name order (arcanum10 after arcanum9).
    QVector<QPair<int, QString>> numbered;
    const QRegularExpression pattern(QStringLiteral("^arcanum(\\d+)\\.dat$"), QRegularExpression::CaseInsensitiveOption);
    for (const QString& name : root.entryList(QDir::Files)) {
        const QRegularExpressionMatch match = pattern.match(name);
        if (match.hasMatch())
            numbered.append({match.captured(1).toInt(), name});
    }
    std::sort(numbered.begin(), numbered.end());
    for (const auto& [number, name] : numbered)
        addArchive(name, root.filePath(name));
    addFolder(QStringLiteral("data/"), root.filePath(QStringLiteral("data")));
    const QString modules = QStringLiteral("modules/") + module;
    addArchive(modules + QStringLiteral(".dat"), root.filePath(modules + QStringLiteral(".dat")));
    for (int patch = 0; patch <= 9; ++patch) {
        const QString name = modules + QStringLiteral(".patch%1").arg(patch);
        addArchive(name, root.filePath(name));
    }
    addFolder(modules + QLatin1Char('/'), root.filePath(modules));
}

void GameView::addArchive(const QString& name, const QString& path)
{
    if (!QFileInfo::exists(path))
        return;
    auto archive = std::make_shared<DatArchive>();
    QString error;
    if (!archive->open(path, error)) {
        problemList.append(QStringLiteral("%1: %2").arg(name, error));
        return;
    }
    // Names the engine is told to hide are listed in ARCHIVE.ignore beside it.
    QStringList ignored;
    QFile ignore(path + QStringLiteral(".ignore"));
    if (ignore.open(QIODevice::ReadOnly | QIODevice::Text))
        for (const QByteArray& line : ignore.readAll().split('\n'))
            if (!line.trimmed().isEmpty())
                ignored.append(QString::fromLatin1(line.trimmed()).replace(QLatin1Char('\\'), QLatin1Char('/')).toLower());
    layerList.append(Layer{name, path, false, archive});
    const int layer = int(layerList.size()) - 1;
    for (const DatArchive::Entry& entry : archive->entries())
        if (!entry.isFolder() && DatArchive::unsafeName(entry.name).isEmpty()
            && !ignored.contains(entry.path().toLower()))
            add(layer, entry.path(), entry.size);
}

void GameView::addFolder(const QString& name, const QString& path)
{
    if (!QFileInfo(path).isDir())
        return;
    layerList.append(Layer{name, path, true, nullptr});
    const int layer = int(layerList.size()) - 1;
    // Absolute, so that the paths below a relative folder ("./data") come out relative to it.
    const QDir root(QFileInfo(path).absoluteFilePath());
    QDirIterator it(root.path(), QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        add(layer, root.relativeFilePath(it.filePath()), it.fileInfo().size());
    }
}

void GameView::add(int layer, const QString& path, qint64 size)
{
    const QString key = path.toLower();
    const auto found = byKey.constFind(key);
    if (found == byKey.constEnd()) {
        byKey.insert(key, int(fileList.size()));
        fileList.append(File{path, layer, {}, size});
        return;
    }
    File& file = fileList[*found];
    file.hidden.append(file.layer);
    file.layer = layer;
    file.path = path;
    file.size = size;
}

const GameView::File* GameView::find(const QString& path) const
{
    const auto found = byKey.constFind(QString(path).replace(QLatin1Char('\\'), QLatin1Char('/')).toLower());
    return found == byKey.constEnd() ? nullptr : &fileList[*found];
}

bool GameView::read(const File& file, QByteArray& bytes, QString& error) const
{
    const Layer& layer = layerList.at(file.layer);
    if (layer.loose) {
        QFile loose(QDir(layer.path).filePath(file.path));
        if (!loose.open(QIODevice::ReadOnly)) {
            error = loose.errorString();
            return false;
        }
        bytes = loose.readAll();
        return true;
    }
    const int entry = layer.archive->find(file.path);
    return entry >= 0 && layer.archive->read(layer.archive->entries().at(entry), bytes, error);
}

namespace {

bool hasSuffix(const QString& path, const QStringList& suffixes)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return dot >= 0 && suffixes.contains(path.mid(dot + 1).toLower());
}

} // namespace

QVector<const GameView::File*> GameView::filesIn(const QString& folder, const QStringList& suffixes) const
{
    QVector<const File*> found;
    const QString prefix = folder.toLower() + QLatin1Char('/');
    for (const File& file : fileList) {
        if (file.path.size() > prefix.size() && file.path.left(prefix.size()).toLower() == prefix
            && file.path.indexOf(QLatin1Char('/'), prefix.size()) < 0 && hasSuffix(file.path, suffixes))
            found.append(&file);
    }
    return found;
}

QVector<const GameView::File*> GameView::filesBelow(const QString& folder, const QStringList& suffixes) const
{
    QVector<const File*> found;
    const QString prefix = folder.toLower() + QLatin1Char('/');
    for (const File& file : fileList) {
        if (file.path.left(prefix.size()).toLower() == prefix && hasSuffix(file.path, suffixes))
            found.append(&file);
    }
    return found;
}

QString GameView::loosePath(const File& file) const
{
    const Layer& layer = layerList.at(file.layer);
    return layer.loose ? QDir(layer.path).filePath(file.path) : QString();
}

QString GameView::overridePath(const File& file) const
{
    const QString layer = layerList.at(file.layer).name;
    const QString folder = layer.startsWith(QLatin1String("modules/")) ? QStringLiteral("modules/") + moduleName
                                                                       : QStringLiteral("data");
    return QDir(basePath).filePath(folder + QLatin1Char('/') + file.path);
}

QString GameView::source(const File& file) const
{
    QString text = layerList.at(file.layer).name;
    if (file.hidden.isEmpty())
        return text;
    QStringList hidden;
    for (int layer : file.hidden)
        hidden << layerList.at(layer).name;
    return QStringLiteral("%1 (overrides %2)").arg(text, hidden.join(QStringLiteral(", ")));
}

QStringList GameView::modules(const QString& base)
{
    const QDir folder(QDir(base).filePath(QStringLiteral("modules")));
    QStringList names = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& archive : folder.entryList({QStringLiteral("*.dat")}, QDir::Files))
        names.append(QFileInfo(archive).completeBaseName());
    names.removeDuplicates();
    names.sort(Qt::CaseInsensitive);
    return names;
}

} // namespace arcanum
