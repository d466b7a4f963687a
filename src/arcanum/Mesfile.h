#pragma once

#include <QCoreApplication>
#include <QFile>
#include <QList>
#include <QString>

#include <memory>
#include <vector>

class QTextCodec;
class QTextStream;

namespace arcanum {

// A message file: numbered texts in braces, "{index}{text} comment", after an optional free header.
// Every entry remembers the layout of its source line, so lines come back as they were read.
class Mesfile
{
    Q_DECLARE_TR_FUNCTIONS(Mesfile)

public:
    // A column of the table view: the index, the comment, or item 0, 1, ...
    using EntryType = int;
    static constexpr EntryType INDEX_COLUMN = -1;
    static constexpr EntryType COMMENT_COLUMN = -2;

    // One entry: its fields plus the skeleton (its source line with the fields cut out).
    class Entry
    {
    public:
        virtual ~Entry() = default;
        virtual QString getItemAt(unsigned index) const = 0;
        virtual void setItemAt(unsigned index, const QString& text) = 0;
        virtual QString getInfoAbout(EntryType type) const = 0;
        virtual unsigned getItemCount() const = 0;
        // The source line rebuilt from skeleton and fields, "\n"-terminated.
        virtual QString getLine() const = 0;

        QString getComment() const { return comment; }
        void setComment(const QString& text) { comment = text; }
        bool isValid() const { return valid; }
        // Whether the entry's number could be read (a line that fails later still has one).
        bool hasMesIndex() const { return numbered; }
        int getMesIndex() const { return mesIndex; }
        void setMesIndex(int index)
        {
            mesIndex = index;
            numbered = true;
        }
        // The 1-based line of the file the entry starts on; 0 for an entry not read from a file.
        int getSourceLine() const { return sourceLine; }
        void setSourceLine(int line) { sourceLine = line; }
        QString getValidationError() const;
        // Keeps the chunk whole as the skeleton, so the line is written back as it was read.
        void setErrorState(const QString& message, const QString& chunk);

    protected:
        void setValidState();
        // Parses "{index}" at the start of chunk into mesIndex and cuts the digits out of skeleton.
        // Returns the position of the index's "}" in skeleton, or -1 after recording the error.
        int parseIndex(const QString& chunk);
        // Records a "{" at skeleton position open that no "}" closes; the message gives its place in chunk.
        void setUnmatchedOpenError(const QString& chunk, int open);
        // Takes a view, so the usual comment, a lone line end, costs no string of its own.
        static QString withoutFinalNewline(QStringView text);

        QString skeleton;
        QString validationError;
        bool valid = false;
        QString comment;
        int mesIndex = 0;
        bool numbered = false;
        int sourceLine = 0;
    };

    // An entry of a message file: one item, the text.
    class MesEntry : public Entry
    {
    public:
        explicit MesEntry(const QString& chunk);
        QString getItemAt(unsigned index) const override;
        void setItemAt(unsigned index, const QString& text) override;
        QString getInfoAbout(EntryType type) const override;
        unsigned getItemCount() const override { return 1; }
        QString getLine() const override;

    private:
        QString text;
    };

    explicit Mesfile(const QString& fileName = QString());
    virtual ~Mesfile();
    Mesfile(const Mesfile&) = delete;
    Mesfile& operator=(const Mesfile&) = delete;

    // A DialogueFile for ".dlg" names, a Mesfile for everything else; the caller owns it.
    static Mesfile* getInstance(const QString& fileName);

    virtual unsigned getItemCount() const { return 1; }
    virtual QString getColumnTitle(EntryType type) const;
    virtual bool load(QTextCodec* codec);
    virtual bool save(const QString& fileName, QTextCodec* codec);
    virtual Entry* newEntry(QString& chunk);

    void setFilename(const QString& name);
    QString getFilename() const { return file.fileName(); }
    bool loadFile(const QString& fileName, QTextCodec* codec);
    // Reads the bytes of a file (as load reads the bound file); false for no bytes.
    bool loadBytes(QByteArray bytes, QTextCodec* codec);
    // The bytes of the file as it stands, Windows line ends; unlike save, never changes the model, so
    // writing twice gives the same bytes twice.
    QByteArray toBytes(QTextCodec* codec) const;
    bool isLoaded() const { return loaded; }
    int getEntryCount() const { return static_cast<int>(entries.size()); }
    // Null for a position outside the list.
    Entry* getEntryAt(int position) const;
    Entry* getEntryWithIndex(unsigned index) const;
    QString getHeader() const { return header; }
    void setHeader(const QString& text) { header = text; }
    void clear();
    // Adds an entry parsed from line, as if it had been read at the end of the file.
    Entry* appendEntry(const QString& line);

    // The position of the entry numbered number, -1 when no entry carries it.
    int positionOf(int number) const;
    // A new entry numbered number, every field empty, written "{number}{}" (one "{}" per item).
    std::unique_ptr<Entry> makeEntry(int number);
    // Where an entry numbered number goes to keep the file in number order: after the entry with the
    // nearest lower number and the unreadable lines that follow it; at the top when none is lower.
    int orderedPosition(int number) const;
    // Puts entry at position (0 … count), or takes the entry at position out; the caller holds it meanwhile.
    void insertEntry(int position, std::unique_ptr<Entry> entry);
    std::unique_ptr<Entry> takeEntry(int position);
    // The positions of the entries in number order (stable: equal numbers keep their order, and a line
    // without a readable number stays behind the entry it followed).
    std::vector<int> numberOrder() const;
    // Rearranges the entries: position i gets the entry that was at order[i].
    void reorder(const std::vector<int>& order);

    // Removes spaces and tabs, and only those, from the front.
    static QString trimFront(const QString& line);
    // The next chunk: one line that starts an entry (or the first line of the file) and every line up
    // to the next entry, each ending in "\n", without "\r". Empty when the stream is already exhausted.
    static QString getDataUpToNextEntry(QTextStream& stream, bool* atEnd);

protected:
    bool loaded = false;
    QFile file;
    QString header;
    std::vector<std::unique_ptr<Entry>> entries;

private:
    void readEntries(const QString& text);
    QString buildText();
    // A UTF-8 byte order mark in front of the file, written back when saving in UTF-8 again.
    bool utf8Bom = false;
};

} // namespace arcanum
