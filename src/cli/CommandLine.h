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
    // Prints the message and where to find help; returns Failure.
    static int usageError(const QString& message);
    // The game folder a command works on: dir, or when empty the editor's base directory from
    // "qtLoreka.ini" in the working directory, or the working directory itself.
    static QString baseDir(const QString& dir);

private:
    int dispatch(const QString& command, const QStringList& operands);

    QCommandLineParser parser;
    QCommandLineOption jsonOption;
    QCommandLineOption paletteOption;
    QCommandLineOption formatOption;
    QCommandLineOption sheetOption;
    QCommandLineOption outputOption;
    QCommandLineOption notesOption;
    QCommandLineOption encodingOption;
    QCommandLineOption fromOption;
    QCommandLineOption ditherOption;
    QCommandLineOption fpsOption;
    QCommandLineOption actionOption;
    QCommandLineOption hotspotOption;
};
