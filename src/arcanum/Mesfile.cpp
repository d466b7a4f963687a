#include "Mesfile.h"

#include "DialogueFile.h"
#include "SafeSave.h"
#include "TextCodec.h"
#include "constants.h"

#include <QTextCodec>
#include <QTextStream>
#include <QtDebug>

#include <algorithm>
#include <numeric>

namespace arcanum {

namespace {

const QByteArray UTF8_BOM = QByteArrayLiteral("\xEF\xBB\xBF");
constexpr int UTF8_MIB = 106;

bool startsEntry(const QString& line)
{
    return Mesfile::trimFront(line).startsWith(OPEN_CHAR);
}

// Indentation in front of an entry is layout; anywhere else it belongs to the text or to the author.
QString entryLine(const QString& line)
{
    return startsEntry(line) ? Mesfile::trimFront(line) : line;
}

bool hasKnownSuffix(const QString& name)
{
    return name.endsWith(QLatin1String(".mes"), Qt::CaseInsensitive)
        || name.endsWith(QLatin1String(".dlg"), Qt::CaseInsensitive);
}

bool startsEntryAt(QStringView line)
{
    qsizetype first = 0;
    while (first < line.size() && (line[first] == QLatin1Char(' ') || line[first] == QLatin1Char('\t')))
        ++first;
    return first < line.size() && line[first] == OPEN_CHAR;
}

// The end of the line that starts at from: after its "\n", or the end of the text.
qsizetype nextLineStart(const QString& text, qsizetype from)
{
    const qsizetype newline = text.indexOf(QLatin1Char('\n'), from);
    return newline < 0 ? text.size() : newline + 1;
}

// getDataUpToNextEntry on a decoded text, from offset, which moves to the start of the next chunk.
// The chunk's lines are cut out of the text in one piece: their "\n" ends are what the stream version
// puts back, and every "\r" goes in both.
QString chunkAt(const QString& text, qsizetype& offset)
{
    qsizetype start = offset;
    qsizetype end = nextLineStart(text, start);
    if (startsEntryAt(QStringView(text).mid(start, end - start))) {
        while (text[start] == QLatin1Char(' ') || text[start] == QLatin1Char('\t'))
            ++start;
    }
    while (end < text.size()) {
        const qsizetype next = nextLineStart(text, end);
        if (startsEntryAt(QStringView(text).mid(end, next - end)))
            break;
        end = next;
    }
    offset = end;
    QString chunk = text.mid(start, end - start);
    if (!chunk.endsWith(QLatin1Char('\n')))
        chunk += QLatin1Char('\n');
    chunk.remove(QLatin1Char('\r'));
    return chunk;
}

} // namespace

// ---- Entry ----

QString Mesfile::Entry::getValidationError() const
{
    return valid ? NO_ERROR : validationError;
}

void Mesfile::Entry::setErrorState(const QString& message, const QString& chunk)
{
    valid = false;
    validationError = message;
    comment.clear();
    skeleton = chunk;
}

void Mesfile::Entry::setValidState()
{
    valid = true;
    validationError.clear();
}

int Mesfile::Entry::parseIndex(const QString& chunk)
{
    const int open = chunk.indexOf(OPEN_CHAR);
    const int close = open < 0 ? -1 : chunk.indexOf(CLOSE_CHAR, open);
    if (close < 0) {
        setErrorState(tr("Entry contains no '{' or '}'"), chunk);
        return -1;
    }
    bool ok = false;
    const int index = QStringView(chunk).mid(open + 1, close - open - 1).trimmed().toInt(&ok, 10);
    if (!ok) {
        setErrorState(tr("Index could not be parsed"), chunk);
        return -1;
    }
    mesIndex = index;
    numbered = true;
    skeleton = chunk;
    skeleton.remove(open + 1, close - open - 1);
    return open + 1;
}

void Mesfile::Entry::setUnmatchedOpenError(const QString& chunk, int open)
{
    // Everything cut out of the skeleton so far stood before open.
    const int cut = static_cast<int>(chunk.size() - skeleton.size());
    setErrorState(tr("'{' at index %1 has no matching '}'").arg(open + cut), chunk);
}

QString Mesfile::Entry::withoutFinalNewline(QStringView text)
{
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return text.toString();
}

// ---- MesEntry ----

Mesfile::MesEntry::MesEntry(const QString& chunk)
{
    const int indexClose = parseIndex(chunk);
    if (indexClose < 0)
        return;
    const int textOpen = skeleton.indexOf(OPEN_CHAR, indexClose);
    if (textOpen < 0) {
        // "{5}" alone is an entry with an empty text.
        comment = withoutFinalNewline(QStringView(skeleton).mid(indexClose + 1));
        skeleton.truncate(indexClose + 1);
        setValidState();
        return;
    }
    const int textClose = skeleton.indexOf(CLOSE_CHAR, textOpen);
    if (textClose < 0) {
        setUnmatchedOpenError(chunk, textOpen);
        return;
    }
    text = skeleton.mid(textOpen + 1, textClose - textOpen - 1);
    comment = withoutFinalNewline(QStringView(skeleton).mid(textClose + 1));
    QString kept;
    kept.reserve(textOpen + 2);
    kept.append(QStringView(skeleton).left(textOpen + 1)).append(CLOSE_CHAR);
    skeleton = kept;
    setValidState();
}

QString Mesfile::MesEntry::getItemAt(unsigned index) const
{
    if (index > 0) {
        qWarning("Mesfile::MesEntry::getItemAt(): index > 0");
        return OUT_OF_BOUNDS;
    }
    return text;
}

void Mesfile::MesEntry::setItemAt(unsigned index, const QString& newText)
{
    if (index > 0) {
        qWarning("Mesfile::MesEntry::setItemAt(): index > 0");
        return;
    }
    text = newText;
}

QString Mesfile::MesEntry::getInfoAbout(EntryType /*type*/) const
{
    return tr("Index: %1").arg(mesIndex);
}

QString Mesfile::MesEntry::getLine() const
{
    if (!valid)
        return skeleton + comment;
    QString line;
    // Room for every piece up front, so the inserts below never move the line to a new buffer.
    line.reserve(skeleton.size() + text.size() + comment.size() + 16);
    line.append(skeleton);
    const int open = line.indexOf(OPEN_CHAR);
    if (open >= 0) {
        const QString number = QString::number(mesIndex);
        line.insert(open + 1, number);
        const int indexClose = open + 1 + static_cast<int>(number.size());
        const int textOpen = line.indexOf(OPEN_CHAR, indexClose);
        if (textOpen >= 0)
            line.insert(textOpen + 1, text);
        else if (!text.isEmpty()) // a text typed into a "{5}" entry needs braces of its own
            line.insert(indexClose + 1, OPEN_CHAR + text + CLOSE_CHAR);
    }
    return line + comment + QLatin1Char('\n');
}

// ---- Mesfile ----

Mesfile::Mesfile(const QString& fileName)
{
    if (!fileName.isEmpty())
        setFilename(fileName);
}

Mesfile::~Mesfile() = default;

Mesfile* Mesfile::getInstance(const QString& fileName)
{
    if (fileName.endsWith(QLatin1String(".dlg"), Qt::CaseInsensitive))
        return new DialogueFile(fileName);
    return new Mesfile(fileName);
}

QString Mesfile::getColumnTitle(EntryType type) const
{
    switch (type) {
    case INDEX_COLUMN:
        return tr("#");
    case COMMENT_COLUMN:
        return tr("Comment");
    case 0:
        return tr("Item 1");
    default:
        // Item 1 is titled like item 0: the numbering the tables have always shown.
        return type > 0 ? tr("Item %1").arg(type) : tr("Invalid col. id");
    }
}

void Mesfile::setFilename(const QString& name)
{
    // No check that the file exists: a file read out of an archive is named for where its save goes.
    file.setFileName(name);
}

bool Mesfile::loadFile(const QString& fileName, QTextCodec* codec)
{
    setFilename(fileName);
    return load(codec);
}

Mesfile::Entry* Mesfile::getEntryAt(int position) const
{
    if (position < 0 || position >= getEntryCount())
        return nullptr;
    return entries[static_cast<size_t>(position)].get();
}

Mesfile::Entry* Mesfile::getEntryWithIndex(unsigned index) const
{
    auto hasIndex = [index](const std::unique_ptr<Entry>& entry) {
        return entry->getMesIndex() >= 0 && static_cast<unsigned>(entry->getMesIndex()) == index;
    };
    // Files are usually numbered from 0 without gaps, so the position is worth a try first.
    if (index < entries.size() && hasIndex(entries[index]))
        return entries[index].get();
    for (const auto& entry : entries) {
        if (hasIndex(entry))
            return entry.get();
    }
    return nullptr;
}

void Mesfile::clear()
{
    entries.clear();
}

Mesfile::Entry* Mesfile::appendEntry(const QString& line)
{
    QString chunk = line;
    if (!chunk.endsWith(QLatin1Char('\n')))
        chunk += QLatin1Char('\n');
    entries.emplace_back(newEntry(chunk));
    return entries.back().get();
}

int Mesfile::positionOf(int number) const
{
    for (size_t i = 0; i < entries.size(); ++i) {
        if (entries[i]->hasMesIndex() && entries[i]->getMesIndex() == number)
            return static_cast<int>(i);
    }
    return -1;
}

std::unique_ptr<Mesfile::Entry> Mesfile::makeEntry(int number)
{
    QString chunk = OPEN_CHAR + QString::number(number) + CLOSE_CHAR;
    for (unsigned i = 0; i < getItemCount(); ++i)
        chunk += OPEN_CHAR + QString(CLOSE_CHAR);
    chunk += QLatin1Char('\n');
    return std::unique_ptr<Entry>(newEntry(chunk));
}

int Mesfile::orderedPosition(int number) const
{
    int position = 0;
    int nearest = -1;
    for (size_t i = 0; i < entries.size(); ++i) {
        const Entry& entry = *entries[i];
        if (entry.hasMesIndex() && entry.getMesIndex() < number && entry.getMesIndex() >= nearest) {
            nearest = entry.getMesIndex();
            position = static_cast<int>(i) + 1;
        }
    }
    while (position > 0 && position < getEntryCount() && !entries[size_t(position)]->hasMesIndex())
        ++position;
    return position;
}

void Mesfile::insertEntry(int position, std::unique_ptr<Entry> entry)
{
    const int at = std::clamp(position, 0, getEntryCount());
    entries.insert(entries.begin() + at, std::move(entry));
}

std::unique_ptr<Mesfile::Entry> Mesfile::takeEntry(int position)
{
    if (position < 0 || position >= getEntryCount())
        return nullptr;
    std::unique_ptr<Entry> taken = std::move(entries[size_t(position)]);
    entries.erase(entries.begin() + position);
    return taken;
}

std::vector<int> Mesfile::numberOrder() const
{
    std::vector<qint64> keys(entries.size());
    qint64 previous = -1;
    for (size_t i = 0; i < entries.size(); ++i) {
        if (entries[i]->hasMesIndex())
            previous = entries[i]->getMesIndex();
        keys[i] = previous;
    }
    std::vector<int> order(entries.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&keys](int a, int b) { return keys[size_t(a)] < keys[size_t(b)]; });
    return order;
}

