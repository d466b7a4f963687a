#pragma once

#include <QByteArray>
#include <QUndoCommand>

class Document;

// An edit recorded as the document's bytes before and after it, for forms whose controls change the
// model in several places at once. Undo and redo put the document back into one of the two states;
// the first redo does nothing, because the form already made the change. Edits with the same merge id
// and key in a row merge into one step (typing into one field).
class SnapshotCommand : public QUndoCommand
{
public:
    SnapshotCommand(Document* document, const QString& text, QByteArray before, QByteArray after, int mergeId,
                    int key);

    int id() const override { return mergeId; }
    bool mergeWith(const QUndoCommand* other) override;
    void redo() override;
    void undo() override;

private:
    Document* document;
    QByteArray before;
    QByteArray after;
    int mergeId;
    int key;
    bool applied = true;
};
