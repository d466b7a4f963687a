// Runs the built `loreka` program on copies of the sample game.
#include "DatWriter.h"
#include "FormatChecks.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <functional>

namespace {

const QString SAMPLE_GAME = QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game");

struct Run
{
    int code = -1;
    QString out;
    QString err;
    QStringList lines() const { return out.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
};

Run loreka(const QStringList& arguments, const QString& workingDir = QString())
{
    QProcess process;
    process.setWorkingDirectory(workingDir.isEmpty() ? QDir::currentPath() : workingDir);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM")); // it must not need a display
    environment.remove(QStringLiteral("DISPLAY"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(LOREKA_CLI), arguments);
    Run run;
    if (!process.waitForFinished(60000))
        return run;
    run.code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

void copyTree(const QString& from, const QString& to)
{
    QDirIterator it(from, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString source = it.next();
        const QString target = to + source.mid(from.size());
        QDir().mkpath(QFileInfo(target).path());
        QVERIFY(QFile::copy(source, target));
    }
}

void writeAt(const QString& path, qsizetype offset, quint32 value)
{
    QByteArray bytes = FormatChecks::readFile(path);
    qToLittleEndian(value, bytes.data() + offset);
    QVERIFY(FormatChecks::writeFile(path, bytes));
}

void truncateBy(const QString& path, qsizetype bytes)
{
    const QByteArray whole = FormatChecks::readFile(path);
    QVERIFY(FormatChecks::writeFile(path, whole.left(whole.size() - bytes)));
}

void truncateTo(const QString& path, qsizetype size)
{
    QVERIFY(FormatChecks::writeFile(path, FormatChecks::readFile(path).left(size)));
}

using Plant = std::function<void(const QString& game)>;

// Each defect a modder could make, planted in a copy of the sample game.
const QHash<QString, Plant>& plants()
{
    static const QHash<QString, Plant> all = {
        {"truncated art", [](const QString& g) { truncateBy(g + "/data/art/sample_potion.art", 10); }},
        // The frame claims two more columns than its runs fill (header words after two palettes).
        {"art runs underfill", [](const QString& g) { writeAt(g + "/data/art/sample_beetle.art", 132 + 2048, 50); }},
        {"wrong signature", [](const QString& g) { writeAt(g + "/data/proto/wall_stone.pro", 0, 1); }},
        // The chest's first optional record becomes present with a count past its 64 bits.
        {"damaged proto count",
         [](const QString& g) {
             const QString chest = g + "/data/proto/container_chest.pro";
             writeAt(chest, 85, 1);
             writeAt(chest, 86, 4);
             writeAt(chest, 90, 65);
         }},
        {"short palette", [](const QString& g) { truncateBy(g + "/data/art/sample_frost.aap", 24); }},
        {"truncated script", [](const QString& g) { truncateBy(g + "/data/scr/00002night_watch.scr", 10); }},
        {"unknown condition", [](const QString& g) { writeAt(g + "/data/scr/00001gate_guard.scr", 64, 99); }},
        {"negative line count", [](const QString& g) { writeAt(g + "/data/scr/00001gate_guard.scr", 52, 0xFFFFFFFF); }},
        {"bytes after the last line",
         [](const QString& g) {
             const QString script = g + "/data/scr/00001gate_guard.scr";
             FormatChecks::writeFile(script, FormatChecks::readFile(script) + QByteArray(10, 'x'));
         }},
        {"invalid mes entry",
         [](const QString& g) { FormatChecks::writeFile(g + "/data/mes/bad.mes", "{1}{ok}\r\n{2}{broken\r\n{3}{x}\r\n"); }},
        {"response to nowhere",
         [](const QString& g) {
             FormatChecks::writeFile(g + "/data/dlg/bad.dlg", "{1}{Hi}{}{}{}{}{}\r\n\t{2}{Yes}{}{1}{}{99}{}\r\n");
         }},
        // A mod archive beside the game's: a prototype with a broken signature inside it.
        {"archived wrong signature",
         [](const QString& g) {
             QByteArray proto = FormatChecks::readFile(g + "/data/proto/wall_stone.pro");
             proto[0] = 1;
             QString error;
             arcanum::DatWriter::write(g + "/arcanum2.dat", {{QStringLiteral("proto\\wall_copy.pro"), proto}}, error);
         }},
        {"prototype cut to 100 bytes", [](const QString& g) { truncateTo(g + "/data/proto/weapon_sword.pro", 100); }},
        {"prototype cut to 150 bytes", [](const QString& g) { truncateTo(g + "/data/proto/weapon_sword.pro", 150); }},
        {"prototype cut to 250 bytes", [](const QString& g) { truncateTo(g + "/data/proto/weapon_sword.pro", 250); }},
        {"bytes after the last frame",
         [](const QString& g) {
             const QString art = g + "/data/art/sample_potion.art";
             FormatChecks::writeFile(art, FormatChecks::readFile(art) + QByteArray(10, '\0'));
         }},
        {"NUL byte in a message file",
         [](const QString& g) { FormatChecks::writeFile(g + "/data/mes/bad.mes", QByteArray("{1}{ok}\r\n{2}{a\0b}\r\n", 19)); }},
        {"art saved as a message file",
         [](const QString& g) { QFile::copy(g + "/data/art/sample_beetle.art", g + "/data/mes/beetle.mes"); }},
        {"prototype saved as a script",
         [](const QString& g) { QFile::copy(g + "/data/proto/wall_stone.pro", g + "/data/scr/00009wall.scr"); }},
        {"dialogue saved as a message file",
         [](const QString& g) { QFile::copy(g + "/data/dlg/sample_table.dlg", g + "/data/mes/table.mes"); }},
        {"duplicate index",
         [](const QString& g) {
             FormatChecks::writeFile(g + "/data/dlg/bad.dlg",
                                     "{1}{Hi}{}{}{}{}{}\r\n\t{2}{Yes}{}{1}{}{1}{}\r\n\t{2}{No}{}{1}{}{1}{}\r\n");
         }},
    };
    return all;
}

} // namespace

class TestCli : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir scratch;
    QString game; // a pristine copy of the sample game

    QString freshCopy(const QString& name)
    {
        const QString copy = scratch.filePath(name);
        copyTree(SAMPLE_GAME, copy);
        return copy;
    }

    QStringList sampleFiles(const QStringList& suffixes) const
    {
        QStringList files;
        QDirIterator it(game + "/data", suffixes, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            files << it.next();
        return files;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(scratch.isValid());
        game = freshCopy(QStringLiteral("game"));
    }

    void usage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("output");
        QTest::newRow("version") << QStringList{"--version"} << 0 << QStringLiteral("loreka 0.");
        QTest::newRow("help") << QStringList{"--help"} << 0 << QStringLiteral("Exit status");
        QTest::newRow("no command") << QStringList() << 2 << QString();
        QTest::newRow("unknown command") << QStringList{"frob"} << 2 << QString();
        QTest::newRow("dump without file") << QStringList{"dump"} << 2 << QString();
        QTest::newRow("unknown option") << QStringList{"check", "--frob"} << 2 << QString();
        QTest::newRow("no data folder") << QStringList{"check", "/nonexistent"} << 2 << QString();
        QTest::newRow("dump missing file") << QStringList{"dump", "missing.mes"} << 2 << QString();
        QTest::newRow("export bad format") << QStringList{"export", "x.art", "out", "--format", "gif"} << 2 << QString();
        QTest::newRow("script without action") << QStringList{"script"} << 2 << QStringLiteral("usage: loreka script");
        QTest::newRow("script decompile missing file")
            << QStringList{"script", "decompile", "missing.scr"} << 2 << QStringLiteral("missing.scr: error: cannot be read");
        QTest::newRow("script compile without output name")
            << QStringList{"script", "compile", "guard.txt"} << 2 << QStringLiteral("name the compiled file with -o");
        QTest::newRow("check of a missing file")
            << QStringList{"check", "missing.mes"} << 2 << QStringLiteral("missing.mes: error: no such file");
        QTest::newRow("check of a file of no known kind")
            << QStringList{"check", QFINDTESTDATA("tst_cli.cpp")} << 2 << QStringLiteral("not a kind of file loreka checks");
        QTest::newRow("export of a message file")
            << QStringList{"export", "x.mes", "out"} << 2 << QStringLiteral("x.mes: error: not an art file");
    }

    void usage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, output);
        const Run run = loreka(arguments);
        QCOMPARE(run.code, code);
        QVERIFY2((run.out + run.err).contains(output), qPrintable(run.out + run.err));
        if (code == 2)
            QVERIFY(!(run.err + run.out).isEmpty()); // says why
    }

