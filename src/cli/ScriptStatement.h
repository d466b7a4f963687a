#pragma once

#include "Script.h"

#include <QJsonObject>
#include <QList>
#include <QString>

// One statement of a script line as a reader sees it: its keyword, the sentence with each operand's
// type and value, the problems a damaged file gives it and where they stand in the file.
class ScriptStatement
{
public:
    struct Problem
    {
        quint64 offset;
        QString message;
    };

    ScriptStatement(const arcanum::Script::Statement& statement, arcanum::Script::LineType which, int line);

    // "IF", "THEN", "ELSE" or "DO".
    QString keyword() const;
    // The template with its operands filled in, e.g. "(Local Var 3) is (Number 5)".
    QString sentence() const;
    QList<Problem> problems() const;
    QJsonObject toJson() const;

    // The statements a line shows: IF, THEN and ELSE, or only DO for a line without condition.
    static QList<ScriptStatement> ofLine(const arcanum::Script& script, int line);

private:
    bool isCondition() const { return which == arcanum::Script::LineIf; }
    bool knownCode() const;
    quint64 offset() const;
    static QString operandText(const arcanum::Script::Token& token);

    arcanum::Script::Statement statement;
    arcanum::Script::LineType which;
    int line;
    arcanum::Script::Tokens tokens;
};
