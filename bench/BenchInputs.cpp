#include "BenchInputs.h"

#include "ArtRunLength.h"
#include "Artfile.h"
#include "DialogueFileNew.h"
#include "Mesfile.h"
#include "Proto.h"
#include "Script.h"
#include "constants.h"

#include <QDir>
#include <QFile>
#include <QTextCodec>

#include <vector>

namespace {

using arcanum::DialogueFileNew;

// A fixed-seed generator, so every run measures the same files.
class Sequence
{
public:
    quint32 next()
    {
        state = state * 1664525u + 1013904223u;
        return state >> 8;
    }
    int below(int bound) { return int(next() % quint32(bound)); }

private:
    quint32 state = 12345;
};

const char* const WORDS[] = {"the", "gnome", "steam", "engine", "of", "Tarant", "walks", "into", "a", "tavern",
                             "and", "asks", "for", "work", "magick", "technology", "road", "bridge", "toll", "guard"};
constexpr int WORD_COUNT = int(sizeof(WORDS) / sizeof(WORDS[0]));

// Words up to about length characters, now and then a Cyrillic one so decoding is not pure ASCII.
QString sentence(Sequence& random, int length)
{
    QString text;
    while (text.size() < length) {
        if (!text.isEmpty())
            text += QLatin1Char(' ');
        if (random.below(16) == 0)
            text += QString::fromUtf8("путник");
        else
            text += QLatin1String(WORDS[random.below(WORD_COUNT)]);
    }
    return text;
}

QString number(int value)
{
    return QString::number(value);
}

} // namespace

QString BenchInputs::mesPath(const QString& gameDir)
{
    return gameDir + QLatin1Char('/') + arcanum::MES_DIR + QStringLiteral("bench.mes");
}

QString BenchInputs::dlgPath(const QString& gameDir)
{
    return gameDir + QLatin1Char('/') + arcanum::DLG_DIR + QStringLiteral("bench.dlg");
}

QString BenchInputs::scriptPath(const QString& gameDir)
{
    return gameDir + QLatin1Char('/') + arcanum::SCRIPTS_DIR + QStringLiteral("00001bench.scr");
}

QString BenchInputs::artPath(const QString& gameDir)
{
    return gameDir + QLatin1Char('/') + arcanum::ART_DIR + QStringLiteral("bench.art");
}

QString BenchInputs::protoDir(const QString& gameDir)
{
    return gameDir + QLatin1Char('/') + arcanum::PROTO_DIR;
}

QString BenchInputs::protoName(int value)
{
    return QStringLiteral("%1_bench.pro").arg(value, 6, 10, QLatin1Char('0'));
}

bool BenchInputs::write(const QString& gameDir)
{
    const QDir game(gameDir);
    for (const QString& sub : {arcanum::MES_DIR, arcanum::DLG_DIR, arcanum::SCRIPTS_DIR, arcanum::ART_DIR,
                               arcanum::PROTO_DIR, arcanum::RULES_DIR, arcanum::SEMES_DIR, arcanum::OEMES_DIR}) {
        if (!game.mkpath(sub))
            return false;
    }
    return writeMes(mesPath(gameDir)) && writeDialogue(dlgPath(gameDir)) && writeScript(scriptPath(gameDir))
        && writeArt(artPath(gameDir)) && writeProtos(protoDir(gameDir));
}

// 200 000 entries of about 100 bytes; every 50th text runs over two lines, every 20th has a comment.
bool BenchInputs::writeMes(const QString& path)
{
    Sequence random;
    arcanum::Mesfile mes;
    mes.setHeader(QStringLiteral("// Generated for the benchmarks\n"));
    for (int i = 0; i < MES_ENTRIES; ++i) {
        QString text = sentence(random, 80 + random.below(12));
        if (i % 50 == 0)
            text += QLatin1Char('\n') + sentence(random, 30);
        QString line = QLatin1Char('{') + number(i) + QStringLiteral("}{") + text + QLatin1Char('}');
        if (i % 20 == 0)
            line += QStringLiteral(" // note ") + number(i);
        mes.appendEntry(line);
    }
    return mes.save(path, QTextCodec::codecForName("UTF-8"));
}

// NPC lines, each followed by four answers, until the file holds about 20 MB.
bool BenchInputs::writeDialogue(const QString& path)
{
    Sequence random;
    DialogueFileNew dialogue;
    qint64 bytes = 0;
    for (int index = 1; bytes < DLG_BYTES; index += 5) {
        const QString npcText = sentence(random, 70);
        dialogue.npcLines() << DialogueFileNew::NPCLinePointer(new DialogueFileNew::NPCLine(
            index, {npcText, sentence(random, 20), {}, {}, {}, QStringLiteral("gv 7 1")}, QString()));
        bytes += npcText.size() + 40;
        for (int answer = 1; answer < 5; ++answer) {
            const QString pcText = sentence(random, 60);
            const QStringList items = {pcText, answer % 2 ? QString() : QStringLiteral("1"), number(answer + 2),
                                       answer == 3 ? QStringLiteral("qu 5 2") : QString(), number(index + 5),
                                       answer == 4 ? QStringLiteral("$$ -100, gv 7 1") : QString()};
            dialogue.pcLines() << DialogueFileNew::PCLinePointer(
                new DialogueFileNew::PCLine(index + answer, items, QString()));
            bytes += pcText.size() + 30;
        }
    }
    dialogue.sortLines();
    QFile file(path);
    return dialogue.save(&file);
}

