#pragma once

#include "DialogueCatalogue.h"
#include "constants.h"

#include <QExplicitlySharedDataPointer>
#include <QList>
#include <QPair>
#include <QSharedData>
#include <QStringList>
#include <QTextStream>
#include <QVector>

#include <memory>
#include <optional>

class QFile;
class QTextCodec;

namespace arcanum {

// A dialogue file (.dlg) read into NPC lines (what the character says) and PC lines (the player's
// possible answers, with the tests that offer them). Every entry is seven brace items:
//   {index}{text}{gender | female text}{intelligence | empty}{tests}{response line}{results}
// A defective line is kept with its problems recorded instead of rejecting the file. Files are read and
// written as Windows-1251, the code page of the game's texts, which maps every byte to a character and back.
//
// Lines are shared with the editor's forms through QExplicitlySharedDataPointer. Their setters mark a line
// edited only when the value really changes; an unedited line with problems is written back exactly as it
// was read, an edited one is written from its fields.
class DialogueFileNew
{
public:
    // Which player a PC line is offered to.
    enum Gender : int { GENDER_EITHER = -1, GENDER_FEMALE = 0, GENDER_MALE = 1 };

    // The problems of one line, and the line's entry text as it was read (from its first "{" on).
    // messages are errors: what the game rejects or cannot read. notes are what only our stricter
    // reading objects to while the game reads the line (an empty response field, "5, -17" for an
    // intelligence); a line with either is written back as read until it is edited.
    class LineErrors
    {
    public:
        QStringList messages;
        QStringList notes;
        QString rawText;
        bool hasErrors() const { return !messages.isEmpty(); }
    };

    // The tests or results of a line: records in file order, the problems met while parsing the text,
    // and the text as read. That text is what gets written until different records replace it, so an
    // untouched list keeps its spelling ("QU 5 2", extra blanks) and anything that could not be parsed.
    class OpcodeField
    {
    public:
        const QVector<dlg::TestOrResultData>& records() const { return mRecords; }
        const QStringList& errors() const { return mErrors; }
        // What the game reads although our stricter reading objects: "tr0 3" (no blank after the code),
        // an argument with more after its digits.
        const QStringList& notes() const { return mNotes; }
        bool isEdited() const { return !mReadText.has_value(); }
        // Replaces the records; returns false and keeps the text as read when they are the same.
        bool setRecords(const QVector<dlg::TestOrResultData>& records);
        QString toString() const;
        // Whether a test or result names that line of the file in an argument.
        bool namesLine(int number) const;
        // Makes the arguments naming line from name line to. A field as read changes only those
        // numbers in its text, so the rest keeps its spelling and what could not be parsed; allowed
        // are the types the text was read with. Returns whether anything changed.
        bool renameLine(int from, int to, const dlg::TestOrResultTypes& allowed);

    protected:
        OpcodeField() = default;
        OpcodeField(const QString& text, const dlg::TestOrResultTypes* allowed);

    private:
        // Views into the text as read: a large file has hundreds of thousands of pieces.
        void parsePiece(QStringView piece, const dlg::TestOrResultTypes& allowed);
        static QString renamedText(const QString& text, const dlg::TestOrResultTypes& allowed, int from, int to);
        bool parseArguments(QStringView arguments, QStringView code, dlg::TestOrResultData& record);
        qint32 readArgument(QStringView text, int argument, QStringView code);

        QVector<dlg::TestOrResultData> mRecords;
        QStringList mErrors;
        QStringList mNotes;
        std::optional<QString> mReadText;
    };

    class Line : public QSharedData
    {
    public:
        // Results parsed against the given types (the PC or the NPC result chooser).
        class DialogueResultField : public OpcodeField
        {
        public:
            DialogueResultField() = default;
            DialogueResultField(const QString& text, const dlg::TestOrResultTypes* allowed);
        };

        virtual ~Line();
        Line(const Line&) = delete;
        Line& operator=(const Line&) = delete;

        // The entry as save writes it, without line end ("\n" inside texts stays "\n").
        virtual QString getCompleteLineText() const = 0;
        // Whether the line leads to or names the line with that number: its response line (when it is
        // a line, not an end code) or a test or result argument.
        virtual bool namesLine(int number) const = 0;
        // Makes everything that names line from name line to; returns whether anything changed.
        virtual bool renameLine(int from, int to) = 0;

        bool operator<(const Line& other) const { return mIndex < other.mIndex; }
        bool operator>(const Line& other) const { return mIndex > other.mIndex; }

        int index() const { return mIndex; }
        void setIndex(int index);
        const QString& text() const { return mText; }
        void setText(const QString& text);
        // Whatever followed the entry's seventh "}" on its line (a comment, usually nothing).
        const QString& trailing() const { return mTrailing; }

        // Null while the line has no problem or note. They include those of the tests and results.
        const LineErrors* errors() const { return mErrors.get(); }
        void setError(const QString& message, const QStringList& items, const QString& trailing);
        void setNote(const QString& message, const QStringList& items, const QString& trailing);

