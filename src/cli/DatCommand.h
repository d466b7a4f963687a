#pragma once

#include <QString>
#include <QStringList>

// loreka dat list|extract|pack|verify: game archives on the command line.
class DatCommand
{
public:
    explicit DatCommand(bool json);
    // operands: the action and its arguments; the exit status.
    int run(const QStringList& operands);

private:
    int list(const QString& archive);
    int extract(const QString& archive, const QString& folder, const QStringList& patterns);
    int pack(const QString& folder, const QString& archive);
    int verify(const QString& archive);

    bool json;
};
