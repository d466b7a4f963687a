#pragma once

#include "Script.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace arcanum {

// The catalogue as the text form of scripts sees it: every template split into its text and operand
// places, keys that find a template whatever its letter case and spacing, the operand type names,
// and how one operand is written. The decompiler, the compiler, `loreka dump` and the Source view
// all read sentences through here, so they agree on every spelling.
class ScriptSyntax
{
public:
    // The kind of an operand place, as it stands in a key.
    static constexpr char NumberMark = '\x01';
    static constexpr char ObjectMark = '\x02';

    struct Template
    {
        qint32 code = 0;
        bool condition = false;
        std::string text;
        // pieces[0] operand 0 pieces[1] operand 1 … pieces[n]: one more piece than operands.
        std::vector<std::string> pieces;
        // One mark per operand place.
        std::string operands;
        // Lower case, no spaces, each operand place as its mark.
        std::string key;
    };

    static const ScriptSyntax& instance();

    // Nullptr for a code outside the catalogue. Condition codes as stored in a file (1-based).
    const Template* condition(qint32 code) const;
    const Template* action(qint32 code) const;
    const std::vector<Template>& conditions() const { return conditionList; }
    const std::vector<Template>& actions() const { return actionList; }
    // The templates whose key is key (two templates may differ only in their operand kinds).
    std::vector<const Template*> withKey(bool condition, const std::string& key) const;

    // The template as a source line writes it, each operand place as "(Type value)" or "(Object)".
    static std::string pattern(const Template& entry);

    // Adds text to a key: letters lowered, spaces dropped.
    static void appendKey(std::string& key, std::string_view text);
    static std::string keyOf(std::string_view text);
    // The type whose name has this key, or -1.
    static int numberType(const std::string& key);
    static int objectType(const std::string& key);

    // "(Local Var 3)", "(type 9 3)" for a type byte no name stands for.
    static std::string numberOperand(int type, qint32 value);
    // "(Triggerer)", "(object 30)".
    static std::string objectOperand(int type);
    static std::string numberTypeName(int type);
    static std::string objectName(int type);

    // What the header's line bound is when the source does not say: what adding the lines one by
    // one in the editor gives (one past the count; nothing for an empty script).
    static qint32 defaultLineBound(qint64 lineCount);
    // The label the decompiler gives a line that a goto line names by number: "line_12".
    static std::string lineLabel(qint64 line);
    // The one operand that may name a label: goto line's line.
    static bool takesLabel(const Template& entry, int operand);

private:
    ScriptSyntax();
    static Template split(qint32 code, bool condition, const std::string& text);

    std::vector<Template> conditionList;
    std::vector<Template> actionList;
    std::unordered_multimap<std::string, const Template*> conditionKeys;
    std::unordered_multimap<std::string, const Template*> actionKeys;
    std::vector<std::string> numberKeys;
    std::vector<std::string> objectKeys;
};

} // namespace arcanum
