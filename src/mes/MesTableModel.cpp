#include "MesTableModel.h"

#include "MesDocument.h"
#include "ValueCommand.h"

#include <QBrush>
#include <QFont>
#include <QPointer>
#include <QUndoStack>

using arcanum::Mesfile;

namespace {
const int CELL_MERGE_ID = 1001;
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
        connect(shown, &MesDocument::cellChanged, this, [this](int entry, int column) {
            const QModelIndex cell = index(entry, column);
            emit dataChanged(cell, cell);
        });
    endResetModel();
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
    editCell(shown, index.row(), index.column(), value.toString());
    return true;
}

void MesTableModel::editCell(MesDocument* document, int entry, int column, const QString& text)
{
    const QString old = document->cell(entry, column);
    const bool comment = column == document->columnCount() - 1;
    const QString what = comment ? tr("Edit comment of %1") : tr("Edit text of %1");
    QPointer<MesDocument> target(document);
    pushValue<QString>(document->undoStack(), what.arg(document->cell(entry, 0)), CELL_MERGE_ID,
                       entry * 256 + column, old, text, [target, entry, column](const QString& value) {
                           if (target)
                               target->applyCell(entry, column, value);
                       });
}
