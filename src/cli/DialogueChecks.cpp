#include "DialogueChecks.h"

#include <QHash>

#include <algorithm>

using arcanum::DialogueFileNew;

DialogueChecks::DialogueChecks(const DialogueFileNew& dialogue)
{
    QList<const DialogueFileNew::Line*> lines;
    for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines()) {
        npcIndices.insert(line->index());
        lines << line.data();
    }
    for (const DialogueFileNew::PCLinePointer& line : dialogue.pcLines())
        lines << line.data();
    for (const DialogueFileNew::Line* line : lines)
        allIndices.insert(line->index());
    for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines())
        checkLine(*line, false, line->responseLine());
    for (const DialogueFileNew::PCLinePointer& line : dialogue.pcLines())
        checkLine(*line, true, line->responseLine());
    checkDuplicates(lines);
    if (!dialogue.unreadText().isEmpty())
        found << Problem{dialogue.unreadLine(),
                         QStringLiteral("this entry cannot be read (fewer than seven items or no index); "
                                        "it and the rest of the file are kept as text")};
    std::stable_sort(found.begin(), found.end(), [](const Problem& a, const Problem& b) { return a.line < b.line; });
}

// A PC line answers with an NPC line; an NPC line may go on with any line. Zero and negative
// response lines are the game's own codes (end of the dialogue and the like), not line indices.
void DialogueChecks::checkLine(const DialogueFileNew::Line& line, bool pc, int responseLine)
{
    const QString name = QStringLiteral("%1 line %2").arg(pc ? "PC" : "NPC").arg(line.index());
    if (line.errors()) {
        for (const QString& message : line.errors()->messages)
            found << Problem{line.sourceLine(), name + QStringLiteral(": ") + message};
    }
    if (responseLine > 0 && !(pc ? npcIndices : allIndices).contains(responseLine))
        found << Problem{line.sourceLine(), QStringLiteral("%1: response line %2 does not exist%3")
                                                .arg(name).arg(responseLine)
                                                .arg(pc && allIndices.contains(responseLine) ? " as an NPC line" : "")};
}

void DialogueChecks::checkDuplicates(const QList<const DialogueFileNew::Line*>& lines)
{
    QHash<int, int> firstSeen; // index -> file line
    QList<const DialogueFileNew::Line*> inFileOrder = lines;
    std::stable_sort(inFileOrder.begin(), inFileOrder.end(),
                     [](const auto* a, const auto* b) { return a->sourceLine() < b->sourceLine(); });
    for (const DialogueFileNew::Line* line : inFileOrder) {
        const auto seen = firstSeen.constFind(line->index());
        if (seen == firstSeen.constEnd())
            firstSeen.insert(line->index(), line->sourceLine());
        else
            found << Problem{line->sourceLine(), QStringLiteral("line index %1 is used again (first on line %2)")
                                                     .arg(line->index()).arg(*seen)};
    }
}
