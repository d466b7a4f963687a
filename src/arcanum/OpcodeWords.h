#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace arcanum::dlg {

class TestOrResultType;

// What a dialogue opcode means in words, so a modder need not know the two-letter codes by heart:
// "global flag" for gf, "money" for $$, made from the catalogue's constant names; and the name of each
// argument ("flag", "value").
class OpcodeWords
{
public:
    // Empty for a type that is not in the catalogue.
    static QString meaning(const TestOrResultType* type);
    // One name per argument the game expects.
    static QStringList argumentNames(const TestOrResultType* type);
    // False when those names are only the generic "value", "value 2".
    static bool namesArguments(const TestOrResultType* type);
    // The positions (0 or 1) of the arguments that name a line of the same dialogue file: the line
    // a float shows, the lines a join or an unwait goes on with.
    static QList<int> lineArguments(const TestOrResultType* type);
    // "gf — global flag".
    static QString label(const TestOrResultType* type);
};

} // namespace arcanum::dlg
