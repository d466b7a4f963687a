#include "ProtoMovableData.h"

#include "ibytestream.h"
#include "obytestream.h"

namespace arcanum {

namespace {
constexpr std::size_t MOVABLE_BEFORE_OPTIONALS = 13;
}

Proto::MovableData::MovableData(std::size_t tailSize)
    : ObjectData(MOVABLE_BEFORE_OPTIONALS)
    , tail(tailSize)
{
}

bool Proto::MovableData::readBody(ibytestream& in)
{
    if (!scripts.read(in))
        return false;
    in.read32(sound).readBlock(beforeItemFlags).readBlock(itemFlags).readBlock(afterItemFlags);
    in.read32(weight).read32(weightMagical).read32(worth).read32(manaStore);
    for (std::uint32_t& kept : keptAfterManaStore)
        in.read32(kept);
    in.read32(magicComplexity);
    for (std::uint32_t& kept : keptAfterComplexity)
        in.read32(kept);
    in.read32(effectIndex).readBlock(beforeSpellsMana).read32(spellsMana);
    return readOwn(in);
}

bool Proto::MovableData::writeBody(obytestream& out) const
{
    scripts.write(out);
    out.write32(sound).writeBlock(beforeItemFlags).writeBlock(itemFlags).writeBlock(afterItemFlags);
    out.write32(weight).write32(weightMagical).write32(worth).write32(manaStore);
    for (std::uint32_t kept : keptAfterManaStore)
        out.write32(kept);
    out.write32(magicComplexity);
    for (std::uint32_t kept : keptAfterComplexity)
        out.write32(kept);
    out.write32(effectIndex).writeBlock(beforeSpellsMana).write32(spellsMana);
    return writeOwn(out);
}

bool Proto::MovableData::readOwn(ibytestream& in)
{
    in.readBlock(tail);
    return true;
}

bool Proto::MovableData::writeOwn(obytestream& out) const
{
    return out.writeBlock(tail).ok();
}

bool Proto::WeaponData::readOwn(ibytestream& in)
{
    in.readBlock(beforeFlags).read8(weaponFlags).readBlock(afterFlags);
    in.read32(keptBeforeToHit).read32(toHit).read32(toHitMagic);
    if (!minDamages.read(in) || !maxDamages.read(in) || !magicDamages.read(in))
        return false;
    in.read32(speed).read32(speedMagic).read32(range).read32(rangeMagic);
    in.read32(msr).read32(msrMagic).read32(ammoType).read32(ammoUsage);
    in.readBlock(beforeCritical).read32(criticalHit).read32(criticalHitMagic);
    in.read32(criticalHitMagicEfficiency).read32(criticalMiss).read32(criticalMissMagic);
    in.readBlock(trailing);
    return true;
}

bool Proto::WeaponData::writeOwn(obytestream& out) const
{
    out.writeBlock(beforeFlags).write8(weaponFlags).writeBlock(afterFlags);
    out.write32(keptBeforeToHit).write32(toHit).write32(toHitMagic);
    minDamages.write(out);
    maxDamages.write(out);
    magicDamages.write(out);
    out.write32(speed).write32(speedMagic).write32(range).write32(rangeMagic);
    out.write32(msr).write32(msrMagic).write32(ammoType).write32(ammoUsage);
    out.writeBlock(beforeCritical).write32(criticalHit).write32(criticalHitMagic);
    out.write32(criticalHitMagicEfficiency).write32(criticalMiss).write32(criticalMissMagic);
    return out.writeBlock(trailing).ok();
}

bool Proto::ArmorData::readOwn(ibytestream& in)
{
    in.readBlock(leadingOwn).read32(keptBeforeArmorClass).read32(armorClass).read32(armorClassMagic);
    if (!armorResistances.read(in) || !armorResistancesMagic.read(in))
        return false;
    in.read32(silentMove).read32(silentMoveMagic).readBlock(trailing);
    return true;
}

bool Proto::ArmorData::writeOwn(obytestream& out) const
{
    out.writeBlock(leadingOwn).write32(keptBeforeArmorClass).write32(armorClass).write32(armorClassMagic);
    armorResistances.write(out);
    armorResistancesMagic.write(out);
    return out.write32(silentMove).write32(silentMoveMagic).writeBlock(trailing).ok();
}

bool Proto::SchematicData::readOwn(ibytestream& in)
{
    in.readBlock(leadingOwn).read32(scrollType).read32(startLine).read32(endLine);
    return true;
}

bool Proto::SchematicData::writeOwn(obytestream& out) const
{
    return out.writeBlock(leadingOwn).write32(scrollType).write32(startLine).write32(endLine).ok();
}

} // namespace arcanum
