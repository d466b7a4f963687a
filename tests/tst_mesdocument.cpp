// Writing new content into a message file: every entry operation on the document (exact bytes after it,
// after its undo and after its redo), refusals that change nothing, and find and replace counts.
#include "MesDocument.h"
#include "TextSearch.h"
#include "UndoChecks.h"

#include <QTextCodec>
#include <QUndoStack>
#include <QtTest>

#include <memory>
#include <tuple>

namespace {

// Entry 20 owns the comment line under it; the unreadable line travels with entry 30.
const QByteArray ITEMS = QByteArrayLiteral("// Items\r\n"
                                           "{10}{Sword}  // sharp\r\n"
                                           "{20}{Shield}\r\n"
                                           "// armour follows\r\n"
                                           "{30}{Helm}\r\n"
                                           "{x}{broken}\r\n"
                                           "{40}{Boots of the swift}\r\n");

const QByteArray UNSORTED = QByteArrayLiteral("// Mixed\r\n"
                                              "{30}{Helm}\r\n"
                                              "{x}{broken}\r\n"
                                              "{10}{Sword}\r\n"
                                              "{20}{Shield} // second\r\n");

const QByteArray TEXTS = QByteArrayLiteral("{1}{The cat sat on the Cat mat.} // cat\r\n"
                                           "{2}{Concatenate cats}\r\n"
                                           "{3}{Кот и кошка: кот.} // КОТ\r\n");

std::unique_ptr<MesDocument> open(const QByteArray& bytes, const char* name = "items.mes")
{
    QString error;
    std::unique_ptr<MesDocument> document =
        MesDocument::fromBytes(QString::fromLatin1(name), bytes, QTextCodec::codecForName("UTF-8"), error);
    if (!document)
        qFatal("could not read %s: %s", name, qPrintable(error));
    return document;
}

QByteArray bytesOf(const MesDocument& document)
{
    QByteArray bytes;
    QString error;
    document.serialize(bytes, error);
    return bytes;
}

QByteArray replaced(QByteArray bytes, const char* from, const char* to)
{
    return bytes.replace(from, to);
}

} // namespace

class TestMesDocument : public QObject
{
    Q_OBJECT

private slots:
    void operations_data()
    {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QString>("operation");
        QTest::addColumn<int>("steps");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("add between two numbers") << ITEMS << "add 15" << 1
                                                 << replaced(ITEMS, "{20}", "{15}{}\r\n{20}");
        QTest::newRow("add goes below the comment lines of the entry before")
            << ITEMS << "add 25" << 1 << replaced(ITEMS, "{30}", "{25}{}\r\n{30}");
        QTest::newRow("add below every number goes under the header")
            << ITEMS << "add 5" << 1 << replaced(ITEMS, "{10}", "{5}{}\r\n{10}");
        QTest::newRow("add after an unreadable line's entry") << ITEMS << "add 35" << 1
                                                              << replaced(ITEMS, "{40}", "{35}{}\r\n{40}");
        QTest::newRow("add at the end") << ITEMS << "add 2147483647" << 1 << ITEMS + "{2147483647}{}\r\n";
        QTest::newRow("duplicate keeps text and comment")
            << ITEMS << "duplicate 0 11" << 1 << replaced(ITEMS, "{20}", "{11}{Sword}  // sharp\r\n{20}");
        QTest::newRow("renumber keeps the layout") << ITEMS << "renumber 1 21" << 1
                                                   << replaced(ITEMS, "{20}", "{21}");
        QTest::newRow("renumber to 0") << ITEMS << "renumber 0 0" << 1 << replaced(ITEMS, "{10}", "{0}");
        QTest::newRow("delete two entries is one step")
            << ITEMS << "delete 0 4" << 1 << replaced(replaced(ITEMS, "{10}{Sword}  // sharp\r\n", ""),
                                                      "{40}{Boots of the swift}\r\n", "");
        QTest::newRow("delete takes the comment lines along")
            << ITEMS << "delete 1" << 1 << replaced(ITEMS, "{20}{Shield}\r\n// armour follows\r\n", "");
        QTest::newRow("delete an unreadable line") << ITEMS << "delete 3" << 1 << replaced(ITEMS, "{x}{broken}\r\n", "");
        QTest::newRow("sort keeps an unreadable line behind its entry")
            << UNSORTED << "sort" << 1
            << QByteArray("// Mixed\r\n{10}{Sword}\r\n{20}{Shield} // second\r\n{30}{Helm}\r\n{x}{broken}\r\n");
        QTest::newRow("sorted file: no step") << ITEMS << "sort" << 0 << ITEMS;
        QTest::newRow("typing into a cell merges") << ITEMS << "type" << 1 << replaced(ITEMS, "{Sword}", "{Swords}");
        QTest::newRow("replace all is one step")
            << TEXTS << "replace cat dog" << 1
            << QByteArray("{1}{The dog sat on the dog mat.} // dog\r\n{2}{Condogenate dogs}\r\n"
                          "{3}{Кот и кошка: кот.} // КОТ\r\n");
        QTest::newRow("add, renumber, delete in a row") << ITEMS << "add 15; renumber 1 16; delete 1" << 3 << ITEMS;
        QTest::newRow("dialogue table: add has every field")
            << QByteArray("{1}{Hello.}{}{5}{}{10}{}\r\n") << "add 2" << 1
            << QByteArray("{1}{Hello.}{}{5}{}{10}{}\r\n{2}{}{}{}{}{}{}\r\n");
    }

