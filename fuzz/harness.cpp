// One libFuzzer harness; LOREKA_FUZZ_KIND picks the file format it feeds.
#include "FuzzTargets.h"

#include <cstdio>
#include <cstdlib>

#include <unistd.h>

namespace {
fuzz::RoundTrip roundTrip = nullptr;
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    const fuzz::Target* target = fuzz::findTarget(LOREKA_FUZZ_KIND);
    if (!target) {
        std::fprintf(stderr, "No fuzz target for %s\n", LOREKA_FUZZ_KIND);
        std::abort();
    }
    roundTrip = target->run;
    fuzz::silence();
    // Every save ends in fsync; in memory that costs nothing, on a disk it would set the pace.
    if (!std::getenv("TMPDIR") && access("/dev/shm", W_OK) == 0)
        setenv("TMPDIR", "/dev/shm", 1);
    return 0;
}

// A second save that differs from the first is a finding too: abort so libFuzzer keeps the input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (roundTrip(data, size) != 0) {
        std::fprintf(stderr, "%s: the second save differs from the first\n", LOREKA_FUZZ_KIND);
        std::abort();
    }
    return 0;
}