void Mesfile::reorder(const std::vector<int>& order)
{
    // Anything but a rearrangement of every position would lose entries.
    std::vector<bool> used(entries.size(), false);
    for (int from : order) {
        if (from < 0 || size_t(from) >= used.size() || used[size_t(from)])
            return;
        used[size_t(from)] = true;
    }
    if (order.size() != entries.size())
        return;
    std::vector<std::unique_ptr<Entry>> arranged;
    arranged.reserve(entries.size());
    for (int from : order)
        arranged.push_back(std::move(entries.at(size_t(from))));
    entries = std::move(arranged);
}

QString Mesfile::trimFront(const QString& line)
{
    int start = 0;
    while (start < line.size() && (line[start] == QLatin1Char(' ') || line[start] == QLatin1Char('\t')))
        ++start;
    return line.mid(start);
}

QString Mesfile::getDataUpToNextEntry(QTextStream& stream, bool* atEnd)
{
    if (stream.atEnd()) {
        if (atEnd)
            *atEnd = true;
        return QString();
    }
    QString chunk = entryLine(stream.readLine()) + QLatin1Char('\n');
    // The line that starts the next entry is read once too often; the stream goes back to its start.
    qint64 position = stream.pos();
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (startsEntry(line))
            break;
        chunk += line;
        chunk += QLatin1Char('\n');
        position = stream.pos();
    }
    stream.seek(position);
    chunk.remove(QLatin1Char('\r'));
    if (atEnd)
        *atEnd = stream.atEnd();
    return chunk;
}

