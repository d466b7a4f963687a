#include "CommandLine.h"

#include "CheckCommand.h"
#include "DatCommand.h"
#include "DumpCommand.h"
#include "EncodingChoice.h"
#include "ExportCommand.h"
#include "ModelChatter.h"
#include "RoundtripCommand.h"

#include <cstdio>

CommandLine::CommandLine()
    : jsonOption(QStringLiteral("json"), QStringLiteral("dump: print JSON instead of text."))
    , paletteOption(QStringLiteral("palette"), QStringLiteral("export: the palette to colour frames with (default 0)."),
                    QStringLiteral("N"), QStringLiteral("0"))
    , formatOption(QStringLiteral("format"), QStringLiteral("export: png, bmp, jpg or tiff (default png)."),
                   QStringLiteral("FORMAT"), QStringLiteral("png"))
    , sheetOption(QStringLiteral("sheet"),
                  QStringLiteral("export: one sprite sheet per palette, images as rows, frames as columns."))
    , encodingOption(QStringLiteral("encoding"),
                     QStringLiteral("check, dump, roundtrip: the encoding of .mes and .dlg files, a codec name or "
                                    "auto (UTF-8 when the file is valid UTF-8, else the best guess, file by file); "
                                    "default UTF-8 for .mes, windows-1251 for .dlg."),
                     QStringLiteral("CODEC"))
{
    parser.setApplicationDescription(QStringLiteral(
        "Checks, dumps, round-trips and exports Arcanum game data.\n\n"
        "Commands:\n"
        "  check [DIR]                   check every data file below DIR/data\n"
        "  dump FILE                     print a file as readable text (or JSON)\n"
        "  roundtrip FILE...             load and save each file, compare the bytes\n"
        "  export FILE.art OUTDIR        write the frames of an art file as images\n"
        "  dat list ARCHIVE              list the files of a game archive (.dat)\n"
        "  dat extract ARCHIVE OUTDIR [PATTERN...]  extract files (wildcards over their paths)\n"
        "  dat pack DIR ARCHIVE          pack every file below DIR into an archive\n"
        "  dat verify ARCHIVE            check an archive as the engine reads it\n\n"
        "Exit status: 0 clean, 1 problems or differences, 2 usage or input/output error."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({jsonOption, paletteOption, formatOption, sheetOption, encodingOption});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("check, dump, roundtrip, export or dat"));
    parser.addPositionalArgument(QStringLiteral("arguments"), QStringLiteral("what the command works on"),
                                 QStringLiteral("[arguments...]"));
}

int CommandLine::run(const QStringList& arguments)
{
    if (!parser.parse(arguments))
        return usageError(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(Clean);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    QStringList operands = parser.positionalArguments();
    if (operands.isEmpty())
        return usageError(QStringLiteral("no command given"));
    const QString command = operands.takeFirst();
    const ModelChatter quiet;
    return dispatch(command, operands);
}

int CommandLine::dispatch(const QString& command, const QStringList& operands)
{
    const EncodingChoice encoding(parser.value(encodingOption));
    if (!encoding.isValid())
        return usageError(QStringLiteral("unknown encoding \"%1\"").arg(parser.value(encodingOption)));
    if (command == QLatin1String("check") && operands.size() <= 1)
        return CheckCommand(encoding).run(operands.value(0));
    if (command == QLatin1String("dump") && operands.size() == 1)
        return DumpCommand(encoding, parser.isSet(jsonOption)).run(operands.first());
    if (command == QLatin1String("roundtrip") && !operands.isEmpty())
        return RoundtripCommand(encoding).run(operands);
    if (command == QLatin1String("export") && operands.size() == 2) {
        bool ok = false;
        const int palette = parser.value(paletteOption).toInt(&ok);
        if (!ok || palette < 0)
            return usageError(QStringLiteral("--palette takes a number from 0"));
        ExportCommand exporter(parser.value(formatOption).toLower(), parser.isSet(sheetOption));
        if (parser.isSet(paletteOption))
            exporter.onlyPalette(palette);
        return exporter.run(operands.at(0), operands.at(1));
    }
    if (command == QLatin1String("dat"))
        return DatCommand(parser.isSet(jsonOption)).run(operands);
    const QStringList known = {"check", "dump", "roundtrip", "export"};
    return usageError(known.contains(command) ? QStringLiteral("wrong number of arguments for %1").arg(command)
                                              : QStringLiteral("unknown command \"%1\"").arg(command));
}

int CommandLine::usageError(const QString& message)
{
    std::fprintf(stderr, "loreka: %s\nTry 'loreka --help'.\n", qUtf8Printable(message));
    return Failure;
}
