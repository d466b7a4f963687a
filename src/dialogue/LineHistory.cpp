#include "LineHistory.h"

void LineHistory::visit(const Entry& entry)
{
    if (position >= 0 && entries.at(position) == entry)
        return;
    entries.erase(entries.begin() + (position + 1), entries.end());
    entries.append(entry);
    position = entries.size() - 1;
}

std::optional<LineHistory::Entry> LineHistory::back()
{
    if (!canGoBack())
        return std::nullopt;
    return entries.at(--position);
}

std::optional<LineHistory::Entry> LineHistory::forward()
{
    if (!canGoForward())
        return std::nullopt;
    return entries.at(++position);
}

void LineHistory::renumber(int kind, int from, int to)
{
    for (Entry& entry : entries)
        if (entry.kind == kind && entry.number == from)
            entry.number = to;
}

void LineHistory::clear()
{
    entries.clear();
    position = -1;
}
