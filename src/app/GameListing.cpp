#include "GameListing.h"

#include <QCoreApplication>
#include <QListWidget>
#include <QSet>
#include <QTreeWidgetItem>

#include <algorithm>

using arcanum::GameView;

namespace {

// "data/scr/" → "scr": game paths count from the data root.
QString gameFolder(const QString& folder)
{
    QString inside = folder;
    if (inside.startsWith(QLatin1String("data/")))
        inside = inside.mid(5);
    while (inside.endsWith(QLatin1Char('/')))
        inside.chop(1);
    return inside;
}

GameListing::Entry entryOf(const GameView& view, const GameView::File& file)
{
    GameListing::Entry entry;
    entry.name = file.path.mid(file.path.lastIndexOf(QLatin1Char('/')) + 1);
    entry.gamePath = file.path;
    entry.source = view.source(file);
    entry.archived = view.archived(file);
    entry.overrides = !entry.archived && !file.hidden.isEmpty();
    return entry;
}

} // namespace

QVector<GameListing::Entry> GameListing::entries(const GameView& view, const QString& folder, const QStringList& loose,
                                                 const QStringList& suffixes)
{
    const QString inside = gameFolder(folder);
    QVector<Entry> found;
    QSet<QString> seen;
    for (const QString& name : loose) {
        const GameView::File* file = view.find(inside + QLatin1Char('/') + name);
        Entry entry = file ? entryOf(view, *file) : Entry{name, QString(), QStringLiteral("data/"), false, false};
        entry.name = name;
        found.append(entry);
        seen.insert(name.toLower());
    }
    // Files only an archive or the module's folder has; a loose one the manager left out (a link, a
    // file we may not write) stays out.
    for (const GameView::File* file : view.filesIn(inside, suffixes)) {
        const Entry entry = entryOf(view, *file);
        if (seen.contains(entry.name.toLower()) || view.layers().at(file->layer).name == QLatin1String("data/"))
            continue;
        found.append(entry);
        seen.insert(entry.name.toLower());
    }
    std::sort(found.begin(), found.end(),
              [](const Entry& a, const Entry& b) { return a.name.compare(b.name, Qt::CaseInsensitive) < 0; });
    return found;
}

QFont GameListing::font(const QFont& base, const Entry& entry)
{
    QFont font = base;
    font.setItalic(entry.archived);
    font.setBold(entry.overrides);
    return font;
}

QString GameListing::toolTip(const Entry& entry)
{
    if (entry.archived)
        return QCoreApplication::translate("GameListing", "In %1; a save writes a loose copy that overrides it")
            .arg(entry.source);
    return QCoreApplication::translate("GameListing", "Loose file in %1").arg(entry.source);
}

void GameListing::fill(QListWidget* list, const QVector<Entry>& entries)
{
    for (const Entry& entry : entries) {
        auto* item = new QListWidgetItem(entry.name, list);
        item->setData(GamePathRole, entry.gamePath);
        item->setToolTip(toolTip(entry));
        item->setFont(font(list->font(), entry));
    }
}

void GameListing::fill(QTreeWidgetItem* parent, const QVector<Entry>& entries)
{
    for (const Entry& entry : entries) {
        auto* item = new QTreeWidgetItem(parent, QStringList(entry.name));
        item->setData(0, GamePathRole, entry.gamePath);
        item->setToolTip(0, toolTip(entry));
        item->setFont(0, font(item->font(0), entry));
    }
}
