#pragma once

#include "DialogueFileNew.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

namespace arcanum {

// The findings of a dialogue file as the game reads it, for `loreka check` and the dialogue page alike.
// Errors are what the game rejects or its own dialogue check flags: a response leading to a line the
// file does not have or to another PC response, an intelligence field without a number, a "#" opening a
// response, an entry the file breaks off in, a line number used twice, an opcode not in the catalogue.
// Notes are what only our stricter reading objects to, and NPC lines nothing in the file leads to (a
// script may start a conversation there).
//
// A line edited since it was read is judged by its fields: what was recorded when its text was read no
// longer applies, except in a tests or results field that is still written as read.
class DialogueCheck
{
public:
    enum class Severity { Error, Note };
    enum class LineKind { None, Npc, Pc };

    struct Finding
    {
        Severity severity = Severity::Error;
        int fileLine = 0;                 // 1-based line of the file
        LineKind kind = LineKind::None;   // the dialogue line it is about, if any
        int index = 0;                    // that line's number
        QString message;                  // "PC line 2: response line 99 does not exist"
    };

    explicit DialogueCheck(const DialogueFileNew& dialogue);

    // In the order of the file's lines.
    const QList<Finding>& findings() const { return found; }
    int count(Severity severity) const;
    // The gravest finding about a line, if it has any.
    std::optional<Severity> worstOf(LineKind kind, int index) const;

private:
    void checkNpcLine(const DialogueFileNew::NPCLine& line);
    void checkPcLine(const DialogueFileNew::PCLine& line);
    void addRecorded(const DialogueFileNew::Line& line, LineKind kind);
    void addField(const DialogueFileNew::OpcodeField& field, const DialogueFileNew::Line& line, LineKind kind);
    void addNamedLines(const DialogueFileNew::OpcodeField& field);
    void checkDuplicates(const DialogueFileNew& dialogue);
    void checkUnreached(const DialogueFileNew& dialogue);
    void checkUnread(const DialogueFileNew& dialogue);
    void add(Severity severity, const DialogueFileNew::Line& line, LineKind kind, const QString& message);

    QSet<int> npcIndices;
    QSet<int> pcIndices;
    QSet<int> reached;
    QList<Finding> found;
    QHash<QPair<int, int>, Severity> worst; // (kind, index)
};

} // namespace arcanum
