#include "ScriptCommand.h"

#include "CommandLine.h"
#include "SafeSave.h"
#include "Script.h"
#include "ScriptCompiler.h"
#include "ScriptDecompiler.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

using arcanum::Script;

namespace {

void err(const QString& line)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
}

bool write(const QString& path, const QByteArray& bytes)
{
    QString error;
    if (arcanum::SafeSave::write(path, bytes, &error) == arcanum::SafeSave::Saved)
        return true;
    err(QStringLiteral("%1: error: cannot be written%2").arg(path, error.isEmpty() ? QString() : ": " + error));
    return false;
}

QStringList filesIn(const QString& folder, const QString& suffix)
{
    QStringList found;
    const QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name))
        if (name.endsWith(suffix, Qt::CaseInsensitive))
            found << dir.filePath(name);
    return found;
}

} // namespace

ScriptCommand::ScriptCommand(const QString& outputPath)
    : output(outputPath)
{
}

QString ScriptCommand::sourceName(const QString& scriptName)
{
    return scriptName + QStringLiteral(".txt");
}

QString ScriptCommand::scriptName(const QString& sourceName)
{
    if (!sourceName.endsWith(QStringLiteral(".scr.txt"), Qt::CaseInsensitive))
        return QString();
    return sourceName.chopped(4);
}

int ScriptCommand::run(const QStringList& operands)
{
    const QString action = operands.value(0);
    if (action == QLatin1String("decompile") && operands.size() == 2)
        return decompile(operands.at(1));
    if (action == QLatin1String("compile") && operands.size() == 2)
        return compile(operands.at(1));
    if (action == QLatin1String("decompile-all") && operands.size() == 3 && output.isEmpty())
        return decompileAll(operands.at(1), operands.at(2));
    if (action == QLatin1String("compile-all") && operands.size() == 3 && output.isEmpty())
        return compileAll(operands.at(1), operands.at(2));
    err(QStringLiteral("loreka: usage: loreka script decompile SCR [-o FILE] | compile SRC [-o SCR] | "
                       "decompile-all DIR OUTDIR | compile-all DIR OUTDIR"));
    return CommandLine::Failure;
}

int ScriptCommand::decompile(const QString& path)
{
    if (!decompileFile(path, output))
        return CommandLine::Failure;
    if (!output.isEmpty()) // without -o the text itself is the output
        written(output);
    return CommandLine::Clean;
}

void ScriptCommand::written(const QString& path)
{
    std::fprintf(stdout, "%s written\n", qUtf8Printable(path));
}

bool ScriptCommand::decompileFile(const QString& path, const QString& target)
{
    Script script;
    if (!QFileInfo(path).isFile()) {
        err(QStringLiteral("%1: error: cannot be read").arg(path));
        return false;
    }
    if (!script.load(path)) {
        err(QStringLiteral("%1: error: a script's file name starts with its five-digit number (00042name.scr)")
                .arg(path));
        return false;
    }
    const std::string text = arcanum::ScriptDecompiler::decompile(script);
    if (target.isEmpty()) {
        std::fwrite(text.data(), 1, text.size(), stdout);
        return true;
    }
    return write(target, QByteArray::fromStdString(text));
}

int ScriptCommand::compile(const QString& path)
{
    QString target = output.isEmpty() ? scriptName(path) : output;
    if (target.isEmpty()) {
        err(QStringLiteral("loreka: %1 does not end in .scr.txt: name the compiled file with -o").arg(path));
        return CommandLine::Failure;
    }
    if (!compileFile(path, target))
        return CommandLine::Problems;
    written(target);
    return CommandLine::Clean;
}

bool ScriptCommand::compileFile(const QString& path, const QString& target)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        err(QStringLiteral("%1: error: cannot be read").arg(path));
        return false;
    }
    const QByteArray source = file.readAll();
    const arcanum::ScriptCompiler::Result compiled
        = arcanum::ScriptCompiler::compile(std::string_view(source.constData(), size_t(source.size())));
    for (const arcanum::ScriptCompiler::Diagnostic& d : compiled.diagnostics)
        err(QStringLiteral("%1:%2:%3: error: %4")
                .arg(path)
                .arg(d.line)
                .arg(d.column)
                .arg(QString::fromStdString(d.message)));
    if (!compiled.ok())
        return false;
    const int number = Script::idFromFilename(QFileInfo(target).fileName());
    if (number < 0) {
        err(QStringLiteral("%1: error: a script's file name starts with its five-digit number (00042name.scr)")
                .arg(target));
        return false;
    }
    if (compiled.number >= 0 && compiled.number != number) {
        err(QStringLiteral("%1:%2:%3: error: the source is script %4 but %5 is named for script %6")
                .arg(path)
                .arg(compiled.numberLine)
                .arg(compiled.numberColumn)
                .arg(compiled.number)
                .arg(QFileInfo(target).fileName())
                .arg(number));
        return false;
    }
    return write(target, compiled.script().toBytes());
}

int ScriptCommand::decompileAll(const QString& folder, const QString& outFolder)
{
    return eachFile(folder, outFolder, QStringLiteral(".scr"), "decompiled",
                    [this](const QString& path, const QString& out) {
                        return decompileFile(path, QDir(out).filePath(sourceName(QFileInfo(path).fileName())));
                    });
}

int ScriptCommand::compileAll(const QString& folder, const QString& outFolder)
{
    return eachFile(folder, outFolder, QStringLiteral(".scr.txt"), "compiled",
                    [this](const QString& path, const QString& out) {
                        return compileFile(path, QDir(out).filePath(scriptName(QFileInfo(path).fileName())));
                    });
}

int ScriptCommand::eachFile(const QString& folder, const QString& outFolder, const QString& suffix, const char* done,
                            const std::function<bool(const QString&, const QString&)>& convert)
{
    if (!QFileInfo(folder).isDir() || !QDir().mkpath(outFolder)) {
        err(QStringLiteral("loreka: %1: no such folder, or %2 cannot be made").arg(folder, outFolder));
        return CommandLine::Failure;
    }
    int failed = 0;
    const QStringList files = filesIn(folder, suffix);
    for (const QString& path : files)
        if (!convert(path, outFolder))
            ++failed;
    std::fprintf(stdout, "%lld scripts %s into %s, %d failed\n", qint64(files.size() - failed), done,
                 qUtf8Printable(outFolder), failed);
    return failed > 0 ? CommandLine::Problems : CommandLine::Clean;
}
