#include "ProtoRecords.h"

#include "ibytestream.h"
#include "obytestream.h"

#include <bitset>
#include <sstream>

namespace arcanum {

bool Proto::Sparse::read(ibytestream& in)
{
    in.read8(present);
    if (!isPresent())
        return !in.damaged();
    in.read32(elementSize).read32(count).read32(keptBefore);
    if (!readElements(in))
        return false;
    in.read32(keptAfter).read32(maskLow).read32(maskHigh);
    return checkMask(in);
}

bool Proto::Sparse::write(obytestream& out) const
{
    out.write8(present);
    if (!isPresent())
        return out.ok();
    out.write32(elementSize).write32(count).write32(keptBefore);
    writeElements(out);
    out.write32(keptAfter).write32(maskLow).write32(maskHigh);
    return out.ok();
}

void Proto::Sparse::setMask(std::uint64_t bits)
{
    maskLow = static_cast<std::uint32_t>(bits);
    maskHigh = static_cast<std::uint32_t>(bits >> 32);
}

void Proto::Sparse::makePresent(std::uint32_t usualElementSize)
{
    if (isPresent())
        return;
    present = 1;
    elementSize = usualElementSize;
}

bool Proto::Sparse::refuseCount(ibytestream& in, std::uint64_t room) const
{
    std::ostringstream why;
    why << name() << " count " << count << " is more than the room for " << room;
    // The count is followed by one kept word.
    return in.refuse(why.str(), 8);
}

bool Proto::Sparse::checkMask(ibytestream& in) const
{
    const std::uint64_t bits = countedBits();
    if ((bits & ~allowedBits()) == 0 && std::bitset<64>(bits).count() == count)
        return !in.damaged();
    std::ostringstream why;
    why << name() << " count " << count << " disagrees with its mask 0x" << std::hex << mask();
    return in.refuse(why.str(), 8);
}

bool Proto::Optional::readElements(ibytestream& in)
{
    if (count > 64)
        return refuseCount(in, 64);
    const std::uint64_t size = std::uint64_t(elementSize) * count;
    if (size > in.remaining()) {
        std::ostringstream why;
        why << name() << " of " << size << " bytes is larger than the " << in.remaining()
            << " bytes left in the file";
        return in.refuse(why.str(), 8);
    }
    bytes.assign(static_cast<std::size_t>(size), 0);
    in.readBlock(bytes);
    return true;
}

void Proto::Optional::writeElements(obytestream& out) const
{
    out.writeBlock(bytes);
}

bool Proto::Damages::readElements(ibytestream& in)
{
    if (count > ROOM)
        return refuseCount(in, ROOM);
    for (std::uint32_t i = 0; i < count; ++i)
        in.read32(values[i]);
    return true;
}

void Proto::Damages::writeElements(obytestream& out) const
{
    for (std::uint32_t i = 0; i < count && i < ROOM; ++i)
        out.write32(values[i]);
}

void Proto::ScriptArgs::read(ibytestream& in)
{
    in.read32(flags).readBlock(counters);
    in.read32(number);
}

void Proto::ScriptArgs::write(obytestream& out) const
{
    out.write32(flags).writeBlock(counters);
    out.write32(number);
}

bool Proto::ScriptArgs::operator==(const ScriptArgs& other) const
{
    return flags == other.flags && counters == other.counters && number == other.number;
}

bool Proto::Scripts::readElements(ibytestream& in)
{
    if (count > ROOM)
        return refuseCount(in, ROOM);
    for (std::uint32_t i = 0; i < count; ++i)
        args[i].read(in);
    return true;
}

void Proto::Scripts::writeElements(obytestream& out) const
{
    for (std::uint32_t i = 0; i < count && i < ROOM; ++i)
        args[i].write(out);
}

} // namespace arcanum
