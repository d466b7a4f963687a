#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QTextStream>

#include <QtGlobal>

// Prints problems the way compilers do, "path:line: error: message" for text files and
// "path:offset 0x1f: error: message" for binary ones, so editors and CI can jump to them; counts
// files and problems for the summary line, and shows progress on standard error when that is a
// terminal.
class Diagnostics
{
public:
    Diagnostics();

    void error(const QString& path, int line, const QString& message);
    // What the game reads although our stricter reading objects: counted apart, never a problem,
    // printed only when notes are shown.
    void note(const QString& path, int line, const QString& message);
    void showNotes(bool show) { notesShown = show; }
    void errorAt(const QString& path, quint64 offset, const QString& message);
    // A file that could not be read at all: a problem, and also an input/output failure.
    void ioError(const QString& path, const QString& message);

    // Problems to leave out, as "path" or "path:line" (or "path:offset 0x1f") relative to base:
    // defects a mod knows about and keeps on purpose.
    void ignore(const QString& base, const QStringList& entries);

    // Reports about path name it name instead (a file read out of an archive: "arcanum1.dat/mes/x.mes").
    void showAs(const QString& path, const QString& name) { shownNames.insert(path, name); }

    void fileChecked() { ++files; }
    void progress(int done, int total, const QString& path);
    // "N files checked, M problems", and ", K notes" when there are notes.
    void summary();

    int problemCount() const { return problems; }
    // 0 clean, 1 problems, 2 a file could not be read.
    int exitCode() const;

private:
    void print(const QString& file, const QString& where, const QString& message, const char* severity = "error");
    bool isIgnored(const QString& path, const QString& where) const;
    void clearProgress();

    QTextStream out;
    QTextStream err;
    bool terminal;
    bool progressShown = false;
    int files = 0;
    int problems = 0;
    int ignored = 0;
    int notes = 0;
    bool notesShown = false;
    QHash<QString, QString> shownNames;
    QString ignoreBase;
    QStringList ignoreEntries;
    bool ioFailed = false;
};
