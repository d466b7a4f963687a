#include "Document.h"

#include "SafeSave.h"
#include "SnapshotCommand.h"

#include <QFileInfo>
#include <QUndoStack>

Document::Document(const QString& path, QObject* parent)
    : QObject(parent)
    , filePath(path)
    , stack(new QUndoStack(this))
{
    connect(stack, &QUndoStack::cleanChanged, this, [this](bool clean) { emit modifiedChanged(!clean); });
}

Document::~Document() = default;

QString Document::displayName() const
{
    return filePath.isEmpty() ? tr("untitled") : QFileInfo(filePath).fileName();
}

void Document::setPath(const QString& path)
{
    if (path == filePath)
        return;
    filePath = path;
    emit pathChanged(filePath);
}

bool Document::isModified() const
{
    return !stack->isClean();
}

void Document::markUnsaved()
{
    stack->resetClean();
}

bool Document::save(const QString& path, QString& error)
{
    QByteArray bytes;
    if (!serialize(bytes, error))
        return false;
    QString reason;
    if (arcanum::SafeSave::write(path, bytes, &reason) != arcanum::SafeSave::Saved) {
        error = reason.isEmpty() ? tr("the file could not be written") : reason;
        return false;
    }
    setPath(path);
    originArchive.clear();
    originFolder.clear();
    stack->setClean();
    emit saved(filePath);
    return true;
}

void Document::setOrigin(const QString& archive, const QString& folder)
{
    originArchive = archive;
    originFolder = folder;
}

void Document::beginEdit()
{
    QString error;
    if (!serialize(editStart, error))
        editStart.clear();
}

void Document::recordEdit(const QString& text, int mergeId, int key)
{
    QByteArray now;
    QString error;
    if (!serialize(now, error) || now == editStart)
        return;
    stack->push(new SnapshotCommand(this, text, editStart, now, mergeId, key));
    editStart = now;
}

void Document::restore(const QByteArray& bytes)
{
    restoreModel(bytes);
    editStart = bytes;
    emit changed();
}

void Document::restoreModel(const QByteArray& /*bytes*/)
{
    qWarning("Document::restoreModel: this document records no edits");
}
