// The lines of a dialogue file: parsed from an entry's items, written back as an entry.
#include "DialogueFileNew.h"

#include "GameNumber.h"

namespace arcanum {

namespace {

constexpr int ITEM_COUNT = 6; // items of an entry after its index

QString braced(const QString& item)
{
    return OPEN_CHAR + item + CLOSE_CHAR;
}

QString itemOrEmpty(const QStringList& items, int i)
{
    return items.size() == ITEM_COUNT ? items.at(i) : QString();
}

} // namespace

DialogueFileNew::Line::Line(int index, const QString& text, const QString& trailing, const QString& readText)
    : mIndex(index)
    , mText(text)
    , mTrailing(trailing)
    , mReadText(readText)
{
}

DialogueFileNew::Line::~Line() = default;

void DialogueFileNew::Line::setIndex(int index)
{
    change(mIndex, index);
}

void DialogueFileNew::Line::setText(const QString& text)
{
    change(mText, text);
}

// The entry as read is what an unedited defective line writes back; a line made in code has none,
// so its entry is rebuilt from the items.
DialogueFileNew::LineErrors& DialogueFileNew::Line::problems(const QStringList& items, const QString& trailing)
{
    if (!mErrors)
        mErrors = std::make_unique<LineErrors>();
    if (!mReadText.isEmpty()) {
        mErrors->rawText = mReadText;
    } else {
        mErrors->rawText = braced(QString::number(mIndex));
        for (const QString& item : items)
            mErrors->rawText += braced(item);
        mErrors->rawText += trailing;
    }
    return *mErrors;
}

void DialogueFileNew::Line::setError(const QString& message, const QStringList& items, const QString& trailing)
{
    LineErrors& recorded = problems(items, trailing);
    recorded.messages << message;
    qWarning("Error: %s %s", qUtf8Printable(message), qUtf8Printable(recorded.rawText));
}

void DialogueFileNew::Line::setNote(const QString& message, const QStringList& items, const QString& trailing)
{
    problems(items, trailing).notes << message;
}

// Sized first and filled in place: a large dialogue is written line by line, item by item.
QString DialogueFileNew::Line::joinItems(const QStringList& itemsAfterText) const
{
    const QString number = QString::number(mIndex);
    qsizetype size = number.size() + mText.size() + 4 + mTrailing.size();
    for (const QString& item : itemsAfterText)
        size += item.size() + 2;
    QString text;
    text.reserve(size);
    for (const QString* item : {&number, &mText})
        text.append(OPEN_CHAR).append(*item).append(CLOSE_CHAR);
    for (const QString& item : itemsAfterText)
        text.append(OPEN_CHAR).append(item).append(CLOSE_CHAR);
    return text.append(mTrailing);
}

void DialogueFileNew::Line::recordFieldErrors(const OpcodeField& field, const QStringList& items,
                                              const QString& trailing)
{
    for (const QString& message : field.errors())
        setError(message, items, trailing);
    for (const QString& message : field.notes())
        setNote(message, items, trailing);
}

int DialogueFileNew::Line::readNumber(const QString& item, const QString& what, const QStringList& items,
                                      const QString& trailing)
{
    const GameNumber number = GameNumber::read(item);
    if (!number.isExact())
        setNote(QStringLiteral("%1 could not be parsed: the game reads '%2' as %3")
                    .arg(what, item.trimmed(), QString::number(number.value())),
                items, trailing);
    return number.value();
}

// A line without its six items keeps the defaults of its fields.
bool DialogueFileNew::Line::hasAllItems(const QStringList& items, const QString& trailing)
{
    if (items.size() == ITEM_COUNT)
        return true;
    setError(QStringLiteral("Number of items on this line doesn't match the normal number of items"), items, trailing);
    return false;
}

void DialogueFileNew::Line::changeRecords(OpcodeField& field, const QVector<dlg::TestOrResultData>& records)
{
    if (field.setRecords(records))
        mEdited = true;
}

bool DialogueFileNew::Line::renameInField(OpcodeField& field, int from, int to, const dlg::TestOrResultTypes& allowed)
{
    if (!field.renameLine(from, to, allowed))
        return false;
    mEdited = true;
    return true;
}

bool DialogueFileNew::Line::renameResponse(int& responseLine, int from, int to)
{
    if (responseLine != from)
        return false;
    change(responseLine, to);
    return true;
}

DialogueFileNew::PCLine::PCLine(int index)
    : Line(index, QString(), QString(), QString())
{
}

DialogueFileNew::PCLine::PCLine(int index, const QStringList& items, const QString& trailing,
                                const QString& readText)
    : Line(index, itemOrEmpty(items, 0), trailing, readText)
{
    parseItems(items, trailing);
}

void DialogueFileNew::PCLine::parseItems(const QStringList& items, const QString& trailing)
{
    if (!hasAllItems(items, trailing))
        return;
    // Any other gender text means "either", as the game reads it.
    const QString gender = items.at(1).trimmed();
    if (gender == QLatin1String("0"))
        mGender = GENDER_FEMALE;
    else if (gender == QLatin1String("1"))
        mGender = GENDER_MALE;
    // Without a digit in it the game cannot read the field at all, and stops reading the file there.
    if (GameNumber::read(items.at(2)).hasDigits())
        mIntelligence = readNumber(items.at(2), QStringLiteral("Intelligence requirements"), items, trailing);
    else if (items.at(2).trimmed().isEmpty())
        setError(QStringLiteral("intelligence is empty: the game stops reading the file here"), items, trailing);
    else
        setError(QStringLiteral("intelligence '%1' has no number: the game stops reading the file here")
                     .arg(items.at(2).trimmed()),
                 items, trailing);
    mTests = DialogueTestField(items.at(3));
    recordFieldErrors(mTests, items, trailing);
    // An empty response reads as 0, the end of the conversation.
    if (items.at(4).trimmed().isEmpty())
        setNote(QStringLiteral("Response line is empty: the game reads it as 0, the end of the conversation"), items,
                trailing);
    else
        mResponseLine = readNumber(items.at(4), QStringLiteral("Response line"), items, trailing);
    mResults = PCResultField(items.at(5));
    recordFieldErrors(mResults, items, trailing);
}

QString DialogueFileNew::PCLine::getCompleteLineText() const
{
    if (writesReadText())
        return errors()->rawText;
    QString gender;
    if (mGender != GENDER_EITHER)
        gender = mGender == GENDER_FEMALE ? QStringLiteral("0") : QStringLiteral("1");
    return joinItems({gender, QString::number(mIntelligence), mTests.toString(), QString::number(mResponseLine),
                      mResults.toString()});
}

bool DialogueFileNew::PCLine::namesLine(int number) const
{
    return number > 0 && (mResponseLine == number || mTests.namesLine(number) || mResults.namesLine(number));
}

// Every place is renamed, not only the first that names the line.
bool DialogueFileNew::PCLine::renameLine(int from, int to)
{
    if (from <= 0)
        return false;
    const bool response = renameResponse(mResponseLine, from, to);
    const bool tests = renameInField(mTests, from, to, dlg::test::ALL_TESTS);
    const bool results = renameInField(mResults, from, to, dlg::result::ALL_PC_RESULTS);
    return response || tests || results;
}

// A new line says its text and waits for the player's answer: no response line of its own.
DialogueFileNew::NPCLine::NPCLine(int index)
    : Line(index, QString(), QString(), QString())
    , mResponseLine(-1)
{
}

DialogueFileNew::NPCLine::NPCLine(int index, const QStringList& items, const QString& trailing,
                                  const QString& readText)
    : Line(index, itemOrEmpty(items, 0), trailing, readText)
{
    parseItems(items, trailing);
}

void DialogueFileNew::NPCLine::parseItems(const QStringList& items, const QString& trailing)
{
    if (!hasAllItems(items, trailing))
        return;
    mFemaleText = items.at(1);
    if (!items.at(2).trimmed().isEmpty())
        setError(QStringLiteral("{I} is not empty (3rd item) -> no valid NPC line"), items, trailing);
    mTestsText = items.at(3);
    if (items.at(4).trimmed().isEmpty())
        mResponseLine = -1;
    else
        mResponseLine = readNumber(items.at(4), QStringLiteral("Response line"), items, trailing);
    mResults = NPCResultField(items.at(5));
    recordFieldErrors(mResults, items, trailing);
}

QString DialogueFileNew::NPCLine::getCompleteLineText() const
{
    if (writesReadText())
        return errors()->rawText;
    const QString response = mResponseLine == -1 ? QString() : QString::number(mResponseLine);
    return joinItems({mFemaleText, QString(), mTestsText, response, mResults.toString()});
}

bool DialogueFileNew::NPCLine::namesLine(int number) const
{
    return number > 0 && (mResponseLine == number || mResults.namesLine(number));
}

bool DialogueFileNew::NPCLine::renameLine(int from, int to)
{
    if (from <= 0)
        return false;
    const bool response = renameResponse(mResponseLine, from, to);
    const bool results = renameInField(mResults, from, to, dlg::result::ALL_NPC_RESULTS);
    return response || results;
}

} // namespace arcanum
