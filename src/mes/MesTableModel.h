#pragma once

#include <QAbstractTableModel>

class MesDocument;

// The entries of a message document as a table: a view of the document, not a copy. An edit of a cell
// is a command on the document's undo stack; the table follows the document's change signals.
class MesTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit MesTableModel(QObject* parent = nullptr);

    void setDocument(MesDocument* document);
    MesDocument* document() const { return shown; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    void followDocument();
    // Selections and the current cell stay on their entries while the entries are sorted.
    void rememberEntries();
    void moveToRememberedEntries();

    MesDocument* shown = nullptr;
    QModelIndexList remembered;
    QList<const void*> rememberedEntries;
};
