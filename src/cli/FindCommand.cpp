#include "FindCommand.h"

#include "CommandLine.h"

#include "GameSearch.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>

#include <cstdio>

using arcanum::GameSearch;

namespace {

const QString REGEX = QStringLiteral("regex");
const QString CASE = QStringLiteral("case");
const QString NUMBER = QStringLiteral("number");
const QString AS = QStringLiteral("as");

int usage(const QString& message)
{
    std::fprintf(stderr, "loreka: find: %s\nTry 'loreka --help'.\n", qUtf8Printable(message));
    return CommandLine::Failure;
}

} // namespace

FindCommand::FindCommand(const EncodingChoice& encoding)
    : encoding(encoding)
{
}

QList<QCommandLineOption> FindCommand::options()
{
    return {{REGEX, QStringLiteral("find: the pattern is a regular expression.")},
            {CASE, QStringLiteral("find: letter case must match.")},
            {NUMBER, QStringLiteral("find: list the uses of this number instead of a text."), QStringLiteral("N")},
            {AS, QStringLiteral("find: what the number is: flag, var, script or message."), QStringLiteral("KIND")}};
}

int FindCommand::run(const QCommandLineParser& parser, const QStringList& operands)
{
    regex = parser.isSet(REGEX);
    caseSensitive = parser.isSet(CASE);
    byNumber = parser.isSet(NUMBER);
    if (!byNumber) {
        if (parser.isSet(AS))
            return usage(QStringLiteral("--as needs --number"));
        if (operands.isEmpty() || operands.size() > 2)
            return usage(QStringLiteral("give a pattern and at most one folder"));
        return search(operands.value(1), operands.first());
    }
    bool ok = false;
    number = parser.value(NUMBER).toInt(&ok);
    if (!ok)
        return usage(QStringLiteral("--number takes a whole number, not \"%1\"").arg(parser.value(NUMBER)));
    kind = parser.value(AS);
    if (kind.isEmpty())
        return usage(QStringLiteral("--number needs --as flag, var, script or message"));
    if (operands.size() > 1)
        return usage(QStringLiteral("give at most one folder"));
    return search(operands.value(0), QString());
}

int FindCommand::search(const QString& dir, const QString& pattern)
{
    GameSearch::Query query;
    query.pattern = pattern;
    query.regex = regex;
    query.caseSensitive = caseSensitive;
    query.number = number;
    if (byNumber && !GameSearch::numberMode(kind, query.mode))
        return usage(QStringLiteral("--as takes flag, var, script or message, not \"%1\"").arg(kind));
    GameSearch search(query, nullptr);
    search.setEncodingChooser([this](arcanum::FileFormat::Kind kind, const QByteArray& bytes) {
        return encoding.codecFor(kind, bytes);
    });
    if (!search.isValid())
        return usage(search.error());
    const QString base = CommandLine::baseDir(dir);
    if (!QFileInfo(base).isDir()) {
        std::fprintf(stderr, "loreka: %s: no such folder\n", qUtf8Printable(base));
        return CommandLine::Failure;
    }
    const GameSearch::Result result = search.run(base, QStringLiteral("Arcanum"));
    for (const QString& problem : result.problems)
        std::fprintf(stderr, "loreka: %s\n", qUtf8Printable(problem));
    for (const GameSearch::Hit& hit : result.hits)
        std::fprintf(stdout, "%s:%d: %s\n", qUtf8Printable(hit.file), hit.line, qUtf8Printable(hit.text));
    return result.hits.isEmpty() ? CommandLine::Problems : CommandLine::Clean;
}
