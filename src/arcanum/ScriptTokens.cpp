// Turning a statement into display pieces (text and operands) and its operands back into slots.
#include "Script.h"

namespace arcanum {

namespace {

Script::Token textToken(const std::string& text)
{
    Script::Token token;
    token.kind = Script::Token::Text;
    token.text = text;
    return token;
}

Script::Token placeholderToken(const std::string& piece)
{
    Script::Token token;
    if (piece == "(num)") {
        token.kind = Script::Token::Num;
        token.numType = Script::Number;
        token.value = 1;
    } else if (piece == "(obj)") {
        token.kind = Script::Token::Obj;
        token.value = 1;
    } else if (piece == "(linenum)") {
        token.kind = Script::Token::LineNum;
    } else {
        token = textToken("UNKNOWN TOKEN FOUND");
    }
    return token;
}

Script::Tokens withOperands(const std::string& templ, const Script::Statement& statement)
{
    Script::Tokens tokens;
    Script::tokenize(templ, tokens);
    Script::loadTokens(statement, tokens);
    return tokens;
}

} // namespace

void Script::tokenize(const std::string& templ, Tokens& out)
{
    std::string rest = templ;
    while (!rest.empty()) {
        const size_t open = rest.find('(');
        if (open == std::string::npos)
            break;
        if (open > 0) {
            out.push_back(textToken(rest.substr(0, open)));
            rest.erase(0, open);
        }
        const size_t close = rest.find(')');
        if (close == std::string::npos)
            break; // an unclosed "(" is shown as text
        out.push_back(placeholderToken(rest.substr(0, close + 1)));
        rest.erase(0, close + 1);
    }
    if (!rest.empty())
        out.push_back(textToken(rest));
}

Script::Tokens Script::tokenizeCondition(const Statement& st)
{
    // Checked before the look-up: a damaged file may hold any code.
    return withOperands(isConditionCode(st.code) ? conditionString(st.code - 1) : unknownText("condition", st.code),
                        st);
}

Script::Tokens Script::tokenizeAction(const Statement& st)
{
    return withOperands(isActionCode(st.code) ? actionString(st.code) : unknownText("action", st.code), st);
}

void Script::loadTokens(const Statement& st, Tokens& tokens)
{
    size_t slot = 0;
    for (Token& token : tokens) {
        if (slot >= st.types.size())
            break;
        if (token.kind == Token::Num) {
            token.numType = st.types[slot];
            token.value = st.values[slot];
            ++slot;
        } else if (token.kind == Token::Obj) {
            token.value = st.types[slot];
            ++slot;
        }
    }
}

void Script::unloadTokens(const Tokens& tokens, Statement& st)
{
    size_t slot = 0;
    for (const Token& token : tokens) {
        if (slot >= st.types.size())
            break;
        if (token.kind == Token::Num) {
            st.types[slot] = static_cast<quint8>(token.numType);
            st.values[slot] = token.value;
            ++slot;
        } else if (token.kind == Token::Obj) {
            st.types[slot] = static_cast<quint8>(token.value);
            ++slot;
        }
    }
}

} // namespace arcanum