Mesfile::Entry* Mesfile::newEntry(QString& chunk)
{
    return new MesEntry(chunk);
}

bool Mesfile::load(QTextCodec* codec)
{
    clear();
    header.clear();
    loaded = false;
    utf8Bom = false;
    if (!file.exists()) {
        qWarning("File doesn't exist.");
        return false;
    }
    if (!hasKnownSuffix(file.fileName()))
        qWarning("Mesfile::load(): WARNING: filename doesn'tend with .mes or .dlg");
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("Failed to open file for reading");
        return false;
    }
    const QByteArray bytes = file.readAll();
    file.close();
    return loadBytes(bytes, codec);
}

bool Mesfile::loadBytes(QByteArray bytes, QTextCodec* codec)
{
    clear();
    header.clear();
    loaded = false;
    utf8Bom = false;
    // Line ends are read as the text mode of a file reads them: every carriage return goes.
    bytes.replace('\r', QByteArray());
    if (bytes.isEmpty())
        return false;
    if (!codec)
        codec = QTextCodec::codecForMib(UTF8_MIB);
    utf8Bom = codec->mibEnum() == UTF8_MIB && bytes.startsWith(UTF8_BOM);
    readEntries(TextCodec::decode(codec, bytes));
    loaded = true;
    return true;
}