    void checkSampleIsClean()
    {
        // From the game folder without arguments, as well as with the folder named.
        for (const Run& run : {loreka({"check"}, game), loreka({"check", game})}) {
            QCOMPARE(run.code, 0);
            QCOMPARE(run.lines().size(), 1);
            // The Russian greeting is a line nothing leads to: a note, not a problem.
            QVERIFY2(QRegularExpression("^\\d+ files checked, 0 problems, 1 note$").match(run.out.trimmed()).hasMatch(),
                     qPrintable(run.out));
        }
    }

    void checkFindsPlantedDefect_data()
    {
        QTest::addColumn<QString>("plant");
        QTest::addColumn<QString>("diagnostic");
        QTest::newRow("truncated art") << "truncated art"
                                       << "data/art/sample_potion.art:offset 0x4a0: error: image 0 frame 0 needs \\d+ "
                                          "bytes of pixel data, \\d+ are left";
        QTest::newRow("art runs underfill")
            << "art runs underfill"
            << "data/art/sample_beetle.art:offset 0xc04: error: image 0 frame 0: its runs fill only 2304 pixels of a "
               "50x48 frame";
        QTest::newRow("wrong signature") << "wrong signature"
                                         << "data/proto/wall_stone.pro:offset 0x0: error: wrong signature 1, expected 119";
        QTest::newRow("damaged proto count")
            << "damaged proto count"
            << "data/proto/container_chest.pro:offset 0x5a: error: optional record count 65 is more than the room for 64";
        QTest::newRow("short palette") << "short palette"
                                       << "data/art/sample_frost.aap:offset 0x3e8: error: a palette file has 1000 bytes, "
                                          "not 1024";
        QTest::newRow("unknown condition")
            << "unknown condition"
            << "data/scr/00001gate_guard.scr:offset 0x40: error: line 0: condition code 99 is not in the catalogue";
        QTest::newRow("negative line count")
            << "negative line count" << "data/scr/00001gate_guard.scr:offset 0x34: error: the header counts -1 lines";
        QTest::newRow("bytes after the last line")
            << "bytes after the last line"
            << "data/scr/00001gate_guard.scr:offset 0x[0-9a-f]+: error: the header counts \\d+ lines \\(\\d+ bytes\\), "
               "but the file is \\d+ bytes long: 10 bytes after the last line";
        QTest::newRow("truncated script") << "truncated script"
                                          << "data/scr/00002night_watch.scr:offset 0x[0-9a-f]+: error: the header "
                                             "counts \\d+ lines \\(\\d+ bytes\\), but the file is \\d+ bytes long "
                                             "and holds only \\d+ whole lines";
        QTest::newRow("invalid mes entry") << "invalid mes entry"
                                           << "data/mes/bad.mes:2: error: '\\{' at index 3 has no matching '\\}'";
        QTest::newRow("response to nowhere") << "response to nowhere"
                                             << "data/dlg/bad.dlg:2: error: PC line 2: response line 99 does not exist";
        QTest::newRow("archived wrong signature")
            << "archived wrong signature"
            << "arcanum2.dat/proto/wall_copy.pro:offset 0x0: error: wrong signature 1, expected 119";
        QTest::newRow("duplicate index") << "duplicate index"
                                         << "data/dlg/bad.dlg:3: error: PC line 2: line number 2 is used again \\(first "
                                            "on line 2\\)";
    }

