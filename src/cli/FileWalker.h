#pragma once

#include <QStringList>

// Finds the data files below a folder, at any depth, in a stable (sorted) order.
class FileWalker
{
public:
    // Suffixes without the dot, compared without regard to case.
    explicit FileWalker(const QStringList& suffixes);

    // Paths start with folder as given, so diagnostics show what the user typed.
    QStringList files(const QString& folder) const;

private:
    QStringList nameFilters;
};
