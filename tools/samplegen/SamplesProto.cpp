// Prototypes of the sample game, made and written by the prototype model itself.
#include "SampleRegistry.h"

#include "Proto.h"
#include "ProtoMovableData.h"
#include "ProtoStaticData.h"

#include <QFile>

namespace {

using arcanum::Proto;

// A header with a recognisable pattern in its kept blocks, so the hex views have something to show.
void fillHeader(Proto& proto, std::uint32_t index)
{
    Proto::Header& head = proto.header();
    head.word = 0x0001;
    head.index = index;
    for (std::size_t i = 0; i < head.unknown1.size(); ++i)
        head.unknown1[i] = static_cast<std::uint8_t>(i % 3 == 0 ? 0xFF : 0x00);
    head.unknown2[0] = 0x08;
    head.unknown2[4] = 0x01;
}

// A new prototype of a static or movable type with its header and the values every object has.
Proto::ObjectData& startObject(Proto& proto, Proto::ItemType type, std::uint32_t index, std::uint32_t hitPoints,
                               std::uint32_t material)
{
    proto.create(type);
    fillHeader(proto, index);
    auto& object = dynamic_cast<Proto::ObjectData&>(*proto.getData());
    object.internalIndex = 10000 + index;
    object.knownIndex = 10001 + index;
    object.hitPoints = hitPoints;
    object.material = material;
    return object;
}

void setDamages(Proto::Damages& damages, std::initializer_list<std::pair<std::uint32_t, std::int32_t>> kinds)
{
    damages.present = 1;
    damages.elementSize = Proto::Damages::ELEMENT_SIZE;
    damages.count = 0;
    damages.maskLow = 0;
    for (const auto& kind : kinds) {
        damages.values[damages.count++] = kind.second;
        damages.maskLow |= 1u << kind.first;
    }
}

void attachScript(Proto::Scripts& scripts, Proto::ScriptPoint point, std::uint32_t number, std::uint8_t counter)
{
    scripts.present = 1;
    scripts.elementSize = Proto::Scripts::ELEMENT_SIZE;
    Proto::ScriptArgs& args = scripts.args[scripts.count++];
    args.number = number;
    args.counters[0] = counter;
    scripts.setMask(scripts.mask() | std::uint64_t(1) << point);
}

bool save(const Proto& proto, const QDir& game, const char* name)
{
    return proto.save(QFile::encodeName(game.filePath(QStringLiteral("data/proto/") + QLatin1String(name))).toStdString());
}

bool writeWall(const QDir& game)
{
    Proto proto;
    proto.create(Proto::Wall);
    fillHeader(proto, 1);
    for (std::size_t i = 0; i < Proto::WallData::SIZE; ++i)
        proto.asWall()->bytes[i] = static_cast<std::uint8_t>(i * 7);
    return save(proto, game, "wall_stone.pro");
}

bool writeChest(const QDir& game)
{
    Proto proto;
    Proto::ObjectData& chest = startObject(proto, Proto::Container, 1203, 60, Proto::Wood);
    chest.flags1 = arcanum::ObjectFlag1::NoBlock;
    setDamages(chest.resistances, {{Proto::ResistFire, 10}});
    return save(proto, game, "container_chest.pro");
}

bool writeWeapon(const QDir& game)
{
    Proto proto;
    startObject(proto, Proto::Weapon, 4027, 150, Proto::Metal);
    Proto::WeaponData* sword = proto.asWeapon();
    sword->itemFlags[0] = arcanum::ItemFlag0::Identified | arcanum::ItemFlag0::IsMagical;
    sword->weight = 40;
    sword->worth = 320;
    sword->manaStore = 15;
    sword->magicComplexity = 25;
    sword->sound = 6204;
    sword->weaponFlags = arcanum::WeaponFlag::Loud;
    sword->toHit = 5;
    sword->speed = 9;
    sword->range = 1;
    sword->msr = 8;
    sword->ammoType = Proto::NoAmmo;
    sword->criticalHit = Proto::Cutting;
    sword->criticalMiss = Proto::Blade;
    sword->criticalHitMagicEfficiency = 10;
    setDamages(sword->minDamages, {{Proto::ResistDamage, 3}});
    setDamages(sword->maxDamages, {{Proto::ResistDamage, 9}});
    setDamages(sword->magicDamages, {{Proto::ResistFire, 4}});
    attachScript(sword->scripts, Proto::WieldOn, 1530, 2);
    attachScript(sword->scripts, Proto::CriticalHitPoint, 1531, 0);
    return save(proto, game, "weapon_sword.pro");
}

bool writeArmor(const QDir& game)
{
    Proto proto;
    startObject(proto, Proto::Armor, 5012, 90, Proto::Leather);
    Proto::ArmorData* armor = proto.asArmor();
    armor->weight = 80;
    armor->worth = 150;
    armor->armorClass = 12;
    armor->silentMove = 5;
    setDamages(armor->armorResistances, {{Proto::ResistDamage, 10}, {Proto::ResistPoison, 5}});
    // Real armour prototypes end with four bytes past the armour layout; they are kept.
    armor->rest = {0x00, 0x00, 0x80, 0x3F};
    return save(proto, game, "armor_leather.pro");
}

bool writeSchematic(const QDir& game)
{
    Proto proto;
    startObject(proto, Proto::Schematic, 8003, 1, Proto::Paper);
    Proto::SchematicData* schematic = proto.asSchematic();
    schematic->scrollType = Proto::Schema;
    schematic->startLine = 2000;
    schematic->endLine = 2004;
    return save(proto, game, "schematic_pistol.pro");
}

bool writeScroll(const QDir& game)
{
    Proto proto;
    startObject(proto, Proto::Scroll, 7010, 1, Proto::Paper);
    proto.asMovable()->worth = 25;
    attachScript(proto.asMovable()->scripts, Proto::Use, 1602, 0);
    return save(proto, game, "scroll_note.pro");
}

bool writeNpc(const QDir& game)
{
    Proto proto;
    proto.create(Proto::NPC);
    fillHeader(proto, 14050);
    // The model keeps a critter's block without reading it; any bytes do.
    std::vector<std::uint8_t>& block = proto.asCritter()->bytes;
    for (int i = 0; i < 200; ++i)
        block.push_back(static_cast<std::uint8_t>(i));
    return save(proto, game, "npc_guard.pro");
}

bool writePrototypes(const QDir& game)
{
    bool ok = writeWall(game);
    ok = writeChest(game) && ok;
    ok = writeWeapon(game) && ok;
    ok = writeArmor(game) && ok;
    ok = writeSchematic(game) && ok;
    ok = writeScroll(game) && ok;
    return writeNpc(game) && ok;
}

const SampleRegistration registration("proto", &writePrototypes);

} // namespace
