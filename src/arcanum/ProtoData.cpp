#include "ProtoData.h"

#include "ibytestream.h"
#include "obytestream.h"

namespace arcanum {

bool Proto::WallData::read(ibytestream& in)
{
    in.readBlock(bytes);
    return true;
}

bool Proto::WallData::write(obytestream& out) const
{
    return out.writeBlock(bytes).ok();
}

bool Proto::CritterData::read(ibytestream& in)
{
    bytes = in.readRest();
    return true;
}

bool Proto::CritterData::write(obytestream& out) const
{
    return out.writeBlock(bytes).ok();
}

Proto::ObjectData::ObjectData(std::size_t beforeOptionalsSize)
    : beforeOptionals(beforeOptionalsSize)
{
}

bool Proto::ObjectData::read(ibytestream& in)
{
    in.readBlock(leading).read32(keptWord).readBlock(beforeOptionals);
    for (Optional& optional : optionals) {
        if (!optional.read(in))
            return false;
    }
    in.readBlock(afterOptionals);
    if (!lastOptional.read(in))
        return false;
    in.read32(flags1).read32(flags2).readBlock(beforeIndices);
    in.read32(internalIndex).read32(knownIndex).read32(keptAfterIndices);
    in.readBlock(beforeHitPoints).read32(hitPoints);
    in.readBlock(beforeMaterial).read32(material);
    return resistances.read(in) && readBody(in);
}

bool Proto::ObjectData::write(obytestream& out) const
{
    out.writeBlock(leading).write32(keptWord).writeBlock(beforeOptionals);
    for (const Optional& optional : optionals)
        optional.write(out);
    out.writeBlock(afterOptionals);
    lastOptional.write(out);
    out.write32(flags1).write32(flags2).writeBlock(beforeIndices);
    out.write32(internalIndex).write32(knownIndex).write32(keptAfterIndices);
    out.writeBlock(beforeHitPoints).write32(hitPoints);
    out.writeBlock(beforeMaterial).write32(material);
    resistances.write(out);
    return writeBody(out);
}

} // namespace arcanum
