// The search through a whole game: texts and number uses, loose and archived files, cancel.
#include "SearchGame.h"

#include "GameSearch.h"
#include "Proto.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

using arcanum::GameSearch;
using Mode = GameSearch::Mode;

Q_DECLARE_METATYPE(GameSearch::Query)

namespace {

// "FILE:LINE:ENTRY: text", one per hit, in the order found.
QStringList rows(const GameSearch::Result& result)
{
    QStringList all;
    for (const GameSearch::Hit& hit : result.hits)
        all.append(QStringLiteral("%1:%2:%3: %4").arg(hit.file).arg(hit.line).arg(hit.entry).arg(hit.text));
    return all;
}

GameSearch::Query textQuery(const QString& pattern, bool caseSensitive = false, bool regex = false)
{
    GameSearch::Query query;
    query.pattern = pattern;
    query.caseSensitive = caseSensitive;
    query.regex = regex;
    return query;
}

GameSearch::Query numberQuery(Mode mode, qint32 number)
{
    GameSearch::Query query;
    query.mode = mode;
    query.number = number;
    return query;
}

const QString WIELD_ON = QString::fromStdString(arcanum::Proto::scriptPointToString(arcanum::Proto::WieldOn));

} // namespace

class TestFind : public QObject
{
    Q_OBJECT

    QTemporaryDir game;

    GameSearch::Result search(const GameSearch::Query& query)
    {
        return GameSearch(query, QTextCodec::codecForName("UTF-8")).run(game.path(), QStringLiteral("Arcanum"));
    }

private slots:
    void initTestCase() { QVERIFY(SearchGame::write(game.path())); }

    void textHits_data()
    {
        QTest::addColumn<GameSearch::Query>("query");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("any case, second line of an entry")
            << textQuery("needle") << QStringList{"data/mes/override.mes:3:2: line with Needle"};
        QTest::newRow("case must match") << textQuery("needle", true) << QStringList();
        QTest::newRow("case matches") << textQuery("Needle", true) << QStringList{"data/mes/override.mes:3:2: line with Needle"};
        QTest::newRow("inside an archive")
            << textQuery("archived TEXT") << QStringList{"arcanum1.dat/mes/shared.mes:1:5: Archived text"};
        QTest::newRow("the overridden copy is not read") << textQuery("old words") << QStringList();
        QTest::newRow("dialogue text and female text")
            << textQuery("hello") << QStringList{"arcanum1.dat/dlg/00010talk.dlg:1:1: Hello there",
                                                 "arcanum1.dat/dlg/00010talk.dlg:1:1: Hello, lady"};
        QTest::newRow("regular expression anchored to the text")
            << textQuery("^(new|flag) \\w+$", false, true)
            << QStringList{"arcanum1.dat/dlg/00010talk.dlg:3:10: Flag answer", "data/mes/override.mes:1:1: new words"};
        QTest::newRow("regular expression with case")
            << textQuery("^flag", true, true) << QStringList();
        QTest::newRow("opcodes are no text") << textQuery("gf 42") << QStringList();
    }

    void textHits()
    {
        QFETCH(GameSearch::Query, query);
        QFETCH(QStringList, expected);
        const GameSearch::Result result = search(query);
        QCOMPARE(rows(result), expected);
        QVERIFY2(result.problems.isEmpty(), qPrintable(result.problems.join('\n')));
        QCOMPARE(result.searched, 3); // talk, override (the loose copy only) and shared
    }

    void refusesWhatCannotBeSearched()
    {
        const GameSearch broken(textQuery("(unclosed", false, true), nullptr);
        QVERIFY(!broken.isValid());
        QVERIFY(broken.error().contains("at character"));
        QCOMPARE(broken.run(game.path(), "Arcanum").searched, 0);
        QVERIFY(!GameSearch(textQuery(QString()), nullptr).isValid());
    }

