#include "ScriptCompiler.h"

#include "ScriptSyntax.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <map>
#include <optional>

namespace arcanum {

namespace {

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\r';
}

bool isIdentStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isIdentChar(char c)
{
    return isIdentStart(c) || (c >= '0' && c <= '9');
}

bool sameWord(std::string_view word, std::string_view upper)
{
    if (word.size() != upper.size())
        return false;
    for (size_t i = 0; i < word.size(); ++i)
        if ((word[i] >= 'a' && word[i] <= 'z' ? char(word[i] - 32) : word[i]) != upper[i])
            return false;
    return true;
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

bool isIdentifier(std::string_view text)
{
    return !text.empty() && isIdentStart(text[0]) && std::all_of(text.begin(), text.end(), isIdentChar);
}

// A decimal integer with an optional sign; nullopt when text is no integer at all.
std::optional<qint64> integer(std::string_view text)
{
    if (text.empty() || text.size() > 20)
        return text.size() > 20
                && std::all_of(text.begin() + 1, text.end(), [](char c) { return c >= '0' && c <= '9'; })
            ? std::optional<qint64>(std::numeric_limits<qint64>::max())
            : std::nullopt;
    qint64 value = 0;
    const char* begin = text.data() + (text[0] == '+' ? 1 : 0);
    const auto [end, error] = std::from_chars(begin, text.data() + text.size(), value);
    if (end != text.data() + text.size() || begin == end)
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return std::numeric_limits<qint64>::max();
    return value;
}

bool fitsInt32(qint64 value)
{
    return value >= std::numeric_limits<qint32>::min() && value <= std::numeric_limits<qint32>::max();
}

size_t editDistance(const std::string& a, const std::string& b)
{
    std::vector<size_t> row(b.size() + 1);
    for (size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (size_t i = 1; i <= a.size(); ++i) {
        size_t diagonal = row[0];
        row[0] = i;
        for (size_t j = 1; j <= b.size(); ++j) {
            const size_t above = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] == b[j - 1] ? 0 : 1)});
            diagonal = above;
        }
    }
    return row[b.size()];
}

std::string quote(std::string_view text)
{
    return '\'' + std::string(text) + '\'';
}

// One piece of a logical line: where a physical line's text starts in it.
struct Piece
{
    size_t at;
    int line;
    std::string_view physical;
    size_t offset;
};

// An operand as written between parentheses.
struct Operand
{
    char mark = 0; // ScriptSyntax::NumberMark, ObjectMark, or 0 when it could not be read
    int type = 0;
    qint32 value = 0;
    std::string label;
    size_t at = 0;
    size_t valueAt = 0;
};

struct LabelUse
{
    std::string name;
    size_t line;
    Script::LineType which;
    int diagnosticLine;
    int diagnosticColumn;
};

struct Item
{
    std::string_view key;
    std::string_view value;
    size_t keyAt;
    size_t valueAt;
};

class Compilation
{
public:
    Compilation(std::string_view source, qint64 lineLimit)
        : source(source)
        , limit(lineLimit)
    {
    }

    ScriptCompiler::Result run();

private:
    // Reading physical lines into logical ones.
    void logicalLine(size_t& pos, int& physicalLine);
    size_t codeEnd(std::string_view physical) const;
    // end, when given, is where the text the mistake is about ends (a whole statement).
    void error(size_t at, std::string message, size_t end = std::string::npos);
    std::pair<int, int> place(size_t at) const;

    // One logical line.
    void parseLine();
    void skipSpaces();
    bool atEnd() const { return pos >= text.size(); }
    std::string_view word();
    bool label();
    void ifLine();
    void doLine();
    void addLine(const Script::Line& line);
    void scriptLine();
    void headerLine();
    bool keyword(std::string_view upper);
    void expectEnd();
    size_t segmentEnd(std::string_view stopWord) const;
    void statement(Script::Statement& out, bool condition, Script::LineType which, std::string_view stopWord);
    std::optional<std::string> readKey(size_t begin, size_t end, std::vector<Operand>& operands);
    Operand operand(size_t begin, size_t end);
    void numberValue(Operand& op, std::string_view value, size_t valueAt);
    bool unknownCode(const std::string& key, bool condition, Script::Statement& out, size_t at);
    const ScriptSyntax::Template* match(const std::string& key, const std::vector<Operand>& operands, bool condition,
                                        size_t at);
    void mismatch(const std::string& key, const std::vector<Operand>& operands, bool condition, size_t at);
    std::string nearest(const std::string& key, bool condition) const;
    void fill(Script::Statement& out, const ScriptSyntax::Template& entry, std::vector<Operand>& operands,
              Script::LineType which);
    std::vector<Item> items(size_t begin, size_t end);
    void annotation(Script::Statement& out, const std::string& shown);
    std::optional<qint64> itemNumber(const Item& item, qint64 low, qint64 high);
    void headerItem(const Item& item);
    std::optional<std::string> hexBytes(const Item& item, size_t most);
    std::optional<std::string> description(size_t& at);

