#pragma once

#include "FileFormat.h"
#include "GameView.h"

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

#include <atomic>
#include <functional>

class QTextCodec;

namespace arcanum {

// Searches the game as the engine reads it: every file GameView lists, loose or inside an archive, in
// the copy that wins (a loose override hides the archived file it replaces). One file at a time, so a
// caller can run it on a worker thread, cancel it between two files and show progress.
//
// Text mode looks for a pattern in the texts of message files (.mes: each entry's text) and dialogue
// files (.dlg: each line's text and an NPC line's female text).
//
// Number modes list where a number is used:
//   Flag     dialogue tests and results gf; script operands of type Global Flag; a Number operand that
//            the statement names a global flag ("global flag (num) is set", "set/clear global flag").
//   Variable dialogue tests and results gv; script operands of type Global Var.
//   Script   prototype script points; a Number operand the statement names a script ("change this
//            script to script", "call script", "… to script", "the call to script"). No dialogue opcode
//            names a script.
//   Message  numbers that name a line of a message or dialogue file: dialogue results fl (float line),
//            uw (line) and jo (line if yes, line if no); a Number operand after "float line", "print line"
//            or "dialog". Numbers of other tables (rumours, newspapers, areas) are not message numbers.
// A flag or variable number that a script takes from another variable is not known until the game runs
// and is not listed.
class GameSearch
{
public:
    enum class Mode { Text, Flag, Variable, Script, Message };

    struct Query
    {
        Mode mode = Mode::Text;
        QString pattern; // text mode
        bool caseSensitive = false;
        bool regex = false;
        qint32 number = 0; // number modes
    };

    struct Hit
    {
        QString file; // "data/mes/x.mes" for a loose file, "arcanum1.dat/mes/x.mes" for an archived one
        QString gamePath; // "mes/x.mes", as GameView::find takes it
        int line = 0; // 1-based line of the file; a script's line; 0 for a prototype
        int entry = -1; // the message entry or dialogue line; the script point of a prototype; -1 for none
        QString text; // the line of text that matched, or what uses the number
    };

    struct Result
    {
        QVector<Hit> hits;
        QStringList problems; // "FILE: why it could not be searched"
        int searched = 0;
        bool cancelled = false;
    };

    // Called after each file; total counts the files the query reads.
    using Progress = std::function<void(int done, int total)>;

    // mesCodec decodes message files (dialogue files are Windows-1251); null means UTF-8.
    GameSearch(const Query& query, QTextCodec* mesCodec);
    // Picks each text file's encoding from its kind and bytes instead (`loreka find --encoding auto`).
    using EncodingChooser = std::function<QTextCodec*(FileFormat::Kind kind, const QByteArray& bytes)>;
    void setEncodingChooser(const EncodingChooser& chooser) { chooseEncoding = chooser; }

    // False for a regular expression that does not compile; error() then says why.
    bool isValid() const { return invalid.isEmpty(); }
    const QString& error() const { return invalid; }
    const Query& query() const { return wanted; }

    // The files of the kinds the query reads, sorted by path.
    QVector<const GameView::File*> files(const GameView& view) const;
    // The hits in one file's bytes; gamePath names the file and decides its kind. Hit::file is left
    // empty for the caller, who knows where the file came from.
    QVector<Hit> searchBytes(const QString& gamePath, const QByteArray& bytes) const;
    // Every file of the view; stops before the next file once cancel is set.
    Result run(const GameView& view, const std::atomic_bool* cancel = nullptr, const Progress& progress = {}) const;
    // The game below base with the module's layers: builds a view of its own, so the caller's view
    // (and the archives it reads) is never touched from another thread.
    Result run(const QString& base, const QString& module, const std::atomic_bool* cancel = nullptr,
               const Progress& progress = {}) const;

    // "flag", "var", "script", "message" (the command line's --as); false for another word.
    static bool numberMode(const QString& name, Mode& mode);
    // How a hit's file is shown: the loose path below the game, or ARCHIVE/PATH.
    static QString shownName(const GameView& view, const GameView::File& file);

private:
    // Where the pattern starts in text, and how long the match is; -1 when it is not there.
    qsizetype find(QStringView text, qsizetype* length = nullptr) const;
    void addTextHit(QVector<Hit>& hits, const QString& text, int firstLine, int entry) const;
    QVector<Hit> searchMessages(const QByteArray& bytes) const;
    QVector<Hit> searchDialogueTexts(const QByteArray& bytes) const;
    QVector<Hit> searchDialogueNumbers(const QByteArray& bytes) const;
    QVector<Hit> searchScript(const QString& gamePath, const QByteArray& bytes) const;
    QVector<Hit> searchPrototype(const QString& gamePath, const QByteArray& bytes) const;

    Query wanted;
    QTextCodec* codec;
    EncodingChooser chooseEncoding;
    QRegularExpression expression;
    QString invalid;
};

} // namespace arcanum
