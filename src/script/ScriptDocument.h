#pragma once

#include "Document.h"
#include "Script.h"

#include <memory>

// An open compiled script. Its forms change the script in place and record each change as one step.
class ScriptDocument : public Document
{
    Q_OBJECT

public:
    // Null and the reason when the file cannot be read or its name carries no script number.
    static std::unique_ptr<ScriptDocument> fromBytes(const QString& path, const QByteArray& bytes, QString& error);

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
};
