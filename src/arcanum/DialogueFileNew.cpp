#include "DialogueFileNew.h"

#include "SafeSave.h"
#include "TextCodec.h"
#include "TextLines.h"

#include <QFile>
#include <QTextCodec>

#include <algorithm>

namespace arcanum {

namespace {

constexpr int ENTRY_ITEM_COUNT = 7; // the index and six items

template <typename T>
QExplicitlySharedDataPointer<T> findLine(const QList<QExplicitlySharedDataPointer<T>>& lines, int index)
{
    for (const QExplicitlySharedDataPointer<T>& line : lines) {
        if (line && line->index() == index)
            return line;
    }
    return QExplicitlySharedDataPointer<T>();
}

} // namespace

DialogueFileNew::DialogueFileNew() = default;

DialogueFileNew::DialogueFileNew(const QFile* file)
    : mFileName(file ? file->fileName() : QString())
{
}

bool DialogueFileNew::load()
{
    QFile file(mFileName);
    if (!file.exists()) {
        qWarning("File doesn't exist.");
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("Failed to open file for reading");
        return false;
    }
    readBytes(file.readAll());
    return true;
}

void DialogueFileNew::readBytes(const QByteArray& bytes)
{
    // Decoded here because Qt 6 streams know no Windows code pages; reading without text mode also
    // keeps a lone "\r" inside a text, while the stream still ends lines at "\n" and "\r\n".
    const QString text = TextCodec::decode(mCodec, bytes);
    TextLines lines(text);
    readLines(lines);
}

// The code page of the game's texts; it maps every byte to a character and back, so nothing is lost.
QTextCodec* DialogueFileNew::defaultCodec()
{
    return QTextCodec::codecForName("Windows-1251");
}

void DialogueFileNew::setCodec(QTextCodec* codec)
{
    mCodec = codec != nullptr ? codec : defaultCodec();
}

void DialogueFileNew::read(QTextStream& stream)
{
    readLines(stream);
}

template <typename Lines>
void DialogueFileNew::readLines(Lines& stream)
{
    mNpcLines.clear();
    mPcLines.clear();
    mUnreadText.clear();
    mUnreadLine = 0;
    bool atEnd = false;
    int line = 1;
    while (!atEnd && readEntry(stream, &atEnd, line)) {
    }
}

// line: the file's line the entry starts on; on return, the line after it.
template <typename Lines>
bool DialogueFileNew::readEntry(Lines& stream, bool* atEnd, int& line)
{
    Entry entry = nextEntry(stream, atEnd);
    const int first = line;
    const QStringView beforeFirstBrace = QStringView(entry.text).left(qMax(entry.start, 0));
    const int start = first + static_cast<int>(beforeFirstBrace.count(QLatin1Char('\n')));
    line += static_cast<int>(entry.text.count(QLatin1Char('\n'))) + 1;
    if (entry.items.size() < ENTRY_ITEM_COUNT) {
        mUnreadLine = first;
        if (keepUnread(entry.text, stream))
            qWarning("Size of read items list  smaller than minimal size: %d instead of %d",
                     static_cast<int>(entry.items.size()), ENTRY_ITEM_COUNT);
        return false;
    }
    bool ok = false;
    const int index = entry.items.first().trimmed().toInt(&ok, 10);
    if (!ok) {
        qWarning("Index could not be parsed: string was %s", qUtf8Printable(entry.items.first()));
        mUnreadLine = first;
        keepUnread(entry.text, stream);
        return false;
    }
    entry.items.removeFirst();
    const QString readText = entry.text.mid(entry.start);
    if (isNPCLine(entry.items)) {
        mNpcLines << NPCLinePointer(new NPCLine(index, entry.items, entry.trailing, readText));
        mNpcLines.last()->setSourceLine(start);
    } else {
        mPcLines << PCLinePointer(new PCLine(index, entry.items, entry.trailing, readText));
        mPcLines.last()->setSourceLine(start);
    }
    return true;
}

// Keeps the entry that stopped the reading and everything after it, without the blank lines at its
// end (save adds its own line ends). Returns whether anything but blanks was kept.
template <typename Lines>
bool DialogueFileNew::keepUnread(const QString& entryText, Lines& stream)
{
    mUnreadText = entryText;
    while (!stream.atEnd())
        mUnreadText += QLatin1Char('\n') + stream.readLine();
    if (mUnreadText.trimmed().isEmpty()) {
        mUnreadText.clear();
        mUnreadLine = 0;
    }
    while (mUnreadText.endsWith(QLatin1Char('\n')))
        mUnreadText.chop(1);
    return !mUnreadText.isEmpty();
}

QPair<QStringList, QString> DialogueFileNew::getNextEntry(QTextStream& stream, bool* atEnd)
{
    Entry entry = nextEntry(stream, atEnd);
    return qMakePair(entry.items, entry.trailing);
}

// An item ends at the first "}" after its "{"; when a brace is missing the next physical line is joined
// with "\n", so items may span lines. Each search resumes where the last one ended, so a long run of
// lines without braces is read in linear time.
template <typename Lines>
DialogueFileNew::Entry DialogueFileNew::nextEntry(Lines& stream, bool* atEnd)
{
    Entry entry;
    if (stream.atEnd()) {
        *atEnd = true;
        return entry;
    }
    entry.items.reserve(ENTRY_ITEM_COUNT);
    QString& text = entry.text;
    text = stream.readLine();
    int open = -1; // the "{" of the item being read
    int end = -1;  // the "}" of the last item read
    int scan = 0;  // where the search for the next brace resumes
    while (entry.items.size() < ENTRY_ITEM_COUNT) {
        const int found = text.indexOf(open < 0 ? OPEN_CHAR : CLOSE_CHAR, scan);
        if (found < 0) {
            if (stream.atEnd())
                break;
            scan = text.size();
            text += QLatin1Char('\n') + stream.readLine();
            continue;
        }
        scan = found + 1;
        if (open < 0) {
            open = found;
            if (entry.start < 0)
                entry.start = found;
            continue;
        }
        entry.items << text.mid(open + 1, found - open - 1);
        end = found;
        open = -1;
    }
    *atEnd = stream.atEnd();
    entry.trailing = text.mid(end + 1);
    return entry;
}

bool DialogueFileNew::isNPCLine(const QStringList& items)
{
    return items.value(2).trimmed().isEmpty();
}

DialogueFileNew::PCLinePointer DialogueFileNew::getPCLine(int index) const
{
    return findLine(mPcLines, index);
}

DialogueFileNew::NPCLinePointer DialogueFileNew::getNPCLine(int index) const
{
    return findLine(mNpcLines, index);
}

void DialogueFileNew::sortLines()
{
    std::stable_sort(mNpcLines.begin(), mNpcLines.end(), lessThan<NPCLine>);
    std::stable_sort(mPcLines.begin(), mPcLines.end(), lessThan<PCLine>);
}

bool DialogueFileNew::save(QFile* file) const
{
    const QString path = file ? file->fileName() : QString();
    switch (SafeSave::write(path, toBytes())) {
    case SafeSave::OpenFailed:
        qWarning("Failed to open file for writing");
        return false;
    case SafeSave::WriteFailed:
        qWarning("DialogueFileNew::save(): could not write %s", qUtf8Printable(path));
        return false;
    case SafeSave::Saved:
        break;
    }
    return true;
}

QByteArray DialogueFileNew::toBytes() const
{
    return TextCodec::encode(mCodec, toText());
}

// NPC lines start a line of the file, the PC answers that follow them in index order are indented
// below them; on equal indices the NPC line comes first.
QString DialogueFileNew::toText() const
{
    QString text;
    QTextStream out(&text, QIODevice::WriteOnly);
    const QString indent = QStringLiteral("\t");
    auto npc = mNpcLines.cbegin();
    auto pc = mPcLines.cbegin();
    while (npc != mNpcLines.cend() && pc != mPcLines.cend()) {
        if (**npc > **pc)
            writeLine(out, *pc++, indent);
        else
            writeLine(out, *npc++, QString());
    }
    for (; npc != mNpcLines.cend(); ++npc)
        writeLine(out, *npc, QString());
    for (; pc != mPcLines.cend(); ++pc)
        writeLine(out, *pc, indent);
    if (!mUnreadText.isEmpty())
        out << withWindowsLineEnds(mUnreadText) << WIN_ENDLINE;
    out << WIN_ENDLINE;
    out.flush();
    return text;
}

QString DialogueFileNew::withWindowsLineEnds(QString text)
{
    return text.replace(QLatin1Char('\n'), WIN_ENDLINE);
}

} // namespace arcanum
