#include "CheckCommand.h"

#include "CommandLine.h"
#include "FileDump.h"
#include "FileWalker.h"
#include "ScriptStatement.h"

#include "ArtRunLength.h"
#include "Artfile.h"
#include "DatArchive.h"
#include "DialogueCheck.h"
#include "DialogueFileNew.h"
#include "FileSignature.h"
#include "FormatRegistry.h"
#include "GameView.h"
#include "Mesfile.h"
#include "Proto.h"
#include "Script.h"
#include "TextDecoding.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTextCodec>

#include <QSettings>

#include <fstream>

using namespace arcanum;

namespace {

// The editor's base directory, read from its settings file without writing to it.
QString savedBaseDir()
{
    const QSettings settings(QStringLiteral("qtLoreka.ini"), QSettings::IniFormat);
    return settings.value(QStringLiteral("Directories/BaseDir"), QStringLiteral(".")).toString();
}

} // namespace

CheckCommand::CheckCommand(const EncodingChoice& encoding, bool listNotes)
    : encoding(encoding)
{
    report.showNotes(listNotes);
}

int CheckCommand::run(const QStringList& operands)
{
    if (operands.size() == 1 && QFileInfo(operands.first()).isDir())
        return checkGame(operands.first());
    if (operands.isEmpty())
        return checkGame(QString());
    return checkFiles(operands);
}

// A file named on its own is judged as it would be inside a game; a kind we do not read is said, not
// skipped, since the user asked for that file.
int CheckCommand::checkFiles(const QStringList& paths)
{
    for (int i = 0; i < paths.size(); ++i) {
        const QString& path = paths.at(i);
        report.progress(i + 1, int(paths.size()), path);
        const QString refused = refusalOf(path);
        if (refused.isEmpty()) {
            checkFile(path);
        } else {
            report.fileChecked();
            report.ioError(path, refused);
        }
    }
    report.summary();
    return report.exitCode();
}

QString CheckCommand::refusalOf(const QString& path)
{
    const FileFormat* format = FormatRegistry::byPath(path);
    if (!QFileInfo(path).isFile())
        return QStringLiteral("no such file");
    if (format == nullptr)
        return QStringLiteral("not a kind of file loreka checks (.mes, .dlg, .scr, .art, .aap, .pro)");
    if (format->kind == FileFormat::Kind::Archive)
        return QStringLiteral("an archive: check the game folder that holds it, or its entries with loreka dat verify");
    return QString();
}

int CheckCommand::checkGame(const QString& dir)
{
    const QString base = dir.isEmpty() ? QDir::cleanPath(savedBaseDir()) : dir;
    const QString data = QDir::cleanPath(base + QStringLiteral("/data"));
    if (!QFileInfo(data).isDir()) {
        report.ioError(data, QStringLiteral("no such folder"));
        return CommandLine::Failure;
    }
    report.ignore(base, ignoreList(base));
    const QStringList files = FileWalker({"mes", "dlg", "scr", "art", "pro", "aap"}).files(data);
    for (int i = 0; i < files.size(); ++i) {
        report.progress(i + 1, int(files.size()), files.at(i));
        checkFile(files.at(i));
    }
    checkArchives(base);
    report.summary();
    return report.exitCode();
}

// Every file of a kind we know inside the game's archives, named ARCHIVE/PATH; each is read out into a
// scratch file of the same name, so the checks see exactly what they see of a loose file.
void CheckCommand::checkArchives(const QString& base)
{
    GameView view;
    view.build(base);
    for (const QString& problem : view.problems())
        report.ioError(base, problem);
    QTemporaryDir scratch;
    for (const GameView::Layer& layer : view.layers()) {
        if (!layer.archive)
            continue;
        for (const DatArchive::Entry& entry : layer.archive->entries()) {
            if (entry.isFolder() || !FormatRegistry::byPath(entry.path()) || entry.path().endsWith(QLatin1String(".dat"), Qt::CaseInsensitive))
                continue;
            const QString shown = layer.name + QLatin1Char('/') + entry.path();
            QByteArray bytes;
            QString error;
            if (!DatArchive::unsafeName(entry.name).isEmpty() || !layer.archive->read(entry, bytes, error)) {
                report.fileChecked();
                report.ioError(shown, error.isEmpty() ? DatArchive::unsafeName(entry.name) : error);
                continue;
            }
            const QString file = scratch.filePath(QFileInfo(entry.path()).fileName());
            QFile out(file);
            if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(bytes) != bytes.size()) {
                report.ioError(shown, QStringLiteral("cannot be read out: %1").arg(out.errorString()));
                continue;
            }
            out.close();
            report.showAs(file, shown);
            checkFile(file);
        }
    }
}