    // After the last line.
    void resolveLabels();
    void finishHeader();

    std::string_view source;
    qint64 limit;
    ScriptCompiler::Result result;
    const ScriptSyntax& syntax = ScriptSyntax::instance();

    std::string text;
    std::vector<Piece> pieces;
    size_t pos = 0;

    // A label names the next IF or DO line (the line after the last for a label at the end).
    std::map<std::string, std::pair<size_t, size_t>> labels; // name: line index, source line of the label
    std::vector<LabelUse> labelUses;
    bool scriptSeen = false;
    bool headerSeen = false;
    std::string desc;
    std::optional<std::string> descTail;
    std::pair<int, int> descTailPlace;
    std::optional<qint32> lineCount;
    std::pair<int, int> lineCountPlace;
    std::optional<qint32> lineBound;
    bool tooManyLines = false;
};

ScriptCompiler::Result Compilation::run()
{
    size_t at = 0;
    int physicalLine = 1;
    while (at < source.size()) {
        logicalLine(at, physicalLine);
        pos = 0;
        parseLine();
    }
    resolveLabels();
    finishHeader();
    std::stable_sort(result.diagnostics.begin(), result.diagnostics.end(),
                     [](const ScriptCompiler::Diagnostic& a, const ScriptCompiler::Diagnostic& b) {
                         return a.line != b.line ? a.line < b.line : a.column < b.column;
                     });
    if (!result.ok()) {
        result.lines.clear();
        result.header = Script::Header{};
    }
    return std::move(result);
}

// Where the code of a physical line ends: at a comment, unless the "//" stands in a string.
size_t Compilation::codeEnd(std::string_view physical) const
{
    bool inString = false;
    for (size_t i = 0; i < physical.size(); ++i) {
        const char c = physical[i];
        if (inString && c == '\\')
            ++i;
        else if (c == '"')
            inString = !inString;
        else if (!inString && c == '/' && i + 1 < physical.size() && physical[i + 1] == '/')
            return i;
    }
    return physical.size();
}

// Joins physical lines that end in a backslash; remembers where each came from for diagnostics.
void Compilation::logicalLine(size_t& at, int& physicalLine)
{
    text.clear();
    pieces.clear();
    while (at < source.size()) {
        size_t end = source.find('\n', at);
        if (end == std::string_view::npos)
            end = source.size();
        std::string_view physical = source.substr(at, end - at);
        at = end + 1;
        const int number = physicalLine++;
        std::string_view code = physical.substr(0, codeEnd(physical));
        while (!code.empty() && isSpace(code.back()))
            code.remove_suffix(1);
        const bool continues = !code.empty() && code.back() == '\\';
        if (continues)
            code.remove_suffix(1);
        pieces.push_back(Piece{text.size(), number, physical, 0});
        text.append(code);
        if (!continues)
            return;
        text += ' ';
    }
}

std::pair<int, int> Compilation::place(size_t at) const
{
    auto piece = std::upper_bound(pieces.begin(), pieces.end(), at,
                                  [](size_t p, const Piece& candidate) { return p < candidate.at; });
    if (piece != pieces.begin())
        --piece;
    const size_t bytes = std::min(piece->offset + (at - piece->at), piece->physical.size());
    int column = 1;
    for (size_t i = 0; i < bytes; ++i)
        if ((quint8(piece->physical[i]) & 0xc0) != 0x80)
            ++column;
    return {piece->line, column};
}

void Compilation::error(size_t at, std::string message, size_t end)
{
    const auto [line, column] = place(at);
    int length = 0;
    if (end != std::string::npos) {
        while (end > at && isSpace(text[end - 1]))
            --end;
        const auto [endLine, endColumn] = place(end);
        length = endLine == line ? endColumn - column : 0;
    }
    result.diagnostics.push_back({line, column, std::move(message), length});
}

