#pragma once

#include <QString>

#include <cstdint>

// The large files the benchmarks read, written once per run by the project's own models into a
// temporary game directory.
class BenchInputs
{
public:
    static constexpr int MES_ENTRIES = 200000;
    static constexpr qint64 DLG_BYTES = 20 * 1000 * 1000;
    static constexpr int SCRIPT_LINES = 100000;
    static constexpr int ART_IMAGES = 8;
    static constexpr int ART_FRAMES = 64;
    static constexpr int ART_SIDE = 256;
    static constexpr int PROTO_FILES = 10000;
    // Small message and dialogue files for searching a whole game, half of each kind; every 100th
    // holds the text SEARCHED_TEXT, every 50th dialogue uses global flag 42.
    static constexpr int SEARCH_FILES = 10000;
    static constexpr const char* SEARCHED_TEXT = "brass needle";

    // Writes every input below gameDir (which must exist); false when a file could not be written.
    static bool write(const QString& gameDir);

    // The SEARCH_FILES files below gameDir/data; false when a file could not be written.
    static bool writeSearchGame(const QString& gameDir);

    // Paths below a game directory.
    static QString mesPath(const QString& gameDir);
    static QString dlgPath(const QString& gameDir);
    static QString scriptPath(const QString& gameDir);
    static QString artPath(const QString& gameDir);
    static QString protoDir(const QString& gameDir);
    static QString protoName(int number);

private:
    static bool writeMes(const QString& path);
    static bool writeDialogue(const QString& path);
    static bool writeScript(const QString& path);
    static bool writeArt(const QString& path);
    static bool writeProtos(const QString& dir);
};
