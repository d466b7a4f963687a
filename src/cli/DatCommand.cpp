#include "DatCommand.h"

#include "JsonOrder.h"

#include "CommandLine.h"
#include "DatArchive.h"
#include "DatWriter.h"
#include "SafeSave.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <cstdio>

using arcanum::DatArchive;

namespace {

void out(const QString& line)
{
    std::fprintf(stdout, "%s\n", qUtf8Printable(line));
}

void err(const QString& line)
{
    std::fprintf(stderr, "loreka: %s\n", qUtf8Printable(line));
}

bool openArchive(DatArchive& archive, const QString& path)
{
    QString error;
    if (archive.open(path, error))
        return true;
    err(QStringLiteral("%1: %2").arg(path, error));
    return false;
}

bool matches(const QString& path, const QStringList& patterns)
{
    if (patterns.isEmpty())
        return true;
    for (const QString& pattern : patterns) {
        const QRegularExpression wildcard(QRegularExpression::wildcardToRegularExpression(pattern),
                                          QRegularExpression::CaseInsensitiveOption);
        if (wildcard.match(path).hasMatch())
            return true;
    }
    return false;
}

} // namespace

DatCommand::DatCommand(bool json)
    : json(json)
{
}

int DatCommand::run(const QStringList& operands)
{
    const QString action = operands.value(0);
    if (action == QLatin1String("list") && operands.size() == 2)
        return list(operands.at(1));
    if (action == QLatin1String("extract") && operands.size() >= 3)
        return extract(operands.at(1), operands.at(2), operands.mid(3));
    if (action == QLatin1String("pack") && operands.size() == 3)
        return pack(operands.at(1), operands.at(2));
    if (action == QLatin1String("verify") && operands.size() == 2)
        return verify(operands.at(1));
    err(QStringLiteral("usage: loreka dat list ARCHIVE | extract ARCHIVE OUTDIR [PATTERN...] | pack DIR ARCHIVE | "
                       "verify ARCHIVE"));
    return CommandLine::Failure;
}

int DatCommand::list(const QString& path)
{
    DatArchive archive;
    if (!openArchive(archive, path))
        return CommandLine::Failure;
    QJsonArray entries;
    for (const DatArchive::Entry& entry : archive.entries()) {
        if (entry.isFolder())
            continue;
        const QString method = entry.isCompressed() ? QStringLiteral("zlib") : QStringLiteral("stored");
        if (json)
            entries.append(QJsonObject{{QStringLiteral("path"), entry.path()},
                                       {QStringLiteral("size"), qint64(entry.size)},
                                       {QStringLiteral("packed"), qint64(entry.packedSize)},
                                       {QStringLiteral("method"), method}});
        else
            out(QStringLiteral("%1\t%2\t%3\t%4").arg(entry.path()).arg(entry.size).arg(entry.packedSize).arg(method));
    }
    if (json)
        out(QString::fromUtf8(JsonOrder::toJson(entries)));
    return CommandLine::Clean;
}

int DatCommand::extract(const QString& path, const QString& folder, const QStringList& patterns)
{
    DatArchive archive;
    if (!openArchive(archive, path))
        return CommandLine::Failure;
    const QDir root(folder);
    const QString rootPath = QDir::cleanPath(root.absolutePath()) + QLatin1Char('/');
    int failed = 0;
    int written = 0;
    for (const DatArchive::Entry& entry : archive.entries()) {
        if (entry.isFolder() || !matches(entry.path(), patterns))
            continue;
        const QString unsafe = DatArchive::unsafeName(entry.name);
        const QString target = QDir::cleanPath(root.absoluteFilePath(entry.path()));
        // Nothing is written outside the folder, whatever the archive says; the other entries go on.
        if (!unsafe.isEmpty() || !target.startsWith(rootPath)) {
            err(QStringLiteral("%1/%2: not extracted: the name holds %3")
                    .arg(path, entry.path(), unsafe.isEmpty() ? QStringLiteral("a path outside the folder") : unsafe));
            ++failed;
            continue;
        }
        QByteArray bytes;
        QString error;
        if (!archive.read(entry, bytes, error) || !QDir().mkpath(QFileInfo(target).absolutePath())
            || arcanum::SafeSave::write(target, bytes, &error) != arcanum::SafeSave::Saved) {
            err(error.isEmpty() ? QStringLiteral("%1: cannot be written").arg(target) : error);
            ++failed;
            continue;
        }
        ++written;
    }
    out(QStringLiteral("%1 files written to %2").arg(written).arg(QDir::toNativeSeparators(root.absolutePath())));
    return failed > 0 ? CommandLine::Problems : CommandLine::Clean;
}

int DatCommand::pack(const QString& folder, const QString& path)
{
    if (!QFileInfo(folder).isDir()) {
        err(QStringLiteral("%1: no such folder").arg(folder));
        return CommandLine::Failure;
    }
    QString error;
    int files = 0;
    if (!arcanum::DatWriter::packFolder(folder, path, error, [&files](int done, int) {
            files = done;
            return true;
        })) {
        err(QStringLiteral("%1: %2").arg(path, error));
        return CommandLine::Failure;
    }
    out(QStringLiteral("%1 files packed into %2").arg(files).arg(path));
    return CommandLine::Clean;
}

int DatCommand::verify(const QString& path)
{
    DatArchive archive;
    if (!openArchive(archive, path))
        return CommandLine::Failure;
    const QStringList problems = archive.verify();
    for (const QString& problem : problems)
        out(problem);
    out(QStringLiteral("%1: %2 entries, %3 problems").arg(path).arg(archive.entries().size()).arg(problems.size()));
    return problems.isEmpty() ? CommandLine::Clean : CommandLine::Problems;
}