void Compilation::skipSpaces()
{
    while (!atEnd() && isSpace(text[pos]))
        ++pos;
}

std::string_view Compilation::word()
{
    const size_t begin = pos;
    while (!atEnd() && isIdentChar(text[pos]))
        ++pos;
    return std::string_view(text).substr(begin, pos - begin);
}

bool Compilation::keyword(std::string_view upper)
{
    skipSpaces();
    const size_t begin = pos;
    if (sameWord(word(), upper))
        return true;
    pos = begin;
    return false;
}

void Compilation::expectEnd()
{
    skipSpaces();
    if (!atEnd())
        error(pos, "unexpected " + quote(trimmed(std::string_view(text).substr(pos))) + " at the end of the line");
}

// A label before the line's keyword: "name:".
bool Compilation::label()
{
    const size_t begin = pos;
    const std::string_view name = word();
    skipSpaces();
    if (name.empty() || !isIdentStart(name[0]) || atEnd() || text[pos] != ':') {
        pos = begin;
        return false;
    }
    ++pos;
    const auto known = labels.find(std::string(name));
    if (known != labels.end())
        error(begin, "label " + quote(name) + " is already defined on line " + std::to_string(known->second.second));
    else
        labels.emplace(std::string(name), std::make_pair(result.lines.size(), size_t(place(begin).first)));
    return true;
}

void Compilation::parseLine()
{
    skipSpaces();
    if (atEnd())
        return;
    const bool labelled = label();
    skipSpaces();
    if (atEnd())
        return; // a label on a line of its own names the next line
    const size_t begin = pos;
    const std::string_view first = word();
    if (sameWord(first, "IF") || sameWord(first, "DO")) {
        sameWord(first, "IF") ? ifLine() : doLine();
        return;
    }
    if (labelled) {
        error(begin, "a label marks a line of IF or DO");
        return;
    }
    if (sameWord(first, "SCRIPT"))
        scriptLine();
    else if (sameWord(first, "HEADER"))
        headerLine();
    else
        error(begin,
              "a line starts with IF, DO, script or header, not " + quote(first.empty() ? text.substr(pos, 1) : first));
}

void Compilation::ifLine()
{
    Script::Line line;
    statement(line.condition, true, Script::LineIf, "THEN");
    if (keyword("THEN")) {
        statement(line.thenAction, false, Script::LineThen, "ELSE");
        if (keyword("ELSE"))
            statement(line.elseAction, false, Script::LineElse, "ELSE");
        expectEnd();
    } else {
        error(pos, "IF needs THEN and an action");
    }
    addLine(line);
}

// The line limit is reported once, at the first line past it.
void Compilation::addLine(const Script::Line& line)
{
    if (qint64(result.lines.size()) >= limit && !tooManyLines) {
        tooManyLines = true;
        error(0,
              "more than " + std::to_string(limit) + " lines: a script file counts at most " + std::to_string(limit));
    }
    result.lines.push_back(line);
}

void Compilation::doLine()
{
    Script::Line line;
    skipSpaces();
    // The condition slots of a line without condition, when they hold anything.
    if (!atEnd() && text[pos] == '[')
        annotation(line.condition, std::string());
    statement(line.thenAction, false, Script::LineDo, "ELSE");
    if (keyword("ELSE"))
        statement(line.elseAction, false, Script::LineElse, "ELSE");
    expectEnd();
    addLine(line);
}

// The end of a statement: its annotation, the next keyword or the end of the line, outside parentheses.
size_t Compilation::segmentEnd(std::string_view stopWord) const
{
    int depth = 0;
    for (size_t i = pos; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '(')
            ++depth;
        else if (c == ')')
            depth = std::max(depth - 1, 0);
        else if (depth == 0 && c == '[')
            return i;
        else if (depth == 0 && !stopWord.empty() && isIdentStart(c) && (i == 0 || !isIdentChar(text[i - 1]))) {
            size_t end = i;
            while (end < text.size() && isIdentChar(text[end]))
                ++end;
            if (sameWord(std::string_view(text).substr(i, end - i), stopWord))
                return i;
            i = end - 1;
        }
    }
    return text.size();
}

