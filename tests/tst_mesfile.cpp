// Message files and dialogue files read as tables: parsing, exact bytes written back, damaged input.
#include "DialogueFile.h"
#include "FormatChecks.h"
#include "Mesfile.h"
#include "constants.h"

#include <QTemporaryDir>
#include <QTextCodec>
#include <QTextStream>
#include <QtTest>

#include <ctime>
#include <memory>

using arcanum::DialogueFile;
using arcanum::Mesfile;

class TestMesfile : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

    QString path(const QString& name) const { return dir.filePath(name); }

    static QTextCodec* codec(const char* name = "UTF-8") { return QTextCodec::codecForName(name); }

    // Loads bytes written to a file of the given name; the model decides its kind from the name.
    std::unique_ptr<Mesfile> load(const QByteArray& bytes, const QString& name = QStringLiteral("t.mes"),
                                  const char* codecName = "UTF-8")
    {
        FormatChecks::writeFile(path(name), bytes);
        std::unique_ptr<Mesfile> file(Mesfile::getInstance(path(name)));
        file->load(codec(codecName));
        return file;
    }

    QByteArray saved(Mesfile& file, const char* codecName = "UTF-8")
    {
        const QString out = path(QStringLiteral("out.mes"));
        QFile::remove(out);
        if (!file.save(out, codec(codecName)))
            return QByteArray("<save failed>");
        return FormatChecks::readFile(out);
    }

    static QByteArray sampleMessages()
    {
        return QByteArrayLiteral("// Items of a test game\r\n\tindented header line\r\n"
                                 "{100}{Rusty dagger}\r\n"
                                 "{101}{Steam pistol}  // needs bullets\r\n"
                                 "{110}{A dagger of poor quality.\r\n\tIts edge is notched.}\r\n"
                                 "{111}\r\n"
                                 "{x}{broken index}\r\n"
                                 "{112}{unclosed\r\n");
    }

    static QByteArray sampleDialogue()
    {
        return QByteArrayLiteral("{1}{Hello, stranger.}{}{}{}{}{}\r\n"
                                 "{2}{Greetings.}{}{4}{}{10}{}\r\n"
                                 "{3}{Bye.}{1}{-5}{qu 5 2}{0}{ga 3 1} // farewell\r\n"
                                 "{4}{Short}{1}\r\n");
    }

