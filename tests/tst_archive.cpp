// Game archives: our writer read back by our reader, archives built byte by byte with zlib's own streams,
// and every kind of damage the reader must refuse with a reason instead of trusting.
#include "DatArchive.h"
#include "DatWriter.h"
#include "Deflate.h"
#include "GameView.h"
#include "FormatChecks.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <zlib.h>

using arcanum::DatArchive;
using arcanum::DatWriter;

namespace {

void put(QByteArray& out, quint32 value)
{
    char bytes[4];
    qToLittleEndian(value, bytes);
    out.append(bytes, 4);
}

QByteArray zlibStream(const QByteArray& bytes)
{
    uLongf size = compressBound(uLong(bytes.size()));
    QByteArray out(qsizetype(size), '\0');
    compress2(reinterpret_cast<Bytef*>(out.data()), &size, reinterpret_cast<const Bytef*>(bytes.constData()),
              uLong(bytes.size()), Z_BEST_COMPRESSION);
    out.resize(qsizetype(size));
    return out;
}

// An archive laid out field by field, as the format describes it, independent of our writer.
struct Handmade
{
    struct Item
    {
        QByteArray name; // without the NUL
        quint32 flags;
        quint32 size;
        quint32 packed;
        quint32 offset;
    };
    QByteArray data;
    QList<Item> items;
    bool oldTrailer = false;

    void file(const QByteArray& name, const QByteArray& bytes, bool compressed)
    {
        const QByteArray stored = compressed ? zlibStream(bytes) : bytes;
        items.append({name, compressed ? 2u : 1u, quint32(bytes.size()), quint32(stored.size()), quint32(data.size())});
        data.append(stored);
    }
    QByteArray bytes() const
    {
        QByteArray out = data;
        put(out, quint32(out.size() + 4));
        QByteArray directory;
        put(directory, quint32(items.size()));
        quint32 names = 0;
        for (const Item& item : items) {
            put(directory, quint32(item.name.size() + 1));
            directory.append(item.name + '\0');
            put(directory, 0xDEADBEEF); // the word without meaning
            put(directory, item.flags);
            put(directory, item.size);
            put(directory, item.packed);
            put(directory, item.offset);
            names += quint32(item.name.size() + 1);
        }
        if (!oldTrailer)
            directory.append(QByteArray(16, 'i'));
        directory.append(oldTrailer ? " TAD" : "1TAD");
        put(directory, names);
        put(directory, quint32(directory.size() + 4));
        return out + directory;
    }
};

} // namespace

class TestArchive : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir;

    QString write(const QString& name, const QByteArray& bytes)
    {
        const QString path = dir.filePath(name);
        FormatChecks::writeFile(path, bytes);
        return path;
    }

