#pragma once

#include "Proto.h"

#include <cstdint>

namespace arcanum {

// The parts of a 32-bit art number: for item art the weapon or cloth kind with its base number, the
// image and the palette; for any other art only that it is valid.
class Proto::ArtIndex
{
public:
    ArtIndex(std::uint32_t artNumber, std::uint32_t itemType);

    void decode();
    std::uint32_t encode() const { return artNumber; }

    std::uint32_t artNumber = 0;
    std::uint32_t itemType = 0; // an ItemType
    bool valid = false;
    bool isItemArt = false;
    std::uint32_t weaponIndex = 0; // a WeaponType
    std::uint32_t clothIndex = 0;  // a ClothType
    std::uint32_t base = 0;
    std::uint8_t image = 0;
    std::uint8_t palette = 0; // 0 to 3

private:
    void decodeBase(std::uint32_t key);
};

} // namespace arcanum
