#pragma once

#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>

#include <vector>

// Colours script source: keywords, the template words of statements, operands with their types,
// numbers, labels, strings, kept-byte annotations and comments.
class ScriptSourceHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit ScriptSourceHighlighter(QTextDocument* document);

protected:
    void highlightBlock(const QString& text) override;

private:
    struct Rule
    {
        QRegularExpression pattern;
        QTextCharFormat format;
    };
    void addRule(const QString& pattern, const QColor& colour, bool bold = false, bool italic = false);

    QTextCharFormat templateFormat;
    std::vector<Rule> rules;
};
