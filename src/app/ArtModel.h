#pragma once

#include "GameView.h"

#include <QHash>
#include <QIcon>
#include <QPersistentModelIndex>
#include <QStandardItemModel>

class ArtThumbnails;
class QTreeView;

// The art tree: every art file and palette below art/ in the layered game, loose and archived, in
// folders; an archived file in italics, its source in the tool tip, each art file's first frame as its icon
// (drawn in the background the first time a row is shown).
class ArtModel : public QStandardItemModel
{
    Q_OBJECT

public:
    static constexpr int GamePathRole = Qt::UserRole + 1;
    static constexpr int LoosePathRole = Qt::UserRole + 2;
    // The archive an archived file is read from.
    static constexpr int ArchiveRole = Qt::UserRole + 3;

    explicit ArtModel(QObject* parent = nullptr);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    ArtThumbnails* thumbnails() const { return pictures; }

    void fill(const arcanum::GameView& view);
    // The item of a loose file; invalid when the tree does not show it.
    QModelIndex indexOfLoose(const QString& path) const;
    // A loose file was written: its icon is drawn again from what it holds now.
    void refreshIcon(const QString& path);
    // Hides every file whose name does not contain text (any case) and folders left empty.
    void filter(QTreeView* tree, const QString& text) const;

private:
    QStandardItem* folder(const QString& path);

    void thumbnailReady(const QString& gamePath);

    QHash<QString, QStandardItem*> folders;
    ArtThumbnails* pictures = nullptr;
    // Made from the thumbnails as they arrive; by game path.
    mutable QHash<QString, QIcon> icons;
    QHash<QString, QPersistentModelIndex> rows;
};