    void checkFindsStructuralDefect_data()
    {
        QTest::addColumn<QString>("plant");
        QTest::addColumn<QString>("diagnostic");
        for (int size : {100, 150, 250})
            QTest::newRow(qPrintable(QStringLiteral("prototype cut to %1 bytes").arg(size)))
                << QStringLiteral("prototype cut to %1 bytes").arg(size)
                << QStringLiteral("data/proto/weapon_sword.pro:offset 0x%1: error: the file ends at byte %2, inside "
                                  "the data of its item type 5")
                       .arg(size, 0, 16)
                       .arg(size);
        QTest::newRow("bytes after the last frame")
            << "bytes after the last frame"
            << "data/art/sample_potion.art:offset 0x8a0: error: 10 bytes after the last frame, which ends at byte 2208 "
               "of 2218";
        QTest::newRow("NUL byte in a message file")
            << "NUL byte in a message file" << "data/mes/bad.mes:2: error: a NUL byte at offset 0xe: the game's text ends there";
        QTest::newRow("art saved as a message file")
            << "art saved as a message file"
            << "data/mes/beetle.mes:offset 0x0: error: this is an art file \\(it reads whole as art\\), not a message file";
        QTest::newRow("prototype saved as a script")
            << "prototype saved as a script"
            << "data/scr/00009wall.scr:offset 0x0: error: this is a prototype \\(signature 119 at offset 0\\), not a script";
        QTest::newRow("dialogue saved as a message file")
            << "dialogue saved as a message file"
            << "data/mes/table.mes:offset 0x0: error: this is a dialogue file \\(its first entry has 7 items\\), not a "
               "message file";
    }

    void checkFindsStructuralDefect() { checkFindsPlantedDefect(); }

    // Files named on their own are judged as inside the game, each with its own lines.
    void checkNamedFiles()
    {
        const QString copy = freshCopy(QStringLiteral("named_files"));
        plants().value(QStringLiteral("prototype cut to 100 bytes"))(copy);
        const Run run = loreka({"check", "data/proto/weapon_sword.pro", "data/mes/sample_items.mes"}, copy);
        QCOMPARE(run.code, 1);
        QCOMPARE(run.lines(), (QStringList{"data/proto/weapon_sword.pro:offset 0x64: error: the file ends at byte 100, "
                                           "inside the data of its item type 5",
                                           "2 files checked, 1 problem"}));
    }

    // Without --encoding a message file that is no valid UTF-8 is read in the game's code page; an
    // encoding asked for is the one its bytes must be valid in.
    void checkReadsMessagesInTheChosenEncoding()
    {
        const Run run = loreka({"check", "--encoding", "UTF-8", game});
        QCOMPARE(run.code, 1);
        const QString suggestion = QStringLiteral(
            "cannot be read in UTF-8 (first: line %1); the file reads cleanly in windows-1251, KOI8-R, windows-1252: "
            "pick one with --encoding, or --encoding auto");
        QCOMPARE(run.lines(), (QStringList{
            game + "/data/dlg/sample_dialogue.dlg:16: error: 50 characters " + suggestion.arg(16),
            game + "/data/mes/sample_russian.mes:1: error: 61 characters " + suggestion.arg(1),
            "22 files checked, 2 problems, 1 note"}));
    }

    // Bytes that mean nothing never pass, whatever the name says (the same bytes every run).
    void randomBytesNeverPass_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"mes/random.mes", "scr/00009random.scr", "art/random.art", "proto/random.pro",
                                 "art/random.aap", "dlg/random.dlg"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void randomBytesNeverPass()
    {
        QFETCH(QString, name);
        const QString copy = freshCopy(QStringLiteral("random_") + QFileInfo(name).suffix());
        QRandomGenerator random(18);
        QByteArray bytes(2000, Qt::Uninitialized);
        for (char& byte : bytes)
            byte = char(random.bounded(256));
        QVERIFY(FormatChecks::writeFile(copy + "/data/" + name, bytes));
        const Run run = loreka({"check"}, copy);
        QCOMPARE(run.code, 1);
        QVERIFY2(run.lines().first().startsWith("data/" + name + ':'), qPrintable(run.out));
    }

    void checkFindsPlantedDefect()
    {
        QFETCH(QString, plant);
        QFETCH(QString, diagnostic);
        const QString copy = freshCopy(QString::fromLatin1(QTest::currentDataTag()).replace(' ', '_'));
        plants().value(plant)(copy);
        const Run run = loreka({"check"}, copy);
        QCOMPARE(run.code, 1);
        const QStringList lines = run.lines();
        QVERIFY2(lines.size() == 2, qPrintable(run.out));
        QVERIFY2(QRegularExpression('^' + diagnostic + '$').match(lines.first()).hasMatch(), qPrintable(run.out));
        QVERIFY2(QRegularExpression("^\\d+ files checked, 1 problem, \\d+ notes?$").match(lines.last()).hasMatch(),
                 qPrintable(lines.last()));
    }

    // Dialogue lines as the game reads them: each planted line is an error with its file line, or a
    // form the game reads that only --notes lists. The lines sit after a greeting (line 1) whose
    // response 2 leads back to it.
    void checkJudgesDialoguesAsTheGame_data()
    {
        QTest::addColumn<QByteArray>("lines");
        QTest::addColumn<QString>("diagnostic");
        const auto error = [](const QString& message) { return QStringLiteral("data/dlg/bad.dlg:3: error: ") + message; };
        const auto note = [](const QString& message) { return QStringLiteral("data/dlg/bad.dlg:3: note: ") + message; };
        QTest::newRow("response to a PC response")
            << QByteArray("\t{3}{Hm}{}{1}{}{2}{}") << error("PC line 3: response line 2 is a PC response, not an NPC line");
        QTest::newRow("response to a missing line")
            << QByteArray("\t{3}{Hm}{}{1}{}{7}{}") << error("PC line 3: response line 7 does not exist");
        QTest::newRow("intelligence without a number")
            << QByteArray("\t{3}{Hm}{}{high}{}{1}{}")
            << error("PC line 3: intelligence 'high' has no number: the game stops reading the file here");
        QTest::newRow("# opening a response")
            << QByteArray("\t{3}{#Hm}{}{1}{}{1}{}") << error("PC line 3: a response must not start with '#'");
        QTest::newRow("unknown opcode")
            << QByteArray("\t{3}{Hm}{}{1}{zz 1}{1}{}") << error("PC line 3: opcode 'zz' is unknown");
        QTest::newRow("file breaks off inside an entry")
            << QByteArray("\t{3}{Hm}{}{1") << error("the file breaks off inside an entry \\(3 of its 7 items\\); it and "
                                                   "the rest of the file are kept as text");
        QTest::newRow("empty response")
            << QByteArray("\t{3}{Hm}{}{1}{}{}{}")
            << note("PC line 3: Response line is empty: the game reads it as 0, the end of the conversation");
        QTest::newRow("intelligence with more after its number")
            << QByteArray("\t{3}{Hm}{}{5, -17}{}{1}{}")
            << note("PC line 3: Intelligence requirements could not be parsed: the game reads '5, -17' as 5");
        QTest::newRow("no blank after a code")
            << QByteArray("\t{3}{Hm}{}{1}{gf1028 1}{1}{}")
            << note("PC line 3: no blank after opcode 'gf' in 'gf1028 1': the game takes its first two letters as "
                    "the code");
        QTest::newRow("line nothing leads to")
            << QByteArray("{3}{Hm}{}{}{}{}{}")
            << note("NPC line 3: nothing in the file leads here \\(a script may start the conversation here\\)");
    }

