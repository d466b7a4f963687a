#pragma once

#include <QList>

#include <optional>

// The lines opened one after another, for going back and forward through them like a browser:
// opening a line after going back drops the lines ahead. A line is a kind (as the page counts
// kinds) and a number.
class LineHistory
{
public:
    struct Entry
    {
        int kind = 0;
        int number = 0;
        bool operator==(const Entry& other) const { return kind == other.kind && number == other.number; }
    };

    // Records a line opened by the user; opening the line the history stands on again records nothing.
    void visit(const Entry& entry);
    bool canGoBack() const { return position > 0; }
    bool canGoForward() const { return position + 1 < entries.size(); }
    // Moves one line back or forward and returns it; nothing at either end.
    std::optional<Entry> back();
    std::optional<Entry> forward();
    // A renumbered line keeps its place in the history under its new number.
    void renumber(int kind, int from, int to);
    void clear();

private:
    QList<Entry> entries;
    qsizetype position = -1;
};
