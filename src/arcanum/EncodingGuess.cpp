#include "EncodingGuess.h"

#include "TextCodec.h"
#include "TextDecoding.h"

#include <QHash>
#include <QString>
#include <QTextCodec>

#include <uchardet.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace arcanum {

namespace {

// The encodings game texts are written in, the game's own code page first. The order breaks ties, which
// happen on a word or two: a single-byte page that reads them as letters beats one CJK character.
const char* const GAME_ENCODINGS[] = {"windows-1251", "windows-1252", "windows-1250", "KOI8-R", "UTF-8",
                                      "windows-949", "GBK", "Shift_JIS", "Big5"};

// uchardet names for which Qt knows no codec or that are subsets of what Windows writes.
const QHash<QByteArray, QByteArray>& detectorAliases()
{
    static const QHash<QByteArray, QByteArray> aliases = {
        {"ASCII", "UTF-8"},          {"ISO-8859-1", "windows-1252"}, {"UHC", "windows-949"},
        {"EUC-KR", "windows-949"},   {"GB18030", "GBK"},             {"GB2312", "GBK"},
        {"MAC-CYRILLIC", "x-mac-cyrillic"},
    };
    return aliases;
}

QTextCodec* utf8()
{
    return QTextCodec::codecForMib(106);
}

bool isCjkPunctuation(char16_t c)
{
    return (c >= 0x3000 && c <= 0x303F) || (c >= 0xFF01 && c <= 0xFF60) || c == 0x30FB;
}

// Marks that sit at one end of a word in ordinary writing: quotes, Spanish openers, the ellipsis.
bool isWordEdgeMark(char16_t c)
{
    static const QString marks = QStringLiteral("«»¿¡„“”‘’‚…");
    return marks.contains(QChar(c));
}

bool isHalfwidthKatakana(char16_t c)
{
    return c >= 0xFF61 && c <= 0xFF9F;
}

// Letters that belong together in one language's writing: Japanese mixes kana with Han characters.
int scriptGroup(QChar c)
{
    switch (c.script()) {
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
        return QChar::Script_Hiragana;
    default:
        return c.script();
    }
}

// What makes a decoded text unlike writing, counted character by character.
class Doubt
{
public:
    explicit Doubt(const QString& text)
        : text(text)
    {
    }

    double perCharacter(int extraSuspicious) const
    {
        int nonAscii = 0;
        int suspicious = extraSuspicious + scriptMixture();
        int upper = 0;
        int lower = 0;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar c = text.at(i);
            if (c.unicode() < 0x80)
                continue;
            ++nonAscii;
            if (c.isLetter()) {
                upper += c.isUpper() ? 1 : 0;
                lower += c.isLower() ? 1 : 0;
                suspicious += letterDoubt(i);
            } else {
                suspicious += markDoubt(i);
            }
        }
        // Writing is mostly small letters; a code page read as its neighbour turns them into capitals.
        suspicious += std::max(0, upper - lower) / 2;
        suspicious += latinWordsWithoutAscii();
        return nonAscii == 0 ? 0.0 : double(suspicious) / nonAscii;
    }

private:
    QChar at(qsizetype i) const { return i >= 0 && i < text.size() ? text.at(i) : QChar(u' '); }
    static bool isAsciiLetter(QChar c) { return c.unicode() < 0x80 && c.isLetter(); }

    int letterDoubt(qsizetype i) const
    {
        const QChar c = text.at(i);
        const QChar next = at(i + 1);
        int doubt = 0;
        // A small letter right before a capital inside a word: "пРИВЕТ".
        if (c.isLower() && next.isUpper())
            ++doubt;
        // A Cyrillic or CJK letter glued to an ASCII letter: "rouillйe".
        if (c.script() != QChar::Script_Latin && (isAsciiLetter(at(i - 1)) || isAsciiLetter(next)))
            ++doubt;
        if (isHalfwidthKatakana(c.unicode()))
            ++doubt;
        // Chinese is written without spaces; a Han character, a space and another is Korean read wrongly.
        if (c.script() == QChar::Script_Han && next == QLatin1Char(' ') && at(i + 2).script() == QChar::Script_Han)
            ++doubt;
        return doubt;
    }

    // A symbol touching a letter: "Zardzewia³y", "–жавый".
    int markDoubt(qsizetype i) const
    {
        const char16_t c = text.at(i).unicode();
        if (isCjkPunctuation(c))
            return 0;
        const bool before = at(i - 1).isLetter();
        const bool after = at(i + 1).isLetter();
        if (before && after)
            return 1;
        return (before || after) && !isWordEdgeMark(c) ? 1 : 0;
    }

    // Non-ASCII letters outside the script most of them belong to.
    int scriptMixture() const
    {
        QHash<int, int> counts;
        int letters = 0;
        for (const QChar c : text) {
            if (c.unicode() >= 0x80 && c.isLetter()) {
                ++counts[scriptGroup(c)];
                ++letters;
            }
        }
        // Japanese writes Han characters among its kana.
        if (counts.contains(QChar::Script_Hiragana))
            counts[QChar::Script_Hiragana] += counts.take(QChar::Script_Han);
        int most = 0;
        for (const int count : std::as_const(counts))
            most = std::max(most, count);
        return letters - most;
    }

