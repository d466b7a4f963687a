#include "MesDocument.h"

#include "EntryPresenceCommand.h"
#include "SortEntriesCommand.h"
#include "TextDecoding.h"
#include "TextSearch.h"
#include "ValueCommand.h"

#include <QTextCodec>
#include <QUndoStack>

#include <algorithm>
#include <set>

using arcanum::Mesfile;

namespace {
const int LISTED_PROBLEMS = 3;
const int CELL_MERGE_ID = 1001;
// Keys typing into one cell apart from typing into another; the column count of a dialogue table is 8.
const int COLUMNS_PER_KEY = 256;
} // namespace

std::unique_ptr<MesDocument> MesDocument::fromBytes(const QString& path, const QByteArray& bytes, QTextCodec* codec,
                                                    QString& error)
{
    std::unique_ptr<Mesfile> model(Mesfile::getInstance(path));
    model->setFilename(path);
    if (!bytes.isEmpty() && !model->loadBytes(bytes, codec)) {
        error = QObject::tr("the file could not be read");
        return nullptr;
    }
    return std::unique_ptr<MesDocument>(new MesDocument(path, std::move(model), codec, bytes));
}

MesDocument::MesDocument(const QString& path, std::unique_ptr<Mesfile> model, QTextCodec* codec,
                         const QByteArray& bytes)
    : Document(path)
    , mesfile(std::move(model))
    , textCodec(codec)
    , lossyLines(arcanum::TextDecoding::lossyLines(codec, bytes))
    , findings(arcanum::EncodingGuess::examine(codec, bytes))
{
    // Entries move and go away later: each damaged line is tied to its entry while the order is the file's.
    for (int line : lossyLines)
        lossyOwners.push_back(entryAtLine(line));
}

int MesDocument::columnCount() const
{
    return int(mesfile->getItemCount()) + 2;
}

QString MesDocument::cell(int entry, int column) const
{
    const Mesfile::Entry* found = mesfile->getEntryAt(entry);
    if (found == nullptr)
        return QString();
    if (column == 0)
        return found->hasMesIndex() ? QString::number(found->getMesIndex()) : QString();
    if (column == columnCount() - 1)
        return found->getComment();
    return found->getItemAt(unsigned(column - 1));
}

bool MesDocument::isReadable(int entry) const
{
    const Mesfile::Entry* found = mesfile->getEntryAt(entry);
    return found != nullptr && found->isValid();
}

bool MesDocument::isEditable(int entry, int column) const
{
    // A line that could not be read is written back as read, so an edit of its cells would be lost.
    return isReadable(entry) && column > 0 && column < columnCount();
}

// ---- numbers ----

bool MesDocument::parseNumber(const QString& text, int& number, QString& error)
{
    const QString typed = text.trimmed();
    bool ok = false;
    const qlonglong value = typed.toLongLong(&ok, 10);
    const bool digits = !typed.isEmpty() && std::all_of(typed.begin() + (typed.startsWith(QLatin1Char('-')) ? 1 : 0),
                                                        typed.end(), [](QChar c) { return c.isDigit(); });
    if (!digits) {
        error = tr("“%1” is not a number.").arg(typed);
        return false;
    }
    if (!ok || value < 0 || value > MAX_NUMBER) {
        error = tr("%1 is outside 0 … %2: a message file cannot hold that number.").arg(typed).arg(MAX_NUMBER);
        return false;
    }
    number = int(value);
    return true;
}

QString MesDocument::numberProblem(int number) const
{
    if (number < 0)
        return tr("%1 is outside 0 … %2: a message file cannot hold that number.").arg(number).arg(MAX_NUMBER);
    if (mesfile->positionOf(number) >= 0)
        return tr("Number %1 is already in use in %2.").arg(number).arg(displayName());
    return QString();
}

