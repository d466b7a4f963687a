#pragma once

#include "DialogueFileNew.h"
#include "Document.h"
#include "EncodingGuess.h"

#include <QList>

#include <memory>

// An open dialogue file. A line's form is applied to the model when the line is left or the file saved,
// and each application is one undo step.
class DialogueDocument : public Document
{
    Q_OBJECT

public:
    // codec: the encoding to read and write the file in; null for the game's code page.
    static std::unique_ptr<DialogueDocument> fromBytes(const QString& path, const QByteArray& bytes,
                                                       QTextCodec* codec = nullptr);

    arcanum::DialogueFileNew& dialogue() { return *model; }
    const arcanum::DialogueFileNew& dialogue() const { return *model; }
    QTextCodec* codec() const { return model->codec(); }
    // What did not read in that encoding, and the encodings that would read the file.
    const arcanum::EncodingGuess::Findings& encodingFindings() const { return findings; }

    bool serialize(QByteArray& bytes, QString& error) const override;
    QString saveLoss() const override;
    QString damage() const override;

protected:
    void restoreModel(const QByteArray& bytes) override;

private:
    DialogueDocument(const QString& path, const QByteArray& bytes, QTextCodec* codec);
    QString lineProblems() const;

    std::unique_ptr<arcanum::DialogueFileNew> model;
    QList<int> lossyLines;
    arcanum::EncodingGuess::Findings findings;
};
