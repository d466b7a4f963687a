#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <array>
#include <iosfwd>
#include <string>
#include <vector>

class QIODevice;

namespace arcanum {

// One compiled game script (.scr): a 64-byte header and lines of IF / THEN / ELSE statements
// whose operands fill the placeholders of the condition and action templates.
class Script
{
public:
    // Condition codes are 1-based in a file (0: no condition); action codes are 0-based.
    using Ifcode = qint32;
    using Opcode = qint32;

    enum NumType : quint8 { Counter, GlobalVar, LocalVar, Number, GlobalFlag, PcVar, PcFlag };
    enum ObjectType : quint8 {
        Triggerer,
        Attachee,
        EveryFollower,
        AnyFollower,
        EveryoneInParty,
        AnyoneInParty,
        EveryoneInTeam,
        AnyoneInTeam,
        EveryoneInVicinity,
        AnyoneInVicinity,
        CurrentLoopedObject,
        LocalObject,
        ExtraObject,
        EveryoneInGroup,
        AnyoneInGroup,
        EverySceneryInVicinity,
        AnySceneryInVicinity,
        EveryContainerInVicinity,
        AnyContainerInVicinity,
        EveryPortalInVicinity,
        AnyPortalInVicinity,
        Player,
        EveryItemInVicinity,
        AnyItemInVicinity
    };
    // Which statement of a line a row shows; a DO line keeps its action in the THEN slot.
    enum LineType : qint32 { LineDo = 0, LineIf = 1, LineThen = 2, LineElse = 3 };

    static constexpr int HeaderSize = 64;
    static constexpr int DescSize = 40;
    static constexpr int Slots = 8;
    static constexpr int StatementSize = 4 + Slots + 4 * Slots;
    static constexpr int LineSize = 3 * StatementSize;
    static constexpr int ConditionCount = 52;
    static constexpr int ActionCount = 142;
    static constexpr int NumTypeCount = 7;
    static constexpr int ObjectTypeCount = 24;
    // A damaged header may claim more lines than the file holds; up to this many are still made up
    // (zero-filled), beyond it only the lines the file really holds are read.
    static constexpr int MaxMissingLines = 256;

    struct Header
    {
        qint32 headerWord = 0;
        std::array<quint8, 4> headerBytes{};
        std::array<char, DescSize> description{};
        qint32 headerWord48 = 0;
        qint32 lineCount = 0;
        qint32 lineBound = 0;
        qint32 headerWord60 = 0;

        void setDesc(const std::string& text);
        // The description up to its first zero byte, never past its 40 bytes.
        std::string desc() const;
    };

    struct Statement
    {
        qint32 code = 0;
        std::array<quint8, Slots> types{};
        std::array<qint32, Slots> values{};

        void clearParameters();
    };

    struct Line
    {
        Statement condition;
        Statement thenAction;
        Statement elseAction;
    };

    struct Token
    {
        enum Kind : qint32 { Text = 0, Num = 1, Obj = 2, LineNum = 3 };
        qint32 kind = Text;
        qint32 numType = 0;
        std::string text;
        qint32 value = 0;
    };
    using Tokens = std::vector<Token>;

    Script() = default;

    // False when the file name does not begin with a script number or the file cannot be opened.
    // A short file loads as far as it goes; what it lacks reads as zero.
    bool load(const QString& path);
    // As load, from the bytes of a file named path (the script's number comes from its name).
    bool loadBytes(const QString& path, const QByteArray& bytes);
    // Builds the whole file in memory and replaces path only when all of it was written.
    bool save(const QString& path) const;
    bool loadHeader(std::istream& in);
    bool saveHeader(std::ostream& out) const;
    // Reads only the header of SCRIPTS_DIR + name.
    bool loadHeader(const QString& name);
    // The header and the first lineCount lines, as save writes them.
    QByteArray toBytes() const;

    static int idFromFilename(const QString& name);

    void clear();
    // Replaces header and lines at once (a compiled source); the number and the file name stay.
    void setContent(const Header& newHeader, std::vector<Line> newLines);
    int getId() const { return id; }
    // The path of the last successful load.
    QString getFileName() const { return fileName; }
    Header& getHeader() { return header; }
    const Header& getHeader() const { return header; }
    const std::vector<Line>& getLines() const { return lines; }
    int lineTotal() const { return static_cast<int>(lines.size()); }

    bool isLine(int index) const;
    Statement* getStatement(int index, LineType which);
    bool deleteLine(int index);
    void moveLineUp(int index);
    void moveLineDown(int index);
    bool addCondition(Ifcode code);
    bool addAction(Opcode code);

    // Catalogue look-ups; a value outside the catalogue gives an "unknown …" text instead of a template.
    static bool isConditionCode(Ifcode code);
    static bool isActionCode(Opcode code);
    static std::string conditionString(Ifcode index);
    static std::string actionString(Opcode code);
    static std::string numTypeToString(NumType t);
    static std::string objectTypeToString(ObjectType t);
    // What a code or type outside the catalogue shows, e.g. "unknown condition 77".
    static std::string unknownText(const char* what, qint64 value);

    static Tokens tokenizeCondition(const Statement& st);
    static Tokens tokenizeAction(const Statement& st);
    static void tokenize(const std::string& templ, Tokens& out);
    static void loadTokens(const Statement& st, Tokens& tokens);
    static void unloadTokens(const Tokens& tokens, Statement& st);

private:
    void appendLine(const Line& line);
    void readHeaderFrom(QIODevice& file);
    void readLines(const QByteArray& bytes);

    qint32 id = -1;
    QString fileName;
    Header header;
    std::vector<Line> lines;
};

} // namespace arcanum
