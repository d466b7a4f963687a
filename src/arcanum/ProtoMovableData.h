#pragma once

#include "ProtoData.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace arcanum {

// Item flag bits the editor shows, by byte of MovableData::itemFlags.
namespace ItemFlag0 {
constexpr std::uint8_t Identified = 0x01;
constexpr std::uint8_t Unsellable = 0x02;
constexpr std::uint8_t IsMagical = 0x04;
constexpr std::uint8_t TransferLight = 0x08;
constexpr std::uint8_t NoDisplay = 0x10;
constexpr std::uint8_t NoDrop = 0x20;
constexpr std::uint8_t Hexed = 0x40;
constexpr std::uint8_t CanUseBox = 0x80;
} // namespace ItemFlag0

namespace ItemFlag1 {
constexpr std::uint8_t NeedsTarget = 0x01;
constexpr std::uint8_t Persistent = 0x20;
constexpr std::uint8_t Stolen = 0x80;
} // namespace ItemFlag1

namespace ItemFlag2 {
constexpr std::uint8_t NoDecay = 0x02;
constexpr std::uint8_t Uber = 0x04;
constexpr std::uint8_t NoNpcPickup = 0x08;
} // namespace ItemFlag2

// Bits of WeaponData::weaponFlags; bits 5 and 7 are kept as read.
namespace WeaponFlag {
constexpr std::uint8_t Loud = 0x01;
constexpr std::uint8_t Silent = 0x02;
constexpr std::uint8_t TwoHanded = 0x04;
constexpr std::uint8_t HandCountFixed = 0x08;
constexpr std::uint8_t Throwable = 0x10;
constexpr std::uint8_t Boomerang = 0x40;
} // namespace WeaponFlag

// Items that can be picked up: the shared head, scripts, item values, then the type's own part.
class Proto::MovableData : public Proto::ObjectData
{
public:
    Scripts scripts;
    std::uint32_t sound = 0;
    std::array<std::uint8_t, 6> beforeItemFlags{};
    std::array<std::uint8_t, 3> itemFlags{};
    std::array<std::uint8_t, 2> afterItemFlags{};
    std::uint32_t weight = 0;
    std::uint32_t weightMagical = 0;
    std::uint32_t worth = 0;
    std::uint32_t manaStore = 0;
    std::array<std::uint32_t, 3> keptAfterManaStore{};
    std::uint32_t magicComplexity = 0;
    std::array<std::uint32_t, 2> keptAfterComplexity{};
    std::uint32_t effectIndex = 0;
    std::array<std::uint8_t, 20> beforeSpellsMana{};
    std::uint32_t spellsMana = 0;
    // The whole own part of the types the model does not interpret further.
    std::vector<std::uint8_t> tail;

protected:
    explicit MovableData(std::size_t tailSize);
    bool readBody(ibytestream& in) override;
    bool writeBody(obytestream& out) const override;
    // The type's own part after the shared item values; by default the raw tail.
    virtual bool readOwn(ibytestream& in);
    virtual bool writeOwn(obytestream& out) const;
};

class Proto::ProjectileData : public Proto::MovableData
{
public:
    ProjectileData() : MovableData(56) {}
};

class Proto::AmmoData : public Proto::MovableData
{
public:
    AmmoData() : MovableData(32) {}
};

class Proto::GoldData : public Proto::MovableData
{
public:
    GoldData() : MovableData(28) {}
};

class Proto::FoodData : public Proto::MovableData
{
public:
    FoodData() : MovableData(24) {}
};

class Proto::ScrollData : public Proto::MovableData
{
public:
    ScrollData() : MovableData(24) {}
};

class Proto::KeyData : public Proto::MovableData
{
public:
    KeyData() : MovableData(24) {}
};

class Proto::KeyringData : public Proto::MovableData
{
public:
    KeyringData() : MovableData(25) {}
};

class Proto::GenericData : public Proto::MovableData
{
public:
    GenericData() : MovableData(24) {}
};

class Proto::WeaponData : public Proto::MovableData
{
public:
    WeaponData() : MovableData(0) {}

    std::array<std::uint8_t, 10> beforeFlags{};
    std::uint8_t weaponFlags = 0;
    std::array<std::uint8_t, 3> afterFlags{};
    std::uint32_t keptBeforeToHit = 0;
    std::uint32_t toHit = 0;
    std::uint32_t toHitMagic = 0;
    Damages minDamages;
    Damages maxDamages;
    Damages magicDamages;
    std::uint32_t speed = 0;
    std::uint32_t speedMagic = 0;
    std::uint32_t range = 0;
    std::uint32_t rangeMagic = 0;
    std::uint32_t msr = 0; // minimum strength required
    std::uint32_t msrMagic = 0;
    std::uint32_t ammoType = 0; // an AmmoType; NoAmmo for none
    std::uint32_t ammoUsage = 0;
    std::array<std::uint8_t, 8> beforeCritical{};
    std::uint32_t criticalHit = 0; // a CriticalHit
    std::uint32_t criticalHitMagic = 0;
    std::uint32_t criticalHitMagicEfficiency = 0;
    std::uint32_t criticalMiss = 0; // a CriticalMiss
    std::uint32_t criticalMissMagic = 0;
    std::array<std::uint8_t, 14> trailing{};

protected:
    bool readOwn(ibytestream& in) override;
    bool writeOwn(obytestream& out) const override;
};

class Proto::ArmorData : public Proto::MovableData
{
public:
    ArmorData() : MovableData(0) {}

    std::array<std::uint8_t, 14> leadingOwn{};
    std::uint32_t keptBeforeArmorClass = 0;
    std::uint32_t armorClass = 0;
    std::uint32_t armorClassMagic = 0;
    Damages armorResistances;
    Damages armorResistancesMagic;
    std::uint32_t silentMove = 0;
    std::uint32_t silentMoveMagic = 0;
    std::array<std::uint8_t, 10> trailing{};

protected:
    bool readOwn(ibytestream& in) override;
    bool writeOwn(obytestream& out) const override;
};

class Proto::SchematicData : public Proto::MovableData
{
public:
    SchematicData() : MovableData(0) {}

    std::array<std::uint8_t, 14> leadingOwn{};
    std::uint32_t scrollType = 0; // a ScrollType
    std::uint32_t startLine = 0;
    std::uint32_t endLine = 0;

protected:
    bool readOwn(ibytestream& in) override;
    bool writeOwn(obytestream& out) const override;
};

} // namespace arcanum
