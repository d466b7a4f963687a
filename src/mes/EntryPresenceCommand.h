#pragma once

#include "Mesfile.h"

#include <QUndoCommand>

#include <memory>

class MesDocument;

// Puts an entry into a message document or takes one out. Adding and removing are the same edit run
// in opposite directions, so one class serves both; the entry that is out of the file lives here.
class EntryPresenceCommand : public QUndoCommand
{
public:
    static EntryPresenceCommand* adding(MesDocument* document, int position,
                                        std::unique_ptr<arcanum::Mesfile::Entry> entry, const QString& text,
                                        QUndoCommand* parent = nullptr);
    static EntryPresenceCommand* removing(MesDocument* document, int position, const QString& text,
                                          QUndoCommand* parent = nullptr);

    void redo() override;
    void undo() override;

private:
    EntryPresenceCommand(MesDocument* document, int position, bool adds, const QString& text, QUndoCommand* parent);
    void putIn();
    void takeOut();

    MesDocument* document;
    int position;
    bool adds;
    std::unique_ptr<arcanum::Mesfile::Entry> held;
};
