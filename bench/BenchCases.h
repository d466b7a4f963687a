#pragma once

#include <QString>

#include <string>
#include <vector>

// What a case is held to.
enum class Goal {
    TextLoad,   // MB/s of file
    TextSave,   // MB/s of file
    Binary,     // MB/s of file
    Pixels,     // MB/s of decoded pixels
    Seconds,    // wall time per iteration
    None        // measured for comparison only
};

struct BenchCase
{
    std::string name;
    double bytes = 0; // processed per iteration; memcpy is timed over the same number
    Goal goal = Goal::None;
    double limit = 0; // MB/s, or seconds for Goal::Seconds
    double files = 0; // files per iteration, for a files/s figure; 0 when the case reads one file
};

// Registers every benchmark over the inputs below gameDir, plus one memcpy per distinct byte count,
// and returns the cases in the order of the summary. Output files go to outDir.
std::vector<BenchCase> registerBenchCases(const QString& gameDir, const QString& outDir);

// The name of the memcpy benchmark over the given number of bytes.
std::string memcpyName(double bytes);
