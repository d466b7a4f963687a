#include "gui.h"

#include <QFileInfo>
#include <QTextCodec>

namespace gui {

namespace {
const char* const CODEPAGE = "Windows-1251";
const char* const KEY_BASE_DIR = "Directories/BaseDir";
const char* const KEY_FONT_HEIGHT = "Font/Height";
const char* const KEY_FONT_FAMILY = "Font/Family";
} // namespace

QSettings settings(QStringLiteral("qtLoreka.ini"), QSettings::IniFormat);

QSettings* getSettings()
{
    return &settings;
}

QString fromCp1251(std::string s)
{
    return QTextCodec::codecForName(CODEPAGE)->toUnicode(s.c_str());
}

std::string toCp1251(const QString& s)
{
    const QByteArray bytes = QTextCodec::codecForName(CODEPAGE)->fromUnicode(s);
    return std::string(bytes.constData());
}

namespace {
// Under "Encodings/", one key per file: its absolute path, percent-encoded so slashes make no groups.
QString encodingKey(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    return QStringLiteral("Encodings/") + QString::fromLatin1(absolute.toUtf8().toPercentEncoding());
}
} // namespace

QByteArray encodingOf(const QString& path)
{
    return settings.value(encodingKey(path)).toByteArray();
}

void rememberEncoding(const QString& path, const QByteArray& encoding)
{
    if (encoding.isEmpty())
        settings.remove(encodingKey(path));
    else
        settings.setValue(encodingKey(path), encoding);
}

void setBaseDir(const QDir& dir)
{
    settings.setValue(KEY_BASE_DIR, dir.absolutePath());
}

QDir getBaseDir()
{
    return QDir(settings.value(KEY_BASE_DIR, QStringLiteral(".")).toString());
}

QFont getGenericFont()
{
    const QString family = settings.value(KEY_FONT_FAMILY, QStringLiteral("DejaVu Sans")).toString();
    const int height = settings.value(KEY_FONT_HEIGHT, 11).toInt();
    return QFont(family, height, -1, false);
}

namespace {
QString confirmationKey(const QString& page, Confirmation kind)
{
    return QStringLiteral("Confirm/%1%2").arg(page, kind == Confirmation::Overwrite ? QLatin1String("Overwrite")
                                                                                      : QLatin1String("Abandon"));
}
} // namespace

bool confirms(const QString& page, Confirmation kind)
{
    return settings.value(confirmationKey(page, kind), true).toBool();
}

void setConfirms(const QString& page, Confirmation kind, bool on)
{
    settings.setValue(confirmationKey(page, kind), on);
}

} // namespace gui
