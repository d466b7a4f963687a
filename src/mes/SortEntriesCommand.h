#pragma once

#include <QUndoCommand>

#include <vector>

class MesDocument;

// Rearranges the entries of a message document (sorting them by number); undo puts every entry back
// where it was.
class SortEntriesCommand : public QUndoCommand
{
public:
    // order: position i gets the entry that was at order[i].
    SortEntriesCommand(MesDocument* document, std::vector<int> order, const QString& text);

    void redo() override;
    void undo() override;

private:
    MesDocument* document;
    std::vector<int> order;
    std::vector<int> inverse;
};
