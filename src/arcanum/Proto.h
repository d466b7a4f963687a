#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace arcanum {

class ibytestream;
class obytestream;

// One object prototype (.pro): a fixed header and one data block of the prototype's item type.
// Every byte the model does not interpret is kept, so loading and saving an untouched file gives
// the same bytes back. Coded values are kept as the file's numbers; the enumerations below only
// name them, and every ...ToString function answers a number it has no text for with the number.
class Proto
{
public:
    enum ItemType : std::uint32_t {
        Wall, Portal, Container, Scenery, Projectile, Weapon, Ammo, Armor, Gold, Food, Scroll, Key,
        Keyring, Schematic, Generic, PC, NPC, Trap
    };
    static constexpr std::uint32_t ITEM_TYPE_COUNT = 18;

    enum ScriptPoint : std::uint32_t {
        Examine, Use, Destroy, Unlock, Get, Drop, Throw, Hit, Miss, Dialog, FirstHeartbeat,
        CatchingThievingPC, Dying, EnterCombat, ExitCombat, StartCombat, EndCombat, BuyObject, Resurrect,
        Heartbeat, LeaderKilling, InsertItem, WillKillOnSight, TakingDamage, WieldOn, WieldOff, CritterHits,
        NewSector, RemoveItem, LeaderSleeping, Bust, DialogOverride, Transfer, CaughtThief, CriticalHitPoint,
        CriticalMissPoint
    };
    static constexpr std::uint32_t SCRIPT_POINT_COUNT = 36;

    enum CriticalHit : std::uint32_t { Cutting, Crushing, Impaling, Electrical, FireHit };
    static constexpr std::uint32_t CRITICAL_HIT_COUNT = 5;

    enum CriticalMiss : std::uint32_t {
        Blade, Bludgeon, Handled, Gun, Bow, Barehand, Explosive, FireMiss, Electricity
    };
    static constexpr std::uint32_t CRITICAL_MISS_COUNT = 9;

    enum SocialClass : std::uint32_t {
        Noble, Priest, Mage, Technologist, Shopkeeper, Guard, Townsman, Villager, Beggar, Thief, Bandit
    };
    static constexpr std::uint32_t SOCIAL_CLASS_COUNT = 11;

    enum MaterialType : std::uint32_t {
        Unknown0, Unknown1, Wood, Unknown3, Flesh, Metal, Unknown6, Leather, Unknown8, Paper, Unknown10,
        Unknown11, Unknown12, Unknown13, Unknown14
    };
    static constexpr std::uint32_t MATERIAL_TYPE_COUNT = 15;

    enum ScrollType : std::uint32_t { Book, Note, Newspaper, Telegram, Image, Schema };
    static constexpr std::uint32_t SCROLL_TYPE_COUNT = 6;

    enum ClothType : std::uint32_t {
        Wool, LeatherCloth, Chainmail, Machined, Robe, Plate, Horror, Suit, Shield, Helm, Gloves, Boots, Ring,
        Locket
    };
    static constexpr std::uint32_t CLOTH_TYPE_COUNT = 14;

    enum WeaponType : std::uint32_t { Boomerang, Knife, Sword, Axe, Mace, Pistol, THSword, BowWeapon, Rifle, Staff };
    static constexpr std::uint32_t WEAPON_TYPE_COUNT = 10;

    enum AmmoType : std::uint32_t { Arrow, Bullet, Battery, Fuel, NoAmmo = 10000 };
    static constexpr std::uint32_t AMMO_TYPE_COUNT = 4;

    enum ResistanceType : std::uint32_t { ResistDamage, ResistFire, ResistElectrical, ResistPoison, ResistMagic };
    static constexpr std::uint32_t RESISTANCE_TYPE_COUNT = 5;

    enum DamageType : std::uint32_t { Normal, PoisonDamage, ElectricalDamage, FireDamage, Fatigue };
    static constexpr std::uint32_t DAMAGE_TYPE_COUNT = 5;