    void numberUses_data()
    {
        QTest::addColumn<GameSearch::Query>("query");
        QTest::addColumn<QStringList>("expected");
        const QString talk = "arcanum1.dat/dlg/00010talk.dlg", helper = "arcanum1.dat/scr/00020helper.scr";
        QTest::newRow("flag: dialogue test and a Number the statement names a flag")
            << numberQuery(Mode::Flag, 42)
            << QStringList{talk + ":2:2: line 2, test gf 42 1", helper + ":1:-1: IF global flag (Number 42) is set"};
        QTest::newRow("var: dialogue result and Global Var operands")
            << numberQuery(Mode::Variable, 42)
            << QStringList{talk + ":2:2: line 2, result gv 42 3", helper + ":2:-1: DO (Global Var 42) = (Number 5)",
                           helper + ":3:-1: DO set global flag (Global Var 42) to true"};
        QTest::newRow("script: statement and prototype script point")
            << numberQuery(Mode::Script, 30)
            << QStringList{QStringLiteral("data/proto/sword.pro:0:%1: script point %2: script 30")
                               .arg(int(arcanum::Proto::WieldOn))
                               .arg(WIELD_ON),
                           helper + ":1:-1: THEN change this script to script (Number 30)"};
        QTest::newRow("message: fl, jo and float line")
            << numberQuery(Mode::Message, 7)
            << QStringList{talk + ":1:1: line 1, result fl 7", talk + ":2:2: line 2, result jo 7 8",
                           helper + ":1:-1: ELSE float line (Number 7) above (Attachee)"};
        QTest::newRow("message: second argument of jo, uw")
            << numberQuery(Mode::Message, 8)
            << QStringList{talk + ":2:2: line 2, result jo 7 8", talk + ":3:10: line 10, result uw 8 2"};
        QTest::newRow("a flag value is no flag number") << numberQuery(Mode::Flag, 1) << QStringList();
        QTest::newRow("a plain number is no variable") << numberQuery(Mode::Variable, 5) << QStringList();
        QTest::newRow("unused script") << numberQuery(Mode::Script, 42) << QStringList();
    }

    void numberUses()
    {
        QFETCH(GameSearch::Query, query);
        QFETCH(QStringList, expected);
        QCOMPARE(rows(search(query)), expected);
    }

    void numberModeNames()
    {
        Mode mode = Mode::Text;
        QVERIFY(GameSearch::numberMode("VAR", mode));
        QCOMPARE(mode, Mode::Variable);
        QVERIFY(!GameSearch::numberMode("text", mode));
    }

    void cancelStopsBeforeTheNextFile()
    {
        std::atomic_bool cancel = false;
        QList<QPair<int, int>> reported;
        const GameSearch::Result result = GameSearch(textQuery("e"), nullptr).run(game.path(), "Arcanum", &cancel,
            [&](int done, int total) {
                reported.append({done, total});
                cancel = true;
            });
        QVERIFY(result.cancelled);
        QCOMPARE(result.searched, 1);
        QCOMPARE(reported, (QList<QPair<int, int>>{{1, 3}}));
        QCOMPARE(result.hits.size(), 3); // all from the first file
        for (const GameSearch::Hit& hit : result.hits)
            QCOMPARE(hit.gamePath, QStringLiteral("dlg/00010talk.dlg"));
    }

    void unreadableArchiveIsAProblemNotAFailure()
    {
        QTemporaryDir broken;
        QVERIFY(SearchGame::write(broken.path()));
        QFile archive(broken.filePath("arcanum1.dat"));
        QVERIFY(archive.open(QIODevice::WriteOnly | QIODevice::Truncate));
        archive.write("not an archive");
        archive.close();
        const GameSearch::Result result
            = GameSearch(textQuery("needle"), nullptr).run(broken.path(), QStringLiteral("Arcanum"));
        QCOMPARE(rows(result), QStringList{"data/mes/override.mes:3:2: line with Needle"});
        QCOMPARE(result.problems.size(), 1);
        QVERIFY(result.problems.first().startsWith("arcanum1.dat: "));
    }
};


QTEST_GUILESS_MAIN(TestFind)
#include "tst_find.moc"