    // Each operation gives exact bytes; undo gives the file as read, redo the edited bytes again.
    void operations()
    {
        QFETCH(QByteArray, input);
        QFETCH(QString, operation);
        QFETCH(int, steps);
        QFETCH(QByteArray, expected);
        const bool dialogue = input.startsWith("{1}{Hello.}{}");
        std::unique_ptr<MesDocument> document = open(input, dialogue ? "talk.dlg" : "items.mes");
        QCOMPARE(bytesOf(*document), input);
        const auto edit = [&] {
            for (const QString& step : operation.split(QStringLiteral("; "))) {
                const QStringList words = step.split(QLatin1Char(' '));
                const auto arg = [&words](int i) { return words.value(i).toInt(); };
                int position = 0;
                QString error;
                bool done = true;
                if (words[0] == QLatin1String("add"))
                    done = document->addEntry(arg(1), position, error);
                else if (words[0] == QLatin1String("duplicate"))
                    done = document->duplicateEntry(arg(1), arg(2), position, error);
                else if (words[0] == QLatin1String("renumber"))
                    done = document->renumberEntry(arg(1), arg(2), error);
                else if (words[0] == QLatin1String("delete"))
                    done = document->removeEntries({arg(1), words.size() > 2 ? arg(2) : arg(1)});
                else if (words[0] == QLatin1String("sort"))
                    document->sortByNumber();
                else if (words[0] == QLatin1String("type")) {
                    document->editCell(0, 1, QStringLiteral("Swordz"));
                    document->editCell(0, 1, QStringLiteral("Swords"));
                } else if (words[0] == QLatin1String("replace")) {
                    int cells = 0;
                    document->replaceAll(TextSearch(words[1], Qt::CaseInsensitive, false), words[2], cells);
                }
                QVERIFY2(done, qPrintable(error));
            }
        };
        QVERIFY(checkUndoRedo(*document, edit, steps));
        QCOMPARE(bytesOf(*document), expected);
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("message");
        QTest::newRow("add a number in use") << "add 20" << "Number 20 is already in use in items.mes.";
        QTest::newRow("add a negative number") << "add -1" << "-1 is outside 0 … 2147483647";
        QTest::newRow("duplicate to a number in use") << "duplicate 0 40" << "Number 40 is already in use";
        QTest::newRow("duplicate an unreadable line") << "duplicate 3 50" << "Only an entry that could be read";
        QTest::newRow("renumber to a number in use") << "renumber 0 30" << "Number 30 is already in use";
        QTest::newRow("renumber an unreadable line") << "renumber 3 50" << "Only an entry that could be read";
    }

