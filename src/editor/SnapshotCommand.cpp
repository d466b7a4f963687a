#include "SnapshotCommand.h"

#include "Document.h"

SnapshotCommand::SnapshotCommand(Document* document, const QString& text, QByteArray before, QByteArray after,
                                 int mergeId, int key)
    : QUndoCommand(text)
    , document(document)
    , before(std::move(before))
    , after(std::move(after))
    , mergeId(mergeId)
    , key(key)
{
}

bool SnapshotCommand::mergeWith(const QUndoCommand* other)
{
    const auto* next = dynamic_cast<const SnapshotCommand*>(other);
    if (next == nullptr || next->key != key || next->document != document)
        return false;
    after = next->after;
    setObsolete(after == before);
    return true;
}

void SnapshotCommand::redo()
{
    if (applied) {
        applied = false;
        return;
    }
    document->restore(after);
}

void SnapshotCommand::undo()
{
    document->restore(before);
}
