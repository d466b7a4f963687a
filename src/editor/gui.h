#pragma once

#include <QDir>
#include <QFont>
#include <QSettings>
#include <QString>

#include <string>

// Helpers every window shares: the one settings store, the game's code page and the text font.
namespace gui {

// "qtLoreka.ini" in the working directory at start-up; the only settings object of the program.
extern QSettings settings;

QSettings* getSettings();

// Game text is Windows-1251; both conversions stop at the first NUL, like the C strings the game uses.
QString fromCp1251(std::string s);
std::string toCp1251(const QString& s);

// The encoding a text file was last chosen to be read in ("windows-1251"); empty when none was.
QByteArray encodingOf(const QString& path);
// Remembers it for the next opening; an empty name forgets it.
void rememberEncoding(const QString& path, const QByteArray& encoding);

void setBaseDir(const QDir& dir);
QDir getBaseDir();

QFont getGenericFont();

// The Options dialog's per-page questions (page: "script", "mes", "art", "proto"); both on by default.
enum class Confirmation { Overwrite, Abandon };
bool confirms(const QString& page, Confirmation kind);
void setConfirms(const QString& page, Confirmation kind, bool on);

} // namespace gui
