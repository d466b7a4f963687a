#include "Diagnostics.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>
#include <unistd.h>

Diagnostics::Diagnostics()
    : out(stdout)
    , err(stderr)
    , terminal(isatty(fileno(stderr)) != 0)
{
}

void Diagnostics::error(const QString& path, int line, const QString& message)
{
    print(path, QString::number(qMax(line, 1)), message);
}

void Diagnostics::note(const QString& path, int line, const QString& message)
{
    const QString where = QString::number(qMax(line, 1));
    if (isIgnored(shownNames.value(path, path), where))
        return;
    ++notes;
    if (notesShown)
        print(path, where, message, "note");
}

void Diagnostics::errorAt(const QString& path, quint64 offset, const QString& message)
{
    print(path, QStringLiteral("offset 0x%1").arg(offset, 0, 16), message);
}

void Diagnostics::ioError(const QString& path, const QString& message)
{
    ioFailed = true;
    print(path, QString(), message);
}

void Diagnostics::ignore(const QString& base, const QStringList& entries)
{
    ignoreBase = base;
    ignoreEntries = entries;
}

bool Diagnostics::isIgnored(const QString& path, const QString& where) const
{
    const QString relative = QFileInfo(path).isRelative() && !QFileInfo::exists(path)
                                 ? path // a file inside an archive, named relative to the game already
                                 : QDir(QFileInfo(ignoreBase).absoluteFilePath()).relativeFilePath(QFileInfo(path).absoluteFilePath());
    return ignoreEntries.contains(relative) || ignoreEntries.contains(relative + QLatin1Char(':') + where);
}

void Diagnostics::print(const QString& file, const QString& where, const QString& message, const char* severity)
{
    const QString path = shownNames.value(file, file);
    const bool error = qstrcmp(severity, "error") == 0;
    if (error && isIgnored(path, where)) {
        ++ignored;
        return;
    }
    clearProgress();
    if (error)
        ++problems;
    out << path << (where.isEmpty() ? QString() : QLatin1Char(':') + where) << ": " << severity << ": " << message
        << Qt::endl;
}

void Diagnostics::progress(int done, int total, const QString& path)
{
    if (!terminal)
        return;
    err << "\r\x1b[K" << done << '/' << total << ' ' << path << Qt::flush;
    progressShown = true;
}

void Diagnostics::clearProgress()
{
    if (progressShown)
        err << "\r\x1b[K" << Qt::flush;
    progressShown = false;
}

void Diagnostics::summary()
{
    clearProgress();
    out << files << (files == 1 ? " file" : " files") << " checked, " << problems
        << (problems == 1 ? " problem" : " problems");
    if (notes > 0)
        out << ", " << notes << (notes == 1 ? " note" : " notes");
    if (ignored > 0)
        out << " (" << ignored << " ignored)";
    out << Qt::endl;
}

int Diagnostics::exitCode() const
{
    if (ioFailed)
        return 2;
    return problems > 0 ? 1 : 0;
}
