#include "TextCodec.h"

#include <QTextCodec>

#include <array>

namespace arcanum {

namespace {

constexpr int WINDOWS_1251_MIB = 2251;
constexpr int BYTE_VALUES = 256;
constexpr char16_t REPLACEMENT = 0xFFFD;

// The code page's own answers for each byte, asked once, and the characters that come back from
// exactly one byte mapped back to it. Anything else (an unmapped character, a surrogate) still goes
// through the codec, so the tables only ever repeat what the codec says.
class Windows1251
{
public:
    explicit Windows1251(QTextCodec* codec)
    {
        toByte.fill(-1);
        std::array<int, 0x10000> uses{};
        for (int b = 0; b < BYTE_VALUES; ++b) {
            const QString one = codec->toUnicode(QByteArray(1, char(b)));
            whole = whole && one.size() == 1;
            toChar[std::size_t(b)] = one.isEmpty() ? char16_t(0) : one.at(0).unicode();
            ++uses[toChar[std::size_t(b)]];
        }
        for (int b = 0; b < BYTE_VALUES; ++b) {
            const char16_t c = toChar[std::size_t(b)];
            if (uses[c] == 1 && c != REPLACEMENT && !QChar::isSurrogate(c))
                toByte[c] = qint16(b);
        }
    }

    static const Windows1251* of(QTextCodec* codec)
    {
        if (!codec || codec->mibEnum() != WINDOWS_1251_MIB)
            return nullptr;
        static const Windows1251 tables(codec);
        return tables.whole ? &tables : nullptr;
    }

    QString decode(const QByteArray& bytes) const
    {
        QString out(bytes.size(), Qt::Uninitialized);
        auto* to = reinterpret_cast<char16_t*>(out.data());
        for (const char byte : bytes)
            *to++ = toChar[static_cast<unsigned char>(byte)];
        return out;
    }

    QByteArray encode(QTextCodec* codec, const QString& text) const
    {
        const auto* data = reinterpret_cast<const char16_t*>(text.utf16());
        const qsizetype size = text.size();
        QByteArray out(size, Qt::Uninitialized);
        char* to = out.data();
        qsizetype written = 0;
        qsizetype pos = 0;
        while (pos < size) {
            const qint16 byte = toByte[data[pos]];
            if (byte >= 0) {
                to[written++] = char(byte);
                ++pos;
                continue;
            }
            const qsizetype end = fallbackEnd(data, size, pos);
            const QByteArray run = codec->fromUnicode(QStringView(text).mid(pos, end - pos));
            pos = end;
            if (written + run.size() > out.size()) {
                out.resize(written + run.size() + (size - pos));
                to = out.data();
            }
            std::copy(run.begin(), run.end(), to + written);
            written += run.size();
        }
        out.truncate(written);
        return out;
    }

private:
    // The characters from pos on that the tables do not answer; a high surrogate takes what follows
    // it along, as the codec reads the two together.
    qsizetype fallbackEnd(const char16_t* data, qsizetype size, qsizetype pos) const
    {
        qsizetype end = pos;
        while (end < size && toByte[data[end]] < 0)
            ++end;
        if (end < size && QChar::isHighSurrogate(data[end - 1]))
            ++end;
        return end;
    }

    std::array<char16_t, BYTE_VALUES> toChar{};
    std::array<qint16, 0x10000> toByte{};
    bool whole = true;
};

} // namespace

QByteArray TextCodec::encode(QTextCodec* codec, const QString& text)
{
    const Windows1251* tables = Windows1251::of(codec);
    return tables ? tables->encode(codec, text) : codec->fromUnicode(text);
}

QString TextCodec::decode(QTextCodec* codec, const QByteArray& bytes)
{
    const Windows1251* tables = Windows1251::of(codec);
    return tables ? tables->decode(bytes) : codec->toUnicode(bytes);
}

} // namespace arcanum
