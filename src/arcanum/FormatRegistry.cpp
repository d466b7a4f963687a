#include "FormatRegistry.h"

#include "Artfile.h"
#include "DialogueFileNew.h"
#include "Mesfile.h"
#include "Proto.h"
#include "Script.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <iostream>
#include <sstream>

namespace arcanum {

namespace {

// The older models also report on standard output; a registry caller gets the reason instead.
class QuietConsole
{
public:
    QuietConsole()
        : previous(std::cout.rdbuf(sink.rdbuf()))
    {
    }
    ~QuietConsole() { std::cout.rdbuf(previous); }
    QuietConsole(const QuietConsole&) = delete;
    QuietConsole& operator=(const QuietConsole&) = delete;

private:
    std::ostringstream sink;
    std::streambuf* previous;
};

QTextCodec* orUtf8(QTextCodec* codec)
{
    return codec ? codec : QTextCodec::codecForName("UTF-8");
}

QString atByte(const QString& why, quint64 offset)
{
    return QStringLiteral("%1 (at byte %2)").arg(why).arg(offset);
}

bool rewriteMessages(const QString&, const QByteArray& bytes, QTextCodec* codec, QByteArray& out, QString& error)
{
    Mesfile model;
    if (!model.loadBytes(bytes, orUtf8(codec))) {
        error = QStringLiteral("the file is empty");
        return false;
    }
    out = model.toBytes(orUtf8(codec));
    return true;
}

bool rewriteDialogue(const QString&, const QByteArray& bytes, QTextCodec* codec, QByteArray& out, QString&)
{
    DialogueFileNew model;
    model.setCodec(codec);
    model.readBytes(bytes);
    out = model.toBytes();
    return true;
}

bool rewriteScript(const QString& path, const QByteArray& bytes, QTextCodec*, QByteArray& out, QString& error)
{
    Script model;
    const QuietConsole quiet;
    if (!model.loadBytes(path, bytes)) {
        error = QStringLiteral("not a script");
        return false;
    }
    out = model.toBytes();
    return true;
}

bool rewriteArt(const QString&, const QByteArray& bytes, QTextCodec*, QByteArray& out, QString& error)
{
    Artfile model;
    if (!model.loadBytes(bytes)) {
        error = atByte(model.loadFailure(), model.loadFailureOffset());
        return false;
    }
    out = model.toBytes();
    return true;
}

bool rewritePalette(const QString&, const QByteArray& bytes, QTextCodec*, QByteArray& out, QString& error)
{
    if (bytes.size() != int(Artfile::PALETTE_BYTES)) {
        error = QStringLiteral("a palette file holds %1 bytes, this one %2").arg(Artfile::PALETTE_BYTES).arg(bytes.size());
        return false;
    }
    Artfile::Palette colours{};
    Artfile::paletteFromBytes(bytes, colours);
    out = Artfile::paletteToBytes(colours);
    return true;
}

bool rewritePrototype(const QString& path, const QByteArray& bytes, QTextCodec*, QByteArray& out, QString& error)
{
    Proto model;
    const QuietConsole quiet;
    if (!model.loadBytes(QFile::encodeName(path).toStdString(), bytes.constData(), std::size_t(bytes.size()))) {
        error = atByte(QString::fromStdString(model.loadFailure()), model.loadFailureOffset());
        return false;
    }
    out = QByteArray::fromStdString(model.toBytes());
    return true;
}

QVector<FileFormat> makeFormats()
{
    using Kind = FileFormat::Kind;
    return {
        {Kind::Message, QStringLiteral("mes"), {QStringLiteral("mes")}, QStringLiteral("message file"), true,
         &rewriteMessages},
        {Kind::Dialogue, QStringLiteral("dlg"), {QStringLiteral("dlg")}, QStringLiteral("dialogue file"), true,
         &rewriteDialogue},
        {Kind::Script, QStringLiteral("scr"), {QStringLiteral("scr")}, QStringLiteral("script"), false, &rewriteScript},
        {Kind::Art, QStringLiteral("art"), {QStringLiteral("art")}, QStringLiteral("art file"), false, &rewriteArt},
        {Kind::Palette, QStringLiteral("aap"), {QStringLiteral("aap")}, QStringLiteral("palette file"), false,
         &rewritePalette},
        {Kind::Prototype, QStringLiteral("pro"), {QStringLiteral("pro")}, QStringLiteral("prototype"), false,
         &rewritePrototype},
        {Kind::Archive, QStringLiteral("dat"), {QStringLiteral("dat")}, QStringLiteral("archive"), false, nullptr},
    };
}

} // namespace

const QVector<FileFormat>& FormatRegistry::formats()
{
    static const QVector<FileFormat> all = makeFormats();
    return all;
}

const FileFormat* FormatRegistry::byName(const QString& name)
{
    for (const FileFormat& format : formats()) {
        if (format.name == name)
            return &format;
    }
    return nullptr;
}

const FileFormat* FormatRegistry::byKind(FileFormat::Kind kind)
{
    for (const FileFormat& format : formats()) {
        if (format.kind == kind)
            return &format;
    }
    return nullptr;
}

const FileFormat* FormatRegistry::byPath(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const FileFormat& format : formats()) {
        if (format.suffixes.contains(suffix))
            return &format;
    }
    return nullptr;
}

QStringList FormatRegistry::suffixes()
{
    QStringList all;
    for (const FileFormat& format : formats())
        all += format.suffixes;
    return all;
}

QString FormatRegistry::nameFilter(FileFormat::Kind kind)
{
    const FileFormat* format = byKind(kind);
    if (!format)
        return QString();
    QStringList patterns;
    for (const QString& suffix : format->suffixes)
        patterns << QStringLiteral("*.") + suffix << QStringLiteral("*.") + suffix.toUpper();
    QString title = format->description + QLatin1Char('s');
    title[0] = title[0].toUpper();
    return QStringLiteral("%1 (%2)").arg(title, patterns.join(QLatin1Char(' ')));
}

} // namespace arcanum
