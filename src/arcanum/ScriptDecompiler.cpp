#include "ScriptDecompiler.h"

#include "ScriptSyntax.h"

#include <algorithm>
#include <charconv>
#include <unordered_set>

namespace arcanum {

namespace {

constexpr qint32 gotoLineCode = 3;

void appendNumber(std::string& out, qint64 value)
{
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    out.append(digits, end);
}

void appendHex(std::string& out, quint8 byte)
{
    static const char hex[] = "0123456789abcdef";
    out += hex[byte >> 4];
    out += hex[byte & 15];
}

bool isBlank(const Script::Statement& statement)
{
    return statement.code == 0
        && std::all_of(statement.types.begin(), statement.types.end(), [](quint8 t) { return t == 0; })
        && std::all_of(statement.values.begin(), statement.values.end(), [](qint32 v) { return v == 0; });
}

// Writes lines of one script; knows which lines a goto names, so those carry labels.
class Writer
{
public:
    Writer(const Script& script, std::string& text)
        : script(script)
        , out(text)
        , count(std::min<size_t>(size_t(std::max(script.getHeader().lineCount, 0)), script.getLines().size()))
    {
    }

    void header(int number);
    void lines();

private:
    void line(size_t index);
    void statement(const Script::Statement& statement, const ScriptSyntax::Template* entry, const char* unknownKind);
    void operand(const Script::Statement& statement, const ScriptSyntax::Template& entry, int slot);
    // The slots a sentence does not show, from slot `shown` on (and object value words before it).
    void annotation(const Script::Statement& statement, const std::string& operands);
    void findTargets();
    bool isTarget(qint32 value) const { return value >= 0 && size_t(value) < count && targets.count(value) != 0; }
    void headerItem(bool& opened, const char* key);

    const Script& script;
    std::string& out;
    size_t count;
    std::unordered_set<qint32> targets;
    const ScriptSyntax& syntax = ScriptSyntax::instance();
};

void Writer::headerItem(bool& opened, const char* key)
{
    out += opened ? " " : "header ";
    opened = true;
    out += key;
    out += '=';
}

void Writer::header(int number)
{
    const Script::Header& head = script.getHeader();
    out += "script ";
    if (number >= 0) {
        appendNumber(out, number);
        out += ' ';
    }
    const std::string desc = head.desc();
    out += ScriptDecompiler::quoted(desc);
    out += '\n';
    bool opened = false;
    const auto word = [&](const char* key, qint64 value, qint64 fallback) {
        if (value == fallback)
            return;
        headerItem(opened, key);
        appendNumber(out, value);
    };
    word("word0", head.headerWord, 0);
    if (std::any_of(head.headerBytes.begin(), head.headerBytes.end(), [](quint8 b) { return b != 0; })) {
        headerItem(opened, "bytes4");
        for (quint8 byte : head.headerBytes)
            appendHex(out, byte);
    }
    word("word48", head.headerWord48, 0);
    word("lines", head.lineCount, qint64(count));
    word("bound", head.lineBound, ScriptSyntax::defaultLineBound(qint64(count)));
    word("word60", head.headerWord60, 0);
    // What follows the description's terminating zero, without the zeros at its end.
    size_t tailEnd = Script::DescSize;
    while (tailEnd > desc.size() + 1 && head.description[tailEnd - 1] == 0)
        --tailEnd;
    if (tailEnd > desc.size() + 1) {
        headerItem(opened, "desc-tail");
        for (size_t i = desc.size() + 1; i < tailEnd; ++i)
            appendHex(out, quint8(head.description[i]));
    }
    if (opened)
        out += '\n';
}

void Writer::findTargets()
{
    for (size_t i = 0; i < count; ++i) {
        const Script::Line& at = script.getLines()[i];
        for (const Script::Statement* action : {&at.thenAction, &at.elseAction})
            if (action->code == gotoLineCode && action->types[0] == Script::Number)
                targets.insert(action->values[0]);
    }
}

void Writer::lines()
{
    findTargets();
    for (size_t i = 0; i < count; ++i)
        line(i);
}

void Writer::line(size_t index)
{
    const Script::Line& at = script.getLines()[index];
    if (isTarget(qint32(index))) {
        out += ScriptSyntax::lineLabel(qint64(index));
        out += ": ";
    }
    if (at.condition.code != 0) {
        out += "IF ";
        statement(at.condition, syntax.condition(at.condition.code), "condition");
        out += " THEN ";
    } else {
        out += "DO";
        // A line without condition keeps whatever its condition slots hold.
        if (!isBlank(at.condition))
            annotation(at.condition, std::string());
        out += ' ';
    }
    statement(at.thenAction, syntax.action(at.thenAction.code), "action");
    if (!isBlank(at.elseAction)) {
        out += " ELSE ";
        statement(at.elseAction, syntax.action(at.elseAction.code), "action");
    }
    out += '\n';
}

void Writer::statement(const Script::Statement& st, const ScriptSyntax::Template* entry, const char* unknownKind)
{
    if (entry == nullptr) {
        out += Script::unknownText(unknownKind, st.code);
        annotation(st, std::string());
        return;
    }
    out += entry->pieces[0];
    for (size_t slot = 0; slot < entry->operands.size(); ++slot) {
        operand(st, *entry, int(slot));
        out += entry->pieces[slot + 1];
    }
    annotation(st, entry->operands);
}

void Writer::operand(const Script::Statement& st, const ScriptSyntax::Template& entry, int slot)
{
    const quint8 type = st.types[size_t(slot)];
    const qint32 value = st.values[size_t(slot)];
    if (entry.operands[size_t(slot)] == ScriptSyntax::ObjectMark) {
        out += ScriptSyntax::objectOperand(type);
    } else if (ScriptSyntax::takesLabel(entry, slot) && type == Script::Number && isTarget(value)) {
        out += "(Number ";
        out += ScriptSyntax::lineLabel(value);
        out += ')';
    } else {
        out += ScriptSyntax::numberOperand(type, value);
    }
}

void Writer::annotation(const Script::Statement& st, const std::string& operands)
{
    bool opened = false;
    const auto item = [&](const char* key, size_t slot, qint64 value) {
        out += opened ? " " : " [";
        opened = true;
        out += key;
        appendNumber(out, qint64(slot) + 1);
        out += '=';
        appendNumber(out, value);
    };
    for (size_t slot = 0; slot < size_t(Script::Slots); ++slot) {
        const bool used = slot < operands.size();
        if (!used && st.types[slot] != 0)
            item("type", slot, st.types[slot]);
        const bool valueShown = used && operands[slot] == ScriptSyntax::NumberMark;
        if (!valueShown && st.values[slot] != 0)
            item("value", slot, st.values[slot]);
    }
    if (opened)
        out += ']';
}

} // namespace

std::string ScriptDecompiler::quoted(const std::string& bytes)
{
    std::string out = "\"";
    for (char c : bytes) {
        const auto byte = quint8(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (byte >= 0x20 && byte < 0x7f) {
            out += c;
        } else if (byte >= 0xa0) {
            // Latin-1, as the Script tab shows the description, written as UTF-8.
            out += char(0xc0 | (byte >> 6));
            out += char(0x80 | (byte & 0x3f));
        } else {
            out += "\\x";
            appendHex(out, byte);
        }
    }
    out += '"';
    return out;
}

std::string ScriptDecompiler::decompile(const Script& script, int number)
{
    std::string text;
    text.reserve(64 + script.getLines().size() * 96);
    Writer writer(script, text);
    writer.header(number);
    writer.lines();
    return text;
}

} // namespace arcanum
