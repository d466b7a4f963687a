#include "MesTableModel.h"

#include "MesDocument.h"

#include <QBrush>
#include <QFont>
#include <QHash>

using arcanum::Mesfile;

namespace {
const QColor INVALID_ROW_COLOUR(0xA0, 0x10, 0x10);
} // namespace

MesTableModel::MesTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

void MesTableModel::setDocument(MesDocument* document)
{
    beginResetModel();
    if (shown != nullptr)
        disconnect(shown, nullptr, this, nullptr);
    shown = document;
    if (shown != nullptr)
        followDocument();
    endResetModel();
}

void MesTableModel::followDocument()
{
    connect(shown, &MesDocument::cellChanged, this, [this](int entry, int column) {
        const QModelIndex cell = index(entry, column);
        emit dataChanged(cell, cell);
    });
    connect(shown, &MesDocument::entryAboutToBeInserted, this,
            [this](int position) { beginInsertRows(QModelIndex(), position, position); });
    connect(shown, &MesDocument::entryInserted, this, [this] { endInsertRows(); });
    connect(shown, &MesDocument::entryAboutToBeRemoved, this,
            [this](int position) { beginRemoveRows(QModelIndex(), position, position); });
    connect(shown, &MesDocument::entryRemoved, this, [this] { endRemoveRows(); });
    connect(shown, &MesDocument::entriesAboutToBeReordered, this, [this] {
        emit layoutAboutToBeChanged();
        rememberEntries();
    });
    connect(shown, &MesDocument::entriesReordered, this, [this] {
        moveToRememberedEntries();
        emit layoutChanged();
    });
}

void MesTableModel::rememberEntries()
{
    remembered = persistentIndexList();
    rememberedEntries.clear();
    for (const QModelIndex& cell : remembered)
        rememberedEntries.append(shown->model().getEntryAt(cell.row()));
}

void MesTableModel::moveToRememberedEntries()
{
    QHash<const void*, int> rows;
    for (int row = 0; row < shown->model().getEntryCount(); ++row)
        rows.insert(shown->model().getEntryAt(row), row);
    QModelIndexList moved;
    for (int i = 0; i < remembered.size(); ++i)
        moved.append(index(rows.value(rememberedEntries.at(i), remembered.at(i).row()), remembered.at(i).column()));
    changePersistentIndexList(remembered, moved);
    remembered.clear();
    rememberedEntries.clear();
}

int MesTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || shown == nullptr ? 0 : shown->model().getEntryCount();
}

int MesTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() || shown == nullptr ? 0 : shown->columnCount();
}

QVariant MesTableModel::data(const QModelIndex& index, int role) const
{
    if (shown == nullptr || !index.isValid())
        return QVariant();
    const Mesfile::Entry* entry = shown->model().getEntryAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        // A line that could not be read shows what it holds, so the reason in the banner can be found.
        if (!entry->isValid() && index.column() == 1)
            return entry->getLine().trimmed();
        return shown->cell(index.row(), index.column());
    case Qt::ToolTipRole:
        if (!entry->isValid())
            return tr("Line %1 cannot be read: %2. It is written back exactly as read.")
                .arg(entry->getSourceLine())
                .arg(entry->getValidationError());
        if (index.column() == 0 || index.column() == shown->columnCount() - 1)
            return entry->getInfoAbout(Mesfile::COMMENT_COLUMN);
        return entry->getInfoAbout(index.column() - 1);
    case Qt::FontRole:
        if (index.column() == 0) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return QVariant();
    case Qt::ForegroundRole:
        return entry->isValid() ? QVariant() : QBrush(INVALID_ROW_COLOUR);
    default:
        return QVariant();
    }
}

QVariant MesTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (shown == nullptr || orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (section == 0)
        return shown->model().getColumnTitle(Mesfile::INDEX_COLUMN);
    if (section == shown->columnCount() - 1)
        return shown->model().getColumnTitle(Mesfile::COMMENT_COLUMN);
    return shown->model().getColumnTitle(section - 1);
}

Qt::ItemFlags MesTableModel::flags(const QModelIndex& index) const
{
    if (shown == nullptr || !index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (shown->isEditable(index.row(), index.column()))
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool MesTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (shown == nullptr || role != Qt::EditRole || !shown->isEditable(index.row(), index.column()))
        return false;
    shown->editCell(index.row(), index.column(), value.toString());
    return true;
}
