// The bundled sample game is exactly what the project's own writers produce.
#include "FormatChecks.h"
#include "FormatRegistry.h"
#include "SampleRegistry.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTextCodec>
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

    // What the editor, loreka and the fuzzers share: each sample file, read from bytes through the
    // registry, writes back byte for byte.
    void everySampleRewritesToItself_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("exact");
        const QString root = QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game/data");
        // The table sample is written by the message table, without the tab the dialogue writer
        // always puts before a PC response.
        for (const QString& name : filesBelow(root))
            QTest::newRow(qPrintable(name)) << root + '/' + name << !name.endsWith(QLatin1String("sample_table.dlg"));
    }

    void everySampleRewritesToItself()
    {
        QFETCH(QString, path);
        QFETCH(bool, exact);
        const arcanum::FileFormat* format = arcanum::FormatRegistry::byPath(path.toUpper());
        QVERIFY(format && format->rewrite);
        const QByteArray bytes = FormatChecks::readFile(path);
        QByteArray written;
        QString error;
        // A single-byte code page keeps any bytes, whatever the file's language.
        QTextCodec* codec = QTextCodec::codecForName("Windows-1251");
        QVERIFY2(format->rewrite(path, bytes, codec, written, error), qPrintable(error));
        if (exact) {
            QCOMPARE(written, bytes);
        } else {
            QByteArray again;
            QVERIFY(format->rewrite(path, written, codec, again, error));
            QCOMPARE(again, written);
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
