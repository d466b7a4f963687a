#include "CommandLine.h"

#include "ArtCommand.h"
#include "CheckCommand.h"
#include "DatCommand.h"
#include "DumpCommand.h"
#include "EncodingChoice.h"
#include "ExportCommand.h"
#include "FindCommand.h"
#include "ModelChatter.h"
#include "RoundtripCommand.h"
#include "ScriptCommand.h"

#include <QDir>
#include <QSettings>

#include <cstdio>

CommandLine::CommandLine()
    : jsonOption(QStringLiteral("json"), QStringLiteral("dump: print JSON instead of text."))
    , paletteOption(QStringLiteral("palette"),
                    QStringLiteral("export, art export: the palette to colour frames with (default 0); "
                                   "art from-images: a palette file (.aap) to match the images to."),
                    QStringLiteral("N|FILE"), QStringLiteral("0"))
    , formatOption(QStringLiteral("format"), QStringLiteral("export: png, bmp, jpg or tiff (default png)."),
                   QStringLiteral("FORMAT"), QStringLiteral("png"))
    , sheetOption(QStringLiteral("sheet"),
                  QStringLiteral("export, art export: sprite sheets, images as rows, frames as columns."))
    , outputOption(QStringList{QStringLiteral("o"), QStringLiteral("output")},
                   QStringLiteral("script decompile, compile: the file to write."), QStringLiteral("FILE"))
    , notesOption(QStringLiteral("notes"),
                  QStringLiteral("check: also list notes, what the game reads although a stricter reading objects."))
    , encodingOption(QStringLiteral("encoding"),
                     QStringLiteral("check, dump, roundtrip: the encoding of .mes and .dlg files, a codec name or "
                                    "auto (UTF-8 when the file is valid UTF-8, else the best guess, file by file); "
                                    "default UTF-8 for .mes, windows-1251 for .dlg."),
                     QStringLiteral("CODEC"))
    , fromOption(QStringLiteral("from"), QStringLiteral("art from-images: use the first palette of this art file."),
                 QStringLiteral("ART"))
    , ditherOption(QStringLiteral("dither"), QStringLiteral("art from-images: Floyd-Steinberg dithering."))
    , fpsOption(QStringLiteral("fps"), QStringLiteral("art from-images: frames per second (default 10)."),
                QStringLiteral("N"))
    , actionOption(QStringLiteral("action"),
                   QStringLiteral("art from-images: the frame an attack or spell takes effect on (default 0)."),
                   QStringLiteral("N"))
    , hotspotOption(QStringLiteral("hotspot"),
                    QStringLiteral("art from-images: every frame's hotspot (default: its bottom centre)."),
                    QStringLiteral("X,Y"))
{
    parser.setApplicationDescription(QStringLiteral(
        "Checks, dumps, round-trips and exports Arcanum game data.\n\n"
        "Commands:\n"
        "  check [DIR] [--notes]         check every data file below DIR/data\n"
        "  check FILE... [--notes]       check the files named\n"
        "  dump FILE                     print a file as readable text (or JSON)\n"
        "  roundtrip FILE...             load and save each file, compare the bytes\n"
        "  export FILE.art OUTDIR        write the frames of an art file as images\n"
        "  art export ART DIR            frames as indexed PNGs plus a JSON of all the rest (lossless)\n"
        "  art import DIR ART            an art file back from such a folder\n"
        "  art from-images IMAGES... ART a new art file: files are images of one frame, folders directions\n"
        "  art info ART                  frame rate, action frame, directions, frames, sizes, hotspots\n"
        "  dat list ARCHIVE              list the files of a game archive (.dat)\n"
        "  dat extract ARCHIVE OUTDIR [PATTERN...]  extract files (wildcards over their paths)\n"
        "  dat pack DIR ARCHIVE          pack every file below DIR into an archive\n"
        "  dat verify ARCHIVE            check an archive as the engine reads it\n"
        "  find PATTERN [DIR]            texts of message and dialogue files holding PATTERN\n"
        "  find --number N --as flag|var|script|message [DIR]  where the number is used\n"
        "                                (find exits 0 when found, 1 when nothing was found)\n"
        "  script decompile SCR [-o FILE]  write a script as source text (standard output without -o)\n"
        "  script compile SRC [-o SCR]   compile source text; NAME.scr.txt becomes NAME.scr without -o\n"
        "  script decompile-all DIR OUTDIR  every .scr of DIR as OUTDIR/NAME.scr.txt\n"
        "  script compile-all DIR OUTDIR  every .scr.txt of DIR as OUTDIR/NAME.scr\n\n"
        "Exit status: 0 clean, 1 problems or differences, 2 usage or input/output error."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({jsonOption, paletteOption, formatOption, sheetOption, outputOption, notesOption, encodingOption,
                       fromOption, ditherOption, fpsOption, actionOption, hotspotOption});
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("check, dump, roundtrip, export, art, find, script or dat"));
    parser.addPositionalArgument(QStringLiteral("arguments"), QStringLiteral("what the command works on"),
                                 QStringLiteral("[arguments...]"));

    // find's options; --encoding applies to it as well.
    parser.addOptions(FindCommand::options());
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
    if (command == QLatin1String("check"))
        return CheckCommand(encoding, parser.isSet(notesOption)).run(operands);
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
    if (command == QLatin1String("art")) {
        ArtCommand::Options options;
        options.sheet = parser.isSet(sheetOption);
        options.dither = parser.isSet(ditherOption);
        options.palette = parser.isSet(paletteOption) ? parser.value(paletteOption) : QString();
        options.from = parser.value(fromOption);
        options.fps = parser.value(fpsOption);
        options.action = parser.value(actionOption);
        options.hotspot = parser.value(hotspotOption);
        return ArtCommand(options).run(operands);
    }
    if (command == QLatin1String("find"))
        return FindCommand(encoding).run(parser, operands);
    if (command == QLatin1String("dat"))
        return DatCommand(parser.isSet(jsonOption)).run(operands);
    if (command == QLatin1String("script"))
        return ScriptCommand(parser.value(outputOption)).run(operands);
    const QStringList known = {"check", "dump", "roundtrip", "export"};
    return usageError(known.contains(command) ? QStringLiteral("wrong number of arguments for %1").arg(command)
                                              : QStringLiteral("unknown command \"%1\"").arg(command));
}

QString CommandLine::baseDir(const QString& dir)
{
    if (!dir.isEmpty())
        return dir;
    const QSettings settings(QStringLiteral("qtLoreka.ini"), QSettings::IniFormat);
    return QDir::cleanPath(settings.value(QStringLiteral("Directories/BaseDir"), QStringLiteral(".")).toString());
}

int CommandLine::usageError(const QString& message)
{
    std::fprintf(stderr, "loreka: %s\nTry 'loreka --help'.\n", qUtf8Printable(message));
    return Failure;
}