    // A refused edit says why, naming the number, and leaves the file and the undo history alone.
    void refusals()
    {
        QFETCH(QString, operation);
        QFETCH(QString, message);
        std::unique_ptr<MesDocument> document = open(ITEMS);
        const QStringList words = operation.split(QLatin1Char(' '));
        int position = -1;
        QString error;
        bool done = true;
        if (words[0] == QLatin1String("add"))
            done = document->addEntry(words[1].toInt(), position, error);
        else if (words[0] == QLatin1String("duplicate"))
            done = document->duplicateEntry(words[1].toInt(), words[2].toInt(), position, error);
        else
            done = document->renumberEntry(words[1].toInt(), words[2].toInt(), error);
        QVERIFY(!done);
        QVERIFY2(error.contains(message), qPrintable(error));
        QCOMPARE(document->undoStack()->count(), 0);
        QCOMPARE(bytesOf(*document), ITEMS);
        QVERIFY(!document->removeEntries({7, -1}));
        QCOMPARE(document->undoStack()->count(), 0);
    }

    void typedNumbers_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("message");
        QTest::newRow("zero") << "0" << 0 << "";
        QTest::newRow("the largest") << " 2147483647 " << 2147483647 << "";
        QTest::newRow("one past the largest") << "2147483648" << -1 << "2147483648 is outside 0 … 2147483647";
        QTest::newRow("far too large") << "99999999999999999999" << -1 << "99999999999999999999 is outside";
        QTest::newRow("negative") << "-5" << -1 << "-5 is outside";
        QTest::newRow("words") << "ten" << -1 << "“ten” is not a number.";
        QTest::newRow("empty") << "" << -1 << "“” is not a number.";
        QTest::newRow("a sign alone") << "+" << -1 << "not a number";
    }

    void typedNumbers()
    {
        QFETCH(QString, typed);
        QFETCH(int, number);
        QFETCH(QString, message);
        int read = -1;
        QString error;
        QCOMPARE(MesDocument::parseNumber(typed, read, error), message.isEmpty());
        QCOMPARE(read, number);
        QVERIFY2(message.isEmpty() ? error.isEmpty() : error.contains(message), qPrintable(error));
    }

    void proposedNumbers()
    {
        std::unique_ptr<MesDocument> document = open(QByteArrayLiteral("{10}{a}\r\n{11}{b}\r\n{13}{c}\r\n{x}\r\n"));
        QCOMPARE(document->proposedNumber(0), 12);
        QCOMPARE(document->proposedNumber(2), 14);
        // No entry selected (or an unreadable one): after the highest number.
        QCOMPARE(document->proposedNumber(-1), 14);
        QCOMPARE(document->nextFreeNumber(MesDocument::MAX_NUMBER), 0);
        std::unique_ptr<MesDocument> top = open(QByteArrayLiteral("{0}{a}\r\n{2147483647}{b}\r\n"));
        QCOMPARE(top->proposedNumber(1), 1);
        std::unique_ptr<MesDocument> empty = open(QByteArrayLiteral("// nothing yet\r\n"));
        QCOMPARE(empty->proposedNumber(-1), 0);
    }

    void searchCounts_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("matchCase");
        QTest::addColumn<bool>("wholeWords");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("cells");
        QTest::newRow("any case, inside words") << "cat" << false << false << 5 << 3;
        QTest::newRow("case") << "cat" << true << false << 4 << 3;
        QTest::newRow("whole words") << "cat" << false << true << 3 << 2;
        QTest::newRow("case and whole words") << "Cat" << true << true << 1 << 1;
        QTest::newRow("Cyrillic any case in texts and comments") << "кот" << false << false << 3 << 2;
        QTest::newRow("Cyrillic whole word, case") << "кот" << true << true << 1 << 1;
        QTest::newRow("Cyrillic inside a word") << "кош" << false << true << 0 << 0;
        QTest::newRow("punctuation is literal") << "." << false << false << 2 << 2;
        QTest::newRow("no match") << "dog" << false << false << 0 << 0;
    }

    // Counting and replacing agree, one step for any number of cells, none when nothing matches.
    void searchCounts()
    {
        QFETCH(QString, pattern);
        QFETCH(bool, matchCase);
        QFETCH(bool, wholeWords);
        QFETCH(int, count);
        QFETCH(int, cells);
        std::unique_ptr<MesDocument> document = open(TEXTS);
        const TextSearch search(pattern, matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive, wholeWords);
        QCOMPARE(document->countMatches(search), count);
        int changedCells = -1;
        QCOMPARE(document->replaceAll(search, QStringLiteral("$1"), changedCells), count);
        QCOMPARE(changedCells, cells);
        QCOMPARE(document->undoStack()->count(), count > 0 ? 1 : 0);
        QCOMPARE(document->countMatches(search), 0);
        // The replacement is written as typed: "$1" is no back reference.
        QCOMPARE(int(bytesOf(*document).count("$1")), count);
        if (count > 0)
            QCOMPARE(document->undoStack()->undoText(), QStringLiteral("Replace all “%1”").arg(pattern));
    }

    void findGoesRoundTheFile()
    {
        std::unique_ptr<MesDocument> document = open(TEXTS);
        const TextSearch search(QStringLiteral("cat"), Qt::CaseInsensitive, true);
        // Forward from the start: "cat" (entry 1 text), "Cat", then the comment, then round again.
        MesDocument::Match match = document->find(search, {0, 1, 0, 0}, false);
        QCOMPARE(std::make_tuple(match.entry, match.column, match.start), std::make_tuple(0, 1, qsizetype(4)));
        match = document->find(search, match, false);
        QCOMPARE(std::make_tuple(match.entry, match.column, match.start), std::make_tuple(0, 1, qsizetype(19)));
        match = document->find(search, match, false);
        QCOMPARE(std::make_tuple(match.entry, match.column, match.start), std::make_tuple(0, 2, qsizetype(4)));
        match = document->find(search, match, false);
        QCOMPARE(std::make_tuple(match.entry, match.column, match.start), std::make_tuple(0, 1, qsizetype(4)));
        // Backwards from the first match goes round to the comment.
        match = document->find(search, match, true);
        QCOMPARE(std::make_tuple(match.entry, match.column, match.start), std::make_tuple(0, 2, qsizetype(4)));
        QCOMPARE(document->find(TextSearch(QStringLiteral("dog"), Qt::CaseInsensitive, false), {}, false).entry, -1);
    }

    // Replacing one match checks the cell still holds it, so a stale match replaces nothing.
    void replaceOneMatch()
    {
        std::unique_ptr<MesDocument> document = open(TEXTS);
        const TextSearch search(QStringLiteral("cat"), Qt::CaseSensitive, false);
        const MesDocument::Match match = document->find(search, {1, 1, 0, 0}, false);
        QVERIFY(document->replaceMatch(match, search, QStringLiteral("dog")));
        QCOMPARE(document->cell(1, 1), QStringLiteral("Condogenate cats"));
        QVERIFY(!document->replaceMatch(match, search, QStringLiteral("dog")));
        QCOMPARE(document->undoStack()->count(), 1);
    }

    // A damaged line of an entry that is deleted is no longer a loss of saving in this encoding; one of an
    // entry that only moved still is.
    void saveLossFollowsTheEntries()
    {
        const QByteArray bytes = QByteArrayLiteral("{1}{ok}\r\n{2}{caf\xE9}\r\n{3}{na\xEFve}\r\n");
        std::unique_ptr<MesDocument> document = open(bytes);
        QVERIFY(document->saveLoss().contains(QStringLiteral("2 lines")));
        QVERIFY(document->removeEntries({1}));
        QVERIFY2(document->saveLoss().contains(QStringLiteral("1 line")), qPrintable(document->saveLoss()));
        int position = 0;
        QString error;
        QVERIFY(document->addEntry(0, position, error));
        QCOMPARE(position, 0);
        QVERIFY(document->saveLoss().contains(QStringLiteral("line 3")));
        document->undoStack()->undo();
        document->undoStack()->undo();
        QVERIFY(document->saveLoss().contains(QStringLiteral("2 lines")));
    }
};

QTEST_MAIN(TestMesDocument)
#include "tst_mesdocument.moc"
