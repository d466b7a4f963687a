#pragma once

#include "ProtoData.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace arcanum {

// Objects that stay where they are placed: the shared head and a raw tail of the type's size.
class Proto::StaticData : public Proto::ObjectData
{
public:
    std::vector<std::uint8_t> tail;

protected:
    explicit StaticData(std::size_t tailSize);
    bool readBody(ibytestream& in) override;
    bool writeBody(obytestream& out) const override;
};

class Proto::PortalData : public Proto::StaticData
{
public:
    PortalData() : StaticData(37) {}
};

class Proto::ContainerData : public Proto::StaticData
{
public:
    ContainerData() : StaticData(34) {}
};

class Proto::SceneryData : public Proto::StaticData
{
public:
    SceneryData() : StaticData(26) {}
};

class Proto::TrapData : public Proto::StaticData
{
public:
    TrapData() : StaticData(1) {}
};

} // namespace arcanum