void Compilation::statement(Script::Statement& out, bool condition, Script::LineType which, std::string_view stopWord)
{
    skipSpaces();
    const size_t begin = pos;
    const size_t end = segmentEnd(stopWord);
    pos = end;
    std::vector<Operand> operands;
    const std::optional<std::string> key = readKey(begin, end, operands);
    std::string shown;
    if (!key) {
        // Already reported; the annotation is still read.
    } else if (key->empty()) {
        error(begin, condition ? "IF needs a condition" : "an action is missing here");
    } else if (!unknownCode(*key, condition, out, begin)) {
        if (const ScriptSyntax::Template* entry = match(*key, operands, condition, begin)) {
            fill(out, *entry, operands, which);
            shown = entry->operands;
        }
    }
    skipSpaces();
    if (!atEnd() && text[pos] == '[')
        annotation(out, shown);
}

// The statement's key (lower case, no spaces, operands as marks) and its operands; nullopt after an error.
std::optional<std::string> Compilation::readKey(size_t begin, size_t end, std::vector<Operand>& operands)
{
    std::string key;
    bool readable = true;
    for (size_t i = begin; i < end; ++i) {
        const char c = text[i];
        if (isSpace(c))
            continue;
        if (c == ')') {
            error(i, "')' without '('");
            return std::nullopt;
        }
        if (c != '(') {
            key += c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
            continue;
        }
        int depth = 0;
        size_t close = i;
        for (; close < end; ++close) {
            depth += text[close] == '(' ? 1 : text[close] == ')' ? -1 : 0;
            if (depth == 0)
                break;
        }
        if (close >= end) {
            error(i, "'(' is not closed");
            return std::nullopt;
        }
        operands.push_back(operand(i, close));
        readable = readable && operands.back().mark != 0;
        key += operands.back().mark != 0 ? operands.back().mark : ScriptSyntax::NumberMark;
        i = close;
    }
    return readable ? std::optional<std::string>(key) : std::nullopt;
}

// "(Type value)" or "(Object name)"; open and close are the positions of the parentheses.
Operand Compilation::operand(size_t open, size_t close)
{
    Operand op;
    op.at = open;
    const std::string_view inside = trimmed(std::string_view(text).substr(open + 1, close - open - 1));
    const std::string whole = ScriptSyntax::keyOf(inside);
    const size_t split = inside.find_last_of(" \t");
    if (split != std::string_view::npos) {
        const std::string head = ScriptSyntax::keyOf(inside.substr(0, split));
        int type = ScriptSyntax::numberType(head);
        const std::optional<qint64> byte = head.rfind("type", 0) == 0 ? integer(head.substr(4)) : std::nullopt;
        if (type < 0 && byte && *byte >= 0 && *byte <= 255)
            type = int(*byte);
        if (type >= 0) {
            op.mark = ScriptSyntax::NumberMark;
            op.type = type;
            const std::string_view value = trimmed(inside.substr(split));
            numberValue(op, value, size_t(value.data() - text.data()));
            return op;
        }
        if (byte) {
            error(open, "the type byte " + std::string(head.substr(4)) + " is outside 0 to 255");
            return op;
        }
    }
    const int object = ScriptSyntax::objectType(whole);
    const std::optional<qint64> byte = whole.rfind("object", 0) == 0 ? integer(whole.substr(6)) : std::nullopt;
    if (object >= 0 || (byte && *byte >= 0 && *byte <= 255)) {
        op.mark = ScriptSyntax::ObjectMark;
        op.type = object >= 0 ? object : int(*byte);
    } else if (byte) {
        error(open, "the object type " + whole.substr(6) + " is outside 0 to 255");
    } else if (ScriptSyntax::numberType(whole) >= 0) {
        error(open, quote("(" + std::string(inside) + ")") + " needs a value, as in (" + std::string(inside) + " 5)");
    } else {
        error(open,
              "unknown operand " + quote("(" + std::string(inside) + ")")
                  + ": a number is (Type value) with Type one of Counter, Global Var, Local Var, Number, "
                    "Global Flag, PC Var, PC Flag; an object is named, as (Triggerer)");
    }
    return op;
}

