#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QStringList>

// Reads the command and its options and hands over to the command's class.
// Exit status: 0 success, 1 problems found or files that differ, 2 wrong usage or unreadable input.
class CommandLine
{
public:
    static constexpr int Clean = 0;
    static constexpr int Problems = 1;
    static constexpr int Failure = 2;

    CommandLine();
    int run(const QStringList& arguments);

private:
    int dispatch(const QString& command, const QStringList& operands);
    int usageError(const QString& message);

    QCommandLineParser parser;
    QCommandLineOption jsonOption;
    QCommandLineOption paletteOption;
    QCommandLineOption formatOption;
    QCommandLineOption sheetOption;
    QCommandLineOption encodingOption;
};
