#include "DialogueCheck.h"

#include "OpcodeWords.h"

#include <QIODevice>
#include <QTextStream>

#include <algorithm>

namespace arcanum {

namespace {

QString lineName(DialogueCheck::LineKind kind, int index)
{
    return QStringLiteral("%1 line %2").arg(kind == DialogueCheck::LineKind::Pc ? "PC" : "NPC").arg(index);
}

} // namespace

DialogueCheck::DialogueCheck(const DialogueFileNew& dialogue)
{
    for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines())
        npcIndices.insert(line->index());
    for (const DialogueFileNew::PCLinePointer& line : dialogue.pcLines())
        pcIndices.insert(line->index());
    for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines())
        checkNpcLine(*line);
    for (const DialogueFileNew::PCLinePointer& line : dialogue.pcLines())
        checkPcLine(*line);
    checkDuplicates(dialogue);
    checkUnreached(dialogue);
    checkUnread(dialogue);
    std::stable_sort(found.begin(), found.end(),
                     [](const Finding& a, const Finding& b) { return a.fileLine < b.fileLine; });
}

int DialogueCheck::count(Severity severity) const
{
    return int(std::count_if(found.cbegin(), found.cend(),
                             [severity](const Finding& finding) { return finding.severity == severity; }));
}

std::optional<DialogueCheck::Severity> DialogueCheck::worstOf(LineKind kind, int index) const
{
    const auto it = worst.constFind(qMakePair(int(kind), index));
    return it == worst.constEnd() ? std::nullopt : std::optional<Severity>(*it);
}

void DialogueCheck::add(Severity severity, const DialogueFileNew::Line& line, LineKind kind, const QString& message)
{
    found << Finding{severity, line.sourceLine(), kind, line.index(), lineName(kind, line.index()) + QStringLiteral(": ") + message};
    const QPair<int, int> key(int(kind), line.index());
    if (severity == Severity::Error || !worst.contains(key))
        worst.insert(key, severity);
}

// An unedited line brings what was recorded when it was read; an edited one only what its
// tests and results still write as read.
void DialogueCheck::addRecorded(const DialogueFileNew::Line& line, LineKind kind)
{
    const DialogueFileNew::LineErrors* recorded = line.errors();
    if (recorded == nullptr || line.isEdited())
        return;
    for (const QString& message : recorded->messages)
        add(Severity::Error, line, kind, message);
    for (const QString& message : recorded->notes)
        add(Severity::Note, line, kind, message);
}

void DialogueCheck::addField(const DialogueFileNew::OpcodeField& field, const DialogueFileNew::Line& line, LineKind kind)
{
    if (!line.isEdited() || field.isEdited())
        return;
    for (const QString& message : field.errors())
        add(Severity::Error, line, kind, message);
    for (const QString& message : field.notes())
        add(Severity::Note, line, kind, message);
}

// A test or result naming a line (a join's lines, …) leads there too.
void DialogueCheck::addNamedLines(const DialogueFileNew::OpcodeField& field)
{
    for (const dlg::TestOrResultData& record : field.records())
        for (int argument : dlg::OpcodeWords::lineArguments(record.type))
            reached.insert(argument == 0 ? record.value1 : record.value2);
}

// An NPC line may go on with any line of the file; zero and below are the game's own codes.
void DialogueCheck::checkNpcLine(const DialogueFileNew::NPCLine& line)
{
    addRecorded(line, LineKind::Npc);
    addField(line.results(), line, LineKind::Npc);
    addNamedLines(line.results());
    const int target = line.responseLine();
    reached.insert(target);
    if (target > 0 && !npcIndices.contains(target) && !pcIndices.contains(target))
        add(Severity::Error, line, LineKind::Npc, QStringLiteral("response line %1 does not exist").arg(target));
}

// A PC response is answered by an NPC line; the game's own check refuses one that leads to a
// line the file does not have or to another response.
void DialogueCheck::checkPcLine(const DialogueFileNew::PCLine& line)
{
    addRecorded(line, LineKind::Pc);
    addField(line.tests(), line, LineKind::Pc);
    addField(line.results(), line, LineKind::Pc);
    addNamedLines(line.tests());
    addNamedLines(line.results());
    if (line.text().startsWith(QLatin1Char('#')))
        add(Severity::Error, line, LineKind::Pc, QStringLiteral("a response must not start with '#'"));
    const int target = line.responseLine();
    reached.insert(target);
    if (target <= 0 || npcIndices.contains(target))
        return;
    add(Severity::Error, line, LineKind::Pc,
        pcIndices.contains(target) ? QStringLiteral("response line %1 is a PC response, not an NPC line").arg(target)
                                   : QStringLiteral("response line %1 does not exist").arg(target));
}

void DialogueCheck::checkDuplicates(const DialogueFileNew& dialogue)
{
    QList<QPair<const DialogueFileNew::Line*, LineKind>> lines;
    for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines())
        lines << qMakePair(static_cast<const DialogueFileNew::Line*>(line.data()), LineKind::Npc);
    for (const DialogueFileNew::PCLinePointer& line : dialogue.pcLines())
        lines << qMakePair(static_cast<const DialogueFileNew::Line*>(line.data()), LineKind::Pc);
    std::stable_sort(lines.begin(), lines.end(),
                     [](const auto& a, const auto& b) { return a.first->sourceLine() < b.first->sourceLine(); });
    QHash<int, int> firstSeen; // index -> file line
    for (const auto& [line, kind] : lines) {
        const auto seen = firstSeen.constFind(line->index());
        if (seen == firstSeen.constEnd()) {
            firstSeen.insert(line->index(), line->sourceLine());
            continue;
        }
        add(Severity::Error, *line, kind,
            QStringLiteral("line number %1 is used again (first on line %2)").arg(line->index()).arg(*seen));
    }
}

// The first NPC line is where a conversation starts; any other that no response, NPC line, test or
// result leads to may be started by a script.
void DialogueCheck::checkUnreached(const DialogueFileNew& dialogue)
{
    const DialogueFileNew::NPCLine* first = nullptr;
    for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines())
        if (first == nullptr || line->index() < first->index())
            first = line.data();
    for (const DialogueFileNew::NPCLinePointer& line : dialogue.npcLines())
        if (line.data() != first && !reached.contains(line->index()))
            add(Severity::Note, *line, LineKind::Npc,
                QStringLiteral("nothing in the file leads here (a script may start the conversation here)"));
}

// Where reading stopped: an entry the file breaks off in, or one whose number is not a number.
void DialogueCheck::checkUnread(const DialogueFileNew& dialogue)
{
    if (dialogue.unreadText().isEmpty())
        return;
    QString text = dialogue.unreadText();
    QTextStream stream(&text, QIODevice::ReadOnly);
    bool atEnd = false;
    const QStringList items = DialogueFileNew::getNextEntry(stream, &atEnd).first;
    const QString message = items.size() < 7
                                ? QStringLiteral("the file breaks off inside an entry (%1 of its 7 items); "
                                                 "it and the rest of the file are kept as text")
                                      .arg(items.size())
                                : QStringLiteral("the entry's line number '%1' is not a number; it and the rest "
                                                 "of the file are kept as text")
                                      .arg(items.first().trimmed());
    found << Finding{Severity::Error, dialogue.unreadLine(), LineKind::None, 0, message};
}

} // namespace arcanum
