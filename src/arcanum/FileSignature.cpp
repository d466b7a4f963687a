#include "FileSignature.h"

#include "Artfile.h"
#include "DatArchive.h"
#include "LittleEndian.h"
#include "Proto.h"
#include "Script.h"

namespace arcanum {

namespace {

constexpr int SCRIPT_LINE_COUNT_OFFSET = 52;
constexpr int DIALOGUE_ITEMS = 7;
constexpr int MESSAGE_ITEMS = 2;

} // namespace

std::optional<FileSignature::Sign> FileSignature::sniff(const QByteArray& bytes, FileFormat::Kind except)
{
    using Kind = FileFormat::Kind;
    std::optional<Sign> sign;
    if (bytes.size() >= 4 && quint32(le::int32At(bytes, 0)) == Proto::SIGNATURE)
        sign = Sign{Kind::Prototype, QStringLiteral("signature %1 at offset 0").arg(Proto::SIGNATURE)};
    else if (DatArchive::hasTrailer(bytes))
        sign = Sign{Kind::Archive, QStringLiteral("an archive trailer at its end")};
    else if (isScript(bytes))
        sign = Sign{Kind::Script, QStringLiteral("a script header counting its %1 lines")
                                      .arg(le::int32At(bytes, SCRIPT_LINE_COUNT_OFFSET))};
    else if (except != Kind::Art && Artfile().loadBytes(bytes))
        sign = Sign{Kind::Art, QStringLiteral("it reads whole as art")};
    else
        sign = textKind(bytes);
    if (sign && sign->kind == except)
        return std::nullopt;
    return sign;
}

bool FileSignature::isScript(const QByteArray& bytes)
{
    if (bytes.size() < Script::HeaderSize)
        return false;
    const qint64 count = le::int32At(bytes, SCRIPT_LINE_COUNT_OFFSET);
    return count > 0 && bytes.size() == Script::HeaderSize + count * Script::LineSize;
}

// Text without NUL bytes whose first line that is neither blank nor a "//" comment is an entry: its
// items tell the kind.
std::optional<FileSignature::Sign> FileSignature::textKind(const QByteArray& bytes)
{
    if (bytes.contains('\0'))
        return std::nullopt;
    QByteArray line;
    for (qsizetype start = 0; start < bytes.size() && line.isEmpty();) {
        qsizetype end = bytes.indexOf('\n', start);
        end = end < 0 ? bytes.size() : end;
        const QByteArray candidate = bytes.mid(start, end - start).trimmed();
        if (!candidate.isEmpty() && !candidate.startsWith("//"))
            line = candidate;
        start = end + 1;
    }
    if (!line.startsWith('{'))
        return std::nullopt;
    const int items = int(line.count('}'));
    if (items >= DIALOGUE_ITEMS)
        return Sign{FileFormat::Kind::Dialogue, QStringLiteral("its first entry has %1 items").arg(items)};
    if (items == MESSAGE_ITEMS && line.trimmed().endsWith('}'))
        return Sign{FileFormat::Kind::Message, QStringLiteral("its first entry has 2 items")};
    return std::nullopt;
}

} // namespace arcanum