        bool isEdited() const { return mEdited; }
        // The 1-based line of the file the entry's first "{" stands on; 0 for a line not read from a file.
        int sourceLine() const { return mSourceLine; }
        void setSourceLine(int line) { mSourceLine = line; }
        // From now on the line is written from its fields, even if it had problems when read.
        void markEdited() { mEdited = true; }

    protected:
        Line(int index, const QString& text, const QString& trailing, const QString& readText);
        // True when save must write the text as read: the line has problems and nobody edited it.
        bool writesReadText() const { return mErrors && !mEdited; }
        // "{index}{text}" followed by the given items in braces and the trailing text.
        QString joinItems(const QStringList& itemsAfterText) const;
        bool hasAllItems(const QStringList& items, const QString& trailing);
        void recordFieldErrors(const OpcodeField& field, const QStringList& items, const QString& trailing);
        // The number the game reads from an item, with a note when our stricter reading differs.
        int readNumber(const QString& item, const QString& what, const QStringList& items, const QString& trailing);
        template <typename T>
        void change(T& field, const T& value)
        {
            if (field != value) {
                field = value;
                mEdited = true;
            }
        }
        void changeRecords(OpcodeField& field, const QVector<dlg::TestOrResultData>& records);
        // For the subclasses' renameLine: a changed opcode field makes the line edited.
        bool renameInField(OpcodeField& field, int from, int to, const dlg::TestOrResultTypes& allowed);
        bool renameResponse(int& responseLine, int from, int to);

    private:
        LineErrors& problems(const QStringList& items, const QString& trailing);

        int mIndex;
        QString mText;
        QString mTrailing;
        QString mReadText;
        std::unique_ptr<LineErrors> mErrors;
        bool mEdited = false;
        int mSourceLine = 0;
    };

    // A response the player may choose.
    class PCLine : public Line
    {
    public:
        class DialogueTestField : public OpcodeField
        {
        public:
            explicit DialogueTestField(const QString& text = QString());
        };
        class PCResultField : public DialogueResultField
        {
        public:
            explicit PCResultField(const QString& text = QString());
        };

        // A new, empty line.
        explicit PCLine(int index);
        // items: the six items after the index, as read; readText: the entry as read, kept for save.
        PCLine(int index, const QStringList& items, const QString& trailing, const QString& readText = QString());

        QString getCompleteLineText() const override;
        bool namesLine(int number) const override;
        bool renameLine(int from, int to) override;

        Gender gender() const { return mGender; }
        void setGender(Gender gender) { change(mGender, gender); }
        // Negative: a maximum; otherwise a minimum.
        int intelligence() const { return mIntelligence; }
        void setIntelligence(int intelligence) { change(mIntelligence, intelligence); }
        const DialogueTestField& tests() const { return mTests; }
        void setTests(const QVector<dlg::TestOrResultData>& records) { changeRecords(mTests, records); }
        int responseLine() const { return mResponseLine; }
        void setResponseLine(int line) { change(mResponseLine, line); }
        const PCResultField& results() const { return mResults; }
        void setResults(const QVector<dlg::TestOrResultData>& records) { changeRecords(mResults, records); }

    private:
        void parseItems(const QStringList& items, const QString& trailing);

        Gender mGender = GENDER_EITHER;
        int mIntelligence = 0;
        DialogueTestField mTests;
        int mResponseLine = 0;
        PCResultField mResults;
    };

    // What the character says.
    class NPCLine : public Line
    {
    public:
        class NPCResultField : public DialogueResultField
        {
        public:
            explicit NPCResultField(const QString& text = QString());
        };

        // A new, empty line without response line.
        explicit NPCLine(int index);
        NPCLine(int index, const QStringList& items, const QString& trailing, const QString& readText = QString());

        QString getCompleteLineText() const override;
        bool namesLine(int number) const override;
        bool renameLine(int from, int to) override;

        const QString& femaleText() const { return mFemaleText; }
        void setFemaleText(const QString& text) { change(mFemaleText, text); }
        // The tests item of an NPC line is not interpreted; it is kept as read.
        const QString& testsText() const { return mTestsText; }
        void setTestsText(const QString& text) { change(mTestsText, text); }
        // -1: no response line (an empty item).
        int responseLine() const { return mResponseLine; }
        void setResponseLine(int line) { change(mResponseLine, line); }
        const NPCResultField& results() const { return mResults; }
        void setResults(const QVector<dlg::TestOrResultData>& records) { changeRecords(mResults, records); }

    private:
        void parseItems(const QStringList& items, const QString& trailing);

        QString mFemaleText;
        QString mTestsText;
        int mResponseLine = 0;
        NPCResultField mResults;
    };

    using NPCLinePointer = QExplicitlySharedDataPointer<NPCLine>;
    using PCLinePointer = QExplicitlySharedDataPointer<PCLine>;

    // An empty model bound to no file.
    DialogueFileNew();
    // Binds the model to the file's name; reads nothing. The file object itself is not kept.
    explicit DialogueFileNew(const QFile* file);

    const QString& fileName() const { return mFileName; }

