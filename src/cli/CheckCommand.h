#pragma once

#include "Diagnostics.h"
#include "EncodingChoice.h"
#include "FileFormat.h"

#include <QString>
#include <QStringList>

class QTextCodec;

namespace arcanum {
class Script;
}

// `loreka check [DIR | FILE...]`: reads every data file below DIR/data (or the files named) with the
// project's models and reports what they record, dialogues as the game reads them
// (arcanum::DialogueCheck), and the structural defects of every file with their location.
class CheckCommand
{
public:
    // listNotes: print the notes too (what the game reads although our stricter reading objects).
    CheckCommand(const EncodingChoice& encoding, bool listNotes);

    // No operand means the base directory of "qtLoreka.ini", or the working directory; one folder is a
    // game's base directory; anything else is a list of files.
    int run(const QStringList& operands);

private:
    int checkGame(const QString& dir);
    int checkFiles(const QStringList& paths);
    // Why a file named on the command line is not checked; empty when it is.
    static QString refusalOf(const QString& path);
    static QStringList ignoreList(const QString& base);
    void checkFile(const QString& path);
    bool isOtherKind(const QString& path, const QByteArray& bytes, arcanum::FileFormat::Kind kind);
    QTextCodec* codecFor(arcanum::FileFormat::Kind kind, const QByteArray& bytes) const;
    QTextCodec* checkText(const QString& path, const QByteArray& bytes, arcanum::FileFormat::Kind kind);
    void checkArchives(const QString& base);
    void checkMes(const QString& path, QTextCodec* codec);
    void checkDialogue(const QString& path, QTextCodec* codec);
    void checkScript(const QString& path);
    void checkScriptLength(const QString& path);
    void checkScriptLine(const QString& path, const arcanum::Script& script, int index);
    void checkArt(const QString& path);
    void checkProto(const QString& path);
    void checkPalette(const QString& path);

    EncodingChoice encoding;
    Diagnostics report;
};
