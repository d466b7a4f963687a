// The bundled sample game is exactly what the project's own writers produce.
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
    void bundledGameMatchesWriters()
    {
        QTemporaryDir generated;
        QVERIFY(generated.isValid());
        QVERIFY(SampleRegistry::writeAll(QDir(generated.path())));

        const QString bundled = QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game");
        const QStringList made = filesBelow(generated.path() + QStringLiteral("/data"));
        QCOMPARE(filesBelow(bundled + QStringLiteral("/data")), made);
        for (const QString& name : made) {
            QFile a(generated.path() + QStringLiteral("/data/") + name);
            QFile b(bundled + QStringLiteral("/data/") + name);
            QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
            QVERIFY2(a.readAll() == b.readAll(), qPrintable(name + QStringLiteral(" differs; run `make samples`")));
        }
    }
};

QTEST_GUILESS_MAIN(TestSamples)
#include "tst_samples.moc"
