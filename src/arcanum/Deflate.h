#pragma once

#include <QByteArray>

namespace arcanum {

// zlib streams (RFC 1950) through libdeflate: the unpacked size of every archive entry is known, so
// whole-buffer calls fit, and libdeflate compresses smaller and inflates faster than zlib itself.
class Deflate
{
public:
    // False when the stream is damaged or does not inflate to exactly size bytes.
    static bool inflate(const QByteArray& packed, qsizetype size, QByteArray& out);
    // At level 9: smaller than zlib's best, and several times faster than libdeflate's levels 10 to 12.
    static QByteArray deflate(const QByteArray& bytes);
};

} // namespace arcanum
