// Inputs that once crashed, hung or corrupted a reader, replayed through the fuzzers' own load, save and
// load, plus damaged copies of the sample game's files made here.
#include "FormatChecks.h"
#include "FuzzTargets.h"

#include <QDir>
#include <QtTest>

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

QTEST_GUILESS_MAIN(RegressionTest)
#include "tst_regressions.moc"
