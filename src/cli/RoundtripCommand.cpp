#include "RoundtripCommand.h"

#include "CommandLine.h"

#include "FileFormat.h"
#include "FormatRegistry.h"

#include <QFile>
#include <QTextCodec>
#include <QTextStream>

#include <algorithm>

using arcanum::FileFormat;
using arcanum::FormatRegistry;

namespace {

// The line of bytes that holds offset at, without its line end.
QByteArray lineAt(const QByteArray& bytes, qint64 at, int& number)
{
    const qsizetype offset = std::min<qsizetype>(at, bytes.size());
    const qsizetype start = offset == 0 ? 0 : bytes.lastIndexOf('\n', offset - 1) + 1;
    qsizetype end = bytes.indexOf('\n', offset);
    if (end < 0)
        end = bytes.size();
    number = int(bytes.left(start).count('\n')) + 1;
    QByteArray line = bytes.mid(start, end - start);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

} // namespace

RoundtripCommand::RoundtripCommand(const EncodingChoice& encoding)
    : encoding(encoding)
{
}

int RoundtripCommand::run(const QStringList& paths)
{
    QTextStream out(stdout);
    int status = CommandLine::Clean;
    for (const QString& path : paths)
        status = std::max(status, roundTrip(path, out));
    return status;
}

int RoundtripCommand::roundTrip(const QString& path, QTextStream& out) const
{
    const FileFormat* format = FormatRegistry::byPath(path);
    if (!format || !format->rewrite) {
        out << path << ": error: not a file loreka round-trips (.mes, .dlg, .scr, .art, .aap, .pro)" << Qt::endl;
        return CommandLine::Failure;
    }
    QFile original(path);
    if (!original.open(QIODevice::ReadOnly)) {
        out << path << ": error: cannot be read: " << original.errorString() << Qt::endl;
        return CommandLine::Failure;
    }
    const QByteArray before = original.readAll();
    QTextCodec* codec = format->text ? encoding.codecFor(format->kind, before) : nullptr;
    // Under "auto" the encoding is the program's choice, so it is shown with each text file.
    const QString readAs = codec != nullptr && encoding.isAuto()
        ? QStringLiteral(", read as %1").arg(encoding.describe(codec)) : QString();
    QByteArray after;
    QString error;
    if (!format->rewrite(path, before, codec, after, error)) {
        out << path << ": error: cannot be loaded and saved: " << error << Qt::endl;
        return CommandLine::Failure;
    }
    const qint64 at = firstDifference(before, after);
    if (at < 0) {
        out << path << ": identical" << readAs << Qt::endl;
        return CommandLine::Clean;
    }
    out << path << QStringLiteral(": differs at offset 0x%1 (%2 bytes read, %3 written)")
                       .arg(at, 0, 16).arg(before.size()).arg(after.size())
        << readAs << Qt::endl;
    if (codec != nullptr)
        showLine(codec, before, after, at, out);
    return CommandLine::Problems;
}

void RoundtripCommand::showLine(QTextCodec* codec, const QByteArray& before, const QByteArray& after,
                                qint64 at, QTextStream& out) const
{
    int number = 0;
    int ignored = 0;
    const QByteArray read = lineAt(before, at, number);
    const QByteArray written = lineAt(after, at, ignored);
    out << QStringLiteral("  line %1 (%2)").arg(number).arg(rewriteKind(before.mid(at), after.mid(at))) << Qt::endl;
    const QString unreadable = encoding.unreadable(codec, before);
    if (!unreadable.isEmpty())
        out << "  " << unreadable << Qt::endl;
    out << "  read:    " << codec->toUnicode(read) << Qt::endl;
    out << "  written: " << codec->toUnicode(written) << Qt::endl;
}

// What the format always does to a file, told apart from a change of content: the rest of the file
// compared with line ends and the blanks that start a line left out.
QString RoundtripCommand::rewriteKind(const QByteArray& before, const QByteArray& after)
{
    const auto normalized = [](QByteArray bytes, bool blanks) {
        bytes.replace("\r\n", "\n");
        if (!blanks)
            return bytes;
        QByteArray out;
        for (const QByteArray& line : bytes.split('\n')) {
            if (!line.trimmed().isEmpty())
                out += line.trimmed() + '\n';
        }
        return out;
    };
    if (normalized(before, false) == normalized(after, false))
        return QStringLiteral("line ends only: the format writes Windows line ends");
    if (normalized(before, true) == normalized(after, true))
        return QStringLiteral("layout only: the format writes its own indentation (a PC line starts with a tab), "
                              "blank lines and line ends");
    return QStringLiteral("content changed");
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