    void checkJudgesDialoguesAsTheGame()
    {
        QFETCH(QByteArray, lines);
        QFETCH(QString, diagnostic);
        const QString copy = freshCopy(QString::fromLatin1(QTest::currentDataTag()).replace(' ', '_'));
        QVERIFY(FormatChecks::writeFile(copy + "/data/dlg/bad.dlg",
                                        "{1}{Hi}{}{}{}{}{}\r\n\t{2}{Yes}{}{1}{}{1}{}\r\n" + lines + "\r\n"));
        const bool isNote = diagnostic.contains(QLatin1String(": note: "));
        const Run plain = loreka({"check"}, copy);
        QCOMPARE(plain.code, isNote ? 0 : 1);
        const Run withNotes = loreka({"check", "--notes"}, copy);
        QCOMPARE(withNotes.code, plain.code);
        const QStringList shown = (isNote ? withNotes : plain).lines().filter(QStringLiteral("bad.dlg"));
        QCOMPARE(shown.size(), 1);
        QVERIFY2(QRegularExpression('^' + diagnostic + '$').match(shown.first()).hasMatch(), qPrintable(shown.first()));
        // Notes never count as problems; the summary counts them apart.
        QVERIFY2(QRegularExpression(isNote ? "^\\d+ files checked, 0 problems, 2 notes$" : "^\\d+ files checked, 1 problem, 1 note$")
                     .match(plain.lines().last()).hasMatch(),
                 qPrintable(plain.out));
    }

    void checkLeavesOutIgnoredProblems()
    {
        const QString copy = freshCopy(QStringLiteral("ignore"));
        plants().value(QStringLiteral("invalid mes entry"))(copy);
        plants().value(QStringLiteral("wrong signature"))(copy);
        QVERIFY(FormatChecks::writeFile(copy + "/.lorekaignore",
                                        "# kept on purpose\ndata/mes/bad.mes:2\n\ndata/proto/wall_stone.pro\n"));
        const Run run = loreka({"check", copy});
        QCOMPARE(run.code, 0);
        QVERIFY2(QRegularExpression("^\\d+ files checked, 0 problems, 1 note \\(2 ignored\\)$").match(run.out.trimmed()).hasMatch(),
                 qPrintable(run.out));
    }

    void dumpJsonParses_data()
    {
        QTest::addColumn<QString>("file");
        for (const QString& path : sampleFiles({"*.mes", "*.dlg", "*.scr", "*.art", "*.pro", "*.aap"}))
            QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
    }

