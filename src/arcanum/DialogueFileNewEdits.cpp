// Adding, removing and renumbering the lines of a dialogue file.
#include "DialogueFileNew.h"

#include <algorithm>
#include <set>

namespace arcanum {

namespace {

template <typename T>
DialogueFileNew::Line* firstWithIndex(const QList<QExplicitlySharedDataPointer<T>>& lines, int index)
{
    for (const QExplicitlySharedDataPointer<T>& line : lines)
        if (line && line->index() == index)
            return line.data();
    return nullptr;
}

template <typename T>
bool removeFirst(QList<QExplicitlySharedDataPointer<T>>& lines, int index)
{
    const auto found = std::find_if(lines.begin(), lines.end(),
                                    [index](const QExplicitlySharedDataPointer<T>& line) { return line->index() == index; });
    if (found == lines.end())
        return false;
    lines.erase(found);
    return true;
}

// The lists are kept in index order: a new line goes after every line with a lower or equal number.
template <typename T>
void insertInOrder(QList<QExplicitlySharedDataPointer<T>>& lines, T* line)
{
    const auto place = std::upper_bound(lines.begin(), lines.end(), line->index(),
                                        [](int index, const QExplicitlySharedDataPointer<T>& other) {
                                            return index < other->index();
                                        });
    lines.insert(place, QExplicitlySharedDataPointer<T>(line));
}

bool inRange(qint64 index)
{
    return index >= 0 && index <= DialogueFileNew::MAXIMUM_LINE;
}

} // namespace

DialogueFileNew::Line* DialogueFileNew::lineOf(LineKind kind, int index) const
{
    return kind == LineKind::Npc ? firstWithIndex(mNpcLines, index) : firstWithIndex(mPcLines, index);
}

bool DialogueFileNew::hasLine(int index) const
{
    return lineOf(LineKind::Npc, index) != nullptr || lineOf(LineKind::Pc, index) != nullptr;
}

int DialogueFileNew::proposedNumber(std::optional<int> after) const
{
    std::set<int> used;
    for (const NPCLinePointer& line : mNpcLines)
        used.insert(line->index());
    for (const PCLinePointer& line : mPcLines)
        used.insert(line->index());
    const auto firstFreeAbove = [&used](qint64 number) -> std::optional<int> {
        for (qint64 candidate = number + 1; inRange(candidate); ++candidate)
            if (used.count(int(candidate)) == 0)
                return int(candidate);
        return std::nullopt;
    };
    const qint64 from = after ? *after : (used.empty() ? 0 : *used.rbegin());
    if (after) {
        const auto next = used.upper_bound(*after);
        if (next != used.end() && qint64(*next) - *after > 1)
            return int(*after + (qint64(*next) - *after) / 2);
    }
    if (const std::optional<int> above = firstFreeAbove(from))
        return *above;
    // Every number above is taken: the first free one from the bottom.
    return firstFreeAbove(-1).value_or(0);
}

bool DialogueFileNew::addLine(LineKind kind, int index)
{
    if (!inRange(index) || hasLine(index))
        return false;
    if (kind == LineKind::Npc)
        insertInOrder(mNpcLines, new NPCLine(index));
    else
        insertInOrder(mPcLines, new PCLine(index));
    return true;
}

bool DialogueFileNew::removeLine(LineKind kind, int index)
{
    return kind == LineKind::Npc ? removeFirst(mNpcLines, index) : removeFirst(mPcLines, index);
}

QList<int> DialogueFileNew::linesNaming(int index) const
{
    std::set<int> naming;
    const auto collect = [&naming, index](const Line& line) {
        if (line.index() != index && line.namesLine(index))
            naming.insert(line.index());
    };
    for (const NPCLinePointer& line : mNpcLines)
        collect(*line);
    for (const PCLinePointer& line : mPcLines)
        collect(*line);
    return QList<int>(naming.begin(), naming.end());
}

bool DialogueFileNew::renumberLine(LineKind kind, int from, int to)
{
    Line* line = lineOf(kind, from);
    if (line == nullptr || !inRange(to) || hasLine(to))
        return false;
    line->setIndex(to);
    // With a twin still numbered from, the references may mean the twin: they stay.
    if (!hasLine(from)) {
        for (const NPCLinePointer& other : std::as_const(mNpcLines))
            other->renameLine(from, to);
        for (const PCLinePointer& other : std::as_const(mPcLines))
            other->renameLine(from, to);
    }
    sortLines();
    return true;
}

} // namespace arcanum
