#include "DialogueFile.h"

#include "constants.h"

#include <cstdio>

namespace arcanum {

namespace {

enum DialogueColumn { TEXT = 0, GENDER = 1, INTELLIGENCE = 2, CONDITION = 3, RESPONSE = 4, RESULT = 5 };

// QString::indexOf for a position that is never negative, as a plain loop: the fields are short, and
// a large file has millions of them.
int findFrom(const QString& text, QChar c, int from)
{
    const QChar* data = text.constData();
    for (qsizetype i = from; i < text.size(); ++i) {
        if (data[i] == c)
            return static_cast<int>(i);
    }
    return -1;
}

} // namespace

DialogueFile::DialogueEntry::DialogueEntry(QString& chunk)
{
    const int indexClose = parseIndex(chunk);
    if (indexClose >= 0)
        readFields(chunk, indexClose);
    fillMissingItems();
}

void DialogueFile::DialogueEntry::readFields(const QString& chunk, int indexClose)
{
    int lastClose = -1;
    int cursor = indexClose;
    for (;;) {
        const int open = findFrom(skeleton, OPEN_CHAR, cursor);
        if (open < 0)
            break;
        if (items.isEmpty())
            items.reserve(ITEM_COUNT);
        const int close = findFrom(skeleton, CLOSE_CHAR, open);
        if (close < 0) {
            setUnmatchedOpenError(chunk, open);
            return;
        }
        items.append(skeleton.mid(open + 1, close - open - 1));
        skeleton.remove(open + 1, close - open - 1);
        lastClose = open + 1;
        cursor = lastClose + 1;
    }
    if (lastClose >= 0) {
        // The skeleton keeps what follows the last field, and getLine() appends the comment on top,
        // so trailing text is written twice. Dropping the character whose code is one past the last
        // brace's position belongs to the same old rule; both decide how lines are written back.
        comment = withoutFinalNewline(QStringView(skeleton).mid(lastClose + 1));
        const int code = lastClose + 1;
        if (code <= 0xFFFF)
            skeleton.remove(QChar(static_cast<char16_t>(code)));
    }
    setValidState();
    if (items.size() != static_cast<int>(ITEM_COUNT))
        setErrorState(tr("Line doesn't contain 6 items"), chunk);
}

// Short lines still show six cells (the missing ones empty); longer ones keep every field.
void DialogueFile::DialogueEntry::fillMissingItems()
{
    while (items.size() < static_cast<int>(ITEM_COUNT))
        items.append(QString());
}

QString DialogueFile::DialogueEntry::getItemAt(unsigned index) const
{
    if (index >= static_cast<unsigned>(items.size())) {
        std::fputs("DialogueFile::DialogueEntry::getItemAt(): out of bounds\n", stderr);
        return EMPTY_STR;
    }
    return items[static_cast<int>(index)];
}

void DialogueFile::DialogueEntry::setItemAt(unsigned index, const QString& text)
{
    if (index >= static_cast<unsigned>(items.size())) {
        std::fputs("DialogueFile::DialogueEntry::setItemAt(): out of bounds\n", stderr);
        return;
    }
    items[static_cast<int>(index)] = text;
}

QString DialogueFile::DialogueEntry::getInfoAbout(EntryType type) const
{
    switch (type) {
    case Mesfile::COMMENT_COLUMN:
        return comment;
    case Mesfile::INDEX_COLUMN:
        return tr("Line number %1").arg(mesIndex);
    case TEXT:
        return getItemAt(TEXT);
    case GENDER:
        return genderInfo();
    case INTELLIGENCE:
        return intelligenceInfo();
    default:
        return tr("Tooltip text: TODO");
    }
}

QString DialogueFile::DialogueEntry::genderInfo() const
{
    const QString value = getItemAt(GENDER).trimmed();
    if (value.isEmpty())
        return tr("all genders");
    if (value == QLatin1String("0"))
        return tr("male only");
    if (value == QLatin1String("1"))
        return tr("female only");
    return tr("Invalid value: only 0, 1 or empty entry allowed");
}

// Reads "Minimum: 55" for "5": the digit after the sign is repeated, as the table has always shown it.
QString DialogueFile::DialogueEntry::intelligenceInfo() const
{
    const QString value = getItemAt(INTELLIGENCE).trimmed();
    const bool maximum = value.startsWith(QLatin1Char('-'));
    const int repeated = maximum ? 1 : 0;
    QString shown = value;
    if (repeated < value.size())
        shown += value[repeated];
    return (maximum ? tr("Maximum: ") : tr("Minimum: ")) + shown;
}

QString DialogueFile::DialogueEntry::getLine() const
{
    if (!valid)
        return skeleton + comment;
    QString line;
    // Room for every piece up front, so the inserts below never move the line to a new buffer.
    qsizetype size = skeleton.size() + comment.size() + 16;
    for (const QString& item : items)
        size += item.size();
    line.reserve(size);
    line.append(skeleton);
    const int open = line.indexOf(OPEN_CHAR);
    if (open < 0)
        return line + comment;
    const QString number = QString::number(mesIndex);
    line.insert(open + 1, number);
    int cursor = open + 1 + static_cast<int>(number.size());
    for (int i = 0; i < static_cast<int>(ITEM_COUNT) && i < items.size(); ++i) {
        const int close = line.indexOf(CLOSE_CHAR, cursor);
        const int fieldOpen = close < 0 ? -1 : line.indexOf(OPEN_CHAR, close);
        if (fieldOpen < 0)
            break;
        line.insert(fieldOpen + 1, items[i]);
        cursor = fieldOpen + 1 + static_cast<int>(items[i].size());
    }
    return line += comment;
}

DialogueFile::DialogueFile(const QString& fileName)
    : Mesfile(fileName)
{
}

QString DialogueFile::getColumnTitle(EntryType type) const
{
    switch (type) {
    case Mesfile::COMMENT_COLUMN:
        return tr("Comment");
    case Mesfile::INDEX_COLUMN:
        return tr("#");
    case TEXT:
        return tr("Text");
    case GENDER:
        return tr("Gender or female line");
    case INTELLIGENCE:
        return tr("Int. Test");
    case CONDITION:
        return tr("Condition");
    case RESPONSE:
        return tr("Response");
    case RESULT:
        return tr("Result");
    default:
        return tr("Invalid col. id");
    }
}

Mesfile::Entry* DialogueFile::newEntry(QString& chunk)
{
    return new DialogueEntry(chunk);
}

} // namespace arcanum
