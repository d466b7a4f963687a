#include "GameSearch.h"

#include "DialogueFileNew.h"
#include "FormatRegistry.h"
#include "Mesfile.h"
#include "TextCodec.h"

#include <QTextCodec>

#include <algorithm>

namespace arcanum {

namespace {

using Kind = FileFormat::Kind;

QVector<Kind> kindsRead(GameSearch::Mode mode)
{
    switch (mode) {
    case GameSearch::Mode::Text: return {Kind::Message, Kind::Dialogue};
    case GameSearch::Mode::Script: return {Kind::Script, Kind::Prototype};
    case GameSearch::Mode::Flag:
    case GameSearch::Mode::Variable:
    case GameSearch::Mode::Message: break;
    }
    return {Kind::Dialogue, Kind::Script};
}

// The whole line of text that holds position at.
QString lineAround(const QString& text, qsizetype at)
{
    const qsizetype start = at > 0 ? text.lastIndexOf(QLatin1Char('\n'), at - 1) + 1 : 0;
    const qsizetype newline = text.indexOf(QLatin1Char('\n'), at);
    QString line = text.mid(start, (newline < 0 ? text.size() : newline) - start);
    if (line.endsWith(QLatin1Char('\r')))
        line.chop(1);
    return line;
}

} // namespace

GameSearch::GameSearch(const Query& query, QTextCodec* mesCodec)
    : wanted(query)
    , codec(mesCodec ? mesCodec : QTextCodec::codecForName("UTF-8"))
{
    if (wanted.mode != Mode::Text)
        return;
    if (wanted.pattern.isEmpty()) {
        invalid = QStringLiteral("the pattern is empty");
        return;
    }
    if (!wanted.regex)
        return;
    expression.setPattern(wanted.pattern);
    if (!wanted.caseSensitive)
        expression.setPatternOptions(QRegularExpression::CaseInsensitiveOption);
    if (!expression.isValid())
        invalid = QStringLiteral("%1 at character %2 of the regular expression")
                      .arg(expression.errorString())
                      .arg(expression.patternErrorOffset() + 1);
}

bool GameSearch::numberMode(const QString& name, Mode& mode)
{
    static const QHash<QString, Mode> modes = {{QStringLiteral("flag"), Mode::Flag},
                                               {QStringLiteral("var"), Mode::Variable},
                                               {QStringLiteral("script"), Mode::Script},
                                               {QStringLiteral("message"), Mode::Message}};
    const auto found = modes.constFind(name.toLower());
    if (found == modes.constEnd())
        return false;
    mode = *found;
    return true;
}

QString GameSearch::shownName(const GameView& view, const GameView::File& file)
{
    const QString& layer = view.layers().at(file.layer).name;
    // A loose folder's name ends in "/" already ("data/", "modules/Arcanum/").
    return view.archived(file) ? layer + QLatin1Char('/') + file.path : layer + file.path;
}

QVector<const GameView::File*> GameSearch::files(const GameView& view) const
{
    const QVector<Kind> kinds = kindsRead(wanted.mode);
    QVector<const GameView::File*> found;
    for (const GameView::File& file : view.files()) {
        const FileFormat* format = FormatRegistry::byPath(file.path);
        if (format != nullptr && kinds.contains(format->kind))
            found.append(&file);
    }
    // By path, so every run (and every row of the command line) comes in the same order.
    std::sort(found.begin(), found.end(), [](const GameView::File* a, const GameView::File* b) {
        return a->path.compare(b->path, Qt::CaseInsensitive) < 0;
    });
    return found;
}

GameSearch::Result GameSearch::run(const QString& base, const QString& module, const std::atomic_bool* cancel,
                                   const Progress& progress) const
{
    GameView view;
    view.build(base, module);
    Result result = run(view, cancel, progress);
    result.problems = view.problems() + result.problems;
    return result;
}

GameSearch::Result GameSearch::run(const GameView& view, const std::atomic_bool* cancel, const Progress& progress) const
{
    Result result;
    if (!isValid())
        return result;
    const QVector<const GameView::File*> list = files(view);
    for (const GameView::File* file : list) {
        if (cancel != nullptr && cancel->load()) {
            result.cancelled = true;
            break;
        }
        const QString shown = shownName(view, *file);
        QByteArray bytes;
        QString error;
        if (view.read(*file, bytes, error)) {
            for (Hit& hit : searchBytes(file->path, bytes)) {
                hit.file = shown;
                result.hits.append(std::move(hit));
            }
        } else {
            result.problems.append(QStringLiteral("%1: %2").arg(shown, error));
        }
        ++result.searched;
        if (progress)
            progress(result.searched, int(list.size()));
    }
    return result;
}

QVector<GameSearch::Hit> GameSearch::searchBytes(const QString& gamePath, const QByteArray& bytes) const
{
    const FileFormat* format = FormatRegistry::byPath(gamePath);
    if (format == nullptr || !kindsRead(wanted.mode).contains(format->kind) || !isValid())
        return {};
    QVector<Hit> hits;
    switch (format->kind) {
    case Kind::Message: hits = searchMessages(bytes); break;
    case Kind::Dialogue:
        hits = wanted.mode == Mode::Text ? searchDialogueTexts(bytes) : searchDialogueNumbers(bytes);
        break;
    case Kind::Script: hits = searchScript(gamePath, bytes); break;
    case Kind::Prototype: hits = searchPrototype(gamePath, bytes); break;
    default: break;
    }
    for (Hit& hit : hits)
        hit.gamePath = gamePath;
    return hits;
}

qsizetype GameSearch::find(QStringView text, qsizetype* length) const
{
    if (wanted.regex) {
        const QRegularExpressionMatch match = expression.match(text);
        if (!match.hasMatch())
            return -1;
        if (length != nullptr)
            *length = match.capturedLength();
        return match.capturedStart();
    }
    if (length != nullptr)
        *length = wanted.pattern.size();
    return text.indexOf(wanted.pattern, 0, wanted.caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
}

// One hit per text at most: its first match, on the file line the match starts on.
void GameSearch::addTextHit(QVector<Hit>& hits, const QString& text, int firstLine, int entry) const
{
    const qsizetype at = find(text);
    if (at < 0)
        return;
    Hit hit;
    hit.line = firstLine + int(QStringView(text).left(at).count(QLatin1Char('\n')));
    hit.entry = entry;
    hit.text = lineAround(text, at);
    hits.append(hit);
}

// Most files do not hold the pattern at all: one look at the whole decoded text settles them before
// anything is parsed. A regular expression may anchor to the start of a text, which the whole file
// does not show, so it is always looked for text by text.
QVector<GameSearch::Hit> GameSearch::searchMessages(const QByteArray& bytes) const
{
    QTextCodec* encoding = chooseEncoding ? chooseEncoding(FileFormat::Kind::Message, bytes) : codec;
    if (!wanted.regex && find(TextCodec::decode(encoding, bytes)) < 0)
        return {};
    Mesfile file;
    if (!file.loadBytes(bytes, encoding))
        return {};
    QVector<Hit> hits;
    for (int i = 0; i < file.getEntryCount(); ++i) {
        const Mesfile::Entry* entry = file.getEntryAt(i);
        // A line that could not be read has no text of its own: it is searched whole.
        addTextHit(hits, entry->isValid() ? entry->getItemAt(0) : entry->getLine(), entry->getSourceLine(),
                   entry->getMesIndex());
    }
    return hits;
}

QVector<GameSearch::Hit> GameSearch::searchDialogueTexts(const QByteArray& bytes) const
{
    QTextCodec* encoding = chooseEncoding ? chooseEncoding(FileFormat::Kind::Dialogue, bytes)
                                          : DialogueFileNew::defaultCodec();
    if (!wanted.regex && find(TextCodec::decode(encoding, bytes)) < 0)
        return {};
    DialogueFileNew file;
    file.setCodec(encoding);
    file.readBytes(bytes);
    QVector<Hit> hits;
    for (const DialogueFileNew::NPCLinePointer& line : file.npcLines()) {
        addTextHit(hits, line->text(), line->sourceLine(), line->index());
        // The female text follows the text in the same entry.
        addTextHit(hits, line->femaleText(), line->sourceLine() + int(line->text().count(QLatin1Char('\n'))),
                   line->index());
    }
    for (const DialogueFileNew::PCLinePointer& line : file.pcLines())
        addTextHit(hits, line->text(), line->sourceLine(), line->index());
    std::stable_sort(hits.begin(), hits.end(), [](const Hit& a, const Hit& b) { return a.line < b.line; });
    return hits;
}

} // namespace arcanum