private slots:
    void writerRoundTrip()
    {
        const QByteArray text = QByteArray("{100}{Rusty dagger}\r\n").repeated(50);
        QByteArray noise(300, '\0');
        QRandomGenerator random(42);
        for (char& byte : noise)
            byte = char(random.generate());
        const QString path = dir.filePath(QStringLiteral("written.dat"));
        QString error;
        QVERIFY2(DatWriter::write(path, {{QStringLiteral("mes/Items.MES"), text}, {QStringLiteral("art/item/b.art"), noise},
                                         {QStringLiteral("art/Item/a.art"), QByteArray()}},
                                  error),
                 qPrintable(error));
        DatArchive archive;
        QVERIFY2(archive.open(path, error), qPrintable(error));
        QStringList names;
        for (const DatArchive::Entry& entry : archive.entries())
            names << entry.name + (entry.isFolder() ? QStringLiteral("/") : QString());
        // Sorted by lower-cased name, "\" included, with a folder entry for every folder.
        QCOMPARE(names, QStringList({"art/", "art\\Item/", "art\\Item\\a.art", "art\\item\\b.art", "mes/",
                                     "mes\\Items.MES"}));
        QByteArray bytes;
        QVERIFY(archive.read(archive.entries().at(archive.find(QStringLiteral("MES/items.mes"))), bytes, error));
        QCOMPARE(bytes, text);
        const DatArchive::Entry& packed = archive.entries().at(archive.find(QStringLiteral("mes/items.mes")));
        QVERIFY(packed.isCompressed());
        QVERIFY(packed.packedSize < packed.size);
        const DatArchive::Entry& stored = archive.entries().at(archive.find(QStringLiteral("art/item/b.art")));
        QCOMPARE(stored.flags, quint32(DatArchive::Stored)); // noise does not shrink
        QVERIFY(archive.read(stored, bytes, error));
        QCOMPARE(bytes, noise);
        QVERIFY(archive.verify().isEmpty());
    }

    void readsAnotherImplementationsStreams_data()
    {
        QTest::addColumn<bool>("oldTrailer");
        QTest::newRow("current trailer") << false;
        QTest::newRow("old trailer") << true;
    }

    void readsAnotherImplementationsStreams()
    {
        QFETCH(bool, oldTrailer);
        Handmade made;
        made.oldTrailer = oldTrailer;
        const QByteArray text = QByteArray("Hello there, traveller. ").repeated(40);
        made.file("dlg\\Hello.dlg", text, true);
        made.file("mes\\a.mes", "{1}{x}\r\n", false);
        DatArchive archive;
        QString error;
        QVERIFY2(archive.open(write(QStringLiteral("made.dat"), made.bytes()), error), qPrintable(error));
        QCOMPARE(archive.entries().size(), 2);
        QByteArray bytes;
        QVERIFY2(archive.read(archive.entries().at(0), bytes, error), qPrintable(error));
        QCOMPARE(bytes, text);
        QVERIFY(archive.read(archive.entries().at(1), bytes, error));
        QCOMPARE(bytes, QByteArray("{1}{x}\r\n"));
    }

    void refusedArchives_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        Handmade good;
        good.file("a.mes", "{1}{x}\r\n", false);
        const QByteArray sound = good.bytes();
        QTest::newRow("not an archive") << QByteArray("{1}{x}\r\n{2}{y}\r\n") << "does not end in an archive trailer";
        QTest::newRow("too short") << QByteArray("1TAD") << "too few for its trailer";
        QByteArray huge = sound;
        qToLittleEndian<quint32>(0x7fffffff, huge.data() + huge.size() - 4);
        QTest::newRow("directory larger than the file") << huge << "does not fit";
        Handmade counted = good;
        QByteArray manyEntries = counted.bytes();
        qToLittleEndian<quint32>(1000000, manyEntries.data() + good.data.size() + 4);
        QTest::newRow("count past the directory") << manyEntries << "more than its";
        QByteArray longName = sound;
        qToLittleEndian<quint32>(5000, longName.data() + good.data.size() + 8);
        QTest::newRow("name past the directory") << longName << "runs past the directory's end";
    }

    void refusedArchives()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        DatArchive archive;
        QString error;
        QVERIFY(!archive.open(write(QStringLiteral("bad.dat"), bytes), error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QVERIFY(archive.entries().isEmpty());
    }

    void damagedEntries_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("damage");
        QTest::addColumn<QString>("problem");
        QTest::newRow("outside the file") << QByteArray("a.mes") << 1 << "lies outside the archive's data";
        QTest::newRow("corrupt stream") << QByteArray("a.mes") << 2 << "damaged or does not inflate";
        QTest::newRow("inflates short") << QByteArray("a.mes") << 3 << "does not inflate to its";
        QTest::newRow("huge size") << QByteArray("a.mes") << 4 << "more than a zlib stream can hold";
        QTest::newRow("dot dot") << QByteArray("..\\evil.txt") << 0 << "leads out of the folder";
        QTest::newRow("absolute") << QByteArray("\\etc\\passwd") << 0 << "an absolute path";
        QTest::newRow("drive letter") << QByteArray("C:\\x.txt") << 0 << "a drive letter";
        QTest::newRow("NUL inside") << QByteArray("a\0b.mes", 7) << 0 << "a NUL";
        QTest::newRow("duplicate") << QByteArray("a.mes") << 5 << "used again";
    }

    void damagedEntries()
    {
        QFETCH(QByteArray, name);
        QFETCH(int, damage);
        QFETCH(QString, problem);
        Handmade made;
        made.file(name, QByteArray("Some text that packs well. ").repeated(20), true);
        Handmade::Item& item = made.items.first();
        if (damage == 1)
            item.offset = 100000;
        if (damage == 2)
            made.data[8] = char(made.data[8] ^ 0x5a);
        if (damage == 3)
            item.size += 10;
        if (damage == 4)
            item.size = 0xF0000000;
        if (damage == 5)
            made.items.append(made.items.first());
        DatArchive archive;
        QString error;
        QVERIFY2(archive.open(write(QStringLiteral("damaged.dat"), made.bytes()), error), qPrintable(error));
        const QString all = archive.verify().join(QLatin1Char('\n'));
        QVERIFY2(all.contains(problem), qPrintable(all));
        QVERIFY(all.contains(QStringLiteral("damaged.dat/")));
    }

    void gameViewLayersAsTheEngine()
    {
        const QString game = dir.filePath(QStringLiteral("game"));
        const auto pack = [&](const QString& name, QVector<DatWriter::File> files) {
            QString error;
            QVERIFY2(DatWriter::write(game + QLatin1Char('/') + name, files, error), qPrintable(error));
        };
        QVERIFY(QDir().mkpath(game + QStringLiteral("/modules/Arcanum/art")));
        QVERIFY(QDir().mkpath(game + QStringLiteral("/data/mes")));
        pack(QStringLiteral("tig.dat"), {{QStringLiteral("mes/x.mes"), "tig"}, {QStringLiteral("mes/hidden.mes"), "h"}});
        pack(QStringLiteral("arcanum10.dat"), {{QStringLiteral("mes/order.mes"), "ten"}});
        pack(QStringLiteral("arcanum2.dat"), {{QStringLiteral("mes/order.mes"), "two"}, {QStringLiteral("art/b.art"), "2"}});
        pack(QStringLiteral("modules/Arcanum.dat"), {{QStringLiteral("proto/c.pro"), "module"}});
        pack(QStringLiteral("modules/Arcanum.patch0"), {{QStringLiteral("proto/c.pro"), "patch"}});
        QVERIFY(FormatChecks::writeFile(game + QStringLiteral("/data/mes/X.mes"), "loose"));
        QVERIFY(FormatChecks::writeFile(game + QStringLiteral("/modules/Arcanum/art/b.art"), "module loose"));
        QVERIFY(FormatChecks::writeFile(game + QStringLiteral("/tig.dat.ignore"), "mes\\hidden.mes\n"));
        QVERIFY(FormatChecks::writeFile(game + QStringLiteral("/arcanum1.dat"), "not an archive"));

        arcanum::GameView view;
        view.build(game);
        QStringList layers;
        for (const arcanum::GameView::Layer& layer : view.layers())
            layers << layer.name;
        QCOMPARE(layers, QStringList({"tig.dat", "arcanum2.dat", "arcanum10.dat", "data/", "modules/Arcanum.dat",
                                      "modules/Arcanum.patch0", "modules/Arcanum/"}));
        QCOMPARE(view.problems().size(), 1); // arcanum1.dat is no archive
        const auto winner = [&](const QString& path) {
            const arcanum::GameView::File* file = view.find(path);
            if (!file)
                return QString();
            QByteArray bytes;
            QString error;
            return view.read(*file, bytes, error) ? view.layers().at(file->layer).name + QLatin1Char('=')
                                                        + QString::fromLatin1(bytes)
                                                  : error;
        };
        QCOMPARE(winner(QStringLiteral("mes/x.mes")), QStringLiteral("data/=loose"));
        QCOMPARE(view.find(QStringLiteral("MES/X.MES"))->hidden.size(), 1);
        QCOMPARE(winner(QStringLiteral("mes/order.mes")), QStringLiteral("arcanum10.dat=ten"));
        QCOMPARE(winner(QStringLiteral("art/b.art")), QStringLiteral("modules/Arcanum/=module loose"));
        QCOMPARE(winner(QStringLiteral("proto/c.pro")), QStringLiteral("modules/Arcanum.patch0=patch"));
        QVERIFY(!view.find(QStringLiteral("mes/hidden.mes")));

        // Where a save of each puts its loose override, and what a page list of a folder holds.
        const auto overridePath = [&](const QString& path) {
            return QDir(game).relativeFilePath(view.overridePath(*view.find(path)));
        };
        QCOMPARE(overridePath(QStringLiteral("mes/order.mes")), QStringLiteral("data/mes/order.mes"));
        QCOMPARE(overridePath(QStringLiteral("proto/c.pro")), QStringLiteral("modules/Arcanum/proto/c.pro"));
        QCOMPARE(view.filesIn(QStringLiteral("MES"), {QStringLiteral("mes")}).size(), 2);
        QCOMPARE(view.filesBelow(QStringLiteral("art"), {QStringLiteral("art")}).size(), 1);

        // Another module replaces the whole module part of the layers.
        pack(QStringLiteral("modules/Vormantown.dat"), {{QStringLiteral("proto/c.pro"), "vormantown"}});
        QCOMPARE(arcanum::GameView::modules(game), QStringList({"Arcanum", "Vormantown"}));
        view.build(game, QStringLiteral("Vormantown"));
        QCOMPARE(winner(QStringLiteral("proto/c.pro")), QStringLiteral("modules/Vormantown.dat=vormantown"));
        QCOMPARE(winner(QStringLiteral("art/b.art")), QStringLiteral("arcanum2.dat=2"));
        QCOMPARE(overridePath(QStringLiteral("proto/c.pro")), QStringLiteral("modules/Vormantown/proto/c.pro"));
    }

    void packsSmallerThanZlibsBest()
    {
        QByteArray text;
        for (int i = 0; i < 2000; ++i)
            text += "{" + QByteArray::number(i) + "}{Item " + QByteArray::number(i % 97) + " of the sample}\r\n";
        const QByteArray ours = arcanum::Deflate::deflate(text);
        QVERIFY2(ours.size() <= zlibStream(text).size(),
                 qPrintable(QStringLiteral("%1 against %2").arg(ours.size()).arg(zlibStream(text).size())));
        QByteArray back;
        QVERIFY(arcanum::Deflate::inflate(ours, text.size(), back));
        QCOMPARE(back, text);
    }

    void writerRefusesUnsafeNames()
    {
        QString error;
        QVERIFY(!DatWriter::write(dir.filePath(QStringLiteral("x.dat")), {{QStringLiteral("../x"), "x"}}, error));
        QVERIFY(error.contains(QStringLiteral("..")));
        QVERIFY(!DatWriter::write(dir.filePath(QStringLiteral("x.dat")),
                                  {{QStringLiteral("a/B.mes"), "x"}, {QStringLiteral("A/b.mes"), "y"}}, error));
        QVERIFY(error.contains(QStringLiteral("twice")));
        QVERIFY(!QFile::exists(dir.filePath(QStringLiteral("x.dat"))));
    }
};

QTEST_MAIN(TestArchive)
#include "tst_archive.moc"
