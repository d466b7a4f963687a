#pragma once

#include <QRegularExpression>
#include <QString>

// What the find bar looks for: a literal text, with or without regard to case, anywhere or as a whole
// word. A word is letters, digits and "_" in any script, so Cyrillic texts match as whole words too.
class TextSearch
{
public:
    TextSearch(const QString& pattern, Qt::CaseSensitivity sensitivity, bool wholeWords);

    bool isEmpty() const { return literal.isEmpty(); }
    QString pattern() const { return literal; }
    // The first match starting at or after from (-1 when none), its length in length.
    qsizetype indexIn(const QString& text, qsizetype from, qsizetype& length) const;
    // The last match ending at or before end (-1 when none).
    qsizetype lastIndexIn(const QString& text, qsizetype end, qsizetype& length) const;
    int count(const QString& text) const;
    // text with every match replaced by replacement, taken as it is written ("$1" and "\1" mean nothing).
    QString replaced(const QString& text, const QString& replacement, int& replacements) const;

private:
    QString literal;
    QRegularExpression expression;
};