void Compilation::numberValue(Operand& op, std::string_view value, size_t valueAt)
{
    op.valueAt = valueAt;
    if (isIdentifier(value)) {
        op.label = std::string(value);
        return;
    }
    const std::optional<qint64> number = integer(value);
    if (!number) {
        error(valueAt, quote(value) + " is neither a number nor a label");
        op.mark = 0;
    } else if (!fitsInt32(*number)) {
        error(valueAt, quote(value) + " is outside the 32-bit range -2147483648 to 2147483647");
        op.mark = 0;
    } else {
        op.value = qint32(*number);
    }
}

// "unknown condition 77": a code outside the catalogue, as a damaged or foreign file holds it.
bool Compilation::unknownCode(const std::string& key, bool condition, Script::Statement& out, size_t at)
{
    const std::string prefix = condition ? "unknowncondition" : "unknownaction";
    if (key.rfind(prefix, 0) != 0)
        return false;
    const std::string_view digits = std::string_view(key).substr(prefix.size());
    const std::optional<qint64> code = integer(digits);
    if (!code)
        return false;
    if (!fitsInt32(*code))
        error(at, std::string(digits) + " is outside the 32-bit range -2147483648 to 2147483647");
    else if (condition && *code == 0)
        error(at, "condition 0 marks a line without condition: write DO and the action", pos);
    else if (condition ? Script::isConditionCode(qint32(*code)) : Script::isActionCode(qint32(*code)))
        error(at,
              std::string(condition ? "condition " : "action ") + std::string(digits)
                  + " is in the catalogue: write its template, "
                  + quote(ScriptSyntax::pattern(condition ? *syntax.condition(qint32(*code))
                                                          : *syntax.action(qint32(*code)))),
              pos);
    else
        out.code = qint32(*code);
    return true;
}

const ScriptSyntax::Template* Compilation::match(const std::string& key, const std::vector<Operand>& operands,
                                                 bool condition, size_t at)
{
    const std::vector<const ScriptSyntax::Template*> found = syntax.withKey(condition, key);
    if (!found.empty())
        return found.front();
    mismatch(key, operands, condition, at);
    return nullptr;
}

// Says why no template has this key: an operand of the wrong kind, the wrong number of operands,
// or no such statement (with the nearest ones).
void Compilation::mismatch(const std::string& key, const std::vector<Operand>& operands, bool condition, size_t at)
{
    const auto isMark = [](char c) { return c == ScriptSyntax::NumberMark || c == ScriptSyntax::ObjectMark; };
    const auto shape = [&](std::string k) {
        std::replace(k.begin(), k.end(), ScriptSyntax::ObjectMark, ScriptSyntax::NumberMark);
        return k;
    };
    const auto words = [&](std::string k) {
        k.erase(std::remove_if(k.begin(), k.end(), isMark), k.end());
        return k;
    };
    const std::vector<ScriptSyntax::Template>& all = condition ? syntax.conditions() : syntax.actions();
    for (const ScriptSyntax::Template& entry : all) {
        if (shape(entry.key) != shape(key))
            continue;
        for (size_t i = 0; i < operands.size() && i < entry.operands.size(); ++i)
            if (entry.operands[i] != operands[i].mark) {
                const bool wantsObject = entry.operands[i] == ScriptSyntax::ObjectMark;
                error(operands[i].at,
                      "operand " + std::to_string(i + 1) + " of " + quote(ScriptSyntax::pattern(entry))
                          + (wantsObject ? " is an object, as (Triggerer)" : " is a number, as (Number 5)"));
                return;
            }
    }
    for (const ScriptSyntax::Template& entry : all)
        if (words(entry.key) == words(key)) {
            error(at,
                  quote(ScriptSyntax::pattern(entry)) + " takes " + std::to_string(entry.operands.size()) + " operand"
                      + (entry.operands.size() == 1 ? "" : "s") + ", not " + std::to_string(operands.size()),
                  pos);
            return;
        }
    for (const ScriptSyntax::Template* other : syntax.withKey(!condition, key)) {
        error(at,
              quote(ScriptSyntax::pattern(*other))
                  + (condition ? " is an action, not a condition" : " is a condition, not an action"),
              pos);
        return;
    }
    error(at,
          std::string(condition ? "unknown condition " : "unknown action ")
              + quote(trimmed(std::string_view(text).substr(at, pos - at))) + nearest(key, condition),
          pos);
}

