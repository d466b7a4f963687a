#include "TextSearch.h"

#include <algorithm>

TextSearch::TextSearch(const QString& pattern, Qt::CaseSensitivity sensitivity, bool wholeWords)
    : literal(pattern)
{
    QString source = QRegularExpression::escape(pattern);
    if (wholeWords)
        source = QStringLiteral("(?<!\\w)") + source + QStringLiteral("(?!\\w)");
    QRegularExpression::PatternOptions options = QRegularExpression::UseUnicodePropertiesOption;
    if (sensitivity == Qt::CaseInsensitive)
        options |= QRegularExpression::CaseInsensitiveOption;
    expression.setPattern(source);
    expression.setPatternOptions(options);
}

qsizetype TextSearch::indexIn(const QString& text, qsizetype from, qsizetype& length) const
{
    if (isEmpty() || from > text.size())
        return -1;
    const QRegularExpressionMatch match = expression.match(text, from);
    if (!match.hasMatch())
        return -1;
    length = match.capturedLength();
    return match.capturedStart();
}

qsizetype TextSearch::lastIndexIn(const QString& text, qsizetype end, qsizetype& length) const
{
    qsizetype found = -1;
    qsizetype matchLength = 0;
    for (qsizetype at = indexIn(text, 0, matchLength); at >= 0 && at + matchLength <= end;
         at = indexIn(text, at + std::max<qsizetype>(matchLength, 1), matchLength)) {
        found = at;
        length = matchLength;
    }
    return found;
}

int TextSearch::count(const QString& text) const
{
    int replacements = 0;
    replaced(text, QString(), replacements);
    return replacements;
}

QString TextSearch::replaced(const QString& text, const QString& replacement, int& replacements) const
{
    replacements = 0;
    if (isEmpty())
        return text;
    QString result;
    qsizetype copied = 0;
    qsizetype length = 0;
    for (qsizetype at = indexIn(text, 0, length); at >= 0; at = indexIn(text, copied, length)) {
        result += QStringView(text).mid(copied, at - copied);
        result += replacement;
        copied = at + length;
        ++replacements;
    }
    if (replacements == 0)
        return text;
    result += QStringView(text).mid(copied);
    return result;
}
