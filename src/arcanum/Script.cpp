#include "Script.h"

#include "LittleEndian.h"
#include "SafeSave.h"
#include "constants.h"

#include <QBuffer>
#include <QFile>

#include <algorithm>
#include <istream>
#include <limits>
#include <ostream>

namespace arcanum {

namespace {

using le::appendInt32;
using le::Reader;

void readHeader(Reader& in, Script::Header& header)
{
    in.readInt32(header.headerWord);
    for (quint8& byte : header.headerBytes)
        in.readByte(byte);
    in.readBytes(header.description.data(), Script::DescSize);
    in.readInt32(header.headerWord48);
    in.readInt32(header.lineCount);
    in.readInt32(header.lineBound);
    in.readInt32(header.headerWord60);
}

void writeHeader(QByteArray& out, const Script::Header& header)
{
    appendInt32(out, header.headerWord);
    for (quint8 byte : header.headerBytes)
        out.append(static_cast<char>(byte));
    out.append(header.description.data(), Script::DescSize);
    appendInt32(out, header.headerWord48);
    appendInt32(out, header.lineCount);
    appendInt32(out, header.lineBound);
    appendInt32(out, header.headerWord60);
}

void readStatement(Reader& in, Script::Statement& statement)
{
    in.readInt32(statement.code);
    // One block reads as the bytes one by one would: a short buffer fills the front and keeps the rest.
    in.readBytes(reinterpret_cast<char*>(statement.types.data()), Script::Slots);
    for (qint32& value : statement.values)
        in.readInt32(value);
}

// Built on the stack and appended in one piece: a large script has hundreds of thousands of statements.
void writeStatement(QByteArray& out, const Script::Statement& statement)
{
    char bytes[Script::StatementSize];
    qToLittleEndian(statement.code, bytes);
    std::copy_n(statement.types.begin(), Script::Slots, bytes + 4);
    for (int slot = 0; slot < Script::Slots; ++slot)
        qToLittleEndian(statement.values[std::size_t(slot)], bytes + 4 + Script::Slots + 4 * slot);
    out.append(bytes, Script::StatementSize);
}

// The lines a load makes: what the header claims, as long as the file backs it up or only a
// few lines are missing at its end; a damaged count never makes up lines by the million.
int linesToRead(qint32 lineCount, qsizetype bytesLeft)
{
    if (lineCount <= 0)
        return 0;
    const qint64 inFile = (qint64(bytesLeft) + Script::LineSize - 1) / Script::LineSize;
    return static_cast<int>(std::min<qint64>(lineCount, std::max<qint64>(inFile, Script::MaxMissingLines)));
}

qint32 saturatedIncrement(qint32 value)
{
    return value < std::numeric_limits<qint32>::max() ? value + 1 : value;
}

} // namespace

void Script::Header::setDesc(const std::string& text)
{
    description.fill(0);
    std::copy_n(text.begin(), std::min<size_t>(text.size(), DescSize), description.begin());
}

std::string Script::Header::desc() const
{
    const auto end = std::find(description.begin(), description.end(), '\0');
    return std::string(description.begin(), end);
}

void Script::Statement::clearParameters()
{
    types.fill(0);
    values.fill(0);
}

bool Script::load(const QString& path)
{
    clear();
    if (idFromFilename(path.mid(path.lastIndexOf(QLatin1Char('/')) + 1)) == -1)
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    return loadBytes(path, file.readAll());
}

bool Script::loadBytes(const QString& path, const QByteArray& bytes)
{
    clear();
    const int newId = idFromFilename(path.mid(path.lastIndexOf(QLatin1Char('/')) + 1));
    if (newId == -1)
        return false;
    QBuffer file;
    file.setData(bytes);
    file.open(QIODevice::ReadOnly);
    readHeaderFrom(file);
    const qint64 wanted = header.lineCount > 0 ? qint64(header.lineCount) * LineSize : 0;
    readLines(file.read(std::min(wanted, file.bytesAvailable())));
    id = newId;
    fileName = path;
    return true;
}

void Script::readLines(const QByteArray& bytes)
{
    const int count = linesToRead(header.lineCount, bytes.size());
    Reader in(bytes);
    lines.reserve(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i) {
        Line line;
        readStatement(in, line.condition);
        readStatement(in, line.thenAction);
        readStatement(in, line.elseAction);
        lines.push_back(line);
    }
    // Only a damaged count changes here; saving then writes the lines that were shown. A negative count
    // holds no line and is written back as read.
    if (header.lineCount > 0)
        header.lineCount = count;
}

QByteArray Script::toBytes() const
{
    QByteArray out;
    const size_t count = std::min<size_t>(std::max(header.lineCount, 0), lines.size());
    out.reserve(HeaderSize + qsizetype(count) * LineSize);
    writeHeader(out, header);
    for (size_t i = 0; i < count; ++i) {
        writeStatement(out, lines[i].condition);
        writeStatement(out, lines[i].thenAction);
        writeStatement(out, lines[i].elseAction);
    }
    return out;
}

bool Script::save(const QString& path) const
{
    return SafeSave::write(path, toBytes()) == SafeSave::Saved;
}

bool Script::loadHeader(std::istream& in)
{
    char buffer[HeaderSize];
    in.read(buffer, HeaderSize);
    const QByteArray bytes(buffer, static_cast<qsizetype>(std::max<std::streamsize>(in.gcount(), 0)));
    Reader reader(bytes);
    readHeader(reader, header);
    return true;
}

bool Script::saveHeader(std::ostream& out) const
{
    QByteArray bytes;
    writeHeader(bytes, header);
    out.write(bytes.constData(), bytes.size());
    return true;
}

bool Script::loadHeader(const QString& name)
{
    clear();
    if (idFromFilename(name) == 0)
        return false;
    QFile file(SCRIPTS_DIR + name);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    readHeaderFrom(file);
    return true;
}

void Script::readHeaderFrom(QIODevice& file)
{
    // A short file must not inherit the header of the script read before it.
    header = Header{};
    const QByteArray head = file.read(HeaderSize);
    Reader in(head);
    readHeader(in, header);
}

int Script::idFromFilename(const QString& name)
{
    bool ok = false;
    const int value = name.left(5).toInt(&ok, 10);
    return ok ? value : -1;
}

void Script::clear()
{
    id = -1;
    fileName.clear();
    lines.clear();
}

void Script::setContent(const Header& newHeader, std::vector<Line> newLines)
{
    header = newHeader;
    lines = std::move(newLines);
}

bool Script::isLine(int index) const
{
    return index >= 0 && static_cast<size_t>(index) < lines.size();
}

Script::Statement* Script::getStatement(int index, LineType which)
{
    if (!isLine(index))
        return nullptr;
    Line& line = lines[static_cast<size_t>(index)];
    switch (which) {
    case LineIf:
        return &line.condition;
    case LineDo:
    case LineThen:
        return &line.thenAction;
    case LineElse:
        return &line.elseAction;
    }
    return nullptr;
}

bool Script::deleteLine(int index)
{
    if (!isLine(index))
        return false;
    lines.erase(lines.begin() + index);
    if (header.lineCount > 0)
        --header.lineCount;
    return true;
}

void Script::moveLineUp(int index)
{
    if (isLine(index) && isLine(index - 1))
        std::swap(lines[static_cast<size_t>(index)], lines[static_cast<size_t>(index - 1)]);
}

void Script::moveLineDown(int index)
{
    if (isLine(index) && isLine(index + 1))
        std::swap(lines[static_cast<size_t>(index)], lines[static_cast<size_t>(index + 1)]);
}

bool Script::addCondition(Ifcode code)
{
    Line line;
    line.condition.code = code;
    appendLine(line);
    return true;
}

bool Script::addAction(Opcode code)
{
    Line line;
    line.thenAction.code = code;
    appendLine(line);
    return true;
}

void Script::appendLine(const Line& line)
{
    lines.push_back(line);
    header.lineCount = header.lineCount < 0 ? qint32(lines.size()) : saturatedIncrement(header.lineCount);
    if (header.lineCount >= header.lineBound)
        header.lineBound = saturatedIncrement(header.lineCount);
}

} // namespace arcanum