std::string Compilation::nearest(const std::string& key, bool condition) const
{
    std::vector<std::pair<size_t, const ScriptSyntax::Template*>> ranked;
    for (const ScriptSyntax::Template& entry : condition ? syntax.conditions() : syntax.actions())
        ranked.emplace_back(editDistance(key, entry.key), &entry);
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    const size_t best = ranked.front().first;
    if (best > key.size() / 2)
        return std::string();
    std::string text = "; did you mean ";
    for (size_t i = 0; i < ranked.size() && i < 3 && ranked[i].first <= best + 2; ++i) {
        if (i > 0)
            text += i + 1 < 3 && i + 1 < ranked.size() && ranked[i + 1].first <= best + 2 ? ", " : " or ";
        text += quote(ScriptSyntax::pattern(*ranked[i].second));
    }
    return text + '?';
}

void Compilation::fill(Script::Statement& out, const ScriptSyntax::Template& entry, std::vector<Operand>& operands,
                       Script::LineType which)
{
    out.code = entry.code;
    for (size_t slot = 0; slot < operands.size(); ++slot) {
        Operand& op = operands[slot];
        out.types[slot] = quint8(op.type);
        if (op.mark != ScriptSyntax::NumberMark)
            continue;
        out.values[slot] = op.value;
        if (op.label.empty())
            continue;
        if (!ScriptSyntax::takesLabel(entry, int(slot)) || op.type != Script::Number) {
            error(op.valueAt, quote(op.label) + " is not a number; only (Number label) of goto line names a line");
            continue;
        }
        const auto [line, column] = place(op.valueAt);
        labelUses.push_back({op.label, result.lines.size(), which, line, column});
    }
}

// key=value items up to end, separated by spaces or commas.
std::vector<Item> Compilation::items(size_t begin, size_t end)
{
    std::vector<Item> found;
    size_t i = begin;
    while (true) {
        while (i < end && (isSpace(text[i]) || text[i] == ','))
            ++i;
        if (i >= end)
            return found;
        const size_t keyAt = i;
        while (i < end && (isIdentChar(text[i]) || text[i] == '-'))
            ++i;
        const std::string_view key = std::string_view(text).substr(keyAt, i - keyAt);
        while (i < end && isSpace(text[i]))
            ++i;
        if (key.empty() || i >= end || text[i] != '=') {
            error(keyAt, "expected name=value here");
            return found;
        }
        ++i;
        while (i < end && isSpace(text[i]))
            ++i;
        const size_t valueAt = i;
        while (i < end && !isSpace(text[i]) && text[i] != ',')
            ++i;
        found.push_back({key, std::string_view(text).substr(valueAt, i - valueAt), keyAt, valueAt});
    }
}

std::optional<qint64> Compilation::itemNumber(const Item& item, qint64 low, qint64 high)
{
    const std::optional<qint64> value = integer(item.value);
    if (!value)
        error(item.valueAt, std::string(item.key) + " takes a number, not " + quote(item.value));
    else if (*value < low || *value > high)
        error(item.valueAt,
              std::string(item.key) + " " + std::string(item.value) + " is outside " + std::to_string(low) + " to "
                  + std::to_string(high));
    else
        return value;
    return std::nullopt;
}

// "[type3=2 value3=7]": slots the sentence does not show.
void Compilation::annotation(Script::Statement& out, const std::string& shown)
{
    const size_t open = pos;
    const size_t close = text.find(']', open);
    if (close == std::string::npos) {
        error(open, "'[' is not closed");
        pos = text.size();
        return;
    }
    pos = close + 1;
    std::string seen;
    for (const Item& item : items(open + 1, close)) {
        const bool isType = item.key.size() == 5 && item.key.substr(0, 4) == "type";
        const bool isValue = item.key.size() == 6 && item.key.substr(0, 5) == "value";
        const char digit = item.key.empty() ? 0 : item.key.back();
        if ((!isType && !isValue) || digit < '1' || digit > '8') {
            error(item.keyAt, "unknown field " + quote(item.key) + ": a slot is typeN=byte or valueN=number, N 1 to 8");
            continue;
        }
        const size_t slot = size_t(digit - '1');
        const bool used = slot < shown.size();
        if (seen.find(std::string(item.key) + ' ') != std::string::npos) {
            error(item.keyAt, quote(item.key) + " is given twice");
            continue;
        }
        seen += std::string(item.key) + ' ';
        if (used && (isType || shown[slot] == ScriptSyntax::NumberMark)) {
            error(item.keyAt,
                  "slot " + std::string(1, digit) + " is operand " + std::string(1, digit)
                      + " of the sentence: write it there");
            continue;
        }
        if (isType) {
            if (const std::optional<qint64> type = itemNumber(item, 0, 255))
                out.types[slot] = quint8(*type);
        } else if (const std::optional<qint64> value
                   = itemNumber(item, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max())) {
            out.values[slot] = qint32(*value);
        }
    }
}