int MesDocument::nextFreeNumber(int after) const
{
    QSet<int> used;
    for (int i = 0; i < mesfile->getEntryCount(); ++i) {
        const Mesfile::Entry* entry = mesfile->getEntryAt(i);
        if (entry->hasMesIndex())
            used.insert(entry->getMesIndex());
    }
    qint64 candidate = qint64(after) + 1;
    // More numbers than entries are free, so the search ends within count + 1 steps of a start.
    for (int tries = 0; tries <= used.size() + 1; ++tries, ++candidate) {
        if (candidate > MAX_NUMBER || candidate < 0)
            candidate = 0;
        if (!used.contains(int(candidate)))
            return int(candidate);
    }
    return 0;
}

int MesDocument::proposedNumber(int position) const
{
    if (const Mesfile::Entry* entry = mesfile->getEntryAt(position); entry != nullptr && entry->hasMesIndex())
        return nextFreeNumber(entry->getMesIndex());
    int highest = -1;
    for (int i = 0; i < mesfile->getEntryCount(); ++i) {
        const Mesfile::Entry* entry = mesfile->getEntryAt(i);
        if (entry->hasMesIndex())
            highest = std::max(highest, entry->getMesIndex());
    }
    return nextFreeNumber(highest);
}

// ---- edits ----

void MesDocument::pushCell(int entry, int column, const QString& text, const QString& what, int mergeId)
{
    pushValue<QString>(undoStack(), what, mergeId, entry * COLUMNS_PER_KEY + column, cell(entry, column), text,
                       [this, entry, column](const QString& value) { applyCell(entry, column, value); });
}

void MesDocument::editCell(int entry, int column, const QString& text)
{
    if (!isEditable(entry, column))
        return;
    const QString what = column == columnCount() - 1 ? tr("Edit comment of %1") : tr("Edit text of %1");
    pushCell(entry, column, text, what.arg(cell(entry, 0)), CELL_MERGE_ID);
}

bool MesDocument::pushNewEntry(std::unique_ptr<Mesfile::Entry> entry, const QString& what, int& position)
{
    position = mesfile->orderedPosition(entry->getMesIndex());
    undoStack()->push(EntryPresenceCommand::adding(this, position, std::move(entry), what));
    return true;
}

bool MesDocument::addEntry(int number, int& position, QString& error)
{
    error = numberProblem(number);
    if (!error.isEmpty())
        return false;
    return pushNewEntry(mesfile->makeEntry(number), tr("Add entry %1").arg(number), position);
}

bool MesDocument::duplicateEntry(int source, int number, int& position, QString& error)
{
    if (!isReadable(source)) {
        error = tr("Only an entry that could be read can be duplicated.");
        return false;
    }
    error = numberProblem(number);
    if (!error.isEmpty())
        return false;
    const Mesfile::Entry* original = mesfile->getEntryAt(source);
    std::unique_ptr<Mesfile::Entry> copy = mesfile->makeEntry(number);
    for (unsigned item = 0; item < mesfile->getItemCount(); ++item)
        copy->setItemAt(item, original->getItemAt(item));
    copy->setComment(original->getComment());
    return pushNewEntry(std::move(copy), tr("Duplicate entry %1 as %2").arg(original->getMesIndex()).arg(number),
                        position);
}

bool MesDocument::renumberEntry(int entry, int number, QString& error)
{
    if (!isReadable(entry)) {
        error = tr("Only an entry that could be read can be renumbered.");
        return false;
    }
    const int old = mesfile->getEntryAt(entry)->getMesIndex();
    if (old == number)
        return true;
    error = numberProblem(number);
    if (!error.isEmpty())
        return false;
    pushValue<int>(undoStack(), tr("Change number %1 to %2").arg(old).arg(number), -1, 0, old, number,
                   [this, entry](const int& value) { applyNumber(entry, value); });
    return true;
}

bool MesDocument::removeEntries(const QList<int>& positions)
{
    // From the bottom up, so each position still names its entry when its turn comes.
    std::set<int, std::greater<int>> unique;
    for (int position : positions)
        if (mesfile->getEntryAt(position) != nullptr)
            unique.insert(position);
    const QList<int> sorted(unique.begin(), unique.end());
    if (sorted.isEmpty())
        return false;
    QString what = tr("Delete %1 entries").arg(sorted.size());
    if (sorted.size() == 1)
        what = isReadable(sorted.first()) ? tr("Delete entry %1").arg(cell(sorted.first(), 0))
                                          : tr("Delete unreadable line %1").arg(mesfile->getEntryAt(sorted.first())->getSourceLine());
    auto* group = new QUndoCommand(what);
    for (int position : sorted)
        EntryPresenceCommand::removing(this, position, what, group);
    undoStack()->push(group);
    return true;
}

