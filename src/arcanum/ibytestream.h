#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>
#include <streambuf>
#include <string>
#include <type_traits>
#include <vector>

namespace arcanum {

// Reads a binary file, or bytes already in memory, value by value, least significant byte first.
// A value the file runs out in the middle of keeps the bytes it held before, so a short file reads
// as zeros past its end. A record that finds its data impossible says why through refuse(); the
// reader of the whole file then gives up instead of trusting anything that follows.
class ibytestream : public std::istream
{
public:
    // path is a byte string (QFile::encodeName), opened for reading in binary mode.
    explicit ibytestream(const std::string& path);
    // The bytes are copied: a file read out of an archive needs no file of its own.
    ibytestream(const char* data, std::size_t count);
    ~ibytestream() override;
    ibytestream(const ibytestream&) = delete;
    ibytestream& operator=(const ibytestream&) = delete;

    // Neither failbit nor badbit: the file opened and nothing has run out yet.
    bool ok() const { return !fail(); }

    ibytestream& read8(std::uint8_t& value) { return readLittle(value); }
    ibytestream& read16(std::uint16_t& value) { return readLittle(value); }
    ibytestream& read32(std::uint32_t& value) { return readLittle(value); }
    ibytestream& read32(std::int32_t& value) { return readLittle(value); }
    ibytestream& readRaw(std::uint8_t* data, std::size_t size);
    // Any contiguous block of bytes: std::array or std::vector of std::uint8_t.
    template <typename Block>
    ibytestream& readBlock(Block& block)
    {
        return readRaw(block.data(), block.size());
    }

    // Bytes between the read position and the end of the file; 0 once a read ran out.
    std::uint64_t remaining();
    // Everything up to the end of the file.
    std::vector<std::uint8_t> readRest();

    // Marks the file as damaged; returns false so a reader can `return in.refuse(...)`. The field
    // that proved it ends at the read position and is fieldSize bytes long.
    bool refuse(const std::string& why, std::uint64_t fieldSize = 0);
    bool damaged() const { return !damage.empty(); }
    const std::string& whyDamaged() const { return damage; }
    // Where the field that refused the file starts.
    std::uint64_t damageOffset() const { return damageAt; }
    // The read position; the file's size once a read ran out.
    std::uint64_t position();

private:
    template <typename T>
    ibytestream& readLittle(T& value)
    {
        using U = std::make_unsigned_t<T>;
        U bits = static_cast<U>(value);
        std::uint8_t bytes[sizeof(T)];
        for (std::size_t i = 0; i < sizeof(T); ++i)
            bytes[i] = static_cast<std::uint8_t>(bits >> (8 * i));
        readRaw(bytes, sizeof(T));
        bits = 0;
        for (std::size_t i = 0; i < sizeof(T); ++i)
            bits = static_cast<U>(bits | static_cast<U>(static_cast<U>(bytes[i]) << (8 * i)));
        value = static_cast<T>(bits);
        return *this;
    }

    void measure();

    std::unique_ptr<std::streambuf> buffer;
    std::uint64_t size = 0;
    std::string damage;
    std::uint64_t damageAt = 0;
};

} // namespace arcanum