void Compilation::scriptLine()
{
    if (scriptSeen)
        error(0, "a source has one script line");
    scriptSeen = true;
    skipSpaces();
    if (!atEnd() && text[pos] != '"') {
        const size_t begin = pos;
        while (!atEnd() && !isSpace(text[pos]) && text[pos] != '"')
            ++pos;
        const std::string_view digits = std::string_view(text).substr(begin, pos - begin);
        const std::optional<qint64> number = integer(digits);
        if (!number || *number < 0 || *number > 99999)
            error(begin, "a script number is 0 to 99999, not " + quote(digits));
        else
            result.number = int(*number);
        std::tie(result.numberLine, result.numberColumn) = place(begin);
        skipSpaces();
    }
    if (atEnd() || text[pos] != '"') {
        error(pos, "the script line holds the description in quotes: script 1 \"Gate guard\"");
        return;
    }
    size_t at = pos;
    if (std::optional<std::string> bytes = description(at)) {
        desc = *bytes;
        pos = at;
        expectEnd();
    }
}

// A quoted description from at (its opening quote) as Latin-1 bytes; at ends past the closing quote.
std::optional<std::string> Compilation::description(size_t& at)
{
    const size_t open = at;
    std::string bytes;
    bool readable = true;
    size_t i = open + 1;
    for (; i < text.size() && text[i] != '"'; ++i) {
        const auto c = quint8(text[i]);
        if (c == '\\') {
            const char next = i + 1 < text.size() ? text[i + 1] : 0;
            if (next == '"' || next == '\\') {
                bytes += next;
                ++i;
            } else if (next == 'x' && i + 3 < text.size() && std::isxdigit(quint8(text[i + 2]))
                       && std::isxdigit(quint8(text[i + 3]))) {
                const int hex = std::stoi(text.substr(i + 2, 2), nullptr, 16);
                if (hex == 0) {
                    error(i, "a description ends at its first zero byte; the bytes after it are header desc-tail=…");
                    readable = false;
                }
                bytes += char(hex);
                i += 3;
            } else {
                error(i, "unknown escape; a description knows \\\", \\\\ and \\xNN");
                readable = false;
                ++i;
            }
        } else if (c < 0x80) {
            bytes += char(c);
        } else {
            // UTF-8 of a Latin-1 character: two bytes, the first 0xc2 or 0xc3.
            const auto next = i + 1 < text.size() ? quint8(text[i + 1]) : 0;
            if ((c == 0xc2 || c == 0xc3) && (next & 0xc0) == 0x80) {
                bytes += char(((c & 0x03) << 6) | (next & 0x3f));
            } else {
                if (readable)
                    error(i, "a description holds Latin-1 characters only");
                readable = false;
                while (i + 1 < text.size() && (quint8(text[i + 1]) & 0xc0) == 0x80)
                    ++i;
                continue;
            }
            ++i;
        }
    }
    if (i >= text.size()) {
        error(open, "unterminated string");
        pos = text.size();
        return std::nullopt;
    }
    at = i + 1;
    if (bytes.size() > size_t(Script::DescSize)) {
        error(open,
              "the description takes " + std::to_string(bytes.size()) + " bytes; the header holds "
                  + std::to_string(Script::DescSize));
        readable = false;
    }
    return readable ? std::optional<std::string>(bytes) : std::nullopt;
}

void Compilation::headerLine()
{
    if (headerSeen)
        error(0, "a source has one header line");
    headerSeen = true;
    for (const Item& item : items(pos, text.size()))
        headerItem(item);
    pos = text.size();
}

