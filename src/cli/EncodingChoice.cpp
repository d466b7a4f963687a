#include "EncodingChoice.h"

#include "DialogueFileNew.h"
#include "EncodingGuess.h"
#include "FormatRegistry.h"
#include "TextDecoding.h"

#include <QFile>
#include <QStringList>
#include <QTextCodec>

using arcanum::FileFormat;

namespace {
const int LISTED_ENCODINGS = 3;
}

EncodingChoice::EncodingChoice(const QString& value)
    : value(value)
    , automatic(value.compare(QLatin1String("auto"), Qt::CaseInsensitive) == 0)
    , fixed(value.isEmpty() || automatic ? nullptr : QTextCodec::codecForName(value.toLatin1()))
{
}

QTextCodec* EncodingChoice::codecFor(FileFormat::Kind kind, const QByteArray& bytes) const
{
    QTextCodec* byDefault = kind == FileFormat::Kind::Dialogue ? arcanum::DialogueFileNew::defaultCodec()
                                                               : QTextCodec::codecForName("UTF-8");
    if (fixed != nullptr)
        return fixed;
    return automatic ? arcanum::EncodingGuess::best(bytes, byDefault) : byDefault;
}

QTextCodec* EncodingChoice::codecFor(const QString& path) const
{
    const FileFormat* format = arcanum::FormatRegistry::byPath(path);
    const FileFormat::Kind kind = format ? format->kind : FileFormat::Kind::Message;
    QByteArray bytes;
    QFile file(path);
    if (automatic && file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    return codecFor(kind, bytes);
}

QString EncodingChoice::describe(QTextCodec* codec) const
{
    const QString name = QString::fromLatin1(codec->name());
    return automatic ? QStringLiteral("%1 (guessed)").arg(name) : name;
}

QString EncodingChoice::unreadable(QTextCodec* codec, const QByteArray& bytes) const
{
    const arcanum::TextDecoding::Unreadable found = arcanum::TextDecoding::unreadable(codec, bytes);
    if (found.isClean())
        return QString();
    QString text = QStringLiteral("%1 %2 cannot be read in %3 (first: line %4)")
                       .arg(found.characters)
                       .arg(found.characters == 1 ? "character" : "characters")
                       .arg(describe(codec))
                       .arg(found.firstLine);
    QStringList clean;
    for (QTextCodec* candidate : arcanum::EncodingGuess::cleanEncodings(bytes).mid(0, LISTED_ENCODINGS))
        clean << QString::fromLatin1(candidate->name());
    if (!clean.isEmpty())
        text += QStringLiteral("; the file reads cleanly in %1: pick one with --encoding, or --encoding auto")
                    .arg(clean.join(QStringLiteral(", ")));
    return text;
}
