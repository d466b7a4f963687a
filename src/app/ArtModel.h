#pragma once

#include "GameView.h"

#include <QStandardItemModel>

class QTreeView;

// The art tree: every art file and palette below art/ in the layered game, loose and archived, in
// folders; an archived file in italics, its source in the tool tip.
class ArtModel : public QStandardItemModel
{
    Q_OBJECT

public:
    static constexpr int GamePathRole = Qt::UserRole + 1;
    static constexpr int LoosePathRole = Qt::UserRole + 2;

    using QStandardItemModel::QStandardItemModel;

    void fill(const arcanum::GameView& view);
    // The item of a loose file; invalid when the tree does not show it.
    QModelIndex indexOfLoose(const QString& path) const;
    // Hides every file whose name does not contain text (any case) and folders left empty.
    void filter(QTreeView* tree, const QString& text) const;

private:
    QStandardItem* folder(const QString& path);

    QHash<QString, QStandardItem*> folders;
};
