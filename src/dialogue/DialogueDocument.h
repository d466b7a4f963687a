#pragma once

#include "DialogueFileNew.h"
#include "Document.h"

#include <QList>

#include <memory>

// An open dialogue file. A line's form is applied to the model when the line is left or the file saved,
// and each application is one undo step.
class DialogueDocument : public Document
{
    Q_OBJECT

public:
    static std::unique_ptr<DialogueDocument> fromBytes(const QString& path, const QByteArray& bytes);

    arcanum::DialogueFileNew& dialogue() { return *model; }
    const arcanum::DialogueFileNew& dialogue() const { return *model; }

    bool serialize(QByteArray& bytes, QString& error) const override;
    QString saveLoss() const override;
    QString damage() const override;

protected:
    void restoreModel(const QByteArray& bytes) override;

private:
    DialogueDocument(const QString& path, const QByteArray& bytes);
    QString lineProblems() const;

    std::unique_ptr<arcanum::DialogueFileNew> model;
    QList<int> lossyLines;
};
