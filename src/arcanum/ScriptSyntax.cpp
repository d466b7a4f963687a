#include "ScriptSyntax.h"

#include <algorithm>
#include <limits>

namespace arcanum {

namespace {

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

} // namespace

const ScriptSyntax& ScriptSyntax::instance()
{
    static const ScriptSyntax syntax;
    return syntax;
}

ScriptSyntax::ScriptSyntax()
{
    for (qint32 code = 1; code <= Script::ConditionCount; ++code)
        conditionList.push_back(split(code, true, Script::conditionString(code - 1)));
    for (qint32 code = 0; code < Script::ActionCount; ++code)
        actionList.push_back(split(code, false, Script::actionString(code)));
    for (const Template& entry : conditionList)
        conditionKeys.emplace(entry.key, &entry);
    for (const Template& entry : actionList)
        actionKeys.emplace(entry.key, &entry);
    for (int type = 0; type < Script::NumTypeCount; ++type)
        numberKeys.push_back(keyOf(numberTypeName(type)));
    for (int type = 0; type < Script::ObjectTypeCount; ++type)
        objectKeys.push_back(keyOf(objectName(type)));
}

ScriptSyntax::Template ScriptSyntax::split(qint32 code, bool condition, const std::string& text)
{
    Template entry;
    entry.code = code;
    entry.condition = condition;
    entry.text = text;
    Script::Tokens tokens;
    Script::tokenize(text, tokens);
    std::string piece;
    for (const Script::Token& token : tokens) {
        if (token.kind == Script::Token::Text) {
            piece += token.text;
            appendKey(entry.key, token.text);
            continue;
        }
        const char mark = token.kind == Script::Token::Obj ? ObjectMark : NumberMark;
        entry.pieces.push_back(piece);
        piece.clear();
        entry.operands += mark;
        entry.key += mark;
    }
    entry.pieces.push_back(piece);
    return entry;
}

const ScriptSyntax::Template* ScriptSyntax::condition(qint32 code) const
{
    return Script::isConditionCode(code) ? &conditionList[size_t(code - 1)] : nullptr;
}

const ScriptSyntax::Template* ScriptSyntax::action(qint32 code) const
{
    return Script::isActionCode(code) ? &actionList[size_t(code)] : nullptr;
}

std::vector<const ScriptSyntax::Template*> ScriptSyntax::withKey(bool isCondition, const std::string& key) const
{
    std::vector<const Template*> found;
    const auto range = (isCondition ? conditionKeys : actionKeys).equal_range(key);
    for (auto it = range.first; it != range.second; ++it)
        found.push_back(it->second);
    // The catalogue's order, whatever order the table keeps.
    std::sort(found.begin(), found.end());
    return found;
}

void ScriptSyntax::appendKey(std::string& key, std::string_view text)
{
    for (char c : text)
        if (!isSpace(c))
            key += lower(c);
}

std::string ScriptSyntax::keyOf(std::string_view text)
{
    std::string key;
    appendKey(key, text);
    return key;
}

int ScriptSyntax::numberType(const std::string& key)
{
    const std::vector<std::string>& keys = instance().numberKeys;
    const auto found = std::find(keys.begin(), keys.end(), key);
    return found == keys.end() ? -1 : int(found - keys.begin());
}

int ScriptSyntax::objectType(const std::string& key)
{
    const std::vector<std::string>& keys = instance().objectKeys;
    const auto found = std::find(keys.begin(), keys.end(), key);
    return found == keys.end() ? -1 : int(found - keys.begin());
}

std::string ScriptSyntax::numberTypeName(int type)
{
    return type >= 0 && type < Script::NumTypeCount ? Script::numTypeToString(Script::NumType(type))
                                                    : "type " + std::to_string(type);
}

std::string ScriptSyntax::objectName(int type)
{
    return type >= 0 && type < Script::ObjectTypeCount ? Script::objectTypeToString(Script::ObjectType(type))
                                                       : "object " + std::to_string(type);
}

std::string ScriptSyntax::numberOperand(int type, qint32 value)
{
    return '(' + numberTypeName(type) + ' ' + std::to_string(value) + ')';
}

std::string ScriptSyntax::objectOperand(int type)
{
    return '(' + objectName(type) + ')';
}

std::string ScriptSyntax::pattern(const Template& entry)
{
    std::string text = entry.pieces[0];
    for (size_t i = 0; i < entry.operands.size(); ++i) {
        text += entry.operands[i] == ObjectMark ? "(Object)" : "(Type value)";
        text += entry.pieces[i + 1];
    }
    return text;
}

qint32 ScriptSyntax::defaultLineBound(qint64 lineCount)
{
    if (lineCount <= 0)
        return 0;
    return qint32(std::min<qint64>(lineCount + 1, std::numeric_limits<qint32>::max()));
}

std::string ScriptSyntax::lineLabel(qint64 line)
{
    return "line_" + std::to_string(line);
}

bool ScriptSyntax::takesLabel(const Template& entry, int operand)
{
    constexpr qint32 gotoLine = 3;
    return !entry.condition && entry.code == gotoLine && operand == 0;
}

} // namespace arcanum
