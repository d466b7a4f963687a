#pragma once

#include <QFileSystemModel>

// File system model for the art tree: names only, no size, type or date columns.
class ArtModel : public QFileSystemModel
{
    Q_OBJECT

public:
    using QFileSystemModel::QFileSystemModel;

    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
};
