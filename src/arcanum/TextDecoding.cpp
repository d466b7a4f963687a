#include "TextDecoding.h"

#include "TextCodec.h"

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

constexpr char16_t REPLACEMENT = 0xFFFD;
constexpr char16_t FIRST_C1 = 0x80;
constexpr char16_t LAST_C1 = 0x9F;
constexpr char16_t FIRST_PRIVATE_USE = 0xE000;
constexpr char16_t LAST_PRIVATE_USE = 0xF8FF;

} // namespace

bool TextDecoding::isUnreadable(char16_t character)
{
    return character == REPLACEMENT || (character >= FIRST_C1 && character <= LAST_C1)
        || (character >= FIRST_PRIVATE_USE && character <= LAST_PRIVATE_USE);
}

TextDecoding::Unreadable TextDecoding::unreadable(QTextCodec* codec, const QByteArray& bytes)
{
    if (codec == nullptr)
        return {};
    return unreadable(TextCodec::decode(codec, bytes));
}

TextDecoding::Unreadable TextDecoding::unreadable(const QString& decoded)
{
    Unreadable found;
    int line = 1;
    for (const QChar character : decoded) {
        if (character == QLatin1Char('\n'))
            ++line;
        else if (isUnreadable(character.unicode()) && found.characters++ == 0)
            found.firstLine = line;
    }
    return found;
}

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