// ".lorekaignore" in DIR: one "path" or "path:line" a line; blank lines and "#" comments are skipped.
QStringList CheckCommand::ignoreList(const QString& base)
{
    QFile file(QDir(base).filePath(QStringLiteral(".lorekaignore")));
    QStringList entries;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return entries;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QString entry = line.trimmed();
        if (!entry.isEmpty() && !entry.startsWith(QLatin1Char('#')))
            entries << entry;
    }
    return entries;
}

void CheckCommand::checkFile(const QString& path)
{
    report.fileChecked();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        report.ioError(path, QStringLiteral("cannot be read: %1").arg(file.errorString()));
        return;
    }
    const QByteArray bytes = file.readAll();
    const FileFormat::Kind kind = FormatRegistry::byPath(path)->kind;
    if (isOtherKind(path, bytes, kind))
        return;
    switch (kind) {
    case FileFormat::Kind::Message:
        checkMes(path, checkText(path, bytes, kind));
        break;
    case FileFormat::Kind::Dialogue:
        checkDialogue(path, checkText(path, bytes, kind));
        break;
    case FileFormat::Kind::Script:
        checkScript(path);
        break;
    case FileFormat::Kind::Art:
        checkArt(path);
        break;
    case FileFormat::Kind::Prototype:
        checkProto(path);
        break;
    default:
        checkPalette(path);
    }
}

// A file of one kind saved under another's extension: its bytes carry the other kind's signature.
// A palette has none, so any file of its size is taken for one.
bool CheckCommand::isOtherKind(const QString& path, const QByteArray& bytes, FileFormat::Kind kind)
{
    if (kind == FileFormat::Kind::Palette && bytes.size() == qsizetype(Artfile::PALETTE_BYTES))
        return false;
    const std::optional<FileSignature::Sign> sign = FileSignature::sniff(bytes, kind);
    if (!sign)
        return false;
    const auto named = [](FileFormat::Kind of) {
        const QString description = FormatRegistry::byKind(of)->description;
        return (QStringLiteral("aeiou").contains(description.at(0)) ? QStringLiteral("an ") : QStringLiteral("a "))
               + description;
    };
    report.errorAt(path, 0, QStringLiteral("this is %1 (%2), not %3").arg(named(sign->kind), sign->evidence, named(kind)));
    return true;
}

// Text files are read in the encoding asked for; without one, a message file that is no valid UTF-8
// is taken for the game's own code page, as its texts mostly are.
QTextCodec* CheckCommand::codecFor(FileFormat::Kind kind, const QByteArray& bytes) const
{
    QTextCodec* codec = encoding.codecFor(kind, bytes);
    if (encoding.isChosen() || kind != FileFormat::Kind::Message || TextDecoding::unreadable(codec, bytes).isClean())
        return codec;
    return DialogueFileNew::defaultCodec();
}

// The game's texts end at a NUL byte; bytes the encoding cannot read change when the file is saved.
// Returns the encoding the file is read in.
QTextCodec* CheckCommand::checkText(const QString& path, const QByteArray& bytes, FileFormat::Kind kind)
{
    int line = 1;
    qsizetype lineStart = 0;
    for (qsizetype at = bytes.indexOf('\0'); at >= 0; at = bytes.indexOf('\0', at + 1)) {
        for (qsizetype end = bytes.indexOf('\n', lineStart); end >= 0 && end < at; end = bytes.indexOf('\n', lineStart)) {
            ++line;
            lineStart = end + 1;
        }
        report.error(path, line, QStringLiteral("a NUL byte at offset 0x%1: the game's text ends there").arg(at, 0, 16));
        const qsizetype next = bytes.indexOf('\n', at);
        if (next < 0)
            break;
        at = next; // one report a line
    }
    QTextCodec* codec = codecFor(kind, bytes);
    const QString unreadable = encoding.unreadable(codec, bytes);
    if (!unreadable.isEmpty())
        report.error(path, TextDecoding::unreadable(codec, bytes).firstLine, unreadable);
    return codec;
}

void CheckCommand::checkMes(const QString& path, QTextCodec* codec)
{
    Mesfile mes(path);
    if (QFileInfo(path).size() == 0 || !mes.load(codec))
        return; // an empty message file is allowed
    for (int i = 0; i < mes.getEntryCount(); ++i) {
        const Mesfile::Entry* entry = mes.getEntryAt(i);
        if (!entry->isValid())
            report.error(path, entry->getSourceLine(), entry->getValidationError());
    }
}

void CheckCommand::checkDialogue(const QString& path, QTextCodec* codec)
{
    QFile file(path);
    DialogueFileNew dialogue(&file);
    dialogue.setCodec(codec);
    dialogue.load();
    const DialogueCheck check(dialogue);
    for (const DialogueCheck::Finding& finding : check.findings()) {
        if (finding.severity == DialogueCheck::Severity::Error)
            report.error(path, finding.fileLine, finding.message);
        else
            report.note(path, finding.fileLine, finding.message);
    }
}

