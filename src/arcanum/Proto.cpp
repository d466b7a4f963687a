#include "Proto.h"

#include "ProtoMovableData.h"
#include "ProtoStaticData.h"
#include "ibytestream.h"
#include "obytestream.h"

#include <iostream>

namespace arcanum {

Proto::Proto() = default;

Proto::~Proto()
{
    clear();
}

void Proto::load(const std::string& fromPath)
{
    ibytestream in(fromPath);
    if (read(in, fromPath))
        path = fromPath;
}

bool Proto::loadBytes(const std::string& fromPath, const char* bytes, std::size_t count)
{
    ibytestream in(bytes, count);
    if (read(in, fromPath))
        path = fromPath;
    return isLoaded();
}

bool Proto::read(ibytestream& in, const std::string& name)
{
    clear();
    fail(std::string(), 0);
    if (!in.ok()) {
        std::cout << "Proto::load() failed: can't open " << name << std::endl;
        fail("cannot be opened", 0);
        return false;
    }
    return readHeader(in) && readData(in);
}

bool Proto::readHeader(ibytestream& in)
{
    std::uint32_t signature = 0;
    in.read32(signature);
    if (signature != SIGNATURE) {
        std::cout << "Proto::load() failed: wrong signature." << std::endl;
        fail("wrong signature " + std::to_string(signature) + ", expected " + std::to_string(SIGNATURE), 0);
        return false;
    }
    in.read16(head.word).readBlock(head.unknown1);
    in.read32(head.index).readBlock(head.unknown2).read32(head.itemType);
    // Past the header a short file reads as zeros, but without a whole header not even the item
    // type is known.
    if (!in.ok()) {
        std::cout << "Proto::load() failed: the file ends inside the header." << std::endl;
        fail("the file ends inside the header", in.position());
        head = Header();
        return false;
    }
    return true;
}

// An unknown item type keeps the path but makes no data block, so the model is not loaded.
bool Proto::readData(ibytestream& in)
{
    data = makeData(head.itemType);
    if (!data) {
        std::cout << "Read method unimplemented fot ItemType: " << head.itemType << std::endl;
        fail("unknown item type " + std::to_string(head.itemType), DATA_OFFSET - 4);
        return true;
    }
    if (!data->read(in)) {
        std::cout << "Proto::load() failed: damaged file: " << in.whyDamaged() << '.' << std::endl;
        fail(in.damaged() ? in.whyDamaged() : "damaged data block", in.damageOffset());
        clear();
        return false;
    }
    // A file shorter than its item type's layout would read as zeros and save padded with invented bytes.
    if (!in.ok()) {
        fail("the file ends at byte " + std::to_string(in.position()) + ", inside the data of its item type "
                 + std::to_string(head.itemType),
             in.position());
        clear();
        return false;
    }
    data->rest = in.readRest();
    return true;
}

bool Proto::save(const std::string& toPath) const
{
    if (!data) {
        std::cout << "Proto::save() failed: nothing loaded." << std::endl;
        return false;
    }
    obytestream out(toPath);
    if (!out.ok()) {
        std::cout << "Proto::save() failed: can't open " << toPath << std::endl;
        return false;
    }
    if (!write(out) || !out.commit()) {
        std::cout << "Proto::save() failed: can't write " << toPath << std::endl;
        return false;
    }
    return true;
}

std::string Proto::toBytes() const
{
    obytestream out;
    return data && write(out) ? out.bytes() : std::string();
}

bool Proto::write(obytestream& out) const
{
    writeHeader(out);
    return data->write(out) && out.writeBlock(data->rest).ok();
}

void Proto::fail(const std::string& why, std::uint64_t offset)
{
    failure = why;
    failureOffset = offset;
}

void Proto::writeHeader(obytestream& out) const
{
    out.write32(SIGNATURE).write16(head.word).writeBlock(head.unknown1);
    out.write32(head.index).writeBlock(head.unknown2).write32(head.itemType);
}

void Proto::clear()
{
    path.clear();
    data.reset();
}

bool Proto::isLoaded() const
{
    return !path.empty() && data;
}

bool Proto::create(std::uint32_t itemType)
{
    clear();
    head = Header();
    head.itemType = itemType;
    data = makeData(itemType);
    return data != nullptr;
}

std::unique_ptr<Proto::Data> Proto::makeData(std::uint32_t itemType)
{
    switch (itemType) {
    case Wall: return std::make_unique<WallData>();
    case Portal: return std::make_unique<PortalData>();
    case Container: return std::make_unique<ContainerData>();
    case Scenery: return std::make_unique<SceneryData>();
    case Projectile: return std::make_unique<ProjectileData>();
    case Weapon: return std::make_unique<WeaponData>();
    case Ammo: return std::make_unique<AmmoData>();
    case Armor: return std::make_unique<ArmorData>();
    case Gold: return std::make_unique<GoldData>();
    case Food: return std::make_unique<FoodData>();
    case Scroll: return std::make_unique<ScrollData>();
    case Key: return std::make_unique<KeyData>();
    case Keyring: return std::make_unique<KeyringData>();
    case Schematic: return std::make_unique<SchematicData>();
    case Generic: return std::make_unique<GenericData>();
    case PC: return std::make_unique<PCData>();
    case NPC: return std::make_unique<NPCData>();
    case Trap: return std::make_unique<TrapData>();
    default: return nullptr;
    }
}

namespace {
template <typename Block>
Block* blockAs(const std::unique_ptr<Proto::Data>& data)
{
    return dynamic_cast<Block*>(data.get());
}
} // namespace

Proto::WallData* Proto::asWall() const { return blockAs<WallData>(data); }
Proto::StaticData* Proto::asStatic() const { return blockAs<StaticData>(data); }
Proto::MovableData* Proto::asMovable() const { return blockAs<MovableData>(data); }
Proto::WeaponData* Proto::asWeapon() const { return blockAs<WeaponData>(data); }
Proto::ArmorData* Proto::asArmor() const { return blockAs<ArmorData>(data); }
Proto::ScrollData* Proto::asScroll() const { return blockAs<ScrollData>(data); }
Proto::SchematicData* Proto::asSchematic() const { return blockAs<SchematicData>(data); }
Proto::CritterData* Proto::asCritter() const { return blockAs<CritterData>(data); }

} // namespace arcanum
