#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

// The checks every file format shares: exact bytes back, every prefix survives, corruption survives.
namespace FormatChecks {

QByteArray readFile(const QString& path);
bool writeFile(const QString& path, const QByteArray& bytes);

// Deterministic pseudo-random bytes; printable restricts them to ASCII 0x20..0x7E plus line ends.
QByteArray randomBytes(int size, unsigned seed, bool printable = false);
// Copies of bytes with a few bytes overwritten, one copy per seed.
QByteArray corrupt(const QByteArray& bytes, unsigned seed, int changes = 8);

// Writes each prefix of bytes (every length from 0 to the full size, stepping by step) to path
// and calls load(path); load must survive each one (sanitizers catch what it must not do).
void forEveryPrefix(const QByteArray& bytes, const QString& path, const std::function<void(const QString&)>& load,
                    int step = 1);

// Only the start of a PNG of that size: enough for a reader to learn how large it claims to be.
QByteArray pngHeaderOnly(quint32 width, quint32 height);

} // namespace FormatChecks