private slots:
    void initTestCase() { QVERIFY(dir.isValid()); }

    void entryShapes_data()
    {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("comment");
        QTest::addColumn<QString>("error");
        QTest::addColumn<QString>("header");
        QTest::addColumn<QByteArray>("output");

        const QString ok = arcanum::NO_ERROR;
        QTest::newRow("plain") << QByteArray("{10}{Hello}") << 10 << "Hello" << "" << ok << ""
                               << QByteArray("{10}{Hello}\r\n");
        QTest::newRow("index with spaces, comment kept")
            << QByteArray("{ 7 }{a}  // note\n") << 7 << "a" << "  // note" << ok << ""
            << QByteArray("{7}{a}  // note\r\n");
        QTest::newRow("multi-line text") << QByteArray("{1}{first\nsecond}\n") << 1 << "first\nsecond" << "" << ok
                                         << "" << QByteArray("{1}{first\r\nsecond}\r\n");
        QTest::newRow("indented continuation keeps its tab")
            << QByteArray("{1}{first\r\n\tsecond}\r\n") << 1 << "first\n\tsecond" << "" << ok << ""
            << QByteArray("{1}{first\r\n\tsecond}\r\n");
        QTest::newRow("unparsable index written back unchanged")
            << QByteArray("{x}{a}\n") << 0 << "" << "" << "Index could not be parsed" << ""
            << QByteArray("{x}{a}\r\n");
        QTest::newRow("index alone is an empty entry") << QByteArray("{5}\n") << 5 << "" << "" << ok << ""
                                                       << QByteArray("{5}\r\n");
        QTest::newRow("index alone with trailing text")
            << QByteArray("{5} note\n") << 5 << "" << " note" << ok << "" << QByteArray("{5} note\r\n");
        QTest::newRow("header kept, its indentation too")
            << QByteArray("// header\n  indented\n{1}{a}\n") << 1 << "a" << "" << ok << "// header\n  indented\n"
            << QByteArray("// header\r\n  indented\r\n{1}{a}\r\n");
        QTest::newRow("indentation before an entry dropped")
            << QByteArray(" \t{3}{b}\n") << 3 << "b" << "" << ok << "" << QByteArray("{3}{b}\r\n");
        QTest::newRow("no closing brace at all") << QByteArray("{abc\n") << 0 << "" << ""
                                                 << "Entry contains no '{' or '}'" << "" << QByteArray("{abc\r\n");
        QTest::newRow("text brace never closed")
            << QByteArray("{12}{abc\ndef\n") << 12 << "" << "" << "'{' at index 4 has no matching '}'" << ""
            << QByteArray("{12}{abc\r\ndef\r\n");
        QTest::newRow("blank line stays with the entry above")
            << QByteArray("{1}{a}\n\n") << 1 << "a" << "\n" << ok << "" << QByteArray("{1}{a}\r\n\r\n");
        QTest::newRow("brace inside the comment") << QByteArray("{1}{a} {b}\n") << 1 << "a" << " {b}" << ok << ""
                                                  << QByteArray("{1}{a} {b}\r\n");
        QTest::newRow("space between the braces kept") << QByteArray("{1} {a}\n") << 1 << "a" << "" << ok << ""
                                                       << QByteArray("{1} {a}\r\n");
        QTest::newRow("stray carriage returns dropped") << QByteArray("{1}{a\rb}\r\n") << 1 << "ab" << "" << ok << ""
                                                        << QByteArray("{1}{ab}\r\n");
    }

    void entryShapes()
    {
        QFETCH(QByteArray, input);
        QFETCH(QString, error);
        QFETCH(QByteArray, output);
        auto file = load(input);
        QVERIFY(file->isLoaded());
        QCOMPARE(file->getEntryCount(), 1);
        const Mesfile::Entry* entry = file->getEntryAt(0);
        QTEST(entry->getMesIndex(), "index");
        QTEST(entry->getItemAt(0), "text");
        QTEST(entry->getComment(), "comment");
        QCOMPARE(entry->getValidationError(), error);
        QCOMPARE(entry->isValid(), error == arcanum::NO_ERROR);
        QTEST(file->getHeader(), "header");
        QCOMPARE(saved(*file), output);
    }

    void entryValidity()
    {
        auto file = load("{1}{a}\n{x}{b}\n{2}{c\n{3}\n");
        QCOMPARE(file->getEntryCount(), 4);
        QVERIFY(file->getEntryAt(0)->isValid());
        QVERIFY(!file->getEntryAt(1)->isValid());
        QVERIFY(!file->getEntryAt(2)->isValid());
        QVERIFY(file->getEntryAt(3)->isValid());
        QCOMPARE(file->getEntryAt(2)->getLine(), QStringLiteral("{2}{c\n"));
    }

    void wholeFileRoundTrip_data()
    {
        QTest::addColumn<QByteArray>("codecName");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("firstText");

        QTest::newRow("UTF-8") << QByteArray("UTF-8") << sampleMessages() << "Rusty dagger";
        const QString russian = QStringLiteral("// \u0417\u0430\u0433\u043E\u043B\u043E\u0432\u043E\u043A\r\n"
                                               "{10}{\u041F\u0440\u0438\u0432\u0435\u0442, \u043F\u0443\u0442\u043D\u0438\u043A!}\r\n"
                                               "{11}{\u0421\u0442\u0430\u0440\u044B\u0439\r\n\u043C\u0435\u0447} // \u0430\u0431\r\n");
        QTest::newRow("Windows-1251") << QByteArray("Windows-1251") << codec("Windows-1251")->fromUnicode(russian)
                                      << QStringLiteral("\u041F\u0440\u0438\u0432\u0435\u0442, \u043F\u0443\u0442\u043D\u0438\u043A!");
        QTest::newRow("UTF-8 Cyrillic") << QByteArray("UTF-8") << russian.toUtf8()
                                        << QStringLiteral("\u041F\u0440\u0438\u0432\u0435\u0442, \u043F\u0443\u0442\u043D\u0438\u043A!");
        QTest::newRow("UTF-8 with byte order mark") << QByteArray("UTF-8") << QByteArray("\xEF\xBB\xBF{1}{a}\r\n")
                                                    << "a";
    }

    void wholeFileRoundTrip()
    {
        QFETCH(QByteArray, codecName);
        QFETCH(QByteArray, bytes);
        auto file = load(bytes, QStringLiteral("t.mes"), codecName.constData());
        QVERIFY(file->getEntryCount() > 0);
        QTEST(file->getEntryAt(0)->getItemAt(0), "firstText");
        QCOMPARE(saved(*file, codecName.constData()), bytes);
    }

    void headerLineEndsStayReplacedInMemory()
    {
        auto file = load("// one\n{1}{a}\n");
        QCOMPARE(saved(*file), QByteArray("// one\r\n{1}{a}\r\n"));
        QCOMPARE(file->getHeader(), QStringLiteral("// one\r\n"));
        QCOMPARE(saved(*file), QByteArray("// one\r\r\n{1}{a}\r\n"));
    }

    void headerWithoutLineEndGetsOne()
    {
        auto file = load("{1}{a}\n");
        file->setHeader(QStringLiteral("// typed"));
        QCOMPARE(saved(*file), QByteArray("// typed\r\n{1}{a}\r\n"));
    }

    void editsAreWrittenFromFields()
    {
        auto file = load("// h\n{1}{a} // c\n{5}\n{7}{b}\n");
        file->getEntryAt(0)->setItemAt(0, QStringLiteral("changed"));
        file->getEntryAt(0)->setComment(QStringLiteral(" // new"));
        file->getEntryAt(1)->setItemAt(0, QStringLiteral("typed"));
        file->getEntryAt(2)->setMesIndex(70);
        QCOMPARE(saved(*file), QByteArray("// h\r\n{1}{changed} // new\r\n{5}{typed}\r\n{70}{b}\r\n"));
    }

    void mesEntryHasOneItem()
    {
        auto file = load("{3}{a}\n");
        Mesfile::Entry* entry = file->getEntryAt(0);
        QCOMPARE(entry->getItemCount(), 1u);
        QCOMPARE(entry->getItemAt(1), arcanum::OUT_OF_BOUNDS);
        entry->setItemAt(1, QStringLiteral("x"));
        QCOMPARE(entry->getItemAt(0), QStringLiteral("a"));
        QCOMPARE(entry->getInfoAbout(0), QStringLiteral("Index: 3"));
        QCOMPARE(entry->getInfoAbout(Mesfile::COMMENT_COLUMN), QStringLiteral("Index: 3"));
    }

    void entryWithIndex()
    {
        auto file = load("{0}{zero}\n{1}{first one}\n{1}{second one}\n{7}{seven}\n");
        // Position 1 holds index 1: found there first.
        QCOMPARE(file->getEntryWithIndex(1)->getItemAt(0), QStringLiteral("first one"));
        // Position 3 holds 7, so index 3 falls back to the scan and finds nothing.
        QVERIFY(!file->getEntryWithIndex(3));
        QCOMPARE(file->getEntryWithIndex(7)->getItemAt(0), QStringLiteral("seven"));
        QVERIFY(!file->getEntryWithIndex(100));

        auto shifted = load("{1}{one}\n{0}{zero}\n{1}{again}\n");
        QCOMPARE(shifted->getEntryWithIndex(1)->getItemAt(0), QStringLiteral("one")); // scan from the start
        QCOMPARE(shifted->getEntryWithIndex(0)->getItemAt(0), QStringLiteral("zero"));
    }

    void columnTitles()
    {
        Mesfile mes;
        QCOMPARE(mes.getItemCount(), 1u);
        QCOMPARE(mes.getColumnTitle(-1), QStringLiteral("#"));
        QCOMPARE(mes.getColumnTitle(-2), QStringLiteral("Comment"));
        QCOMPARE(mes.getColumnTitle(0), QStringLiteral("Item 1"));
        QCOMPARE(mes.getColumnTitle(1), QStringLiteral("Item 1"));
        QCOMPARE(mes.getColumnTitle(2), QStringLiteral("Item 2"));

        DialogueFile dlg;
        QCOMPARE(dlg.getItemCount(), 6u);
        const QStringList titles{"Comment", "#", "Text", "Gender or female line", "Int. Test", "Condition",
                                 "Response", "Result", "Invalid col. id"};
        for (int type = -2; type <= 6; ++type)
            QCOMPARE(dlg.getColumnTitle(type), titles[type + 2]);
    }

    void instanceByName()
    {
        std::unique_ptr<Mesfile> dlg(Mesfile::getInstance(QStringLiteral("a/B.DLG")));
        QVERIFY(dynamic_cast<DialogueFile*>(dlg.get()));
        std::unique_ptr<Mesfile> mes(Mesfile::getInstance(QStringLiteral("a/b.mes")));
        QVERIFY(!dynamic_cast<DialogueFile*>(mes.get()));
        std::unique_ptr<Mesfile> other(Mesfile::getInstance(QStringLiteral("a/b.txt")));
        QVERIFY(!dynamic_cast<DialogueFile*>(other.get()));
    }

    void loadFailures()
    {
        Mesfile missing(path(QStringLiteral("missing.mes")));
        QVERIFY(!missing.load(codec()));
        QVERIFY(!missing.isLoaded());

        auto empty = load(QByteArray());
        QVERIFY(!empty->isLoaded());
        QCOMPARE(empty->getEntryCount(), 0);

        // A reload that fails forgets what the earlier load read.
        auto file = load("// h\n{1}{a}\n");
        QVERIFY(QFile::remove(file->getFilename()));
        QVERIFY(!file->load(codec()));
        QCOMPARE(file->getEntryCount(), 0);
        QCOMPARE(file->getHeader(), QString());

        Mesfile other;
        QVERIFY(FormatChecks::writeFile(path(QStringLiteral("other.txt")), "{1}{a}\n"));
        QVERIFY(other.loadFile(path(QStringLiteral("other.txt")), codec()));
        QCOMPARE(other.getEntryCount(), 1);
    }

    void failedSaveLeavesNothingBehind()
    {
        auto file = load("{1}{a}\n");
        QVERIFY(!file->save(path(QStringLiteral("no/such/dir/x.mes")), codec()));
        QVERIFY(!QFileInfo::exists(path(QStringLiteral("no/such/dir"))));
        // A directory standing where the file should go is left as it is.
        QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("taken.mes")));
        QVERIFY(!file->save(path(QStringLiteral("taken.mes")), codec()));
        QVERIFY(QFileInfo(path(QStringLiteral("taken.mes"))).isDir());
        QCOMPARE(QDir(dir.path()).entryList({"taken.mes*"}, QDir::AllEntries), QStringList({"taken.mes"}));
    }

    void chunking()
    {
        QString text = QStringLiteral("  head\n{1}{a\n  b}\n\t{2}{c}\r\n");
        QTextStream stream(&text, QIODevice::ReadOnly);
        bool atEnd = false;
        QCOMPARE(Mesfile::getDataUpToNextEntry(stream, &atEnd), QStringLiteral("  head\n"));
        QVERIFY(!atEnd);
        QCOMPARE(Mesfile::getDataUpToNextEntry(stream, &atEnd), QStringLiteral("{1}{a\n  b}\n"));
        QCOMPARE(Mesfile::getDataUpToNextEntry(stream, &atEnd), QStringLiteral("{2}{c}\n"));
        QVERIFY(atEnd);
        QCOMPARE(Mesfile::getDataUpToNextEntry(stream, &atEnd), QString());
        QCOMPARE(Mesfile::trimFront(QStringLiteral(" \t x \t")), QStringLiteral("x \t"));
        QCOMPARE(Mesfile::trimFront(QStringLiteral("\n x")), QStringLiteral("\n x"));
    }

    // ---- dialogue files as tables ----

    void dialogueLines_data()
    {
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QString>("comment");
        QTest::addColumn<QString>("error");
        QTest::addColumn<QByteArray>("output");

        const QString ok = arcanum::NO_ERROR;
        QTest::newRow("six fields") << QByteArray("{12}{Hello}{}{}{}{}{}\n")
                                    << QStringList{"Hello", "", "", "", "", ""} << "" << ok
                                    << QByteArray("{12}{Hello}{}{}{}{}{}\r\n");
        QTest::newRow("short line kept as read")
            << QByteArray("{12}{Hi}{1}\n") << QStringList{"Hi", "1", "", "", "", ""} << ""
            << "Line doesn't contain 6 items" << QByteArray("{12}{Hi}{1}\r\n");
        QTest::newRow("index alone") << QByteArray("{12}\n") << QStringList{"", "", "", "", "", ""} << ""
                                     << "Line doesn't contain 6 items" << QByteArray("{12}\r\n");
        QTest::newRow("seven fields kept as read")
            << QByteArray("{1}{a}{b}{c}{d}{e}{f}{g}\n") << QStringList{"a", "b", "c", "d", "e", "f", "g"} << ""
            << "Line doesn't contain 6 items" << QByteArray("{1}{a}{b}{c}{d}{e}{f}{g}\r\n");
        QTest::newRow("trailing text written twice")
            << QByteArray("{3}{Bye.}{1}{-5}{qu 5 2}{0}{ga 3 1} // farewell\n")
            << QStringList{"Bye.", "1", "-5", "qu 5 2", "0", "ga 3 1"} << " // farewell" << ok
            << QByteArray("{3}{Bye.}{1}{-5}{qu 5 2}{0}{ga 3 1} // farewell\r\n // farewell");
        QTest::newRow("field over two lines")
            << QByteArray("{1}{a\nb}{}{}{}{}{}\n") << QStringList{"a\nb", "", "", "", "", ""} << "" << ok
            << QByteArray("{1}{a\r\nb}{}{}{}{}{}\r\n");
        QTest::newRow("unclosed field") << QByteArray("{1}{a}{b\n") << QStringList{"a", "", "", "", "", ""} << ""
                                        << "'{' at index 6 has no matching '}'" << QByteArray("{1}{a}{b\r\n");
        QTest::newRow("unparsable index") << QByteArray("{x}{}{}{}{}{}{}\n") << QStringList{"", "", "", "", "", ""}
                                          << "" << "Index could not be parsed"
                                          << QByteArray("{x}{}{}{}{}{}{}\r\n");
        // The last brace stands at 31 in the skeleton, so every character 32 (space) leaves it.
        QTest::newRow("character after the last brace position dropped")
            << QByteArray("{1}{a}{b}{c}{d}{e}                  {f} tail\n") << QStringList{"a", "b", "c", "d", "e", "f"}
            << " tail" << ok << QByteArray("{1}{a}{b}{c}{d}{e}{f}tail\r\n tail");
    }

    void dialogueLines()
    {
        QFETCH(QByteArray, input);
        QFETCH(QStringList, items);
        auto file = load(input, QStringLiteral("t.dlg"));
        QVERIFY(dynamic_cast<DialogueFile*>(file.get()));
        QCOMPARE(file->getEntryCount(), 1);
        const Mesfile::Entry* entry = file->getEntryAt(0);
        QCOMPARE(entry->getItemCount(), 6u);
        QStringList read;
        for (int i = 0; i < items.size(); ++i)
            read << entry->getItemAt(static_cast<unsigned>(i));
        QCOMPARE(read, items);
        QTEST(entry->getComment(), "comment");
        QTEST(entry->getValidationError(), "error");
        QTEST(saved(*file), "output");
    }

    void dialogueEdits()
    {
        auto file = load("{12}{Hello}{}{}{}{}{}\n{13}{Hi}{1}\n", QStringLiteral("t.dlg"));
        Mesfile::Entry* entry = file->getEntryAt(0);
        entry->setItemAt(2, QStringLiteral("-7"));
        entry->setItemAt(5, QStringLiteral("ga 1 2"));
        entry->setItemAt(6, QStringLiteral("ignored"));
        QCOMPARE(entry->getItemAt(6), arcanum::EMPTY_STR);
        entry->setMesIndex(20);
        QCOMPARE(entry->getLine(), QStringLiteral("{20}{Hello}{}{-7}{}{}{ga 1 2}\n"));
        QCOMPARE(saved(*file), QByteArray("{20}{Hello}{}{-7}{}{}{ga 1 2}\r\n{13}{Hi}{1}\r\n"));

        // A line added in memory ends like a line read from a file.
        QVERIFY(file->appendEntry(QStringLiteral("{30}{new}{}{}{}{}{}"))->isValid());
        QVERIFY(saved(*file).endsWith("{13}{Hi}{1}\r\n{30}{new}{}{}{}{}{}\r\n"));
    }

    void dialogueToolTips_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("tip");

        QTest::newRow("index") << -1 << "" << "Line number 12";
        QTest::newRow("comment") << -2 << "" << " // c";
        QTest::newRow("text") << 0 << "Hello there" << "Hello there";
        QTest::newRow("gender empty") << 1 << "" << "all genders";
        QTest::newRow("gender 0") << 1 << " 0 " << "male only";
        QTest::newRow("gender 1") << 1 << "1" << "female only";
        QTest::newRow("gender other") << 1 << "x" << "Invalid value: only 0, 1 or empty entry allowed";
        QTest::newRow("minimum") << 2 << "5" << "Minimum: 55";
        QTest::newRow("maximum") << 2 << "-5" << "Maximum: -55";
        QTest::newRow("two digits") << 2 << " 12 " << "Minimum: 121";
        QTest::newRow("no test") << 2 << "" << "Minimum: ";
        QTest::newRow("sign alone") << 2 << "-" << "Maximum: -";
        QTest::newRow("condition") << 3 << "qu 5 2" << "Tooltip text: TODO";
        QTest::newRow("result") << 5 << "" << "Tooltip text: TODO";
    }

    void dialogueToolTips()
    {
        QFETCH(int, type);
        QFETCH(QString, value);
        auto file = load("{12}{}{}{}{}{}{} // c\n", QStringLiteral("t.dlg"));
        Mesfile::Entry* entry = file->getEntryAt(0);
        if (type >= 0)
            entry->setItemAt(static_cast<unsigned>(type), value);
        QTEST(entry->getInfoAbout(type), "tip");
    }

    // ---- damaged and large input ----

    void everyPrefixLoads_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("messages") << "prefix.mes" << sampleMessages();
        QTest::newRow("dialogue") << "prefix.dlg" << sampleDialogue();
    }

    void everyPrefixLoads()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        FormatChecks::forEveryPrefix(bytes, path(name), [this](const QString& file) {
            std::unique_ptr<Mesfile> model(Mesfile::getInstance(file));
            model->load(codec());
            for (int i = 0; i < model->getEntryCount(); ++i)
                model->getEntryAt(i)->getLine();
            model->save(path(QStringLiteral("prefix-out")), codec());
        });
    }

    void damagedInputSurvives_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("closing brace first") << QByteArray("}{\n}{1}\n");
        QTest::newRow("only opening braces") << QByteArray("{{{{\n{\n{{\n");
        QTest::newRow("only closing braces") << QByteArray("}}}}\n}\n");
        QTest::newRow("doubled closing brace") << QByteArray("{1}}{\n{2}{}}}{{\n");
        QTest::newRow("opening brace last") << QByteArray("{1}{a}{\n{");
        QTest::newRow("huge index") << QByteArray("{99999999999999999999}{a}\n{-5}{b}{}{}{}{}{}\n");
        QTest::newRow("NUL bytes") << QByteArray(4096, '\0');
        QTest::newRow("NUL inside entries") << QByteArray("{1}{a\0b}\0\n{\0}{}\n", 16);
        QTest::newRow("random text") << FormatChecks::randomBytes(20000, 7, true);
        QTest::newRow("random bytes") << FormatChecks::randomBytes(20000, 11);
        QTest::newRow("corrupted sample") << FormatChecks::corrupt(sampleMessages(), 3, 30);
    }

    void damagedInputSurvives()
    {
        QFETCH(QByteArray, bytes);
        for (const QString& name : {QStringLiteral("damaged.mes"), QStringLiteral("damaged.dlg")}) {
            for (const char* codecName : {"UTF-8", "Windows-1251"}) {
                auto file = load(bytes, name, codecName);
                for (int i = 0; i < file->getEntryCount(); ++i) {
                    Mesfile::Entry* entry = file->getEntryAt(i);
                    for (unsigned item = 0; item <= file->getItemCount(); ++item)
                        entry->getInfoAbout(static_cast<int>(item));
                    entry->getLine();
                }
                saved(*file, codecName);
            }
        }
    }

    void nulBytesComeBackUnchanged()
    {
        const QByteArray nuls(1000, '\0');
        auto file = load(nuls);
        QVERIFY(file->isLoaded());
        QCOMPARE(file->getEntryCount(), 0);
        QCOMPARE(saved(*file), nuls + "\r\n");
    }

    void largeFileLoadsQuickly()
    {
        QByteArray bytes = "// large\r\n";
        for (int i = 0; i < 50000; ++i)
            bytes += "{" + QByteArray::number(i) + "}{Entry number " + QByteArray::number(i) + "\r\ncontinued} // c\r\n";
        FormatChecks::writeFile(path(QStringLiteral("large.mes")), bytes);
        Mesfile file(path(QStringLiteral("large.mes")));
        // Processor time, so that other programs busy on the machine do not count.
        const std::clock_t start = std::clock();
        QVERIFY(file.load(codec()));
        const long elapsed = static_cast<long>((std::clock() - start) * 1000 / CLOCKS_PER_SEC);
        qInfo("loading took %ld ms", elapsed);
        QCOMPARE(file.getEntryCount(), 50000);
        QVERIFY2(elapsed < 1000, qPrintable(QStringLiteral("loading took %1 ms").arg(elapsed)));
        QCOMPARE(file.getEntryWithIndex(49999)->getItemAt(0), QStringLiteral("Entry number 49999\ncontinued"));
        QCOMPARE(saved(file), bytes);
    }
};

QTEST_GUILESS_MAIN(TestMesfile)
#include "tst_mesfile.moc"
