#include "DialogueDocument.h"

#include "TextDecoding.h"

#include <QFile>
#include <QTextCodec>

#include <optional>
#include <set>

using arcanum::DialogueFileNew;

namespace {
const int LISTED_PROBLEMS = 3;
}

std::unique_ptr<DialogueDocument> DialogueDocument::fromBytes(const QString& path, const QByteArray& bytes,
                                                             QTextCodec* codec)
{
    return std::unique_ptr<DialogueDocument>(new DialogueDocument(path, bytes, codec));
}

DialogueDocument::DialogueDocument(const QString& path, const QByteArray& bytes, QTextCodec* codec)
    : Document(path)
{
    const QFile file(path);
    model = std::make_unique<DialogueFileNew>(&file);
    model->setCodec(codec);
    lossyLines = arcanum::TextDecoding::lossyLines(model->codec(), bytes);
    findings = arcanum::EncodingGuess::examine(model->codec(), bytes);
    model->readBytes(bytes);
    model->sortLines();
}

bool DialogueDocument::serialize(QByteArray& bytes, QString& /*error*/) const
{
    bytes = model->toBytes();
    return true;
}

void DialogueDocument::restoreModel(const QByteArray& bytes)
{
    model->readBytes(bytes);
    model->sortLines();
}

QString DialogueDocument::saveLoss() const
{
    if (lossyLines.isEmpty())
        return QString();
    return tr("Saving in %1 would change %2 line(s) of the file that do not read cleanly in it (first: line %3).")
        .arg(QString::fromLatin1(model->codec()->name()))
        .arg(lossyLines.size())
        .arg(lossyLines.first());
}

QString DialogueDocument::lineProblems() const
{
    QStringList listed;
    int count = 0;
    const auto note = [&](const DialogueFileNew::Line& line) {
        // Notes are what the game reads although our stricter reading objects: no damage.
        if (line.errors() == nullptr || !line.errors()->hasErrors())
            return;
        if (++count <= LISTED_PROBLEMS)
            listed.append(tr("line %1 (file line %2): %3")
                              .arg(line.index())
                              .arg(line.sourceLine())
                              .arg(line.errors()->messages.value(0)));
    };
    for (const auto& line : model->npcLines())
        note(*line);
    for (const auto& line : model->pcLines())
        note(*line);
    if (count == 0)
        return QString();
    QString text = tr("%1 line(s) have problems and are kept as read until edited: %2")
                       .arg(count)
                       .arg(listed.join(QStringLiteral("; ")));
    if (count > LISTED_PROBLEMS)
        text += tr("; and %1 more").arg(count - LISTED_PROBLEMS);
    return text;
}

QString DialogueDocument::refusedNumber(const QString& text, int& number) const
{
    bool ok = false;
    const qint64 value = text.trimmed().toLongLong(&ok, 10);
    if (!ok || value < 0 || value > DialogueFileNew::MAXIMUM_LINE)
        return tr("\"%1\" is no line number: a line number is a whole number from 0 to 2 147 483 647.")
            .arg(text.trimmed());
    number = int(value);
    if (model->hasLine(number))
        return tr("Line %1 is already in use.").arg(number);
    return QString();
}

bool DialogueDocument::addLine(LineKind kind, int index, QString& error)
{
    beginEdit();
    if (!model->addLine(kind, index)) {
        error = refusedNumber(QString::number(index), index);
        return false;
    }
    recordEdit(kind == LineKind::Npc ? tr("Add NPC line %1").arg(index) : tr("Add PC response %1").arg(index));
    emit changed();
    return true;
}

bool DialogueDocument::deleteLines(const QList<LineRef>& lines)
{
    beginEdit();
    int deleted = 0;
    for (const LineRef& line : lines)
        deleted += model->removeLine(line.kind, line.index) ? 1 : 0;
    if (deleted == 0)
        return false;
    if (lines.size() == 1)
        recordEdit(lines.first().kind == LineKind::Npc ? tr("Delete NPC line %1").arg(lines.first().index)
                                                       : tr("Delete PC response %1").arg(lines.first().index));
    else
        recordEdit(tr("Delete %1 lines").arg(deleted));
    emit changed();
    return true;
}

QList<int> DialogueDocument::responsesOf(int npc) const
{
    std::optional<int> next;
    for (const auto& line : model->npcLines())
        if (line->index() > npc && (!next || line->index() < *next))
            next = line->index();
    QList<int> responses;
    for (const auto& pc : model->pcLines())
        if (pc->index() > npc && (!next || pc->index() < *next))
            responses.append(pc->index());
    return responses;
}

QList<int> DialogueDocument::linesLeadingTo(const QList<LineRef>& lines) const
{
    std::set<int> deleted;
    for (const LineRef& line : lines)
        deleted.insert(line.index);
    std::set<int> leading;
    for (int index : deleted)
        for (int other : model->linesNaming(index))
            if (deleted.count(other) == 0)
                leading.insert(other);
    return QList<int>(leading.begin(), leading.end());
}

QList<int> DialogueDocument::responsesMovedBy(LineKind kind, int from, int to) const
{
    const auto renamed = [&](LineKind lineKind, int number) { return lineKind == kind && number == from ? to : number; };
    std::set<int> before;
    std::set<int> after;
    for (const auto& npc : model->npcLines()) {
        before.insert(npc->index());
        after.insert(renamed(LineKind::Npc, npc->index()));
    }
    // The NPC line offering a response numbered so; -1 for none.
    const auto owner = [](const std::set<int>& npcs, int response) {
        const auto next = npcs.lower_bound(response);
        return next == npcs.begin() ? -1 : *std::prev(next);
    };
    QList<int> moved;
    for (const auto& pc : model->pcLines()) {
        const int ownerBefore = owner(before, pc->index());
        const int ownerAfter = owner(after, renamed(LineKind::Pc, pc->index()));
        if (ownerAfter != (ownerBefore < 0 ? -1 : renamed(LineKind::Npc, ownerBefore)))
            moved.append(pc->index());
    }
    return moved;
}

// A line numbered 0 would turn every response leading to it into the end of the conversation.
bool DialogueDocument::renumberLine(LineKind kind, int from, int to, QString& error)
{
    if (to == 0 && !model->linesNaming(from).isEmpty()) {
        error = tr("Line %1 cannot become line 0: other lines lead to it, and a response line of 0 ends the "
                   "conversation.")
                    .arg(from);
        return false;
    }
    beginEdit();
    if (!model->renumberLine(kind, from, to)) {
        int number = to;
        error = refusedNumber(QString::number(to), number);
        if (error.isEmpty())
            error = tr("There is no line %1.").arg(from);
        return false;
    }
    recordEdit(tr("Renumber line %1 to %2").arg(from).arg(to));
    emit changed();
    return true;
}

QString DialogueDocument::damage() const
{
    QStringList problems;
    if (!model->unreadText().isEmpty())
        problems.append(tr("the file could not be read as dialogue lines from file line %1 on; that part is not "
                           "shown but is written back unchanged after the lines")
                            .arg(model->unreadLine()));
    const QString lines = lineProblems();
    if (!lines.isEmpty())
        problems.append(lines);
    // What does not read in the chosen encoding the page's own strip shows, with the encodings that do.
    return problems.join(QStringLiteral("; "));
}
