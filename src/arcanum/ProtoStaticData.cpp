#include "ProtoStaticData.h"

#include "ibytestream.h"
#include "obytestream.h"

namespace arcanum {

namespace {
constexpr std::size_t STATIC_BEFORE_OPTIONALS = 9;
}

Proto::StaticData::StaticData(std::size_t tailSize)
    : ObjectData(STATIC_BEFORE_OPTIONALS)
    , tail(tailSize)
{
}

bool Proto::StaticData::readBody(ibytestream& in)
{
    in.readBlock(tail);
    return true;
}

bool Proto::StaticData::writeBody(obytestream& out) const
{
    return out.writeBlock(tail).ok();
}

} // namespace arcanum
