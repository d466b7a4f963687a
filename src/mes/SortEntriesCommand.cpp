#include "SortEntriesCommand.h"

#include "MesDocument.h"

SortEntriesCommand::SortEntriesCommand(MesDocument* document, std::vector<int> order, const QString& text)
    : QUndoCommand(text)
    , document(document)
    , order(std::move(order))
    , inverse(this->order.size())
{
    for (size_t i = 0; i < this->order.size(); ++i)
        inverse[size_t(this->order[i])] = int(i);
}

void SortEntriesCommand::redo()
{
    document->applyOrder(order);
}

void SortEntriesCommand::undo()
{
    document->applyOrder(inverse);
}
