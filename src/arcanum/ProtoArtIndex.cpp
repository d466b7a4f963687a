#include "ProtoArtIndex.h"

#include <array>

namespace arcanum {

namespace {

constexpr std::uint32_t ITEM_ART_MASK = ~std::uint32_t(0x1FFFFFF); // the top seven bits
constexpr std::uint32_t ITEM_ART = 0x60000000;
constexpr std::uint32_t KEY_MASK = 0x1CFCF;

constexpr std::array<std::uint32_t, Proto::WEAPON_TYPE_COUNT> WEAPON_KEYS = {
    0x40, 0x80, 0xC0, 0x100, 0x140, 0x180, 0x1C0, 0x200, 0x280, 0x340};
constexpr std::array<std::uint32_t, Proto::WEAPON_TYPE_COUNT> WEAPON_BASES = {
    20, 40, 60, 80, 100, 120, 140, 160, 200, 260};

constexpr std::array<std::uint32_t, Proto::CLOTH_TYPE_COUNT> CLOTH_KEYS = {
    0x42, 0x82, 0xC2, 0x102, 0x142, 0x182, 0x1C2, 0x202, 0x4002, 0x8002, 0xC002, 0x10002, 0x14002, 0x18002};
constexpr std::array<std::uint32_t, Proto::CLOTH_TYPE_COUNT> CLOTH_BASES = {
    2020, 2040, 2060, 2080, 2100, 2120, 2140, 2160, 2300, 2400, 2500, 2600, 2700, 2800};

// Sets index and base from the tables where key is found; leaves both as they are otherwise.
template <std::size_t N>
void findKey(const std::array<std::uint32_t, N>& keys, const std::array<std::uint32_t, N>& bases, std::uint32_t key,
             std::uint32_t& index, std::uint32_t& base)
{
    for (std::size_t i = 0; i < N; ++i) {
        if (keys[i] == key) {
            index = static_cast<std::uint32_t>(i);
            base = bases[i];
            return;
        }
    }
}

} // namespace

Proto::ArtIndex::ArtIndex(std::uint32_t number, std::uint32_t type)
    : artNumber(number)
    , itemType(type)
{
}

void Proto::ArtIndex::decode()
{
    valid = artNumber != 0;
    if (!valid)
        return;
    isItemArt = (artNumber & ITEM_ART_MASK) == ITEM_ART;
    if (!isItemArt) {
        weaponIndex = clothIndex = base = 0;
        image = palette = 0;
        return;
    }
    decodeBase(artNumber & KEY_MASK);
    palette = static_cast<std::uint8_t>((artNumber >> 4) & 0x3);
    image = static_cast<std::uint8_t>((artNumber >> 17) & 0xFF);
}

void Proto::ArtIndex::decodeBase(std::uint32_t key)
{
    switch (itemType) {
    case Weapon: findKey(WEAPON_KEYS, WEAPON_BASES, key, weaponIndex, base); break;
    case Armor: findKey(CLOTH_KEYS, CLOTH_BASES, key, clothIndex, base); break;
    case Ammo: base = 1000; break;
    case Gold: base = 3000; break;
    case Food: base = 4000; break;
    case Scroll: base = 5000; break;
    case Key: base = 6000; break;
    case Keyring: base = 7000; break;
    case Schematic: base = 8000; break;
    case Generic: base = 9000; break;
    default: base = 8888; break;
    }
}

} // namespace arcanum
