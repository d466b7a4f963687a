#include "FormatChecks.h"

#include <QFile>

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

} // namespace FormatChecks
