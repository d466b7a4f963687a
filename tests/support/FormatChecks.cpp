#include "FormatChecks.h"

#include <QFile>
#include <QtEndian>

namespace FormatChecks {

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    return file.write(bytes) == bytes.size();
}

namespace {
unsigned nextRandom(unsigned& state)
{
    state = state * 1103515245u + 12345u;
    return (state >> 16) & 0x7FFFu;
}
} // namespace

QByteArray randomBytes(int size, unsigned seed, bool printable)
{
    QByteArray bytes(size, '\0');
    unsigned state = seed;
    for (int i = 0; i < size; ++i) {
        const unsigned r = nextRandom(state);
        if (!printable)
            bytes[i] = static_cast<char>(r & 0xFF);
        else if (r % 40 == 0)
            bytes[i] = '\n';
        else
            bytes[i] = static_cast<char>(0x20 + r % 95);
    }
    return bytes;
}

QByteArray corrupt(const QByteArray& bytes, unsigned seed, int changes)
{
    QByteArray out = bytes;
    if (out.isEmpty())
        return out;
    unsigned state = seed;
    for (int i = 0; i < changes; ++i) {
        const unsigned at = (nextRandom(state) << 15 | nextRandom(state)) % static_cast<unsigned>(out.size());
        out[static_cast<int>(at)] = static_cast<char>(nextRandom(state) & 0xFF);
    }
    return out;
}

void forEveryPrefix(const QByteArray& bytes, const QString& path, const std::function<void(const QString&)>& load,
                    int step)
{
    for (int length = 0; length <= bytes.size(); length += step) {
        writeFile(path, bytes.left(length));
        load(path);
    }
    writeFile(path, bytes);
    load(path);
}

namespace {
quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = 0xFFFFFFFFu;
    for (char byte : bytes) {
        crc ^= quint8(byte);
        for (int k = 0; k < 8; ++k)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

void appendChunk(QByteArray& png, const char* type, const QByteArray& data)
{
    char length[4];
    qToBigEndian(quint32(data.size()), length);
    png.append(length, 4);
    const QByteArray body = QByteArray(type) + data;
    png.append(body);
    char crc[4];
    qToBigEndian(crc32(body), crc);
    png.append(crc, 4);
}

} // namespace

QByteArray pngHeaderOnly(quint32 width, quint32 height)
{
    QByteArray png("\x89PNG\r\n\x1a\n", 8);
    QByteArray ihdr(13, '\0');
    qToBigEndian(width, ihdr.data());
    qToBigEndian(height, ihdr.data() + 4);
    ihdr[8] = 8; // bit depth; colour type 0: grey
    appendChunk(png, "IHDR", ihdr);
    appendChunk(png, "IDAT", QByteArray());
    appendChunk(png, "IEND", QByteArray());
    return png;
}

} // namespace FormatChecks
