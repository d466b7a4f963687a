#pragma once

#include "Document.h"
#include "EncodingGuess.h"
#include "Mesfile.h"

#include <QList>
#include <QSet>

#include <memory>
#include <vector>

class QTextCodec;
class TextSearch;

// An open message file (or a dialogue file read as a table) in one encoding. Cells are addressed by the
// entry's position in the file and a column: 0 the number, 1 … items, the last the comment. Every edit
// goes through the undo stack: the methods that change the file push one step (or refuse and change
// nothing), and the apply… methods are what the commands call on undo and redo.
class MesDocument : public Document
{
    Q_OBJECT

public:
    // The largest message number the format holds (the game reads the numbers as signed 32-bit).
    static constexpr int MAX_NUMBER = 2147483647;

    // One match of a search: the cell and where in its text; entry -1 for none.
    struct Match
    {
        int entry = -1;
        int column = -1;
        qsizetype start = 0;
        qsizetype length = 0;
    };

    // Null and the reason when the file cannot be read at all.
    static std::unique_ptr<MesDocument> fromBytes(const QString& path, const QByteArray& bytes, QTextCodec* codec,
                                                  QString& error);

    const arcanum::Mesfile& model() const { return *mesfile; }
    QTextCodec* codec() const { return textCodec; }
    // What did not read in that encoding, and the encodings that would read the file.
    const arcanum::EncodingGuess::Findings& encodingFindings() const { return findings; }
    int columnCount() const;
    QString cell(int entry, int column) const;
    bool isEditable(int entry, int column) const;
    // Whether the entry at position is read and can be renumbered, duplicated and searched.
    bool isReadable(int entry) const;

    // Reads a number the user typed: false and why when it is no whole number in 0 … MAX_NUMBER.
    static bool parseNumber(const QString& text, int& number, QString& error);
    // Why no entry can take number (out of range, in use); empty when one can.
    QString numberProblem(int number) const;
    // The first number above after that no entry carries, for a new entry; going round to 0 past the top.
    int nextFreeNumber(int after) const;
    // The number a new entry is offered: the first free one after the entry at position, or after the
    // highest number when position is no entry.
    int proposedNumber(int position) const;

    // Changes one cell; typing into the same cell again merges into the same step.
    void editCell(int entry, int column, const QString& text);

    // Edits, each one undo step. The new entry's position comes back in position; an edit that cannot
    // be made returns false with the reason in error and changes nothing.
    bool addEntry(int number, int& position, QString& error);
    bool duplicateEntry(int source, int number, int& position, QString& error);
    bool renumberEntry(int entry, int number, QString& error);
    // Removes the entries at the positions (in any order) in one step; false when none is an entry.
    bool removeEntries(const QList<int>& positions);
    // Puts the entries in number order in one step; false (and no step) when they already are.
    bool sortByNumber();

    // Searching covers the texts and comments of the readable entries, in file order.
    // The next match after from (before it, backwards), going round the file.
    Match find(const TextSearch& search, const Match& from, bool backwards) const;
    int countMatches(const TextSearch& search) const;
    // Replaces the match, when its cell still holds it, as one step.
    bool replaceMatch(const Match& match, const TextSearch& search, const QString& replacement);
    // Replaces every match as one step; returns how many, and in how many cells.
    int replaceAll(const TextSearch& search, const QString& replacement, int& cells);

    // Applied by commands only: they announce the change.
    void applyCell(int entry, int column, const QString& text);
    void applyHeader(const QString& text);
    void applyNumber(int entry, int number);
    void applyInsert(int position, std::unique_ptr<arcanum::Mesfile::Entry> entry);
    std::unique_ptr<arcanum::Mesfile::Entry> applyTake(int position);
    void applyOrder(const std::vector<int>& order);

    bool serialize(QByteArray& bytes, QString& error) const override;
    QString saveLoss() const override;
    QString damage() const override;

signals:
    void cellChanged(int entry, int column);
    void headerChanged();
    void entryAboutToBeInserted(int position);
    void entryInserted(int position);
    void entryAboutToBeRemoved(int position);
    void entryRemoved(int position);
    void entriesAboutToBeReordered();
    void entriesReordered();

private:
    MesDocument(const QString& path, std::unique_ptr<arcanum::Mesfile> model, QTextCodec* codec,
                const QByteArray& bytes);
    const arcanum::Mesfile::Entry* entryAtLine(int line) const;
    // Pushes a change of one cell; mergeId -1 never merges.
    void pushCell(int entry, int column, const QString& text, const QString& what, int mergeId);
    bool pushNewEntry(std::unique_ptr<arcanum::Mesfile::Entry> entry, const QString& what, int& position);
    QList<int> searchedColumns() const;

    std::unique_ptr<arcanum::Mesfile> mesfile;
    QTextCodec* textCodec;
    // Lines whose bytes a read and write in this encoding would change, the entry each belongs to
    // (null: the header), and the entries edited since.
    QList<int> lossyLines;
    std::vector<const arcanum::Mesfile::Entry*> lossyOwners;
    QSet<const arcanum::Mesfile::Entry*> editedEntries;
    arcanum::EncodingGuess::Findings findings;
    bool headerEdited = false;
};
