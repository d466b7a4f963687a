#pragma once

#include "Proto.h"

#include <array>
#include <cstdint>
#include <vector>

namespace arcanum {

// The frame every sparse sub-record shares: a presence byte and, only when it is non-zero, element
// size, stored count, a kept word, the stored elements, a kept word and a 64-bit mask of the indices
// that have an element (low word first). The k-th stored element belongs to the k-th set bit, so a
// count that disagrees with the mask, or a mask naming an index with no room, is a damaged file.
class Proto::Sparse
{
public:
    virtual ~Sparse() = default;

    bool read(ibytestream& in);
    bool write(obytestream& out) const;

    bool isPresent() const { return present != 0; }
    std::uint64_t mask() const { return static_cast<std::uint64_t>(maskHigh) << 32 | maskLow; }
    void setMask(std::uint64_t bits);
    // A present record keeps its presence byte and element size; an absent one becomes present
    // with the usual element size.
    void makePresent(std::uint32_t usualElementSize);

    std::uint8_t present = 0;
    std::uint32_t elementSize = 0;
    std::uint32_t count = 0;
    std::uint32_t keptBefore = 0;
    std::uint32_t keptAfter = 0;
    std::uint32_t maskLow = 0;
    std::uint32_t maskHigh = 0;

protected:
    Sparse() = default;
    Sparse(const Sparse&) = default;
    Sparse& operator=(const Sparse&) = default;

    virtual const char* name() const = 0;
    // Checks count against the room, then reads count elements.
    virtual bool readElements(ibytestream& in) = 0;
    virtual void writeElements(obytestream& out) const = 0;
    // The mask bits that have an element, and the bits that may be set at all.
    virtual std::uint64_t countedBits() const { return mask(); }
    virtual std::uint64_t allowedBits() const = 0;

    bool refuseCount(ibytestream& in, std::uint64_t room) const;

private:
    bool checkMask(ibytestream& in) const;
};

// Sub-record whose elements the model does not interpret; kept byte for byte.
class Proto::Optional : public Proto::Sparse
{
public:
    std::vector<std::uint8_t> bytes; // elementSize x count

protected:
    const char* name() const override { return "optional record"; }
    bool readElements(ibytestream& in) override;
    void writeElements(obytestream& out) const override;
    std::uint64_t allowedBits() const override { return ~std::uint64_t(0); }
};

// Five signed values by ResistanceType (or DamageType); only the low mask word names them, the high
// word is kept as read.
class Proto::Damages : public Proto::Sparse
{
public:
    static constexpr std::uint32_t ROOM = 5;
    static constexpr std::uint32_t ELEMENT_SIZE = 4;
    std::array<std::int32_t, ROOM> values{}; // the stored values, in mask order

protected:
    const char* name() const override { return "damages"; }
    bool readElements(ibytestream& in) override;
    void writeElements(obytestream& out) const override;
    std::uint64_t countedBits() const override { return maskLow; }
    std::uint64_t allowedBits() const override { return (1u << ROOM) - 1; }
};

// What one script point runs: 12 bytes in the file.
class Proto::ScriptArgs
{
public:
    void read(ibytestream& in);
    void write(obytestream& out) const;
    bool operator==(const ScriptArgs& other) const;
    bool operator!=(const ScriptArgs& other) const { return !(*this == other); }

    std::uint32_t flags = 0;
    std::array<std::uint8_t, 4> counters{};
    std::uint32_t number = 0;
};

// The scripts attached to the 36 script points.
class Proto::Scripts : public Proto::Sparse
{
public:
    static constexpr std::uint32_t ROOM = SCRIPT_POINT_COUNT;
    static constexpr std::uint32_t ELEMENT_SIZE = 12;
    std::array<ScriptArgs, ROOM> args{}; // the stored scripts, in mask order

protected:
    const char* name() const override { return "scripts"; }
    bool readElements(ibytestream& in) override;
    void writeElements(obytestream& out) const override;
    std::uint64_t allowedBits() const override { return (std::uint64_t(1) << ROOM) - 1; }
};

} // namespace arcanum
