// The bundled sample game is exactly what the project's own writers produce.
#include "FormatChecks.h"
#include "SampleRegistry.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QtTest>

class TestSamples : public QObject
{
    Q_OBJECT

private:
    static QStringList filesBelow(const QString& root)
    {
        QStringList files;
        QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            files << QDir(root).relativeFilePath(it.next());
        files.sort();
        return files;
    }

private slots:
    void bundledGameMatchesWriters_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("data") << QStringLiteral("/data");
        QTest::newRow("damaged") << QStringLiteral("/damaged");
    }

    void bundledGameMatchesWriters()
    {
        QFETCH(QString, folder);
        QTemporaryDir generated;
        QVERIFY(generated.isValid());
        QVERIFY(SampleRegistry::writeAll(QDir(generated.path())));

        const QString bundled = QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game") + folder;
        const QString made = generated.path() + folder;
        const QStringList names = filesBelow(made);
        QVERIFY(!names.isEmpty());
        QCOMPARE(filesBelow(bundled), names);
        for (const QString& name : names) {
            QVERIFY2(FormatChecks::readFile(made + '/' + name) == FormatChecks::readFile(bundled + '/' + name),
                     qPrintable(name + QStringLiteral(" differs; run `make samples`")));
        }
    }

    void bundledArchiveMatchesWriter()
    {
        QTemporaryDir generated;
        QVERIFY(SampleRegistry::writeAll(QDir(generated.path())));
        const QByteArray archive = FormatChecks::readFile(generated.filePath(QStringLiteral("arcanum1.dat")));
        QVERIFY(!archive.isEmpty());
        QCOMPARE(FormatChecks::readFile(QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game/arcanum1.dat")), archive);
    }
};

QTEST_GUILESS_MAIN(TestSamples)
#include "tst_samples.moc"