bool MesDocument::sortByNumber()
{
    std::vector<int> order = mesfile->numberOrder();
    if (std::is_sorted(order.begin(), order.end()))
        return false;
    undoStack()->push(new SortEntriesCommand(this, std::move(order), tr("Sort by number")));
    return true;
}

// ---- search ----

QList<int> MesDocument::searchedColumns() const
{
    QList<int> columns;
    for (int column = 1; column < columnCount(); ++column)
        columns.append(column);
    return columns;
}

MesDocument::Match MesDocument::find(const TextSearch& search, const Match& from, bool backwards) const
{
    const int columns = columnCount() - 1;
    const int total = mesfile->getEntryCount() * columns;
    if (search.isEmpty() || total == 0)
        return Match();
    const int startEntry = std::clamp(from.entry, 0, mesfile->getEntryCount() - 1);
    const int startCell = startEntry * columns + std::clamp(from.column, 1, columns) - 1;
    // The starting cell is searched from the match on (or up to it), the others whole; the starting
    // cell comes round again last, whole, so a lone match is found again.
    for (int step = 0; step <= total; ++step) {
        const int flat = ((backwards ? startCell - step : startCell + step) % total + total) % total;
        const int entry = flat / columns;
        const int column = flat % columns + 1;
        if (!isReadable(entry))
            continue;
        const QString text = cell(entry, column);
        qsizetype length = 0;
        qsizetype at = -1;
        if (backwards)
            at = search.lastIndexIn(text, step == 0 ? from.start : text.size(), length);
        else
            at = search.indexIn(text, step == 0 ? from.start + from.length : 0, length);
        if (at >= 0)
            return Match{entry, column, at, length};
    }
    return Match();
}

int MesDocument::countMatches(const TextSearch& search) const
{
    int found = 0;
    for (int entry = 0; entry < mesfile->getEntryCount(); ++entry) {
        if (!isReadable(entry))
            continue;
        for (int column : searchedColumns())
            found += search.count(cell(entry, column));
    }
    return found;
}

bool MesDocument::replaceMatch(const Match& match, const TextSearch& search, const QString& replacement)
{
    if (!isEditable(match.entry, match.column))
        return false;
    QString text = cell(match.entry, match.column);
    qsizetype length = 0;
    if (search.indexIn(text, match.start, length) != match.start || length != match.length)
        return false;
    text.replace(match.start, match.length, replacement);
    pushCell(match.entry, match.column, text, tr("Replace in %1").arg(cell(match.entry, 0)), -1);
    return true;
}

int MesDocument::replaceAll(const TextSearch& search, const QString& replacement, int& cells)
{
    cells = 0;
    int replaced = 0;
    bool begun = false;
    for (int entry = 0; entry < mesfile->getEntryCount(); ++entry) {
        if (!isReadable(entry))
            continue;
        for (int column : searchedColumns()) {
            int count = 0;
            const QString text = search.replaced(cell(entry, column), replacement, count);
            if (count == 0)
                continue;
            if (!begun) {
                undoStack()->beginMacro(tr("Replace all “%1”").arg(search.pattern()));
                begun = true;
            }
            pushCell(entry, column, text, tr("Replace in %1").arg(cell(entry, 0)), -1);
            replaced += count;
            ++cells;
        }
    }
    if (begun)
        undoStack()->endMacro();
    return replaced;
}

// ---- applied by commands ----

void MesDocument::applyCell(int entry, int column, const QString& text)
{
    Mesfile::Entry* found = mesfile->getEntryAt(entry);
    if (found == nullptr || column <= 0)
        return;
    if (column == columnCount() - 1)
        found->setComment(text);
    else
        found->setItemAt(unsigned(column - 1), text);
    editedEntries.insert(found);
    emit cellChanged(entry, column);
    emit changed();
}

