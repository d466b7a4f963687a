#pragma once

#include "DialogueFileNew.h"
#include "Document.h"
#include "EncodingGuess.h"

#include <QList>

#include <memory>

// An open dialogue file. A line's form is applied to the model when the line is left or the file saved,
// and each application is one undo step; so is each addition, deletion and renumbering of a line.
class DialogueDocument : public Document
{
    Q_OBJECT

public:
    using LineKind = arcanum::DialogueFileNew::LineKind;

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

    // Reads a line number the user typed; the reason it cannot number a new line (not a number in
    // 0 … 2 147 483 647, or in use) for a message, empty when it can.
    QString refusedNumber(const QString& text, int& number) const;
    // The edits below are one undo step each; false (nothing changed, no step) when refused, with the
    // reason in error.
    bool addLine(LineKind kind, int index, QString& error);
    struct LineRef
    {
        LineKind kind;
        int index;
    };
    // Deletes the lines (the first of each kind and number) in one step; false when none is there.
    bool deleteLines(const QList<LineRef>& lines);
    // The responses an NPC line offers: the PC lines numbered after it, up to the next NPC line.
    QList<int> responsesOf(int npc) const;
    // The other lines that lead to or name any of these, ascending.
    QList<int> linesLeadingTo(const QList<LineRef>& lines) const;
    // The responses that would be offered by another NPC line after the renumbering, ascending: a
    // response belongs to the NPC line numbered last before it, so a number past other lines moves them.
    QList<int> responsesMovedBy(LineKind kind, int from, int to) const;
    // Renumbering updates every line naming the old number in the same step.
    bool renumberLine(LineKind kind, int from, int to, QString& error);

protected:
    void restoreModel(const QByteArray& bytes) override;

private:
    DialogueDocument(const QString& path, const QByteArray& bytes, QTextCodec* codec);
    QString lineProblems() const;

    std::unique_ptr<arcanum::DialogueFileNew> model;
    QList<int> lossyLines;
    arcanum::EncodingGuess::Findings findings;
};
