#include "ArtModel.h"

#include "ArtThumbnails.h"
#include "FormatRegistry.h"
#include "GameListing.h"

#include <QDir>
#include <QFileInfo>
#include <QTreeView>

#include <functional>

using arcanum::GameView;

ArtModel::ArtModel(QObject* parent)
    : QStandardItemModel(parent)
    , pictures(new ArtThumbnails(this))
{
    connect(pictures, &ArtThumbnails::ready, this, &ArtModel::thumbnailReady);
}

void ArtModel::fill(const GameView& view)
{
    clear();
    folders.clear();
    rows.clear();
    icons.clear();
    // Files that kept their size and time keep their thumbnails; the others are drawn again.
    pictures->revalidate();
    const auto art = arcanum::FormatRegistry::byKind(arcanum::FileFormat::Kind::Art);
    QStringList suffixes = arcanum::FormatRegistry::byKind(arcanum::FileFormat::Kind::Art)->suffixes;
    suffixes += arcanum::FormatRegistry::byKind(arcanum::FileFormat::Kind::Palette)->suffixes;
    QVector<const GameView::File*> files = view.filesBelow(QStringLiteral("art"), suffixes);
    std::sort(files.begin(), files.end(), [](const GameView::File* a, const GameView::File* b) {
        return a->path.compare(b->path, Qt::CaseInsensitive) < 0;
    });
    for (const GameView::File* file : files) {
        const QString inside = file->path.mid(4); // past "art/"
        const int slash = inside.lastIndexOf(QLatin1Char('/'));
        GameListing::Entry entry;
        entry.name = inside.mid(slash + 1);
        entry.gamePath = file->path;
        entry.source = view.source(*file);
        entry.archived = view.archived(*file);
        entry.overrides = !entry.archived && !file->hidden.isEmpty();
        auto* item = new QStandardItem(entry.name);
        item->setEditable(false);
        item->setData(file->path, GamePathRole);
        item->setData(QDir::cleanPath(view.loosePath(*file)), LoosePathRole);
        item->setToolTip(GameListing::toolTip(entry));
        item->setFont(GameListing::font(item->font(), entry));
        if (entry.archived)
            item->setData(view.layers().at(file->layer).path, ArchiveRole);
        folder(slash < 0 ? QString() : inside.left(slash))->appendRow(item);
        if (arcanum::FormatRegistry::byPath(file->path) == art)
            rows.insert(file->path, item->index());
    }
}

QVariant ArtModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DecorationRole)
        return QStandardItemModel::data(index, role);
    const QString gamePath = QStandardItemModel::data(index, GamePathRole).toString();
    if (gamePath.isEmpty() || !rows.contains(gamePath))
        return QStandardItemModel::data(index, role);
    auto found = icons.constFind(gamePath);
    if (found != icons.constEnd())
        return *found;
    ArtThumbnails::Source source;
    source.archivePath = QStandardItemModel::data(index, ArchiveRole).toString();
    source.entry = source.archivePath.isEmpty() ? QString() : gamePath;
    source.loosePath = QStandardItemModel::data(index, LoosePathRole).toString();
    const QImage picture = pictures->thumbnail(gamePath, source);
    if (picture.isNull())
        return QVariant();
    return *icons.insert(gamePath, QIcon(QPixmap::fromImage(picture)));
}

void ArtModel::refreshIcon(const QString& path)
{
    const QModelIndex row = indexOfLoose(path);
    if (!row.isValid())
        return;
    icons.remove(row.data(GamePathRole).toString());
    pictures->revalidate();
    emit dataChanged(row, row, {Qt::DecorationRole});
}

void ArtModel::thumbnailReady(const QString& gamePath)
{
    const QPersistentModelIndex row = rows.value(gamePath);
    if (row.isValid())
        emit dataChanged(row, row, {Qt::DecorationRole});
}

QStandardItem* ArtModel::folder(const QString& path)
{
    if (path.isEmpty())
        return invisibleRootItem();
    const QString key = path.toLower();
    if (QStandardItem* found = folders.value(key))
        return found;
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    QStandardItem* parent = folder(slash < 0 ? QString() : path.left(slash));
    auto* item = new QStandardItem(path.mid(slash + 1));
    item->setEditable(false);
    parent->appendRow(item);
    folders.insert(key, item);
    return item;
}

QModelIndex ArtModel::indexOfLoose(const QString& path) const
{
    const QModelIndexList found =
        match(index(0, 0), LoosePathRole, QDir::cleanPath(path), 1, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.first();
}

void ArtModel::filter(QTreeView* tree, const QString& text) const
{
    std::function<bool(const QModelIndex&)> show = [&](const QModelIndex& parent) {
        bool any = false;
        for (int row = 0; row < rowCount(parent); ++row) {
            const QModelIndex child = index(row, 0, parent);
            const bool isFile = child.data(GamePathRole).isValid();
            const bool visible = isFile ? text.isEmpty() || child.data().toString().contains(text, Qt::CaseInsensitive)
                                        : show(child);
            tree->setRowHidden(row, parent, !visible);
            any = any || visible;
        }
        return any;
    };
    show(QModelIndex());
}
