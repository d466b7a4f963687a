#include "DialogueDocument.h"

#include "TextDecoding.h"

#include <QFile>
#include <QTextCodec>

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
        if (line.errors() == nullptr)
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
