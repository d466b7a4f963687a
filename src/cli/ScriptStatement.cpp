#include "ScriptStatement.h"

#include "ScriptSyntax.h"

#include <QJsonArray>

using arcanum::Script;

ScriptStatement::ScriptStatement(const Script::Statement& source, Script::LineType kind, int lineIndex)
    : statement(source)
    , which(kind)
    , line(lineIndex)
    , tokens(kind == Script::LineIf ? Script::tokenizeCondition(source) : Script::tokenizeAction(source))
{
}

QList<ScriptStatement> ScriptStatement::ofLine(const Script& script, int index)
{
    const Script::Line& at = script.getLines().at(size_t(index));
    if (at.condition.code == 0)
        return {ScriptStatement(at.thenAction, Script::LineDo, index)};
    return {ScriptStatement(at.condition, Script::LineIf, index), ScriptStatement(at.thenAction, Script::LineThen, index),
            ScriptStatement(at.elseAction, Script::LineElse, index)};
}

QString ScriptStatement::keyword() const
{
    switch (which) {
    case Script::LineIf: return QStringLiteral("IF");
    case Script::LineThen: return QStringLiteral("THEN");
    case Script::LineElse: return QStringLiteral("ELSE");
    case Script::LineDo: break;
    }
    return QStringLiteral("DO");
}

// Operands are spelt as the source of a script spells them, so a dump reads like the source.
QString ScriptStatement::operandText(const Script::Token& token)
{
    switch (token.kind) {
    case Script::Token::Num:
        return QString::fromStdString(arcanum::ScriptSyntax::numberOperand(token.numType, token.value));
    case Script::Token::Obj:
        return QString::fromStdString(arcanum::ScriptSyntax::objectOperand(token.value));
    case Script::Token::LineNum:
        return QStringLiteral("(line)");
    default:
        return QString::fromStdString(token.text);
    }
}

QString ScriptStatement::sentence() const
{
    QString text;
    for (const Script::Token& token : tokens)
        text += operandText(token);
    return text.simplified();
}

bool ScriptStatement::knownCode() const
{
    return isCondition() ? Script::isConditionCode(statement.code) : Script::isActionCode(statement.code);
}

// The statement's place: the header, the lines before, the statements before it in its line.
quint64 ScriptStatement::offset() const
{
    const int slot = which == Script::LineIf ? 0 : which == Script::LineElse ? 2 : 1;
    return quint64(Script::HeaderSize) + quint64(line) * Script::LineSize + quint64(slot) * Script::StatementSize;
}

QList<ScriptStatement::Problem> ScriptStatement::problems() const
{
    QList<Problem> found;
    if (!knownCode())
        found << Problem{offset(), QStringLiteral("%1 code %2 is not in the catalogue")
                                       .arg(isCondition() ? "condition" : "action").arg(statement.code)};
    int slot = 0;
    for (const Script::Token& token : tokens) {
        if (slot >= Script::Slots || (token.kind != Script::Token::Num && token.kind != Script::Token::Obj))
            continue;
        const bool number = token.kind == Script::Token::Num;
        const int type = number ? token.numType : token.value;
        if (type >= (number ? Script::NumTypeCount : Script::ObjectTypeCount))
            found << Problem{offset() + 4 + quint64(slot),
                             QStringLiteral("%1 operand %2 has the unknown type %3")
                                 .arg(keyword()).arg(slot + 1).arg(type)};
        ++slot;
    }
    return found;
}

QJsonObject ScriptStatement::toJson() const
{
    QJsonArray operands;
    for (const Script::Token& token : tokens) {
        if (token.kind == Script::Token::Num)
            operands.append(QJsonObject{
                {"type", QString::fromStdString(Script::numTypeToString(Script::NumType(token.numType)))},
                {"value", token.value}});
        else if (token.kind == Script::Token::Obj)
            operands.append(QJsonObject{
                {"type", "object"},
                {"value", QString::fromStdString(Script::objectTypeToString(Script::ObjectType(token.value)))}});
    }
    return QJsonObject{{"keyword", keyword()}, {"code", statement.code}, {"text", sentence()}, {"operands", operands}};
}
