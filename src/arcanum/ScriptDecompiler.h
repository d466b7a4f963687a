#pragma once

#include "Script.h"

#include <string>

namespace arcanum {

// Writes a script as source text: one source line per script line, in the words of the catalogue's
// templates. What the file holds that a sentence does not show (header words, operand slots the
// statement leaves unused, an object operand's value word, the bytes of the description after its
// end) is written only where it differs from what the compiler makes by default, so the text is the
// one source of exactly these bytes.
class ScriptDecompiler
{
public:
    // number is the script's number from its file name; -1 leaves it out.
    static std::string decompile(const Script& script, int number);
    static std::string decompile(const Script& script) { return decompile(script, script.getId()); }
    // A description as a quoted string: Latin-1 text, other bytes escaped (\xNN).
    static std::string quoted(const std::string& bytes);
};

} // namespace arcanum