void MesDocument::applyHeader(const QString& text)
{
    mesfile->setHeader(text);
    headerEdited = true;
    emit headerChanged();
    emit changed();
}

void MesDocument::applyNumber(int entry, int number)
{
    Mesfile::Entry* found = mesfile->getEntryAt(entry);
    if (found == nullptr)
        return;
    found->setMesIndex(number);
    editedEntries.insert(found);
    emit cellChanged(entry, 0);
    emit changed();
}

void MesDocument::applyInsert(int position, std::unique_ptr<Mesfile::Entry> entry)
{
    emit entryAboutToBeInserted(position);
    mesfile->insertEntry(position, std::move(entry));
    emit entryInserted(position);
    emit changed();
}

std::unique_ptr<Mesfile::Entry> MesDocument::applyTake(int position)
{
    if (mesfile->getEntryAt(position) == nullptr)
        return nullptr;
    emit entryAboutToBeRemoved(position);
    std::unique_ptr<Mesfile::Entry> taken = mesfile->takeEntry(position);
    emit entryRemoved(position);
    emit changed();
    return taken;
}

void MesDocument::applyOrder(const std::vector<int>& order)
{
    emit entriesAboutToBeReordered();
    mesfile->reorder(order);
    emit entriesReordered();
    emit changed();
}

// ---- saving ----

bool MesDocument::serialize(QByteArray& bytes, QString& /*error*/) const
{
    bytes = mesfile->toBytes(textCodec);
    return true;
}

const Mesfile::Entry* MesDocument::entryAtLine(int line) const
{
    const Mesfile::Entry* found = nullptr;
    for (int i = 0; i < mesfile->getEntryCount(); ++i) {
        const Mesfile::Entry* entry = mesfile->getEntryAt(i);
        if (entry->getSourceLine() > line)
            break;
        found = entry;
    }
    return found;
}

QString MesDocument::saveLoss() const
{
    QSet<const Mesfile::Entry*> present;
    for (int i = 0; i < mesfile->getEntryCount(); ++i)
        present.insert(mesfile->getEntryAt(i));
    int untouched = 0;
    int first = 0;
    for (size_t i = 0; i < lossyOwners.size(); ++i) {
        const Mesfile::Entry* owner = lossyOwners[i];
        // A deleted entry's lines are not written at all; an edited one's were the user's to change.
        const bool kept = owner == nullptr ? !headerEdited : present.contains(owner) && !editedEntries.contains(owner);
        if (kept && ++untouched == 1)
            first = lossyLines.at(int(i));
    }
    if (untouched == 0)
        return QString();
    const QString lines = untouched == 1 ? tr("1 line") : tr("%1 lines").arg(untouched);
    return tr("Saving in %1 would change %2 that were not edited: the file does not read cleanly "
              "in this encoding (first: line %3). Choose another encoding to keep them.")
        .arg(QString::fromLatin1(textCodec->name()), lines)
        .arg(first);
}
QString MesDocument::damage() const
{
    QStringList problems;
    int invalid = 0;
    for (int i = 0; i < mesfile->getEntryCount(); ++i) {
        const Mesfile::Entry* entry = mesfile->getEntryAt(i);
        if (entry->isValid())
            continue;
        if (++invalid <= LISTED_PROBLEMS)
            problems.append(tr("entry %1 (line %2): %3")
                                .arg(i + 1)
                                .arg(entry->getSourceLine())
                                .arg(entry->getValidationError()));
    }
    if (invalid > LISTED_PROBLEMS)
        problems.append(tr("and %1 more").arg(invalid - LISTED_PROBLEMS));
    if (!problems.isEmpty())
        problems.first().prepend(invalid == 1 ? tr("1 entry cannot be read and is kept as it is: ")
                                              : tr("%1 entries cannot be read and are kept as they are: ").arg(invalid));
    // What does not read in the chosen encoding the page's own strip shows, with the encodings that do.
    return problems.join(QStringLiteral("; "));
}
