#include "ScriptSourceHighlighter.h"

#include "Script.h"

#include <QStringList>

using arcanum::Script;

ScriptSourceHighlighter::ScriptSourceHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document)
{
    templateFormat.setForeground(QColor(0x1f, 0x3a, 0x5f));
    QStringList types;
    for (int type = 0; type < Script::NumTypeCount; ++type)
        types << QRegularExpression::escape(QString::fromStdString(Script::numTypeToString(Script::NumType(type))));
    types << QStringLiteral("type\\s+\\d+");
    // Later rules paint over earlier ones: an operand's number over the operand, a comment over all.
    addRule(QStringLiteral("\\((?:[^()]|\\([^()]*\\))*\\)"), QColor(0x00, 0x6d, 0x6d));
    addRule(QStringLiteral("(?<=\\()\\s*(?:%1)\\b").arg(types.join('|')), QColor(0x00, 0x6d, 0x6d), true);
    addRule(QStringLiteral("(?<![\\w.])[-+]?\\d+\\b"), QColor(0xa0, 0x30, 0xa0));
    addRule(QStringLiteral("(?i)\\b(?:IF|THEN|ELSE|DO)\\b|^\\s*(?:script|header)\\b"), QColor(0x10, 0x30, 0xc0), true);
    addRule(QStringLiteral("^\\s*[A-Za-z_]\\w*\\s*:"), QColor(0xb0, 0x60, 0x00), true);
    addRule(QStringLiteral("\\[[^\\]]*\\]?"), QColor(0x70, 0x70, 0x70), false, true);
    addRule(QStringLiteral("\"(?:[^\"\\\\]|\\\\.)*\"?"), QColor(0x20, 0x80, 0x20));
    addRule(QStringLiteral("//.*$"), QColor(0x80, 0x80, 0x80), false, true);
}

void ScriptSourceHighlighter::addRule(const QString& pattern, const QColor& colour, bool bold, bool italic)
{
    Rule rule{QRegularExpression(pattern), QTextCharFormat()};
    rule.format.setForeground(colour);
    if (bold)
        rule.format.setFontWeight(QFont::Bold);
    rule.format.setFontItalic(italic);
    rules.push_back(rule);
}

void ScriptSourceHighlighter::highlightBlock(const QString& text)
{
    // The sentence words: everything a line says after its keyword.
    static const QRegularExpression statement(QStringLiteral("\\b(?:IF|DO)\\b"),
                                              QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch start = statement.match(text);
    if (start.hasMatch())
        setFormat(int(start.capturedEnd()), int(text.size() - start.capturedEnd()), templateFormat);
    for (const Rule& rule : rules) {
        auto matches = rule.pattern.globalMatch(text);
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            setFormat(int(match.capturedStart()), int(match.capturedLength()), rule.format);
        }
    }
}
