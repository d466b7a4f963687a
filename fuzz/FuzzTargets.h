#pragma once

#include <cstddef>
#include <cstdint>

// Load, save and load again for every file format, written once for the fuzzing harnesses and for the
// test that replays what they found. Each function returns 0 when the round trip holds and 1 when a
// second save differs from the first; anything worse is for the sanitizers to report.
namespace fuzz {

using RoundTrip = int (*)(const std::uint8_t* data, std::size_t size);

struct Target
{
    const char* kind;   // also the folder of its seeds and of its regression inputs
    const char* suffix; // the file name suffix the format's loader wants
    RoundTrip run;
};

int roundTripMesUtf8(const std::uint8_t* data, std::size_t size);
int roundTripMesCp1251(const std::uint8_t* data, std::size_t size);
int roundTripDialogueTable(const std::uint8_t* data, std::size_t size);
int roundTripDialogue(const std::uint8_t* data, std::size_t size);
int roundTripScript(const std::uint8_t* data, std::size_t size);
int roundTripArt(const std::uint8_t* data, std::size_t size);
int roundTripProto(const std::uint8_t* data, std::size_t size);
int roundTripPalette(const std::uint8_t* data, std::size_t size);
// The JSON of an art folder whose frames travel without pictures: read, written as a folder and read
// again, the art must stay the same.
int roundTripArtFolder(const std::uint8_t* data, std::size_t size);
// Reads every entry of an archive, packs the readable ones into a new archive and that one again.
int roundTripArchive(const std::uint8_t* data, std::size_t size);

// Every target above, in a fixed order; count receives their number.
const Target* targets(std::size_t* count);
// The target of a kind, or nullptr.
const Target* findTarget(const char* kind);

// Drops Qt's debug and warning messages and the models' console chatter, which would only slow a
// fuzzer down; fatal messages still abort.
void silence();

} // namespace fuzz
