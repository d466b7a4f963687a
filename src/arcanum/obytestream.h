#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <ostream>
#include <streambuf>
#include <fstream>
#include <string>
#include <type_traits>

namespace arcanum {

// Writes a binary file value by value, least significant byte first.
// The bytes go to a temporary file beside the target; commit() puts it in the target's place in one
// rename, so a save that fails half-way leaves the old file as it was. Destroyed without a
// commit, the stream removes its temporary file and the target is never touched.
// Made without a path, it collects the bytes in memory instead (bytes()).
class obytestream : public std::ostream
{
public:
    // path is a byte string (QFile::encodeName).
    explicit obytestream(const std::string& path);
    obytestream();
    ~obytestream() override;
    obytestream(const obytestream&) = delete;
    obytestream& operator=(const obytestream&) = delete;

    bool ok() const { return !fail(); }

    obytestream& write8(std::uint8_t value) { return writeLittle(value); }
    obytestream& write16(std::uint16_t value) { return writeLittle(value); }
    obytestream& write32(std::uint32_t value) { return writeLittle(value); }
    obytestream& write32(std::int32_t value) { return writeLittle(value); }
    obytestream& writeRaw(const std::uint8_t* data, std::size_t size);
    template <typename Block>
    obytestream& writeBlock(const Block& block)
    {
        return writeRaw(block.data(), block.size());
    }

    // Closes the file and replaces the target with it; false (target untouched) when anything failed.
    // In memory there is nothing to replace: true when every write succeeded.
    bool commit();
    // What was written in memory; empty for a stream writing a file.
    std::string bytes() const;

private:
    template <typename T>
    obytestream& writeLittle(T value)
    {
        using U = std::make_unsigned_t<T>;
        const U bits = static_cast<U>(value);
        std::uint8_t bytes[sizeof(T)];
        for (std::size_t i = 0; i < sizeof(T); ++i)
            bytes[i] = static_cast<std::uint8_t>(bits >> (8 * i));
        return writeRaw(bytes, sizeof(T));
    }

    void discard();
    // The file being written; null in memory.
    std::filebuf* file() const;

    std::unique_ptr<std::streambuf> buffer;
    std::string target;
    std::string temporary;
    bool committed = false;
};

} // namespace arcanum
