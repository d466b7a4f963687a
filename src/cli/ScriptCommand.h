#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// loreka script decompile|compile|decompile-all|compile-all: scripts as source text.
// A source file is named after its script file plus ".txt" (00001guard.scr.txt), so the compiled
// file keeps the name, and with it the number, the game reads from the first five characters.
class ScriptCommand
{
public:
    // output is the -o option (empty when not given).
    explicit ScriptCommand(const QString& output);
    int run(const QStringList& operands);

    static QString sourceName(const QString& scriptName);
    // The compiled file's name for a source name, empty when it does not end in ".scr.txt".
    static QString scriptName(const QString& sourceName);

private:
    int decompile(const QString& path);
    int compile(const QString& path);
    static void written(const QString& path);
    int decompileAll(const QString& folder, const QString& outFolder);
    int compileAll(const QString& folder, const QString& outFolder);
    // Converts each file of folder whose name ends in suffix; the exit status.
    int eachFile(const QString& folder, const QString& outFolder, const QString& suffix, const char* done,
                 const std::function<bool(const QString&, const QString&)>& convert);
    // Decompiles path into target (stdout when empty); false after printing why.
    bool decompileFile(const QString& path, const QString& target);
    // False after printing the diagnostics or why the file could not be read or written.
    bool compileFile(const QString& path, const QString& target);

    QString output;
};
