#include "TextDecoding.h"

#include <QCoreApplication>
#include <QTextCodec>

namespace arcanum {

namespace {

bool survives(QTextCodec* codec, const QByteArray& line)
{
    QTextCodec::ConverterState state;
    const QString text = codec->toUnicode(line.constData(), int(line.size()), &state);
    return state.invalidChars == 0 && codec->fromUnicode(text) == line;
}

} // namespace

QList<int> TextDecoding::lossyLines(QTextCodec* codec, const QByteArray& bytes)
{
    QList<int> lines;
    if (codec == nullptr)
        return lines;
    // Most files are clean: one pass over the whole text settles it without splitting lines.
    if (survives(codec, bytes))
        return lines;
    int number = 1;
    qsizetype start = 0;
    while (start < bytes.size()) {
        qsizetype end = bytes.indexOf('\n', start);
        end = end < 0 ? bytes.size() : end + 1;
        if (!survives(codec, bytes.mid(start, end - start)))
            lines.append(number);
        ++number;
        start = end;
    }
    return lines;
}

QString TextDecoding::describe(const QList<int>& lines, const QString& encoding)
{
    if (lines.isEmpty())
        return QString();
    if (lines.size() == 1)
        return QCoreApplication::translate("TextDecoding", "Line %1 cannot be read in %2 without change.")
            .arg(lines.first()).arg(encoding);
    return QCoreApplication::translate("TextDecoding",
                                       "Line %1 and %2 more lines cannot be read in %3 without change.")
        .arg(lines.first()).arg(lines.size() - 1).arg(encoding);
}

} // namespace arcanum
