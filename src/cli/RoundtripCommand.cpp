#include "RoundtripCommand.h"

#include "CommandLine.h"

#include "Artfile.h"
#include "DialogueFileNew.h"
#include "Mesfile.h"
#include "Proto.h"
#include "Script.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

using namespace arcanum;

RoundtripCommand::RoundtripCommand(QTextCodec* mesCodec)
    : codec(mesCodec)
{
}

int RoundtripCommand::run(const QStringList& paths)
{
    QTextStream out(stdout);
    QTemporaryDir temporary;
    int status = CommandLine::Clean;
    for (const QString& path : paths) {
        QFile original(path);
        // The copy keeps the name: a script's number is read from it.
        const QString copy = QDir(temporary.path()).filePath(QFileInfo(path).fileName());
        if (!temporary.isValid() || !original.open(QIODevice::ReadOnly) || !saveCopy(path, copy)) {
            out << path << ": error: cannot be loaded and saved" << Qt::endl;
            status = CommandLine::Failure;
            continue;
        }
        const QByteArray before = original.readAll();
        QFile saved(copy);
        const QByteArray after = saved.open(QIODevice::ReadOnly) ? saved.readAll() : QByteArray();
        const qint64 at = firstDifference(before, after);
        if (at < 0) {
            out << path << ": identical" << Qt::endl;
            continue;
        }
        out << path << QStringLiteral(": differs at offset 0x%1 (%2 bytes read, %3 written)")
                           .arg(at, 0, 16).arg(before.size()).arg(after.size())
            << Qt::endl;
        status = std::max(status, CommandLine::Problems);
    }
    return status;
}

bool RoundtripCommand::saveCopy(const QString& path, const QString& copy)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    const std::string from = QFile::encodeName(path).toStdString();
    if (suffix == QLatin1String("mes")) {
        Mesfile mes(path);
        return mes.load(codec) && mes.save(copy, codec);
    }
    if (suffix == QLatin1String("dlg")) {
        QFile file(path);
        DialogueFileNew dialogue(&file);
        QFile target(copy);
        return dialogue.load() && dialogue.save(&target);
    }
    if (suffix == QLatin1String("scr")) {
        Script script;
        return script.load(path) && script.save(copy);
    }
    if (suffix == QLatin1String("art")) {
        Artfile art;
        art.load(from);
        return art.isLoaded() && art.save(copy);
    }
    if (suffix == QLatin1String("pro")) {
        Proto proto;
        proto.load(from);
        return proto.isLoaded() && proto.save(QFile::encodeName(copy).toStdString());
    }
    return false;
}

// -1 when both are the same; else the first offset where they differ or one of them ends.
qint64 RoundtripCommand::firstDifference(const QByteArray& a, const QByteArray& b)
{
    const auto common = std::min(a.size(), b.size());
    const auto at = std::mismatch(a.cbegin(), a.cbegin() + common, b.cbegin()).first - a.cbegin();
    if (at < common || a.size() != b.size())
        return at;
    return -1;
}
