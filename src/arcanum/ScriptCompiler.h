#pragma once

#include "Script.h"

#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace arcanum {

// Reads the source text of a script (what ScriptDecompiler writes, or a person) into the header and
// lines of a compiled script. Every line is checked, so one run reports every mistake; a source with
// any mistake gives no script at all.
class ScriptCompiler
{
public:
    struct Diagnostic
    {
        // 1-based; the column counts characters, not bytes.
        int line = 0;
        int column = 0;
        std::string message;
        // Characters of the line the mistake covers from the column (a whole statement); 0 when it
        // points at one place.
        int length = 0;
    };

    struct Result
    {
        // Meaningful only when ok().
        Script::Header header;
        std::vector<Script::Line> lines;
        // The number on the script line, -1 when it gives none; where it stands.
        int number = -1;
        int numberLine = 0;
        int numberColumn = 0;
        std::vector<Diagnostic> diagnostics;

        bool ok() const { return diagnostics.empty(); }
        // The script with its number unset (a file name gives it).
        Script script() const;
    };

    // The most lines a file counts.
    static constexpr qint64 MaxLines = std::numeric_limits<qint32>::max();

    // lineLimit lower than MaxLines only where a test must reach the limit.
    static Result compile(std::string_view source, qint64 lineLimit = MaxLines);
};

} // namespace arcanum
