#include "ScriptDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using arcanum::Script;

std::unique_ptr<ScriptDocument> ScriptDocument::fromBytes(const QString& path, const QByteArray& bytes, QString& error)
{
    std::unique_ptr<ScriptDocument> document(new ScriptDocument(path, bytes.size()));
    if (!document->model.loadBytes(path, bytes)) {
        error = tr("a script's file name starts with its five-digit number (00042name.scr)");
        return nullptr;
    }
    document->countOnDisk = document->model.getHeader().lineCount;
    return document;
}

ScriptDocument::ScriptDocument(const QString& path, qint64 fileSize)
    : Document(path)
    , sizeOnDisk(fileSize)
{
    // The number lives in the file name: saved under another name, this is that script now.
    connect(this, &Document::pathChanged, this, [this](const QString& newPath) {
        if (numberOf(QFileInfo(newPath).fileName()) < 0)
            return;
        model.loadBytes(newPath, model.toBytes());
        emit changed();
    });
    // Damage is what the file holds: lines added or applied since are no missing lines, and a save
    // writes a whole file.
    connect(this, &Document::saved, this, [this](const QString& savedPath) {
        sizeOnDisk = QFileInfo(savedPath).size();
        countOnDisk = model.getHeader().lineCount;
    });
}

namespace {
constexpr int NUMBER_DIGITS = 5;
constexpr int LAST_NUMBER = 99999;
const QString SCRIPT_SUFFIX = QStringLiteral(".scr");
} // namespace

int ScriptDocument::numberOf(const QString& fileName)
{
    static const QRegularExpression numbered(QStringLiteral("^(\\d{5}).*\\.scr$"), QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = numbered.match(fileName);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

QString ScriptDocument::nameOf(const QString& fileName)
{
    if (numberOf(fileName) < 0)
        return QString();
    return fileName.mid(NUMBER_DIGITS).chopped(SCRIPT_SUFFIX.size());
}

QSet<int> ScriptDocument::numbersIn(const QString& folder)
{
    QSet<int> numbers;
    for (const QString& file : QDir(folder).entryList({QStringLiteral("*.scr"), QStringLiteral("*.SCR")}, QDir::Files))
        if (const int number = numberOf(file); number >= 0)
            numbers.insert(number);
    return numbers;
}

QString ScriptDocument::fileNameFor(const QString& numberText, const QString& name, const QSet<int>& used,
                                    QString& error)
{
    const QString typed = numberText.trimmed();
    bool ok = false;
    const qlonglong number = typed.toLongLong(&ok, 10);
    if (!ok) {
        error = tr("“%1” is not a number.").arg(typed);
        return QString();
    }
    if (number < 1 || number > LAST_NUMBER) {
        error = tr("%1 is outside 1 … %2: a script number has five digits.").arg(typed).arg(LAST_NUMBER);
        return QString();
    }
    if (used.contains(int(number))) {
        error = tr("Script number %1 is already in use.").arg(number);
        return QString();
    }
    QString rest = name.trimmed();
    if (rest.endsWith(SCRIPT_SUFFIX, Qt::CaseInsensitive))
        rest.chop(SCRIPT_SUFFIX.size());
    static const QRegularExpression forbidden(QStringLiteral("[\\\\/:*?\"<>|]"));
    if (rest.isEmpty() || rest.contains(forbidden)) {
        error = tr("“%1” cannot be a script's name: it must not be empty or hold any of \\ / : * ? \" < > |.").arg(rest);
        return QString();
    }
    return QStringLiteral("%1%2%3").arg(number, NUMBER_DIGITS, 10, QLatin1Char('0')).arg(rest, SCRIPT_SUFFIX);
}

void ScriptDocument::replaceContent(const Script::Header& header, std::vector<Script::Line> lines, const QString& text)
{
    beginEdit();
    model.setContent(header, std::move(lines));
    recordEdit(text);
    emit changed();
}

bool ScriptDocument::serialize(QByteArray& bytes, QString& /*error*/) const
{
    bytes = model.toBytes();
    return true;
}

void ScriptDocument::restoreModel(const QByteArray& bytes)
{
    model.loadBytes(path(), bytes);
}

QString ScriptDocument::sizeProblem() const
{
    const qint32 count = countOnDisk;
    if (sizeOnDisk < Script::HeaderSize)
        return tr("the file is %1 bytes long, shorter than the %2-byte header").arg(sizeOnDisk).arg(Script::HeaderSize);
    if (count < 0)
        return tr("its header counts %1 lines").arg(count);
    const qint64 expected = Script::HeaderSize + qint64(count) * Script::LineSize;
    if (sizeOnDisk < expected)
        return tr("its header counts %1 lines (%2 bytes) but the file ends at byte %3: the lines from %4 on are "
                  "missing")
            .arg(count)
            .arg(expected)
            .arg(sizeOnDisk)
            .arg((sizeOnDisk - Script::HeaderSize) / Script::LineSize + 1);
    if (sizeOnDisk > expected)
        return tr("its header counts %1 lines (%2 bytes) but the file holds %3 bytes: %4 bytes after the last "
                  "line are not shown")
            .arg(count)
            .arg(expected)
            .arg(sizeOnDisk)
            .arg(sizeOnDisk - expected);
    return QString();
}

QString ScriptDocument::unknownStatements() const
{
    int unknown = 0;
    QString first;
    const std::vector<Script::Line>& lines = model.getLines();
    for (size_t i = 0; i < lines.size(); ++i) {
        const Script::Line& line = lines[i];
        const bool badCondition = line.condition.code < 0 || line.condition.code >= Script::ConditionCount;
        const auto badAction = [](const Script::Statement& action) {
            return action.code < 0 || action.code >= Script::ActionCount;
        };
        if (!badCondition && !badAction(line.thenAction) && !badAction(line.elseAction))
            continue;
        if (++unknown == 1)
            first = badCondition ? tr("line %1, condition %2").arg(i + 1).arg(line.condition.code)
                                 : tr("line %1, action %2")
                                       .arg(i + 1)
                                       .arg(badAction(line.thenAction) ? line.thenAction.code : line.elseAction.code);
    }
    if (unknown == 0)
        return QString();
    return tr("%1 of %2 lines hold statements no script uses (first: %3); the file is probably not a script")
        .arg(unknown)
        .arg(lines.size())
        .arg(first);
}

QString ScriptDocument::damage() const
{
    QStringList problems;
    for (const QString& problem : {sizeProblem(), unknownStatements()})
        if (!problem.isEmpty())
            problems.append(problem);
    return problems.join(QStringLiteral("; "));
}
