#pragma once

#include "Diagnostics.h"
#include "EncodingChoice.h"

#include <QString>
#include <QStringList>

namespace arcanum {
class Script;
}

// `loreka check [DIR]`: reads every data file below DIR/data with the project's models and reports
// what they record, plus what only a whole dialogue file shows (lines that answer with a line the
// file lacks, indices used twice).
class CheckCommand
{
public:
    explicit CheckCommand(const EncodingChoice& encoding);

    // An empty dir means the base directory of "qtLoreka.ini", or the working directory.
    int run(const QString& dir);

private:
    static QStringList ignoreList(const QString& base);
    void checkFile(const QString& path);
    void checkArchives(const QString& base);
    // Reports bytes the encoding named with --encoding cannot read; the encoding to read the file in.
    QTextCodec* checkEncoding(const QString& path);
    void checkMes(const QString& path);
    void checkDialogue(const QString& path);
    void checkScript(const QString& path);
    void checkScriptLength(const QString& path);
    void checkScriptLine(const QString& path, const arcanum::Script& script, int index);
    void checkArt(const QString& path);
    void checkProto(const QString& path);
    void checkPalette(const QString& path);

    EncodingChoice encoding;
    Diagnostics report;
};
