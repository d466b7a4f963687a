#include "ArtModel.h"

int ArtModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}
