#include "ibytestream.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace arcanum {

ibytestream::ibytestream(const std::string& path)
    : std::istream(nullptr)
{
    auto file = std::make_unique<std::filebuf>();
    // A folder opens like a file here but has no bytes to give.
    std::error_code error;
    const bool opened = !std::filesystem::is_directory(path, error) && file->open(path, std::ios::in | std::ios::binary);
    buffer = std::move(file);
    rdbuf(buffer.get());
    if (!opened)
        setstate(std::ios::failbit);
    measure();
}

ibytestream::ibytestream(const char* data, std::size_t count)
    : std::istream(nullptr)
    , buffer(std::make_unique<std::stringbuf>(std::string(data, count), std::ios::in))
{
    rdbuf(buffer.get());
    measure();
}

ibytestream::~ibytestream() = default;

void ibytestream::measure()
{
    if (!ok())
        return;
    seekg(0, std::ios::end);
    const std::streamoff end = tellg();
    seekg(0, std::ios::beg);
    size = end > 0 ? static_cast<std::uint64_t>(end) : 0;
}

ibytestream& ibytestream::readRaw(std::uint8_t* data, std::size_t count)
{
    if (count > 0)
        read(reinterpret_cast<char*>(data), static_cast<std::streamsize>(count));
    return *this;
}

std::uint64_t ibytestream::remaining()
{
    if (!ok())
        return 0;
    const std::streamoff at = tellg();
    if (at < 0 || static_cast<std::uint64_t>(at) >= size)
        return 0;
    return size - static_cast<std::uint64_t>(at);
}

std::vector<std::uint8_t> ibytestream::readRest()
{
    std::vector<std::uint8_t> rest(static_cast<std::size_t>(remaining()));
    readBlock(rest);
    return rest;
}

std::uint64_t ibytestream::position()
{
    if (!ok())
        return size;
    const std::streamoff at = tellg();
    return at < 0 ? size : static_cast<std::uint64_t>(at);
}

bool ibytestream::refuse(const std::string& why, std::uint64_t fieldSize)
{
    if (damage.empty()) {
        damage = why;
        const std::uint64_t end = position();
        damageAt = end >= fieldSize ? end - fieldSize : 0;
    }
    setstate(std::ios::failbit);
    return false;
}

} // namespace arcanum