    static std::string itemTypeToString(ItemType value);
    static std::string scriptPointToString(ScriptPoint value);
    static std::string criticalHitToString(CriticalHit value);
    static std::string criticalMissToString(CriticalMiss value);
    static std::string socialClassToString(SocialClass value);
    static std::string materialTypeToString(MaterialType value);
    static std::string scrollTypeToString(ScrollType value);
    static std::string clothTypeToString(ClothType value);
    static std::string weaponTypeToString(WeaponType value);
    static std::string ammoTypeToString(AmmoType value);
    static std::string resistanceTypeToString(ResistanceType value);
    static std::string damageTypeToString(DamageType value);

    // Sub-records and the art number decoder (ProtoRecords.h, ProtoArtIndex.h).
    class Sparse;
    class Optional;
    class Damages;
    class Scripts;
    class ScriptArgs;
    class ArtIndex;

    // Data blocks, one class per item type (ProtoData.h, ProtoStaticData.h, ProtoMovableData.h).
    class Data;
    class WallData;
    class ObjectData;
    class StaticData;
    class PortalData;
    class ContainerData;
    class SceneryData;
    class TrapData;
    class MovableData;
    class ProjectileData;
    class WeaponData;
    class AmmoData;
    class ArmorData;
    class GoldData;
    class FoodData;
    class ScrollData;
    class KeyData;
    class KeyringData;
    class SchematicData;
    class GenericData;
    class CritterData;
    class PCData;
    class NPCData;

    // The 52 bytes between the signature and the data block.
    struct Header
    {
        std::uint16_t word = 0;
        std::array<std::uint8_t, 30> unknown1{};
        std::uint32_t index = 0;
        std::array<std::uint8_t, 12> unknown2{};
        std::uint32_t itemType = 0; // an ItemType
    };

    static constexpr std::uint32_t SIGNATURE = 119;
    // File offsets of the parts the editor shows raw.
    static constexpr unsigned UNKNOWN1_OFFSET = 6;
    static constexpr unsigned UNKNOWN2_OFFSET = 40;
    static constexpr unsigned DATA_OFFSET = 56;

    Proto();
    ~Proto();
    Proto(const Proto&) = delete;
    Proto& operator=(const Proto&) = delete;

    // Reads the file at path (a byte string); on any failure the model is left empty and the reason
    // is one "Proto::load() failed: ..." line on standard output.
    void load(const std::string& path);
    // Replaces the file at path in one step; false, with the old file untouched, when it could not.
    bool save(const std::string& path) const;
    // The same from bytes in memory (a file read out of an archive); path names it for messages
    // and becomes getPath(). True when a prototype was made.
    bool loadBytes(const std::string& path, const char* bytes, std::size_t count);
    // The bytes save() would write; empty when nothing is loaded.
    std::string toBytes() const;
    void clear();
    bool isLoaded() const;
    // Why the last load did not make a prototype, and the file offset of the field at fault.
    const std::string& loadFailure() const { return failure; }
    std::uint64_t loadFailureOffset() const { return failureOffset; }
    // An empty prototype of the given type, not tied to a file, for writing new ones; false for a
    // number that is no item type.
    bool create(std::uint32_t itemType);

    const std::string& getPath() const { return path; }
    Header& header() { return head; }
    const Header& header() const { return head; }
    Data* getData() const { return data.get(); }

    WallData* asWall() const;
    StaticData* asStatic() const;
    MovableData* asMovable() const;
    WeaponData* asWeapon() const;
    ArmorData* asArmor() const;
    ScrollData* asScroll() const;
    SchematicData* asSchematic() const;
    CritterData* asCritter() const;

    // A fresh, zeroed data block for the item type; null for a number that is no item type.
    static std::unique_ptr<Data> makeData(std::uint32_t itemType);

private:
    bool read(ibytestream& in, const std::string& name);
    bool write(obytestream& out) const;
    bool readHeader(ibytestream& in);
    bool readData(ibytestream& in);
    void writeHeader(obytestream& out) const;
    void fail(const std::string& why, std::uint64_t offset);

    Header head;
    std::unique_ptr<Data> data;
    std::string path;
    std::string failure;
    std::uint64_t failureOffset = 0;
};

} // namespace arcanum
