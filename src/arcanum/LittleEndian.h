#pragma once

#include <QByteArray>
#include <QtEndian>

#include <cstring>

// Little-endian fields of the binary formats, read from and written to memory buffers.
namespace arcanum::le {

// Reads fields one after another. Where the buffer ends inside a field, the bytes it still has
// replace the front of the field and the rest keeps what was there, as if read straight into memory.
class Reader
{
public:
    explicit Reader(const QByteArray& bytes) : data(bytes) {}

    qsizetype remaining() const { return data.size() - pos; }

    // False when the field was not there whole.
    bool readInt32(qint32& value)
    {
        char bytes[4];
        qToLittleEndian(value, bytes);
        const bool whole = readBytes(bytes, 4);
        value = qFromLittleEndian<qint32>(bytes);
        return whole;
    }

    bool readByte(quint8& value)
    {
        char byte = static_cast<char>(value);
        const bool whole = readBytes(&byte, 1);
        value = static_cast<quint8>(byte);
        return whole;
    }

    // Copies up to size bytes into the front of out; false when fewer were left.
    bool readBytes(char* out, int size)
    {
        const qsizetype n = qMin<qsizetype>(size, remaining());
        if (n > 0)
            std::memcpy(out, data.constData() + pos, static_cast<size_t>(n));
        pos += qMax<qsizetype>(n, 0);
        return n == size;
    }

private:
    const QByteArray& data;
    qsizetype pos = 0;
};

// The field at offset, or 0 when the bytes end before it is whole.
inline qint32 int32At(const QByteArray& bytes, qsizetype offset)
{
    if (offset < 0 || offset > bytes.size() - 4)
        return 0;
    return qFromLittleEndian<qint32>(bytes.constData() + offset);
}

inline void appendInt32(QByteArray& out, qint32 value)
{
    char bytes[4];
    qToLittleEndian(value, bytes);
    out.append(bytes, 4);
}

inline void appendUInt32(QByteArray& out, quint32 value)
{
    appendInt32(out, static_cast<qint32>(value));
}

// The word at pos; the caller has checked that four bytes are there.
inline quint32 uint32At(const QByteArray& bytes, qsizetype pos)
{
    return qFromLittleEndian<quint32>(bytes.constData() + pos);
}

} // namespace arcanum::le
