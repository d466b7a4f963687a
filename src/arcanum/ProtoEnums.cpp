// Display texts of the prototype enumerations.
#include "Proto.h"

#include <iterator>
#include <string>

namespace arcanum {

namespace {

// The text at value, or the value itself in decimal when the table has none.
template <std::size_t N>
std::string lookUp(const char* const (&texts)[N], std::uint32_t value)
{
    return value < N ? std::string(texts[value]) : std::to_string(value);
}

const char* const ITEM_TYPES[] = {"Wall", "Portal", "Container", "Scenery", "Projectile", "Weapon",
                                  "Ammo", "Armor", "Gold", "Food", "Scroll", "Key", "Keyring",
                                  "Schematic", "Generic", "PC", "NPC", "Trap"};

const char* const SCRIPT_POINTS[] = {
    "Examine", "Use", "Destroy", "Unlock", "Get", "Drop", "Throw", "Hit", "Miss", "Dialog",
    "First heartbeat", "Catching thieving PC", "Dying", "Enter combat", "Exit combat", "Start combat",
    "End combat", "Buy object", "Resurrect", "Heartbeat", "Leader killing", "Insert item",
    "Will kill on sight", "Taking damage", "Wield on", "Wield off", "Critter hits", "New sector",
    "Remove item", "Leader sleeping", "Bust", "Dialog override", "Transfer", "Caught thief", "Critical hit",
    "Critical miss"};

const char* const CRITICAL_HITS[] = {"Cutting", "Crushing", "Impaling", "Electrical", "Fire"};

const char* const CRITICAL_MISSES[] = {"Blade", "Bludgeon", "Handled", "Gun", "Bow",
                                       "Barehand", "Explosive", "Fire", "Electricity"};

const char* const SOCIAL_CLASSES[] = {"Noble", "Priest", "Mage", "Technologist", "Shopkeeper", "Guard",
                                      "Townsman", "Villager", "Beggar", "Thief", "Bandit"};

const char* const MATERIAL_TYPES[] = {"Unknown 0", "Unknown 1", "Wood", "Unknown 3", "Flesh",
                                      "Metal", "Unknown 6", "Leather", "Unknown 8", "Paper",
                                      "Unknown 10", "Unknown 11", "Unknown 12", "Unknown 13", "Unknown 14"};

const char* const SCROLL_TYPES[] = {"Book", "Note", "Newspaper", "Telegram", "Image", "Schema"};

const char* const CLOTH_TYPES[] = {"Wool", "Leather", "Chainmail", "Machined", "Robe", "Plate", "Horror",
                                   "Suit", "Shield", "Helm", "Gloves", "Boots", "Ring", "Locket"};

const char* const WEAPON_TYPES[] = {"Boomerang", "Knife", "Sword", "Axe", "Mace",
                                    "Pistol", "TH Sword", "Bow", "Rifle", "Staff"};

const char* const AMMO_TYPES[] = {"Arrow", "Bullet", "Battery", "Fuel"};

const char* const RESISTANCE_TYPES[] = {"Damage", "Fire", "Electical", "Poison", "Magic"};

const char* const DAMAGE_TYPES[] = {"Normal", "Poison", "Electical", "Fire", "Fatigue"};

static_assert(std::size(ITEM_TYPES) == Proto::ITEM_TYPE_COUNT);
static_assert(std::size(SCRIPT_POINTS) == Proto::SCRIPT_POINT_COUNT);
static_assert(std::size(CRITICAL_HITS) == Proto::CRITICAL_HIT_COUNT);
static_assert(std::size(CRITICAL_MISSES) == Proto::CRITICAL_MISS_COUNT);
static_assert(std::size(SOCIAL_CLASSES) == Proto::SOCIAL_CLASS_COUNT);
static_assert(std::size(MATERIAL_TYPES) == Proto::MATERIAL_TYPE_COUNT);
static_assert(std::size(SCROLL_TYPES) == Proto::SCROLL_TYPE_COUNT);
static_assert(std::size(CLOTH_TYPES) == Proto::CLOTH_TYPE_COUNT);
static_assert(std::size(WEAPON_TYPES) == Proto::WEAPON_TYPE_COUNT);
static_assert(std::size(AMMO_TYPES) == Proto::AMMO_TYPE_COUNT);
static_assert(std::size(RESISTANCE_TYPES) == Proto::RESISTANCE_TYPE_COUNT);
static_assert(std::size(DAMAGE_TYPES) == Proto::DAMAGE_TYPE_COUNT);

} // namespace

std::string Proto::itemTypeToString(ItemType value)
{
    return lookUp(ITEM_TYPES, value);
}

std::string Proto::scriptPointToString(ScriptPoint value)
{
    return lookUp(SCRIPT_POINTS, value);
}

std::string Proto::criticalHitToString(CriticalHit value)
{
    return lookUp(CRITICAL_HITS, value);
}

std::string Proto::criticalMissToString(CriticalMiss value)
{
    return lookUp(CRITICAL_MISSES, value);
}

std::string Proto::socialClassToString(SocialClass value)
{
    return lookUp(SOCIAL_CLASSES, value);
}

std::string Proto::materialTypeToString(MaterialType value)
{
    return lookUp(MATERIAL_TYPES, value);
}

std::string Proto::scrollTypeToString(ScrollType value)
{
    return lookUp(SCROLL_TYPES, value);
}

std::string Proto::clothTypeToString(ClothType value)
{
    return lookUp(CLOTH_TYPES, value);
}

std::string Proto::weaponTypeToString(WeaponType value)
{
    return lookUp(WEAPON_TYPES, value);
}

std::string Proto::ammoTypeToString(AmmoType value)
{
    if (value == NoAmmo)
        return "None";
    return lookUp(AMMO_TYPES, value);
}

std::string Proto::resistanceTypeToString(ResistanceType value)
{
    return lookUp(RESISTANCE_TYPES, value);
}

std::string Proto::damageTypeToString(DamageType value)
{
    return lookUp(DAMAGE_TYPES, value);
}

} // namespace arcanum
