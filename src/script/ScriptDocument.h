#pragma once

#include "Document.h"
#include "Script.h"

#include <QSet>

#include <memory>

// An open compiled script. Its forms change the script in place and record each change as one step.
class ScriptDocument : public Document
{
    Q_OBJECT

public:
    // Null and the reason when the file cannot be read or its name carries no script number.
    static std::unique_ptr<ScriptDocument> fromBytes(const QString& path, const QByteArray& bytes, QString& error);

    // The file name of script number numberText called name ("00042guard.scr"); empty and why when the
    // number is not one of 1 … 99999, is one of used, or the name cannot be part of a file name.
    static QString fileNameFor(const QString& numberText, const QString& name, const QSet<int>& used,
                               QString& error);
    // The numbers of the scripts in folder, by their file names.
    static QSet<int> numbersIn(const QString& folder);
    // The number and name of a script file's name ("00042guard.scr" is 42 and "guard"); -1 for another name.
    static int numberOf(const QString& fileName);
    static QString nameOf(const QString& fileName);

    arcanum::Script& script() { return model; }
    const arcanum::Script& script() const { return model; }

    // Puts a compiled source in place of header and lines as one undoable step named text.
    void replaceContent(const arcanum::Script::Header& header, std::vector<arcanum::Script::Line> lines,
                        const QString& text);

    bool serialize(QByteArray& bytes, QString& error) const override;
    QString damage() const override;

protected:
    void restoreModel(const QByteArray& bytes) override;

private:
    ScriptDocument(const QString& path, qint64 fileSize);
    QString sizeProblem() const;
    QString unknownStatements() const;

    arcanum::Script model;
    qint64 sizeOnDisk;
    qint32 countOnDisk = 0;
};