    void dumpJsonParses()
    {
        QFETCH(QString, file);
        const Run run = loreka({"dump", "--json", file});
        QCOMPARE(run.code, 0);
        QJsonParseError error;
        const QJsonDocument json = QJsonDocument::fromJson(run.out.toUtf8(), &error);
        QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(error.errorString()));
        QCOMPARE(json.object().value("file").toString(), file);
    }

    void dumpScriptReadsAsSentences()
    {
        const Run run = loreka({"dump", game + "/data/scr/00001gate_guard.scr"});
        QCOMPARE(run.code, 0);
        QVERIFY2(run.out.contains("- 0: IF local flag (Number 0) is set THEN return and RUN default ELSE set local flag "
                                  "(Number 0) to true"),
                 qPrintable(run.out));
        const QJsonObject json = QJsonDocument::fromJson(loreka({"dump", "--json", game + "/data/scr/00001gate_guard.scr"})
                                                             .out.toUtf8()).object();
        const QJsonObject condition = json["lines"][0]["statements"][0].toObject();
        QCOMPARE(condition["keyword"].toString(), QStringLiteral("IF"));
        QCOMPARE(condition["operands"][0]["type"].toString(), QStringLiteral("Number"));
    }

    void findPrintsRows_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("text, any case") << QStringList{"find", "rusty"} << 0
            << QStringList{"data/dlg/sample_dialogue.dlg:1: Welcome to the Rusty Cog, stranger. What will it be?",
                           "data/dlg/sample_dialogue.dlg:1: Welcome to the Rusty Cog, my lady. What will it be?",
                           "data/mes/sample_items.mes:3: Rusty dagger"};
        QTest::newRow("text, case must match") << QStringList{"find", "--case", "rusty"} << 1 << QStringList();
        QTest::newRow("regex inside an archive") << QStringList{"find", "--regex", "^Opened from"} << 0
            << QStringList{"arcanum1.dat/mes/archived_notes.mes:2: Opened from arcanum1.dat"};
        QTest::newRow("flag uses") << QStringList{"find", "--number", "12", "--as", "flag"} << 0
            << QStringList{"data/dlg/sample_dialogue.dlg:6: line 6, test gf 12 1",
                           "data/dlg/sample_dialogue.dlg:14: line 30, result gf 12 1",
                           "data/scr/00003quest_giver.scr:3: IF global flag (Global Flag 12) is set",
                           "data/scr/00003quest_giver.scr:3: ELSE set global flag (Number 12) to true"};
        QTest::newRow("script of a prototype") << QStringList{"find", "--number", "1530", "--as", "script"} << 0
            << QStringList{"data/proto/weapon_sword.pro:0: script point Wield on: script 1530"};
        QTest::newRow("unused number") << QStringList{"find", "--number", "999", "--as", "var"} << 1 << QStringList();
        QTest::newRow("number without kind") << QStringList{"find", "--number", "3"} << 2 << QStringList();
        QTest::newRow("bad regex") << QStringList{"find", "--regex", "(x"} << 2 << QStringList();
        QTest::newRow("unknown kind") << QStringList{"find", "--number", "3", "--as", "quest"} << 2 << QStringList();
        QTest::newRow("kind without number") << QStringList{"find", "x", "--as", "flag"} << 2 << QStringList();
    }

    void findPrintsRows()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QStringList, rows);
        // The game folder named, and taken from the working directory.
        for (const Run& run : {loreka(arguments + QStringList{game}), loreka(arguments, game)}) {
            QCOMPARE(run.code, code);
            QCOMPARE(run.lines(), rows);
            if (code == 2)
                QVERIFY(run.err.contains("loreka: find: "));
        }
    }

    // Every script of the sample game as text and back gives the same bytes, through both the
    // single-file and the whole-folder commands.
    void scriptDecompileCompileAll()
    {
        const QString scripts = game + "/data/scr";
        const QString text = scratch.filePath("script-text");
        const QString compiled = scratch.filePath("script-compiled");
        QCOMPARE(loreka({"script", "decompile-all", scripts, text}).code, 0);
        const Run all = loreka({"script", "compile-all", text, compiled});
        QCOMPARE(all.code, 0);
        QVERIFY2(all.out.contains("3 scripts compiled"), qPrintable(all.out));
        for (const QString& name : QDir(scripts).entryList({"*.scr"}, QDir::Files)) {
            QCOMPARE(FormatChecks::readFile(compiled + "/" + name), FormatChecks::readFile(scripts + "/" + name));
            QVERIFY(QFile::exists(text + "/" + name + ".txt"));
        }
        const Run single = loreka({"script", "decompile", scripts + "/00001gate_guard.scr"});
        QCOMPARE(single.code, 0);
        QVERIFY(single.out.startsWith("script 1 \"Gate guard"));
        const QString out = scratch.filePath("00001again.scr");
        const Run compiledOne = loreka({"script", "compile", text + "/00001gate_guard.scr.txt", "-o", out});
        QCOMPARE(compiledOne.code, 0);
        QCOMPARE(compiledOne.out.trimmed(), out + " written");
        const QString source = scratch.filePath("00001again.scr.txt");
        QCOMPARE(loreka({"script", "decompile", out, "-o", source}).out.trimmed(), source + " written");
        QCOMPARE(FormatChecks::readFile(out), FormatChecks::readFile(scripts + "/00001gate_guard.scr"));
    }

    void scriptCompileErrors_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("diagnostic");
        QTest::newRow("unknown statement") << QByteArray("script 7 \"x\"\nDO do nothin\n") << "00007x.scr"
                                           << "src.scr.txt:2:4: error: unknown action 'do nothin'; did you mean 'do nothing'?";
        QTest::newRow("undefined label") << QByteArray("DO goto line (Number end)\n") << "00007x.scr"
                                         << "src.scr.txt:1:22: error: label 'end' is not defined";
        QTest::newRow("number and file name differ") << QByteArray("script 8 \"x\"\n") << "00007x.scr"
                                                     << "src.scr.txt:1:8: error: the source is script 8 but 00007x.scr";
        QTest::newRow("file name without number") << QByteArray("DO do nothing\n") << "guard.scr"
                                                  << "guard.scr: error: a script's file name starts with its five-digit";
    }

    // A source with mistakes says where each one stands and writes nothing.
    void scriptCompileErrors()
    {
        QFETCH(QByteArray, source);
        QFETCH(QString, output);
        QFETCH(QString, diagnostic);
        const QString folder = scratch.filePath("compile-errors");
        QDir().mkpath(folder);
        QVERIFY(FormatChecks::writeFile(folder + "/src.scr.txt", source));
        const Run run = loreka({"script", "compile", "src.scr.txt", "-o", output}, folder);
        QCOMPARE(run.code, 1);
        QVERIFY2(run.err.contains(diagnostic), qPrintable(run.err));
        QVERIFY(!QFile::exists(folder + "/" + output));
    }

    void datPackListExtractVerify()
    {
        const QString archive = scratch.filePath("sample.dat");
        Run run = loreka({"dat", "pack", SAMPLE_GAME + "/data", archive});
        QCOMPARE(run.code, 0);
        QVERIFY(run.out.contains(QStringLiteral("files packed into")));
        run = loreka({"dat", "list", archive});
        QCOMPARE(run.code, 0);
        QVERIFY2(run.lines().contains(QRegularExpression(QStringLiteral("^mes/sample_items\\.mes\\t\\d+\\t\\d+\\tzlib$"))),
                 qPrintable(run.out));
        QVERIFY(!run.out.contains(QStringLiteral("mes\t0\t0"))); // folders are not listed
        run = loreka({"dat", "verify", archive});
        QCOMPARE(run.code, 0);
        const QString out = scratch.filePath("extracted");
        run = loreka({"dat", "extract", archive, out, "mes/*"});
        QCOMPARE(run.code, 0);
        QCOMPARE(FormatChecks::readFile(out + "/mes/sample_items.mes"),
                 FormatChecks::readFile(SAMPLE_GAME + "/data/mes/sample_items.mes"));
        QVERIFY(!QFile::exists(out + "/proto"));
    }

    void datExtractStaysInsideItsFolder()
    {
        // The writer refuses such names, so the archive's directory is patched: "..\xy.mes" for "mes\a.mes".
        const QString source = scratch.filePath("evil-source");
        QVERIFY(QDir().mkpath(source + "/mes"));
        QVERIFY(FormatChecks::writeFile(source + "/mes/a.mes", "{1}{a}\r\n"));
        QVERIFY(FormatChecks::writeFile(source + "/mes/b.mes", "{1}{b}\r\n"));
        const QString archive = scratch.filePath("evil.dat");
        QCOMPARE(loreka({"dat", "pack", source, archive}).code, 0);
        QByteArray bytes = FormatChecks::readFile(archive);
        const qsizetype at = bytes.indexOf(QByteArray("mes\\a.mes"));
        QVERIFY(at > 0);
        bytes.replace(at, 9, QByteArray("..\\xy.mes"));
        QVERIFY(FormatChecks::writeFile(archive, bytes));
        const QString out = scratch.filePath("inside/out");
        const Run run = loreka({"dat", "extract", archive, out});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.err.contains(QStringLiteral("../xy.mes: not extracted")), qPrintable(run.err));
        QVERIFY(!QFile::exists(scratch.filePath("inside/xy.mes")));
        QVERIFY(QFile::exists(out + "/mes/b.mes"));
    }

    void roundtripSampleBinariesAreIdentical()
    {
        const QStringList files = sampleFiles({"*.scr", "*.art", "*.aap", "*.pro"});
        QVERIFY(files.size() >= 10);
        const Run run = loreka(QStringList{"roundtrip"} + files);
        QCOMPARE(run.code, 0);
        QCOMPARE(run.lines().size(), files.size());
        for (const QString& line : run.lines())
            QVERIFY2(line.endsWith(QLatin1String(": identical")), qPrintable(line));
    }

    void roundtripReportsFirstDifference()
    {
        // Message files are written with Windows line ends, so a Unix one changes at its first line end.
        const QString unix = scratch.filePath("unix.mes");
        QVERIFY(FormatChecks::writeFile(unix, "{1}{a}\n{2}{b}\n"));
        const Run run = loreka({"roundtrip", game + "/data/proto/wall_stone.pro", unix});
        QCOMPARE(run.code, 1);
        QCOMPARE(run.lines(), QStringList({game + "/data/proto/wall_stone.pro: identical",
                                           unix + ": differs at offset 0x6 (14 bytes read, 16 written)",
                                           "  line 1 (line ends only: the format writes Windows line ends)",
                                           "  read:    {1}{a}", "  written: {1}{a}"}));
        QCOMPARE(loreka({"roundtrip", scratch.filePath("missing.pro")}).code, 2);
    }

    // A text file that changes says which line and whether only the format's own layout changed.
    void roundtripNamesTheRewrite_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("report");
        QTest::newRow("PC line without its tab")
            << "flat.dlg" << QByteArray("{1}{Hi}{}{}{}{}{}\r\n{2}{Yes}{}{1}{}{0}{}\r\n")
            << QStringList({"  line 2 (layout only: the format writes its own indentation (a PC line starts with a tab), "
                            "blank lines and line ends)",
                            "  read:    {2}{Yes}{}{1}{}{0}{}", "  written: \t{2}{Yes}{}{1}{}{0}{}"});
        QTest::newRow("bytes not in UTF-8")
            << "cp1251.mes" << QByteArray("{1}{\xcf\xf0\xe8}\r\n")
            << QStringList({"  line 1 (content changed)",
                            "  3 characters cannot be read in UTF-8 (first: line 1); the file reads cleanly in "
                            "windows-1251, KOI8-R, windows-1252: pick one with --encoding, or --encoding auto",
                            "  read:    {1}{\ufffd\ufffd\ufffd}", "  written: {1}{\ufffd\ufffd\ufffd}"});
    }

    void roundtripNamesTheRewrite()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, report);
        const QString path = scratch.filePath(name);
        QVERIFY(FormatChecks::writeFile(path, bytes));
        const Run run = loreka({"roundtrip", path});
        QCOMPARE(run.code, 1);
        QCOMPARE(run.lines().mid(1), report);
    }

    // --encoding auto reads each text file in its own encoding and says which; a named one is kept to.
    void encodingOption_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("expected"); // lines of the output, FILE for the file's path
        const QByteArray russian = QByteArrayLiteral("{1}{\xcf\xf0\xe8\xe2\xe5\xf2, \xef\xf3\xf2\xed\xe8\xea!}\r\n");
        const QByteArray koi8 = QByteArrayLiteral("{1}{\xf0\xd2\xc9\xd7\xc5\xd4, \xd0\xd5\xd4\xce\xc9\xcb!}\r\n");
        const QByteArray utf8 = QStringLiteral("{1}{Привет, путник!}\r\n").toUtf8();
        QTest::newRow("dump auto, Windows-1251")
            << QStringList{"dump", "--encoding", "auto", "FILE.mes"} << russian << 0
            << QStringList{"encoding: windows-1251 (guessed)", "file: FILE.mes", "header: ", "entries:", "  - Привет, путник!"};
        QTest::newRow("dump auto, KOI8-R")
            << QStringList{"dump", "--encoding", "auto", "FILE.mes"} << koi8 << 0
            << QStringList{"encoding: KOI8-R (guessed)", "file: FILE.mes", "header: ", "entries:", "  - Привет, путник!"};
        QTest::newRow("dump auto, UTF-8 dialogue")
            << QStringList{"dump", "--encoding", "auto", "FILE.dlg"}
            << QStringLiteral("{1}{Привет!}{}{}{}{}{}\r\n").toUtf8() << 0
            << QStringList{"encoding: UTF-8 (guessed)", "file: FILE.dlg", "NPC lines:", "  - Привет!"};
        QTest::newRow("dump of a dialogue in its default")
            << QStringList{"dump", "FILE.dlg"} << QByteArray("{1}{\xc4\xe0}{}{}{}{}{}\r\n") << 0
            << QStringList{"encoding: windows-1251", "file: FILE.dlg", "NPC lines:", "  - Да"};
        QTest::newRow("dump in a named encoding that does not read it")
            << QStringList{"dump", "--encoding", "UTF-8", "FILE.mes"} << russian << 0
            << QStringList{"encoding: UTF-8",
                           "unreadable: 12 characters cannot be read in UTF-8 (first: line 1); the file reads cleanly "
                           "in windows-1251, windows-949, GBK: pick one with --encoding, or --encoding auto"};
        QTest::newRow("roundtrip auto")
            << QStringList{"roundtrip", "--encoding", "auto", "FILE.mes"} << utf8 << 0
            << QStringList{"FILE.mes: identical, read as UTF-8 (guessed)"};
        QTest::newRow("roundtrip auto of a dialogue")
            << QStringList{"roundtrip", "--encoding", "auto", "FILE.dlg"}
            << QByteArray("{1}{\xc4\xe0}{}{}{}{}{}\r\n\r\n") << 0
            << QStringList{"FILE.dlg: identical, read as windows-1251 (guessed)"};
        QTest::newRow("check auto") << QStringList{"check", "--encoding", "auto", "GAME"} << russian << 0
                                    << QStringList{"1 file checked, 0 problems"};
        QTest::newRow("check in a named encoding")
            << QStringList{"check", "--encoding", "UTF-8", "GAME"} << russian << 1
            << QStringList{"FILE.mes:1: error: 12 characters cannot be read in UTF-8 (first: line 1); "
                           "the file reads cleanly in windows-1251, windows-949, GBK: pick one with --encoding, "
                           "or --encoding auto",
                           "1 file checked, 1 problem"};
        QTest::newRow("check without an encoding") << QStringList{"check", "GAME"} << russian << 0
                                                   << QStringList{"1 file checked, 0 problems"};
        QTest::newRow("find auto") << QStringList{"find", "путник", "GAME", "--encoding", "auto"} << russian << 0
                                   << QStringList{"data/mes/FILE.mes:1: Привет, путник!"};
        QTest::newRow("find in UTF-8") << QStringList{"find", "путник", "GAME"} << russian << 1 << QStringList();
        QTest::newRow("unknown encoding") << QStringList{"dump", "--encoding", "frob", "FILE.mes"} << utf8 << 2
                                          << QStringList();
    }

    void encodingOption()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, bytes);
        QFETCH(int, code);
        QFETCH(QStringList, expected);
        // A small game of one text file holding the bytes of the row (a message file for check).
        const QString base = scratch.filePath(QString::fromLatin1(QTest::currentDataTag()).replace(' ', '_'));
        const QString file = base + "/data/mes/FILE";
        QVERIFY(QDir().mkpath(base + "/data/mes"));
        const bool dialogue = arguments.contains(QStringLiteral("FILE.dlg"));
        QVERIFY(FormatChecks::writeFile(file + (dialogue ? ".dlg" : ".mes"), bytes));
        arguments.replaceInStrings(QStringLiteral("GAME"), base);
        arguments.replaceInStrings(QStringLiteral("FILE"), file);
        for (QString& line : expected) {
            line.replace(QRegularExpression(QStringLiteral("^(file: )?FILE")), QStringLiteral("\\1") + file);
        }
        const Run run = loreka(arguments, scratch.path());
        QCOMPARE(run.code, code);
        QCOMPARE(run.lines().mid(0, expected.size()), expected);
    }

    void exportWritesEveryFrame_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QSize>("size");
        QStringList frames;
        for (int i = 0; i < 8; ++i) {
            for (int f = 0; f < 4; ++f)
                frames << QStringLiteral("sample_beetle_i%1_f%2.png").arg(i).arg(f);
        }
        QTest::newRow("frames") << QStringList() << frames << QSize(48, 48);
        QTest::newRow("bmp frames of palette 1") << QStringList{"--palette", "1", "--format", "bmp"}
                                                 << frames.replaceInStrings(".png", ".bmp") << QSize(48, 48);
        QTest::newRow("sheets") << QStringList{"--sheet"}
                                << QStringList{"sample_beetle_p0.png", "sample_beetle_p1.png"} << QSize(4 * 48, 8 * 48);
        QTest::newRow("sheet of palette 1") << QStringList{"--sheet", "--palette", "1"}
                                            << QStringList{"sample_beetle_p1.png"} << QSize(4 * 48, 8 * 48);
    }

    void exportWritesEveryFrame()
    {
        QFETCH(QStringList, options);
        QFETCH(QStringList, files);
        QFETCH(QSize, size);
        const QString out = scratch.filePath(QStringLiteral("export_") + QTest::currentDataTag());
        const Run run = loreka(QStringList{"export", game + "/data/art/sample_beetle.art", out} + options);
        QCOMPARE(run.code, 0);
        QStringList written = QDir(out).entryList(QDir::Files);
        written.sort();
        files.sort();
        QCOMPARE(written, files);
        for (const QString& file : files)
            QCOMPARE(QImage(QDir(out).filePath(file)).size(), size);
        // It says what it wrote.
        QCOMPARE(run.out.trimmed(), QStringLiteral("%1 %2 written to %3")
                                        .arg(files.size())
                                        .arg(files.size() == 1 ? "file" : "files")
                                        .arg(QDir(out).absolutePath()));
    }

    // Members come in the order of the file's fields, message texts without their braces, and an
    // entry that cannot be read as the line it stands on.
    void dumpJsonFollowsTheFile_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QStringList>("excerpts");
        QTest::newRow("PC line") << "order.dlg" << QByteArray("\t{2}{Yes}{1}{5}{gf 1 1}{10}{co}\r\n")
                                 << QStringList{"index", "text", "gender", "intelligence", "tests", "response line",
                                                "results", "file line"}
                                 << QStringList{"\"text\": \"Yes\""};
        QTest::newRow("message entries")
            << "order.mes" << QByteArray("{1}{ok} // why\r\n{2}{broken\r\n")
            << QStringList{"index", "text", "comment", "file line", "index", "text", "file line", "error"}
            << QStringList{"\"text\": \"ok\"", "\"comment\": \" // why\"", "\"text\": \"{2}{broken\""};
    }

    void dumpJsonFollowsTheFile()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, keys);
        QFETCH(QStringList, excerpts);
        const QString path = scratch.filePath(file);
        QVERIFY(FormatChecks::writeFile(path, bytes));
        const Run run = loreka({"dump", "--json", path});
        QCOMPARE(run.code, 0);
        QVERIFY(!QJsonDocument::fromJson(run.out.toUtf8()).isNull());
        // The keys inside the entry objects (indented three levels), in the order printed.
        QStringList printed;
        const QRegularExpression key(QStringLiteral("^            \"([^\"]+)\":"), QRegularExpression::MultilineOption);
        for (auto it = key.globalMatch(run.out); it.hasNext();)
            printed << it.next().captured(1);
        QCOMPARE(printed, keys);
        for (const QString& excerpt : excerpts)
            QVERIFY2(run.out.contains(excerpt), qPrintable(run.out));
    }

    void artExportImportIsLossless_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QString>("art");
        QTest::addColumn<int>("pngs");
        QTest::newRow("frames") << QStringList() << "sample_beetle.art" << 32;
        QTest::newRow("sheet of palette 1") << QStringList{"--sheet", "--palette", "1"} << "sample_beetle.art" << 1;
        QTest::newRow("raw icon") << QStringList() << "sample_potion.art" << 1;
    }

    void artExportImportIsLossless()
    {
        QFETCH(QStringList, options);
        QFETCH(QString, art);
        QFETCH(int, pngs);
        const QString original = game + "/data/art/" + art;
        const QString dir = scratch.filePath(QStringLiteral("art_export_") + QTest::currentDataTag());
        Run run = loreka(QStringList{"art", "export", original, dir} + options);
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out.trimmed(), "art folder written to " + QDir(dir).absolutePath());
        QCOMPARE(QDir(dir).entryList({"*.png"}, QDir::Files).size(), pngs);
        QCOMPARE(QDir(dir).entryList({"*.json"}, QDir::Files).size(), 1);
        const QString back = dir + ".art";
        run = loreka({"art", "import", dir, back});
        QCOMPARE(run.code, 0);
        QVERIFY2(run.out.startsWith(back + " written: "), qPrintable(run.out));
        QCOMPARE(FormatChecks::readFile(back), FormatChecks::readFile(original));
    }

    void artInfoListsFrames()
    {
        const Run run = loreka({"art", "info", game + "/data/art/sample_beetle.art"});
        QCOMPARE(run.code, 0);
        const QStringList lines = run.lines();
        QCOMPARE(lines.size(), 3 + 8 * 4);
        QVERIFY(lines.at(0).endsWith(QStringLiteral(": 8 directions of 4 frames, 2 palettes")));
        QCOMPARE(lines.at(1), QStringLiteral("frame rate: 8 frames per second"));
        QCOMPARE(lines.at(2), QStringLiteral("action frame: 2"));
        QVERIFY2(QRegularExpression("^direction 7 frame 3: 48x48, hotspot 24,40, offset 0,0, run-length \\d+ bytes$")
                     .match(lines.last()).hasMatch(),
                 qPrintable(lines.last()));
    }

    void artFromImages()
    {
        const QString dir = scratch.filePath(QStringLiteral("from_images"));
        QVERIFY(QDir().mkpath(dir + "/walk"));
        QStringList frames;
        for (int f = 0; f < 3; ++f) {
            QImage image(10 + f, 12, QImage::Format_ARGB32);
            image.fill(Qt::transparent);
            for (int x = 2; x < 8; ++x)
                image.setPixel(x, 5 + f, qRgb(40 * f, 200, 255 - 30 * x));
            QVERIFY(image.save(QStringLiteral("%1/walk/%2.png").arg(dir).arg(f)));
            frames << QStringLiteral("%1/walk/%2.png").arg(dir).arg(f);
        }
        Run run = loreka({"art", "from-images", frames.at(0), frames.at(2), dir + "/icons.art", "--fps", "7",
                          "--hotspot", "4,-1", "--action", "1"});
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out.trimmed(), dir + "/icons.art written: 2 images of 1 frame");
        run = loreka({"art", "info", dir + "/icons.art"});
        QCOMPARE(run.lines().mid(0, 4),
                 (QStringList{dir + "/icons.art: 2 images of 1 frame, 1 palette", "frame rate: 7 frames per second",
                              "action frame: 1", "image 0 frame 0: 10x12, hotspot 4,-1, offset 0,0, run-length 11 bytes"}));
        QStringList directions(8, dir + "/walk");
        run = loreka(QStringList{"art", "from-images"} + directions
                     + QStringList{dir + "/walk.art", "--dither", "--from", game + "/data/art/sample_beetle.art"});
        QCOMPARE(run.code, 0);
        run = loreka({"art", "info", dir + "/walk.art"});
        QVERIFY2(run.out.contains("8 directions of 3 frames") && run.out.contains("direction 3 frame 2: 12x12, hotspot 6,11"),
                 qPrintable(run.out));
        QCOMPARE(FormatChecks::readFile(dir + "/walk.art").mid(132, 1024),
                 FormatChecks::readFile(game + "/data/art/sample_beetle.art").mid(132, 1024));
    }

    void artRefusesBadInput_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("message");
        const QString in = scratch.filePath(QStringLiteral("bad_inputs"));
        QTest::newRow("image too large") << QStringList{"art", "from-images", in + "/huge.png", in + "/out.art"}
                                         << in + "/huge.png: error: 70000 × 2 pixels is larger than a frame can hold";
        QTest::newRow("empty folder to import") << QStringList{"art", "import", in + "/empty", in + "/out.art"}
                                                << in + "/empty: error: the folder is empty";
        QTest::newRow("empty folder of frames") << QStringList{"art", "from-images", in + "/empty", in + "/out.art"}
                                                << in + "/empty: error: the folder holds no images";
        QTest::newRow("sheet off its grid") << QStringList{"art", "import", in + "/sheet", in + "/out.art"}
                                            << in + "/sheet/sample_beetle_p0.png: error: 191 × 384 pixels is not a grid";
        QTest::newRow("JSON naming a missing PNG") << QStringList{"art", "import", in + "/frames", in + "/out.art"}
                                                   << in + "/frames/sample_beetle_i2_f1.png: error: missing, "
                                                          + in + "/frames/sample_beetle.json names it";
        QTest::newRow("palette file not 1024 bytes")
            << QStringList{"art", "from-images", in + "/ball.png", in + "/out.art", "--palette", in + "/short.aap"}
            << in + "/short.aap: error: a palette file is 1024 bytes long, this one 1000";
        QTest::newRow("unknown art command") << QStringList{"art", "frob"} << "art takes export, import, from-images or info";
        QTest::newRow("bad hotspot") << QStringList{"art", "from-images", in + "/ball.png", in + "/out.art", "--hotspot", "3"}
                                     << "--hotspot takes X,Y";
        QTest::newRow("not an art name") << QStringList{"art", "from-images", in + "/ball.png", in + "/out.png"}
                                         << in + "/out.png: error: the new art file's name must end in .art";
    }

    void artRefusesBadInput()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, message);
        const QString in = scratch.filePath(QStringLiteral("bad_inputs"));
        if (!QFileInfo::exists(in)) {
            QVERIFY(QDir().mkpath(in + "/empty"));
            QVERIFY(FormatChecks::writeFile(in + "/huge.png", FormatChecks::pngHeaderOnly(70000, 2)));
            QVERIFY(FormatChecks::writeFile(in + "/short.aap", QByteArray(1000, '\1')));
            QImage ball(8, 8, QImage::Format_RGB32);
            ball.fill(Qt::green);
            QVERIFY(ball.save(in + "/ball.png"));
            const QString beetle = game + "/data/art/sample_beetle.art";
            QCOMPARE(loreka({"art", "export", beetle, in + "/frames"}).code, 0);
            QVERIFY(QFile::remove(in + "/frames/sample_beetle_i2_f1.png"));
            QCOMPARE(loreka({"art", "export", "--sheet", beetle, in + "/sheet"}).code, 0);
            const QString sheet = in + "/sheet/sample_beetle_p0.png";
            QVERIFY(QImage(sheet).copy(0, 0, 191, 384).save(sheet));
        }
        const Run run = loreka(arguments);
        QCOMPARE(run.code, 2);
        QVERIFY2(run.err.contains(message), qPrintable(run.err));
        QVERIFY(!QFileInfo::exists(in + "/out.art"));
        QVERIFY(!QFileInfo::exists(in + "/out.png"));
    }
};

QTEST_GUILESS_MAIN(TestCli)
#include "tst_cli.moc"
