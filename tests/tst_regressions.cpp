// Inputs that once crashed, hung or corrupted a reader, replayed through the fuzzers' own load, save and
// load, plus damaged copies of the sample game's files made here.
#include "DialogueCheck.h"
#include "FileSignature.h"
#include "FormatChecks.h"
#include "FormatRegistry.h"
#include "FuzzTargets.h"
#include "TextDecoding.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTextCodec>
#include <QtTest>

#include <iostream>
#include <vector>

namespace {

QString regressionDir(const char* kind)
{
    return QStringLiteral(LOREKA_SOURCE_DIR "/tests/data/regressions/") + QLatin1String(kind);
}

// The sample game's files a kind reads, found by suffix.
QStringList sampleFiles(const char* suffix)
{
    QStringList found;
    // Archives lie in the game folder itself, beside data/.
    const QDir game(QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game"));
    for (const QString& name : game.entryList({QLatin1Char('*') + QLatin1String(suffix)}, QDir::Files, QDir::Name))
        found << game.filePath(name);
    const QDir data(QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game/data"));
    for (const QString& folder : data.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QDir dir(data.filePath(folder));
        for (const QString& name : dir.entryList({QLatin1Char('*') + QLatin1String(suffix)}, QDir::Files, QDir::Name))
            found << dir.filePath(name);
    }
    return found;
}

std::vector<fuzz::Target> allTargets()
{
    std::size_t count = 0;
    const fuzz::Target* targets = fuzz::targets(&count);
    return std::vector<fuzz::Target>(targets, targets + count);
}

int replay(const fuzz::Target& target, const QByteArray& bytes)
{
    return target.run(reinterpret_cast<const std::uint8_t*>(bytes.constData()), std::size_t(bytes.size()));
}

// A copy cut short at a random place and with a few random bytes changed.
QByteArray damaged(const QByteArray& bytes, QRandomGenerator& random)
{
    QByteArray out = random.bounded(2) == 0 ? bytes.left(random.bounded(int(bytes.size()) + 1)) : bytes;
    const int changes = random.bounded(1, 9);
    for (int i = 0; i < changes && !out.isEmpty(); ++i)
        out[random.bounded(int(out.size()))] = char(random.bounded(256));
    return out;
}

// What `loreka check` does with a file's bytes, in this process: the content's signature, the
// kind's reader, a dialogue's check as the game reads it, the text's encoding.
void check(const arcanum::FileFormat& format, const QByteArray& bytes)
{
    QTextCodec* codec = format.text ? QTextCodec::codecForName("Windows-1251") : nullptr;
    arcanum::FileSignature::sniff(bytes, format.kind);
    QByteArray rewritten;
    QString error;
    format.rewrite(QStringLiteral("00001damaged.") + format.name, bytes, codec, rewritten, error);
    if (format.kind == arcanum::FileFormat::Kind::Dialogue) {
        arcanum::DialogueFileNew dialogue;
        dialogue.readBytes(bytes);
        const arcanum::DialogueCheck findings(dialogue);
        QVERIFY(findings.count(arcanum::DialogueCheck::Severity::Error) >= 0);
    }
    if (codec)
        arcanum::TextDecoding::lossyLines(codec, bytes);
}

} // namespace

class RegressionTest : public QObject
{
    Q_OBJECT

private slots:
    void everyKindHasInputs_data();
    void everyKindHasInputs();
    void replayFile_data();
    void replayFile();
    void damagedSample_data();
    void damagedSample();
    void checkOfTenThousandDamagedFiles();
};

void RegressionTest::everyKindHasInputs_data()
{
    QTest::addColumn<QString>("dir");
    for (const fuzz::Target& target : allTargets())
        QTest::newRow(target.kind) << regressionDir(target.kind);
}

void RegressionTest::everyKindHasInputs()
{
    QFETCH(QString, dir);
    QVERIFY2(!QDir(dir).entryList(QDir::Files).isEmpty(), qPrintable(dir));
}

void RegressionTest::replayFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("path");
    for (const fuzz::Target& target : allTargets()) {
        const QDir dir(regressionDir(target.kind));
        for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
            const QString row = QLatin1String(target.kind) + QLatin1Char('/') + name;
            QTest::newRow(qPrintable(row)) << QString::fromLatin1(target.kind) << dir.filePath(name);
        }
    }
}

void RegressionTest::replayFile()
{
    QFETCH(QString, kind);
    QFETCH(QString, path);
    const fuzz::Target* target = fuzz::findTarget(qPrintable(kind));
    QVERIFY(target);
    QCOMPARE(replay(*target, FormatChecks::readFile(path)), 0);
}

// Every sample file cut short at a few places and with a few bytes overwritten: damage of the kind a
// half-written or badly patched file shows.
void RegressionTest::damagedSample_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("bytes");
    for (const fuzz::Target& target : allTargets()) {
        const QString kind = QString::fromLatin1(target.kind);
        for (const QString& path : sampleFiles(target.suffix)) {
            const QByteArray bytes = FormatChecks::readFile(path);
            const QString name = kind + QLatin1Char('/') + QFileInfo(path).fileName();
            for (int cut : {1, 2, 3}) {
                const qsizetype length = bytes.size() * cut / 4;
                QTest::newRow(qPrintable(name + QStringLiteral(" cut at %1").arg(length))) << kind << bytes.left(length);
            }
            for (unsigned seed = 1; seed <= 4; ++seed)
                QTest::newRow(qPrintable(name + QStringLiteral(" damaged %1").arg(seed)))
                    << kind << FormatChecks::corrupt(bytes, seed);
        }
    }
}

void RegressionTest::damagedSample()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, bytes);
    const fuzz::Target* target = fuzz::findTarget(qPrintable(kind));
    QVERIFY(target);
    QCOMPARE(replay(*target, bytes), 0);
}

// Ten thousand damaged copies of the sample game's files, checked in this process: under the
// sanitizers nothing may read out of bounds, leak or crash.
void RegressionTest::checkOfTenThousandDamagedFiles()
{
    QList<QPair<const arcanum::FileFormat*, QByteArray>> samples;
    for (const arcanum::FileFormat& format : arcanum::FormatRegistry::formats()) {
        if (format.rewrite == nullptr)
            continue;
        for (const QString& suffix : format.suffixes)
            for (const QString& path : sampleFiles(qPrintable(QLatin1Char('.') + suffix)))
                samples.append({&format, FormatChecks::readFile(path)});
    }
    QVERIFY(!samples.isEmpty());
    QtMessageHandler quiet = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    std::streambuf* chatter = std::cout.rdbuf(nullptr);
    QRandomGenerator random(1812);
    constexpr int FILES = 10000;
    for (int done = 0; done < FILES; ++done) {
        const auto& [format, bytes] = samples.at(done % samples.size());
        check(*format, damaged(bytes, random));
    }
    std::cout.rdbuf(chatter);
    qInstallMessageHandler(quiet);
}

QTEST_GUILESS_MAIN(RegressionTest)
#include "tst_regressions.moc"