    // Reads the bound file, replacing the lines; false when it does not exist or cannot be opened.
    bool load();
    // Reads entries until the end or until an entry cannot be read, replacing the lines.
    void read(QTextStream& stream);
    // As load, from the bytes of a file.
    void readBytes(const QByteArray& bytes);
    // The encoding dialogue files are read and written in unless told otherwise: the game's code page.
    static QTextCodec* defaultCodec();
    // The encoding this file is read and written in; null sets the default.
    QTextCodec* codec() const { return mCodec; }
    void setCodec(QTextCodec* codec);
    // Writes every line, in index order, through a temporary file that replaces the file only when
    // complete; false (and the file untouched) when it cannot be written.
    bool save(QFile* file) const;
    // What save writes, as text and as the bytes of the file.
    QString toText() const;
    QByteArray toBytes() const;

    // Lines in file order until someone sorts them; save expects index order (see sortLines).
    QList<NPCLinePointer>& npcLines() { return mNpcLines; }
    const QList<NPCLinePointer>& npcLines() const { return mNpcLines; }
    QList<PCLinePointer>& pcLines() { return mPcLines; }
    const QList<PCLinePointer>& pcLines() const { return mPcLines; }
    // The first line with that index, or a null pointer.
    PCLinePointer getPCLine(int index) const;
    NPCLinePointer getNPCLine(int index) const;
    // Sorts both lists by index, keeping the file order of equal indices.
    void sortLines();

    // Adding, removing and renumbering lines. NPC lines and PC responses share one range of numbers,
    // 0 … MAXIMUM_LINE; the lists stay in index order, which is where save writes a new line: at the
    // place of its number, an NPC line at the start of a line of the file, a PC response indented.
    enum class LineKind { Npc, Pc };
    static constexpr int MAXIMUM_LINE = 2147483647;
    // Whether a line of either kind has that number.
    bool hasLine(int index) const;
    // A free number for a line added after the line numbered after: the middle of the gap before
    // the next number in use, or the first free number above it when there is no gap; the first
    // free number above every line when after is empty.
    int proposedNumber(std::optional<int> after) const;
    // A new, empty line; false when the number is in use or outside 0 … MAXIMUM_LINE.
    bool addLine(LineKind kind, int index);
    // Removes the first line of that kind with that number; false when there is none.
    bool removeLine(LineKind kind, int index);
    // The numbers of the other lines that lead to or name the line with that number, ascending,
    // each once.
    QList<int> linesNaming(int index) const;
    // Gives the first line of that kind numbered from the number to. When no other line keeps the
    // number from, every response line and every test or result argument naming it follows, and the
    // lines so changed count as edited. False, and nothing changed, when there is no such line or to
    // is in use or out of range.
    bool renumberLine(LineKind kind, int from, int to);

    // The rest of the file from the entry where reading stopped (a short last entry or an index that is
    // not a number): not shown as lines, but written back after them so saving loses nothing.
    const QString& unreadText() const { return mUnreadText; }
    // The 1-based line of the file that unread text starts on; 0 when everything was read.
    int unreadLine() const { return mUnreadLine; }

    // Reads the next entry: its items (at most seven) and the text after the seventh "}" on its line.
    static QPair<QStringList, QString> getNextEntry(QTextStream& stream, bool* atEnd);
    // Decides the kind of an entry from its items without the index: an empty fourth item means NPC.
    static bool isNPCLine(const QStringList& items);
    template <typename T>
    static bool lessThan(const QExplicitlySharedDataPointer<T>& a, const QExplicitlySharedDataPointer<T>& b)
    {
        return *a < *b;
    }
    // Every line is accepted; its problems are recorded while it is parsed.
    static bool validateLine(const NPCLine&) { return true; }
    static bool validateLine(const PCLine&) { return true; }

    template <typename T>
    void writeLine(QTextStream& out, const QExplicitlySharedDataPointer<T>& line, const QString& prefix) const
    {
        out << prefix << withWindowsLineEnds(line->getCompleteLineText()) << WIN_ENDLINE;
    }

private:
    Line* lineOf(LineKind kind, int index) const;

    // One entry as read: its items, the text after its seventh "}", all the physical lines read for
    // it (joined by "\n") and where its first "{" lies in them (-1: none).
    struct Entry
    {
        QStringList items;
        QString trailing;
        QString text;
        int start = -1;
    };
    // Lines: a QTextStream, or TextLines for a whole file.
    template <typename Lines>
    void readLines(Lines& stream);
    template <typename Lines>
    static Entry nextEntry(Lines& stream, bool* atEnd);
    template <typename Lines>
    bool readEntry(Lines& stream, bool* atEnd, int& line);
    template <typename Lines>
    bool keepUnread(const QString& entryText, Lines& stream);
    static QString withWindowsLineEnds(QString text);

    QString mFileName;
    QTextCodec* mCodec = defaultCodec();
    QList<NPCLinePointer> mNpcLines;
    QList<PCLinePointer> mPcLines;
    QString mUnreadText;
    int mUnreadLine = 0;
};

} // namespace arcanum
