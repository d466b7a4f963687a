#include "EntryPresenceCommand.h"

#include "MesDocument.h"

using arcanum::Mesfile;

EntryPresenceCommand* EntryPresenceCommand::adding(MesDocument* document, int position,
                                                   std::unique_ptr<Mesfile::Entry> entry, const QString& text,
                                                   QUndoCommand* parent)
{
    auto* command = new EntryPresenceCommand(document, position, true, text, parent);
    command->held = std::move(entry);
    return command;
}

EntryPresenceCommand* EntryPresenceCommand::removing(MesDocument* document, int position, const QString& text,
                                                     QUndoCommand* parent)
{
    return new EntryPresenceCommand(document, position, false, text, parent);
}

EntryPresenceCommand::EntryPresenceCommand(MesDocument* document, int position, bool adds, const QString& text,
                                           QUndoCommand* parent)
    : QUndoCommand(text, parent)
    , document(document)
    , position(position)
    , adds(adds)
{
}

void EntryPresenceCommand::redo()
{
    adds ? putIn() : takeOut();
}

void EntryPresenceCommand::undo()
{
    adds ? takeOut() : putIn();
}

void EntryPresenceCommand::putIn()
{
    if (held)
        document->applyInsert(position, std::move(held));
}

void EntryPresenceCommand::takeOut()
{
    held = document->applyTake(position);
}