void Compilation::headerItem(const Item& item)
{
    Script::Header& head = result.header;
    constexpr qint64 low = std::numeric_limits<qint32>::min();
    constexpr qint64 high = std::numeric_limits<qint32>::max();
    const auto word = [&](qint32& field) {
        if (const std::optional<qint64> value = itemNumber(item, low, high))
            field = qint32(*value);
    };
    if (item.key == "word0") {
        word(head.headerWord);
    } else if (item.key == "word48") {
        word(head.headerWord48);
    } else if (item.key == "word60") {
        word(head.headerWord60);
    } else if (item.key == "bound") {
        if (const std::optional<qint64> value = itemNumber(item, low, high))
            lineBound = qint32(*value);
    } else if (item.key == "lines") {
        if (const std::optional<qint64> value = itemNumber(item, low, -1))
            lineCount = qint32(*value);
        lineCountPlace = place(item.keyAt);
    } else if (item.key == "bytes4") {
        if (const std::optional<std::string> bytes = hexBytes(item, 4)) {
            if (bytes->size() != 4)
                error(item.valueAt, "bytes4 takes four bytes, eight hex digits");
            else
                std::copy(bytes->begin(), bytes->end(), head.headerBytes.begin());
        }
    } else if (item.key == "desc-tail") {
        descTail = hexBytes(item, Script::DescSize - 1);
        descTailPlace = place(item.keyAt);
    } else {
        error(item.keyAt,
              "unknown header field " + quote(item.key)
                  + "; the fields are word0, bytes4, word48, lines, bound, word60 and desc-tail");
    }
}

std::optional<std::string> Compilation::hexBytes(const Item& item, size_t most)
{
    const bool hex = item.value.size() % 2 == 0
        && std::all_of(item.value.begin(), item.value.end(), [](char c) { return std::isxdigit(quint8(c)) != 0; });
    if (!hex) {
        error(item.valueAt, std::string(item.key) + " takes bytes as pairs of hex digits");
        return std::nullopt;
    }
    if (item.value.size() / 2 > most) {
        error(item.valueAt, std::string(item.key) + " holds at most " + std::to_string(most) + " bytes");
        return std::nullopt;
    }
    std::string bytes;
    for (size_t i = 0; i < item.value.size(); i += 2)
        bytes += char(std::stoi(std::string(item.value.substr(i, 2)), nullptr, 16));
    return bytes;
}

void Compilation::resolveLabels()
{
    for (const LabelUse& use : labelUses) {
        const auto found = labels.find(use.name);
        if (found == labels.end()) {
            result.diagnostics.push_back(
                {use.diagnosticLine, use.diagnosticColumn, "label " + quote(use.name) + " is not defined"});
            continue;
        }
        Script::Line& line = result.lines[use.line];
        Script::Statement& action = use.which == Script::LineElse ? line.elseAction : line.thenAction;
        action.values[0] = qint32(std::min<size_t>(found->second.first, size_t(std::numeric_limits<qint32>::max())));
    }
}

void Compilation::finishHeader()
{
    Script::Header& head = result.header;
    const qint64 count = qint64(result.lines.size());
    head.lineCount = qint32(std::min(count, qint64(std::numeric_limits<qint32>::max())));
    if (lineCount) {
        if (count > 0)
            result.diagnostics.push_back(
                {lineCountPlace.first, lineCountPlace.second,
                 "a negative line count holds no lines, but the source has " + std::to_string(count)});
        head.lineCount = *lineCount;
    }
    head.lineBound = lineBound ? *lineBound : ScriptSyntax::defaultLineBound(count);
    head.setDesc(desc);
    if (descTail) {
        if (desc.size() + 1 + descTail->size() > size_t(Script::DescSize))
            result.diagnostics.push_back({descTailPlace.first, descTailPlace.second,
                                          "the description, its end and desc-tail take "
                                              + std::to_string(desc.size() + 1 + descTail->size())
                                              + " bytes; the header holds " + std::to_string(Script::DescSize)});
        else
            std::copy(descTail->begin(), descTail->end(), head.description.begin() + qsizetype(desc.size() + 1));
    }
}

} // namespace

Script ScriptCompiler::Result::script() const
{
    Script compiled;
    compiled.setContent(header, lines);
    return compiled;
}

ScriptCompiler::Result ScriptCompiler::compile(std::string_view source, qint64 lineLimit)
{
    // A byte order mark some editors put before UTF-8 text is no part of the first line.
    constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
    if (source.substr(0, byteOrderMark.size()) == byteOrderMark)
        source.remove_prefix(byteOrderMark.size());
    return Compilation(source, lineLimit).run();
}

} // namespace arcanum
