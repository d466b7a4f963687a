#include "DumpCommand.h"

#include "CommandLine.h"
#include "FileDump.h"
#include "JsonOrder.h"
#include "JsonText.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <cstdio>

DumpCommand::DumpCommand(const EncodingChoice& encoding, bool json)
    : encoding(encoding)
    , asJson(json)
{
}

int DumpCommand::run(const QString& path)
{
    QTextStream err(stderr);
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable()) {
        err << path << ": error: cannot be read" << Qt::endl;
        return CommandLine::Failure;
    }
    const QString suffix = info.suffix().toLower();
    QJsonObject dump;
    const bool text = suffix == QLatin1String("mes") || suffix == QLatin1String("dlg");
    QTextCodec* codec = text ? encoding.codecFor(path) : nullptr;
    if (suffix == QLatin1String("mes"))
        dump = FileDump::mes(path, codec);
    else if (suffix == QLatin1String("dlg"))
        dump = FileDump::dialogue(path, codec);
    else if (suffix == QLatin1String("scr"))
        dump = FileDump::script(path);
    else if (suffix == QLatin1String("art"))
        dump = FileDump::art(path);
    else if (suffix == QLatin1String("pro"))
        dump = FileDump::proto(path);
    else if (suffix == QLatin1String("aap"))
        dump = FileDump::palette(path);
    else {
        err << path << ": error: not a .mes, .dlg, .scr, .art, .pro or .aap file" << Qt::endl;
        return CommandLine::Failure;
    }
    if (dump.contains(QLatin1String("error"))) {
        err << path << ": error: " << dump.value(QLatin1String("error")).toString() << Qt::endl;
        return CommandLine::Problems;
    }
    dump.insert(QStringLiteral("file"), path);
    // A text file's encoding heads the text dump: what follows reads as it says.
    QJsonObject header;
    if (text) {
        header.insert(QStringLiteral("encoding"), encoding.describe(codec));
        QFile file(path);
        const QString unreadable = file.open(QIODevice::ReadOnly) ? encoding.unreadable(codec, file.readAll()) : QString();
        if (!unreadable.isEmpty())
            header.insert(QStringLiteral("unreadable"), unreadable);
    }
    QTextStream out(stdout);
    if (asJson) {
        for (auto it = header.constBegin(); it != header.constEnd(); ++it)
            dump.insert(it.key(), it.value());
        out << QString::fromUtf8(JsonOrder::toJson(dump)) << '\n';
    } else {
        JsonText(out).print(header);
        JsonText(out).print(dump);
    }
    return CommandLine::Clean;
}
