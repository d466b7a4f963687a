#pragma once

#include "DialogueFileNew.h"

#include <QList>
#include <QSet>
#include <QString>

// The problems of a dialogue file: those its lines recorded while being read, the part of the file
// that could not be read as lines, and what only the whole file shows: a line index used twice and a
// response line naming a line the file does not have.
class DialogueChecks
{
public:
    struct Problem
    {
        int line; // in the file, 1-based
        QString message;
    };

    explicit DialogueChecks(const arcanum::DialogueFileNew& dialogue);

    // In the order of the file's lines.
    QList<Problem> problems() const { return found; }

private:
    void checkLine(const arcanum::DialogueFileNew::Line& line, bool pc, int responseLine);
    void checkDuplicates(const QList<const arcanum::DialogueFileNew::Line*>& lines);

    QSet<int> npcIndices;
    QSet<int> allIndices;
    QList<Problem> found;
};
