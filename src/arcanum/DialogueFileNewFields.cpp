// The tests and results of dialogue lines: comma-separated opcodes with their arguments.
#include "DialogueFileNew.h"

#include "OpcodeWords.h"

namespace arcanum {

namespace {

bool parseNumber(QStringView text, qint32& value)
{
    bool ok = false;
    const int number = text.trimmed().toInt(&ok, 10);
    if (ok)
        value = number;
    return ok;
}

} // namespace

DialogueFileNew::OpcodeField::OpcodeField(const QString& text, const dlg::TestOrResultTypes* allowed)
    : mReadText(text)
{
    if (!allowed) {
        mErrors << QStringLiteral("ALL_RESULTS == NULL");
        return;
    }
    const QStringView trimmed = QStringView(text).trimmed();
    // Most fields are empty: they have no pieces, and need no list to say so.
    if (trimmed.isEmpty())
        return;
    const QList<QStringView> pieces = trimmed.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (QStringView piece : pieces)
        parsePiece(piece.trimmed(), *allowed);
}

void DialogueFileNew::OpcodeField::parsePiece(QStringView piece, const dlg::TestOrResultTypes& allowed)
{
    const QStringView code = piece.left(2);
    const dlg::TestOrResultType* type = dlg::findType(allowed, code);
    if (!type) {
        mErrors << QStringLiteral("opcode '%1' is unknown").arg(code);
        return;
    }
    dlg::TestOrResultData record(type);
    if (parseArguments(piece.mid(2), code, record))
        mRecords << record;
}

// A piece whose arguments cannot be read is reported and left out of the records; an unedited field
// still writes it back as it was read.
bool DialogueFileNew::OpcodeField::parseArguments(QStringView arguments, QStringView code,
                                                  dlg::TestOrResultData& record)
{
    const auto failed = [this, &code](int argument) {
        mErrors << QStringLiteral("Argument %1 of opcode %2 could not be parsed").arg(QString::number(argument), code);
        return false;
    };
    switch (record.type->argumentCount()) {
    case 0:
        return true;
    case 1:
        return parseNumber(arguments, record.value1) || failed(1);
    case 2: {
        const QList<QStringView> values = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const bool first = parseNumber(values.value(0), record.value1) || failed(1);
        const bool second = parseNumber(values.value(1), record.value2) || failed(2);
        return first && second;
    }
    default:
        mErrors << QStringLiteral("Error this else should never be reached");
        return false;
    }
}

bool DialogueFileNew::OpcodeField::setRecords(const QVector<dlg::TestOrResultData>& records)
{
    if (records == mRecords)
        return false;
    mRecords = records;
    mReadText.reset();
    return true;
}

QString DialogueFileNew::OpcodeField::toString() const
{
    if (mReadText)
        return *mReadText;
    QStringList pieces;
    for (const dlg::TestOrResultData& record : mRecords)
        pieces << record.toString();
    return pieces.join(QLatin1String(", "));
}

bool DialogueFileNew::OpcodeField::namesLine(int number) const
{
    for (const dlg::TestOrResultData& record : mRecords)
        for (int argument : dlg::OpcodeWords::lineArguments(record.type))
            if ((argument == 0 ? record.value1 : record.value2) == number)
                return true;
    return false;
}

bool DialogueFileNew::OpcodeField::renameLine(int from, int to, const dlg::TestOrResultTypes& allowed)
{
    if (mReadText) {
        const QString text = renamedText(*mReadText, allowed, from, to);
        if (text == *mReadText)
            return false;
        *this = OpcodeField(text, &allowed);
        return true;
    }
    QVector<dlg::TestOrResultData> records = mRecords;
    for (dlg::TestOrResultData& record : records)
        for (int argument : dlg::OpcodeWords::lineArguments(record.type)) {
            qint32& value = argument == 0 ? record.value1 : record.value2;
            if (value == from)
                value = to;
        }
    return setRecords(records);
}

// Replaces only the digits of the line arguments, piece by piece: blanks, letter case and pieces that
// are no valid opcode stay as they were.
QString DialogueFileNew::OpcodeField::renamedText(const QString& text, const dlg::TestOrResultTypes& allowed,
                                                  int from, int to)
{
    QString result;
    result.reserve(text.size());
    const QList<QStringView> pieces = QStringView(text).split(QLatin1Char(','));
    for (int p = 0; p < pieces.size(); ++p) {
        if (p > 0)
            result += QLatin1Char(',');
        const QStringView piece = pieces.at(p);
        qsizetype start = 0;
        while (start < piece.size() && piece.at(start).isSpace())
            ++start;
        const QList<int> lineArguments = start + 2 <= piece.size()
                                             ? dlg::OpcodeWords::lineArguments(dlg::findType(allowed, piece.mid(start, 2)))
                                             : QList<int>();
        if (lineArguments.isEmpty()) {
            result += piece;
            continue;
        }
        qsizetype at = start + 2;
        result += piece.left(at);
        for (int argument = 0; at < piece.size(); ++argument) {
            qsizetype blanks = at;
            while (blanks < piece.size() && piece.at(blanks).isSpace())
                ++blanks;
            qsizetype end = blanks;
            while (end < piece.size() && !piece.at(end).isSpace())
                ++end;
            result += piece.mid(at, blanks - at);
            const QStringView token = piece.mid(blanks, end - blanks);
            bool ok = false;
            const bool renamed = lineArguments.contains(argument) && token.toInt(&ok, 10) == from && ok;
            result += renamed ? QString::number(to) : token.toString();
            at = end;
        }
    }
    return result;
}

DialogueFileNew::Line::DialogueResultField::DialogueResultField(const QString& text,
                                                                const dlg::TestOrResultTypes* allowed)
    : OpcodeField(text, allowed)
{
}

DialogueFileNew::PCLine::DialogueTestField::DialogueTestField(const QString& text)
    : OpcodeField(text, &dlg::test::ALL_TESTS)
{
}

DialogueFileNew::PCLine::PCResultField::PCResultField(const QString& text)
    : DialogueResultField(text, &dlg::result::ALL_PC_RESULTS)
{
}

DialogueFileNew::NPCLine::NPCResultField::NPCResultField(const QString& text)
    : DialogueResultField(text, &dlg::result::ALL_NPC_RESULTS)
{
}

} // namespace arcanum
