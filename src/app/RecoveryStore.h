#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// Copies of modified documents kept beside the settings file, so a crash loses at most the last half
// minute. Each copy is the document's bytes plus a note of the file it belongs to.
class RecoveryStore
{
public:
    struct Copy
    {
        QString original; // the file the document belongs to (may be empty for a new file)
        QString bytesPath; // where the recovered bytes are
    };

    explicit RecoveryStore(const QString& folder);

    QString folder() const { return dir; }
    // Replaces the copy of original; false when it could not be written.
    bool keep(const QString& original, const QByteArray& bytes);
    // Removes the copy of original, if any.
    void drop(const QString& original);
    QList<Copy> copies() const;
    // Removes every copy (a clean exit, or the user discarded them).
    void clear();

private:
    QString baseName(const QString& original) const;

    QString dir;
};
