#pragma once

#include "EncodingChoice.h"

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

class QCommandLineParser;

// `loreka find PATTERN [DIR]` and `loreka find --number N --as flag|var|script|message [DIR]`: one
// "FILE:LINE: text" row per hit, loose files and archived ones (ARCHIVE/PATH) alike. Exit status 0
// when something was found, 1 when nothing was, 2 for wrong usage or a folder that is no game.
class FindCommand
{
public:
    explicit FindCommand(const EncodingChoice& encoding);

    static QList<QCommandLineOption> options();
    // operands: what follows "find"; the options come from parser.
    int run(const QCommandLineParser& parser, const QStringList& operands);

private:
    int search(const QString& dir, const QString& pattern);

    EncodingChoice encoding;
    bool regex = false;
    bool caseSensitive = false;
    bool byNumber = false;
    qint32 number = 0;
    QString kind;
};
