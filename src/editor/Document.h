#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QUndoStack;

// One open file: owns its model (in a subclass), its path and its undo stack. "Modified" is never a
// flag anyone sets: it is the stack being away from its clean state, so undoing back to the saved state
// clears it. Pages show a document and push commands on its stack; only the window shows errors.
class Document : public QObject
{
    Q_OBJECT

public:
    explicit Document(const QString& path, QObject* parent = nullptr);
    ~Document() override;

    QString path() const { return filePath; }
    // Names the file the document belongs to without saving (a recovered copy of it, a new file).
    void setPath(const QString& path);
    // The file name without its folder, "untitled" before the first save.
    QString displayName() const;
    QUndoStack* undoStack() const { return stack; }
    bool isModified() const;
    // Opened from a recovery copy or otherwise holding what no file on disk has: modified until saved.
    void markUnsaved();

    // Read out of an archive: the archive's name, and the folder (relative to the game) where its
    // first save puts the loose copy that overrides it. Empty for a file read from disk.
    void setOrigin(const QString& archive, const QString& folder);
    QString origin() const { return originArchive; }
    QString overrideFolder() const { return originFolder; }

    // The bytes a save would write; false and the reason when the model cannot be written.
    virtual bool serialize(QByteArray& bytes, QString& error) const = 0;
    // Why a save of the document as it stands would change what the user did not edit ("Saving in
    // UTF-8 would change 14 lines …"); empty when a save keeps every unedited byte.
    virtual QString saveLoss() const { return QString(); }
    // What is wrong with the file as it was read (shown in a banner over the page); empty for a sound file.
    virtual QString damage() const { return QString(); }

    // Writes through a temporary file; on success the document is clean and takes the new path.
    bool save(const QString& path, QString& error);

    // For forms that change the model in place: call before the change, then recordEdit after it, which
    // pushes one undo step (or nothing, when the bytes did not change).
    void beginEdit();
    void recordEdit(const QString& text, int mergeId = -1, int key = 0);
    // Puts the model back into the state of bytes a serialize gave (undo of a recorded edit) and
    // announces it with changed().
    void restore(const QByteArray& bytes);

protected:
    // Documents that record edits read their model back from such bytes.
    virtual void restoreModel(const QByteArray& bytes);

public:

signals:
    void modifiedChanged(bool modified);
    void pathChanged(const QString& path);
    // After a successful save to path (the window re-arms its watcher on it).
    void saved(const QString& path);
    // The model changed (by a command, an undo or a reload); pages refresh from here.
    void changed();

private:
    QString filePath;
    QString originArchive;
    QString originFolder;
    QByteArray editStart;
    QUndoStack* stack = nullptr;
};
