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

// `loreka check [DIR]`: reads every data file below DIR/data with the project's models and reports
// what they record, dialogues as the game reads them (arcanum::DialogueCheck), and the structural
// defects of every file with their location.
class CheckCommand
{
public:
    // listNotes: print the notes too (what the game reads although our stricter reading objects).
    CheckCommand(const EncodingChoice& encoding, bool listNotes);

    // An empty dir means the base directory of "qtLoreka.ini", or the working directory.
    int run(const QString& dir);

private:
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