    // Latin words of three letters or more none of which is ASCII: Cyrillic read as a Western page.
    int latinWordsWithoutAscii() const
    {
        int doubt = 0;
        int run = 0;
        bool onlyAccented = true;
        for (qsizetype i = 0; i <= text.size(); ++i) {
            const QChar c = at(i);
            if (i < text.size() && c.isLetter() && c.script() == QChar::Script_Latin) {
                ++run;
                onlyAccented = onlyAccented && c.unicode() >= 0x80;
                continue;
            }
            if (run >= 3 && onlyAccented)
                doubt += run;
            run = 0;
            onlyAccented = true;
        }
        return doubt;
    }

    const QString& text;
};

// CP949 and GBK extend a core where both bytes of a pair are 0xA1 or more (KS X 1001, GB 2312) with
// rarely used characters; text of another encoding read in them lands in that extension.
int extendedPairs(QTextCodec* codec, const QByteArray& bytes)
{
    const QByteArray name = codec->name();
    if (name != "windows-949" && name != "GBK")
        return 0;
    int count = 0;
    constexpr unsigned char CORE = 0xA1;
    for (qsizetype i = 0; i + 1 < bytes.size(); ++i) {
        const auto lead = static_cast<unsigned char>(bytes.at(i));
        if (lead < 0x80)
            continue;
        const auto trail = static_cast<unsigned char>(bytes.at(i + 1));
        if (lead < CORE || trail < CORE)
            ++count;
        ++i;
    }
    return count;
}

// Message and dialogue files put every text between braces; a double-byte code page that takes a brace
// as the second byte of a character reads a text of another encoding.
int swallowedBraces(const QByteArray& bytes, const QString& text)
{
    const qsizetype inBytes = bytes.count('{') + bytes.count('}');
    const qsizetype inText = text.count(QLatin1Char('{')) + text.count(QLatin1Char('}'));
    constexpr int WEIGHT = 2;
    return WEIGHT * int(inBytes - inText);
}

QTextCodec* codecOf(const QByteArray& detectorName)
{
    if (detectorName.isEmpty())
        return nullptr;
    const QByteArray name = detectorAliases().value(detectorName.toUpper(), detectorName);
    return QTextCodec::codecForName(name);
}

// Ranking looks at the first lines only: a few thousand characters settle it, and a file of megabytes
// would take long. Every byte is still checked for being readable.
QByteArray sampleOf(const QByteArray& bytes)
{
    constexpr qsizetype SAMPLE_BYTES = 64 * 1024;
    if (bytes.size() <= SAMPLE_BYTES)
        return bytes;
    const qsizetype lineEnd = bytes.lastIndexOf('\n', SAMPLE_BYTES);
    return bytes.left(lineEnd > 0 ? lineEnd + 1 : SAMPLE_BYTES);
}

struct Ranked
{
    QTextCodec* codec;
    double doubt;
    int order;
};

} // namespace

QTextCodec* EncodingGuess::detector(const QByteArray& bytes)
{
    const std::unique_ptr<uchardet, void (*)(uchardet_t)> detector(uchardet_new(), uchardet_delete);
    if (!detector || uchardet_handle_data(detector.get(), bytes.constData(), size_t(bytes.size())) != 0)
        return nullptr;
    uchardet_data_end(detector.get());
    return codecOf(QByteArray(uchardet_get_charset(detector.get())));
}

bool EncodingGuess::isUtf8(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    utf8()->toUnicode(bytes.constData(), int(bytes.size()), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

double EncodingGuess::doubt(QTextCodec* codec, const QByteArray& bytes)
{
    const QString text = TextCodec::decode(codec, bytes);
    return Doubt(text).perCharacter(extendedPairs(codec, bytes) + swallowedBraces(bytes, text));
}

QList<QTextCodec*> EncodingGuess::cleanEncodings(const QByteArray& bytes)
{
    // Ties go to uchardet's answer when it is one of the game's encodings, to the game's order after it,
    // and to an encoding only uchardet names last: on short texts it names rare ones at random.
    QList<QTextCodec*> tried;
    for (const char* name : GAME_ENCODINGS) {
        if (QTextCodec* codec = QTextCodec::codecForName(name))
            tried.append(codec);
    }
    const QByteArray sample = sampleOf(bytes);
    QTextCodec* detected = detector(sample);
    if (detected != nullptr) {
        const bool known = tried.removeOne(detected);
        tried.insert(known ? 0 : tried.size(), detected);
    }
    const bool validUtf8 = isUtf8(bytes);
    QList<Ranked> ranked;
    for (int order = 0; order < tried.size(); ++order) {
        QTextCodec* codec = tried.at(order);
        const bool isUtf8Codec = codec == utf8();
        if (isUtf8Codec ? !validUtf8 : !TextDecoding::unreadable(codec, bytes).isClean())
            continue;
        // Other encodings' bytes are almost never valid UTF-8: when they are, it is UTF-8.
        ranked.append({codec, isUtf8Codec ? -1.0 : doubt(codec, sample), order});
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const Ranked& a, const Ranked& b) {
        return a.doubt < b.doubt;
    });
    QList<QTextCodec*> codecs;
    for (const Ranked& one : ranked)
        codecs.append(one.codec);
    return codecs;
}

EncodingGuess::Findings EncodingGuess::examine(QTextCodec* codec, const QByteArray& bytes)
{
    Findings findings{TextDecoding::unreadable(codec, bytes), {}};
    if (!findings.unreadable.isClean())
        findings.suggestions = cleanEncodings(bytes);
    return findings;
}

QTextCodec* EncodingGuess::best(const QByteArray& bytes, QTextCodec* fallback)
{
    if (isUtf8(bytes))
        return utf8();
    const QList<QTextCodec*> clean = cleanEncodings(bytes);
    return clean.isEmpty() ? fallback : clean.first();
}

} // namespace arcanum