QByteArray Mesfile::toBytes(QTextCodec* codec) const
{
    if (!codec)
        codec = QTextCodec::codecForMib(UTF8_MIB);
    QString text = header;
    text.replace(QLatin1Char('\n'), WIN_ENDLINE);
    if (!text.isEmpty() && !text.endsWith(QLatin1Char('\n')))
        text += WIN_ENDLINE;
    for (const auto& entry : entries) {
        QString line = entry->getLine();
        line.replace(QLatin1Char('\n'), WIN_ENDLINE);
        text += line;
    }
    QByteArray bytes = TextCodec::encode(codec, text);
    if (utf8Bom && codec->mibEnum() == UTF8_MIB)
        bytes.prepend(UTF8_BOM);
    return bytes;
}

void Mesfile::readEntries(const QString& decoded)
{
    // Chunks are cut straight out of the text: a QTextStream would scan every character and read the
    // line that starts each entry twice.
    qsizetype offset = 0;
    QString first = offset < decoded.size() ? chunkAt(decoded, offset) : QString();
    int line = 1;
    // Counted before the entry is made: an entry may take its chunk apart.
    auto addEntry = [this, &line](QString& chunk) {
        const int start = line;
        line += static_cast<int>(chunk.count(QLatin1Char('\n')));
        entries.emplace_back(newEntry(chunk));
        entries.back()->setSourceLine(start);
    };
    if (first.isEmpty()) {
        qWarning("no data in file");
    } else if (trimFront(first).startsWith(OPEN_CHAR)) {
        addEntry(first);
    } else {
        header = first;
        line += static_cast<int>(first.count(QLatin1Char('\n')));
    }
    while (offset < decoded.size()) {
        QString chunk = chunkAt(decoded, offset);
        addEntry(chunk);
    }
}

QString Mesfile::buildText()
{
    // The header keeps its Windows line ends in memory too: a second save of the same object
    // doubles the "\r", which is how the editor has always behaved.
    header.replace(QLatin1Char('\n'), WIN_ENDLINE);
    QString text = header;
    if (!header.isEmpty() && !header.endsWith(QLatin1Char('\n')))
        text += WIN_ENDLINE;
    for (const auto& entry : entries) {
        QString line = entry->getLine();
        line.replace(QLatin1Char('\n'), WIN_ENDLINE);
        text += line;
    }
    return text;
}

bool Mesfile::save(const QString& fileName, QTextCodec* codec)
{
    if (!codec)
        codec = QTextCodec::codecForMib(UTF8_MIB);
    QByteArray bytes = TextCodec::encode(codec, buildText());
    if (utf8Bom && codec->mibEnum() == UTF8_MIB)
        bytes.prepend(UTF8_BOM);
    QString error;
    switch (SafeSave::write(fileName, bytes, &error)) {
    case SafeSave::OpenFailed:
        qWarning("Failed to open file for writing");
        return false;
    case SafeSave::WriteFailed:
        qWarning("In Mesfile::save(): %s", qPrintable(error));
        return false;
    case SafeSave::Saved:
        break;
    }
    return true;
}

} // namespace arcanum
