#include "ScriptDocument.h"

#include <QFile>

using arcanum::Script;

std::unique_ptr<ScriptDocument> ScriptDocument::fromBytes(const QString& path, const QByteArray& bytes, QString& error)
{
    std::unique_ptr<ScriptDocument> document(new ScriptDocument(path, bytes.size()));
    if (!document->model.loadBytes(path, bytes)) {
        error = tr("a script's file name starts with its five-digit number (00042name.scr)");
        return nullptr;
    }
    return document;
}

ScriptDocument::ScriptDocument(const QString& path, qint64 fileSize)
    : Document(path)
    , sizeOnDisk(fileSize)
{
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
    const qint32 count = model.getHeader().lineCount;
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
