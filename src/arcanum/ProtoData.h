#pragma once

#include "Proto.h"
#include "ProtoRecords.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace arcanum {

// The data block of one item type; each class reads and writes its own fields in file order.
class Proto::Data
{
public:
    virtual ~Data() = default;
    // False when the block is damaged (the stream says why); a file that simply ends early reads
    // as zeros from there on.
    virtual bool read(ibytestream& in) = 0;
    virtual bool write(obytestream& out) const = 0;

    // Whatever the file holds after the last field the block describes (real armour prototypes
    // carry four such bytes); written back after the block as it came.
    std::vector<std::uint8_t> rest;
};

// Walls: one raw block from 0x38 to 0x178.
class Proto::WallData : public Proto::Data
{
public:
    static constexpr std::size_t SIZE = 321;
    bool read(ibytestream& in) override;
    bool write(obytestream& out) const override;

    std::array<std::uint8_t, SIZE> bytes{};
};

// PCs and NPCs: the model interprets nothing of their block and keeps it whole.
class Proto::CritterData : public Proto::Data
{
public:
    bool read(ibytestream& in) override;
    bool write(obytestream& out) const override;

    std::vector<std::uint8_t> bytes;
};

class Proto::PCData : public Proto::CritterData
{
};

class Proto::NPCData : public Proto::CritterData
{
};

// Object flag bits the editor shows: words 1 and 2 of ObjectData.
namespace ObjectFlag1 {
constexpr std::uint32_t Flat = 0x00000400;
constexpr std::uint32_t SeeThrough = 0x00001000;
constexpr std::uint32_t ShootThrough = 0x00002000;
constexpr std::uint32_t NoBlock = 0x00040000;
constexpr std::uint32_t ClickThrough = 0x00080000;
constexpr std::uint32_t DontLight = 0x10000000;
constexpr std::uint32_t Invulnerable = 0x40000000;
} // namespace ObjectFlag1

namespace ObjectFlag2 {
constexpr std::uint32_t Illusion = 0x00800000;
constexpr std::uint32_t Stoned = 0x01000000;
} // namespace ObjectFlag2

// The head that static objects and movable items share; they differ only in one raw block's size.
class Proto::ObjectData : public Proto::Data
{
public:
    bool read(ibytestream& in) override;
    bool write(obytestream& out) const override;

    std::array<std::uint8_t, 16> leading{};
    std::uint32_t keptWord = 0;
    std::vector<std::uint8_t> beforeOptionals; // 9 bytes for static objects, 13 for movable ones
    std::array<Optional, 3> optionals;
    std::array<std::uint8_t, 29> afterOptionals{};
    Optional lastOptional;
    std::uint32_t flags1 = 0;
    std::uint32_t flags2 = 0;
    std::array<std::uint8_t, 5> beforeIndices{};
    std::uint32_t internalIndex = 0;
    std::uint32_t knownIndex = 0;
    std::uint32_t keptAfterIndices = 0;
    std::array<std::uint8_t, 8> beforeHitPoints{};
    std::uint32_t hitPoints = 0;
    std::array<std::uint8_t, 8> beforeMaterial{};
    std::uint32_t material = 0; // a MaterialType
    Damages resistances;

protected:
    explicit ObjectData(std::size_t beforeOptionalsSize);
    // The part after the shared head.
    virtual bool readBody(ibytestream& in) = 0;
    virtual bool writeBody(obytestream& out) const = 0;
};

} // namespace arcanum