void CheckCommand::checkScript(const QString& path)
{
    Script script;
    if (!script.load(path)) {
        report.errorAt(path, 0, QStringLiteral("not read as a script: its name must begin with the script number"));
        return;
    }
    checkScriptLength(path);
    for (int i = 0; i < script.lineTotal(); ++i)
        checkScriptLine(path, script, i);
}

// Where a script's header keeps its line count.
constexpr quint64 LINE_COUNT_OFFSET = 52;

// The model makes up the lines a short file lacks, so the length is compared with what the header claims.
void CheckCommand::checkScriptLength(const QString& path)
{
    Script claimed;
    std::ifstream head(QFile::encodeName(path).toStdString(), std::ios::binary);
    claimed.loadHeader(head);
    const qint32 claimedCount = claimed.getHeader().lineCount;
    const qint64 count = qMax(claimedCount, 0);
    const qint64 size = QFileInfo(path).size();
    const qint64 lineEnd = Script::HeaderSize + count * Script::LineSize;
    if (size >= Script::HeaderSize && claimedCount < 0)
        report.errorAt(path, LINE_COUNT_OFFSET, QStringLiteral("the header counts %1 lines").arg(claimedCount));
    else if (size > lineEnd)
        report.errorAt(path, quint64(lineEnd),
                       QStringLiteral("the header counts %1 lines (%2 bytes), but the file is %3 bytes long: %4 bytes "
                                      "after the last line")
                           .arg(count)
                           .arg(lineEnd)
                           .arg(size)
                           .arg(size - lineEnd));
    if (size < Script::HeaderSize)
        report.errorAt(path, quint64(size), QStringLiteral("the file ends inside the %1-byte header").arg(Script::HeaderSize));
    else if (size < Script::HeaderSize + count * Script::LineSize)
        report.errorAt(path, quint64(size),
                       QStringLiteral("the header counts %1 lines (%2 bytes), but the file is %3 bytes long and holds "
                                      "only %4 whole lines")
                           .arg(count)
                           .arg(Script::HeaderSize + count * Script::LineSize)
                           .arg(size)
                           .arg((size - Script::HeaderSize) / Script::LineSize));
}

void CheckCommand::checkScriptLine(const QString& path, const Script& script, int index)
{
    for (const ScriptStatement& statement : ScriptStatement::ofLine(script, index)) {
        for (const ScriptStatement::Problem& problem : statement.problems())
            report.errorAt(path, problem.offset, QStringLiteral("line %1: %2").arg(index).arg(problem.message));
    }
}

void CheckCommand::checkArt(const QString& path)
{
    Artfile art;
    art.load(QFile::encodeName(path).toStdString());
    if (!art.isLoaded()) {
        report.errorAt(path, art.loadFailureOffset(), FileDump::artFailure(art));
        return;
    }
    if (const qsizetype extra = art.trailingBytes().size(); extra > 0) {
        const qint64 size = QFileInfo(path).size();
        report.errorAt(path, quint64(size - extra),
                       QStringLiteral("%1 bytes after the last frame, which ends at byte %2 of %3")
                           .arg(extra)
                           .arg(size - extra)
                           .arg(size));
    }
    for (unsigned i = 0; i < art.getImageCount(); ++i) {
        for (unsigned f = 0; f < art.getFrameCount(); ++f) {
            const Artfile::Image* frame = art.getImage(i, f);
            if (!frame || frame->isRaw())
                continue;
            const quint64 pixels = quint64(frame->width) * frame->height;
            const quint64 filled = ArtRunLength::decodedLength(frame->data);
            if (filled != pixels)
                report.errorAt(path, art.frameDataOffset(i, f),
                               QStringLiteral("image %1 frame %2: its runs %3 %4 pixels of a %5x%6 frame")
                                   .arg(i).arg(f).arg(filled > pixels ? "overfill it with" : "fill only")
                                   .arg(filled).arg(frame->width).arg(frame->height));
        }
    }
}

void CheckCommand::checkProto(const QString& path)
{
    Proto proto;
    proto.load(QFile::encodeName(path).toStdString());
    if (!proto.isLoaded())
        report.errorAt(path, proto.loadFailureOffset(), QString::fromStdString(proto.loadFailure()));
}

void CheckCommand::checkPalette(const QString& path)
{
    const qint64 size = QFileInfo(path).size();
    if (size != Artfile::PALETTE_BYTES)
        report.errorAt(path, quint64(qMin<qint64>(size, Artfile::PALETTE_BYTES)),
                       QStringLiteral("a palette file has %1 bytes, not %2").arg(size).arg(Artfile::PALETTE_BYTES));
}