bool BenchInputs::writeSearchGame(const QString& gameDir)
{
    const QDir game(gameDir);
    if (!game.mkpath(arcanum::MES_DIR) || !game.mkpath(arcanum::DLG_DIR))
        return false;
    Sequence random;
    for (int i = 0; i < SEARCH_FILES; ++i) {
        const QString planted = i % 100 == 0 ? QStringLiteral(" with a Brass Needle") : QString();
        if (i % 2 == 0) {
            arcanum::Mesfile mes;
            for (int entry = 0; entry < 20; ++entry)
                mes.appendEntry(QStringLiteral("{%1}{%2}").arg(i * 100 + entry).arg(sentence(random, 60) + (entry == 7 ? planted : QString())));
            if (!mes.save(game.filePath(arcanum::MES_DIR + QStringLiteral("search%1.mes").arg(i)), QTextCodec::codecForName("UTF-8")))
                return false;
            continue;
        }
        DialogueFileNew dialogue;
        for (int line = 1; line < 40; line += 10) {
            dialogue.npcLines() << DialogueFileNew::NPCLinePointer(new DialogueFileNew::NPCLine(
                line, {sentence(random, 60) + planted, {}, {}, {}, {}, {}}, QString()));
            for (int answer = 1; answer < 3; ++answer)
                dialogue.pcLines() << DialogueFileNew::PCLinePointer(new DialogueFileNew::PCLine(
                    line + answer, {sentence(random, 40), {}, number(4), i % 50 == 1 ? QStringLiteral("gf 42 1") : QString(),
                                    number(line + 10), QStringLiteral("gv 7 1")}, QString()));
        }
        dialogue.sortLines();
        QFile file(game.filePath(arcanum::DLG_DIR + QStringLiteral("search%1.dlg").arg(i)));
        if (!dialogue.save(&file))
            return false;
    }
    return true;
}

// 100 000 lines: IF lines with THEN and ELSE, and DO lines, with number and object operands.
bool BenchInputs::writeScript(const QString& path)
{
    Sequence random;
    arcanum::Script script;
    script.getHeader().setDesc("Benchmark script");
    for (int i = 0; i < SCRIPT_LINES; ++i) {
        const bool condition = i % 3 != 0;
        if (condition)
            script.addCondition(1 + random.below(arcanum::Script::ConditionCount - 1));
        else
            script.addAction(random.below(arcanum::Script::ActionCount));
        const int last = script.lineTotal() - 1;
        for (arcanum::Script::LineType which : {arcanum::Script::LineIf, arcanum::Script::LineThen,
                                                arcanum::Script::LineElse}) {
            arcanum::Script::Statement* statement = script.getStatement(last, which);
            if (!statement)
                continue;
            for (int slot = 0; slot < 3; ++slot) {
                statement->types[std::size_t(slot)] = quint8(random.below(arcanum::Script::NumTypeCount));
                statement->values[std::size_t(slot)] = qint32(random.next() % 1000);
            }
        }
    }
    return script.save(path);
}

namespace {

// Rows of runs of one colour broken by stretches of noise, about what a shaded sprite compresses to.
std::vector<quint8> drawFrame(Sequence& random, int side)
{
    std::vector<quint8> pixels(std::size_t(side) * std::size_t(side));
    std::size_t at = 0;
    while (at < pixels.size()) {
        const std::size_t run = std::size_t(4 + random.below(60));
        const bool noise = random.below(3) == 0;
        const auto colour = quint8(random.below(256));
        for (std::size_t i = 0; i < run && at < pixels.size(); ++i, ++at)
            pixels[at] = noise ? quint8(random.below(256)) : colour;
    }
    return pixels;
}

} // namespace

bool BenchInputs::writeArt(const QString& path)
{
    Sequence random;
    arcanum::Artfile art;
    for (int image = 0; image < ART_IMAGES; ++image)
        art.newImage(0);
    for (int frame = 0; frame < ART_FRAMES; ++frame)
        art.newFrame(0);
    arcanum::Artfile::Palette palette;
    for (unsigned i = 0; i < arcanum::Artfile::PALETTE_SIZE; ++i)
        palette[i] = {quint8(i), quint8(255 - i), quint8(i * 7), 0};
    art.setPalette(0, palette);
    art.setAnimated(true);
    for (unsigned image = 0; image < unsigned(ART_IMAGES); ++image) {
        for (unsigned frame = 0; frame < unsigned(ART_FRAMES); ++frame) {
            const std::vector<quint8> pixels = drawFrame(random, ART_SIDE);
            art.getImage(image, frame)
                ->setData(ART_SIDE, ART_SIDE, arcanum::ArtRunLength::encode(pixels.data(), pixels.size()));
        }
    }
    return art.save(path);
}

// Prototypes of every item type in turn.
bool BenchInputs::writeProtos(const QString& dir)
{
    for (int i = 0; i < PROTO_FILES; ++i) {
        arcanum::Proto proto;
        proto.create(std::uint32_t(i) % arcanum::Proto::ITEM_TYPE_COUNT);
        proto.header().index = std::uint32_t(i);
        const QString path = dir + protoName(i);
        if (!proto.save(QFile::encodeName(path).toStdString()))
            return false;
    }
    return true;
}
