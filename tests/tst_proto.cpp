// The prototype format: byte streams, every item type's layout, damaged files, enumerations, art numbers.
#include "FormatChecks.h"
#include "Proto.h"
#include "ProtoArtIndex.h"
#include "ProtoMovableData.h"
#include "ProtoStaticData.h"
#include "ibytestream.h"
#include "obytestream.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <iostream>
#include <sstream>

using arcanum::Proto;

namespace {

// Little-endian file bytes, built field by field as the game lays them out.
class Bytes
{
public:
    Bytes& u8(quint8 v) { bytes.append(char(v)); return *this; }
    Bytes& u16(quint16 v) { return u8(quint8(v)).u8(quint8(v >> 8)); }
    Bytes& u32(quint32 v) { return u16(quint16(v)).u16(quint16(v >> 16)); }
    // Raw blocks count on from a running seed, so a field read one byte off shows in the values.
    Bytes& raw(int size)
    {
        for (int i = 0; i < size; ++i)
            u8(quint8(seed++));
        return *this;
    }
    Bytes& absent() { return u8(0); }
    Bytes& sparseHead(quint32 elementSize, quint32 count) { return u8(1).u32(elementSize).u32(count).u32(0xA1A1A1A1); }
    Bytes& sparseTail(quint32 low, quint32 high) { return u32(0xB2B2B2B2).u32(low).u32(high); }
    // kind -> value, in ascending kinds.
    Bytes& damages(const QList<QPair<int, qint32>>& kinds)
    {
        quint32 mask = 0;
        sparseHead(4, quint32(kinds.size()));
        for (const auto& kind : kinds) {
            u32(quint32(kind.second));
            mask |= 1u << kind.first;
        }
        return sparseTail(mask, 0xC3C3C3C3);
    }
    Bytes& scripts(const QList<int>& points)
    {
        quint64 mask = 0;
        sparseHead(12, quint32(points.size()));
        for (int point : points) {
            u32(0x100u + quint32(point)).u8(1).u8(2).u8(3).u8(quint8(point)).u32(2000u + quint32(point));
            mask |= quint64(1) << point;
        }
        return sparseTail(quint32(mask), quint32(mask >> 32));
    }
    Bytes& optional(quint32 elementSize, int bits)
    {
        sparseHead(elementSize, quint32(bits));
        raw(int(elementSize) * bits);
        return sparseTail((1u << bits) - 1, 0);
    }
    Bytes& header(quint32 type, quint32 index = 4001)
    {
        return u32(119).u16(0xBEEF).raw(30).u32(index).raw(12).u32(type);
    }

    QByteArray bytes;
    int seed = 1;
};

void objectHead(Bytes& b, int beforeOptionals)
{
    b.raw(16).u32(0x11111111).raw(beforeOptionals);
    b.optional(4, 2).absent().optional(1, 3);
    b.raw(29).absent();
    b.u32(0x40081400).u32(0x01800000).raw(5);
    b.u32(123).u32(456).u32(0x22222222);
    b.raw(8).u32(75).raw(8).u32(Proto::Metal);
    b.damages({{0, 10}, {4, -20}});
}

void movableHead(Bytes& b)
{
    objectHead(b, 13);
    b.scripts({1, 7, 35});
    b.u32(5555).raw(6).u8(0x85).u8(0xA1).u8(0x0E).raw(2);
    for (quint32 v = 1; v <= 11; ++v)
        b.u32(v * 100);
    b.raw(20).u32(1234);
}

void weaponOwn(Bytes& b)
{
    b.raw(10).u8(0xFF).raw(3).u32(0x33333333).u32(5).u32(quint32(-3));
    b.damages({{0, 2}}).damages({{0, 8}, {1, 3}}).absent();
    for (quint32 v = 1; v <= 6; ++v)
        b.u32(v);
    b.u32(Proto::NoAmmo).u32(1);
    b.raw(8).u32(Proto::Impaling).u32(2).u32(50).u32(Proto::Gun).u32(1).raw(14);
}

void armorOwn(Bytes& b)
{
    b.raw(14).u32(0x44444444).u32(12).u32(4);
    b.damages({{1, 15}}).damages({{2, 5}, {3, 6}, {4, 7}});
    b.u32(3).u32(1).raw(10);
}

void schematicOwn(Bytes& b)
{
    b.raw(14).u32(Proto::Schema).u32(10).u32(20);
}

// A complete file of the item type, with every sub-record kind present somewhere.
QByteArray protoFile(quint32 type, const QByteArray& rest = QByteArray())
{
    Bytes b;
    b.header(type);
    const int staticTails[] = {-1, 37, 34, 26};
    const int movableTails[] = {56, -1, 32, -1, 28, 24, 24, 24, 25, -1, 24};
    if (type >= Proto::ITEM_TYPE_COUNT) {
        // no item type: the header alone
    } else if (type == Proto::Wall) {
        b.raw(321);
    } else if (type == Proto::PC || type == Proto::NPC) {
        b.raw(300);
    } else if (type <= Proto::Scenery || type == Proto::Trap) {
        objectHead(b, 9);
        b.raw(type == Proto::Trap ? 1 : staticTails[type]);
    } else {
        movableHead(b);
        if (type == Proto::Weapon)
            weaponOwn(b);
        else if (type == Proto::Armor)
            armorOwn(b);
        else if (type == Proto::Schematic)
            schematicOwn(b);
        else
            b.raw(movableTails[type - Proto::Projectile]);
    }
    return b.bytes + rest;
}

// Standard output of one call, where the model says why it refused a file.
template <typename F>
std::string captureOutput(F&& call)
{
    std::ostringstream captured;
    std::streambuf* old = std::cout.rdbuf(captured.rdbuf());
    call();
    std::cout.rdbuf(old);
    return captured.str();
}

std::string local(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

} // namespace

class TestProto : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;

    QString path(const QString& name) const { return dir.filePath(name); }

    // Loads bytes from a file; the model's output goes to the returned text.
    std::string loadBytes(Proto& proto, const QByteArray& bytes, const QString& name = QStringLiteral("x.pro"))
    {
        FormatChecks::writeFile(path(name), bytes);
        return captureOutput([&] { proto.load(local(path(name))); });
    }

    QByteArray saveBytes(const Proto& proto)
    {
        if (!proto.save(local(path(QStringLiteral("saved.pro")))))
            return QByteArray("save failed");
        return FormatChecks::readFile(path(QStringLiteral("saved.pro")));
    }

private slots:
    void streamsWriteLittleEndian()
    {
        {
            arcanum::obytestream out(local(path(QStringLiteral("le.bin"))));
            QVERIFY(out.ok());
            out.write32(std::uint32_t(0x77)).write16(0x0102).write8(0xFE).write32(std::int32_t(-2));
            const std::uint8_t raw[] = {9, 8, 7};
            out.writeRaw(raw, 3);
            QVERIFY(out.commit());
        }
        QCOMPARE(FormatChecks::readFile(path(QStringLiteral("le.bin"))).toHex(), QByteArray("770000000201fefeffffff090807"));

        arcanum::ibytestream in(local(path(QStringLiteral("le.bin"))));
        std::uint32_t sig = 0;
        std::uint16_t word = 0;
        std::uint8_t byte = 0;
        std::int32_t negative = 0;
        in.read32(sig).read16(word).read8(byte).read32(negative);
        QCOMPARE(sig, 0x77u);
        QCOMPARE(word, 0x0102);
        QCOMPARE(byte, 0xFE);
        QCOMPARE(negative, -2);
        QCOMPARE(in.remaining(), 3u);
        // Two bytes left for a four-byte value: those two replace the low bytes, the others stay.
        std::uint8_t skip = 0;
        in.read8(skip);
        std::uint32_t partial = 0xAABBCCDD;
        in.read32(partial);
        QVERIFY(!in.ok());
        QCOMPARE(partial, 0xAABB0708u);
        QCOMPARE(in.remaining(), 0u);
    }

    void openingFailsCleanly()
    {
        const QString missing = path(QStringLiteral("missing.pro"));
        arcanum::ibytestream in(local(missing));
        QVERIFY(!in.ok());
        QVERIFY(!QFile::exists(missing));

        arcanum::obytestream out(local(path(QStringLiteral("no/such/dir/x.pro"))));
        QVERIFY(!out.ok());
        QVERIFY(!out.commit());
    }

    void saveReplacesOnlyOnCommit()
    {
        const QString target = path(QStringLiteral("old.pro"));
        FormatChecks::writeFile(target, "old contents");
        {
            arcanum::obytestream out(local(target));
            out.write32(std::uint32_t(1));
            QCOMPARE(FormatChecks::readFile(target), QByteArray("old contents"));
        } // no commit: the old file stays and no temporary file is left behind
        QCOMPARE(FormatChecks::readFile(target), QByteArray("old contents"));
        QCOMPARE(QDir(dir.path()).entryList({QStringLiteral("old.pro*")}, QDir::Files), QStringList({"old.pro"}));
        {
            arcanum::obytestream out(local(target));
            out.write32(std::uint32_t(1));
            QVERIFY(out.commit());
        }
        QCOMPARE(FormatChecks::readFile(target), QByteArray("\x01\0\0\0", 4));
        QCOMPARE(QDir(dir.path()).entryList({QStringLiteral("old.pro*")}, QDir::Files), QStringList({"old.pro"}));
    }

    void everyTypeRoundTrips_data()
    {
        QTest::addColumn<quint32>("type");
        QTest::addColumn<QByteArray>("rest");
        for (quint32 type = 0; type < Proto::ITEM_TYPE_COUNT; ++type)
            QTest::newRow(Proto::itemTypeToString(Proto::ItemType(type)).c_str()) << type << QByteArray();
        QTest::newRow("armour with four bytes more") << quint32(Proto::Armor) << QByteArray("\x01\x02\x03\x04", 4);
        QTest::newRow("wall with one byte more") << quint32(Proto::Wall) << QByteArray("\xFF", 1);
        QTest::newRow("empty NPC block") << quint32(Proto::NPC) << QByteArray();
    }

    void everyTypeRoundTrips()
    {
        QFETCH(quint32, type);
        QFETCH(QByteArray, rest);
        QByteArray file = protoFile(type, rest);
        if (QByteArray(QTest::currentDataTag()) == "empty NPC block")
            file.truncate(56);
        Proto proto;
        QCOMPARE(loadBytes(proto, file), std::string());
        QVERIFY(proto.isLoaded());
        QCOMPARE(proto.header().itemType, type);
        QCOMPARE(proto.header().index, 4001u);
        QCOMPARE(proto.header().word, 0xBEEF);
        QCOMPARE(proto.getData()->rest.size(), std::size_t(rest.size()));
        QCOMPARE(saveBytes(proto).toHex(), file.toHex());
    }

    void classesFollowTheItemType()
    {
        Proto proto;
        for (quint32 type = 0; type < Proto::ITEM_TYPE_COUNT; ++type) {
            QVERIFY(proto.create(type));
            const bool isStatic = type >= Proto::Portal && (type <= Proto::Scenery || type == Proto::Trap);
            const bool isMovable = type >= Proto::Projectile && type <= Proto::Generic;
            QCOMPARE(proto.asWall() != nullptr, type == Proto::Wall);
            QCOMPARE(proto.asStatic() != nullptr, isStatic);
            QCOMPARE(proto.asMovable() != nullptr, isMovable);
            QCOMPARE(proto.asWeapon() != nullptr, type == Proto::Weapon);
            QCOMPARE(proto.asArmor() != nullptr, type == Proto::Armor);
            QCOMPARE(proto.asScroll() != nullptr, type == Proto::Scroll);
            QCOMPARE(proto.asSchematic() != nullptr, type == Proto::Schematic);
            QCOMPARE(proto.asCritter() != nullptr, type == Proto::PC || type == Proto::NPC);
            QVERIFY(!proto.isLoaded()); // made, not read from a file
        }
        QVERIFY(!proto.create(18));
        QVERIFY(!proto.asWall() && !proto.asMovable());
    }

    void wallIsOneRawBlock()
    {
        const QByteArray file = protoFile(Proto::Wall);
        QCOMPARE(file.size(), 377);
        Proto proto;
        loadBytes(proto, file);
        QVERIFY(proto.asWall());
        QCOMPARE(int(proto.asWall()->bytes[0]), int(quint8(file[56])));
        QCOMPARE(int(proto.asWall()->bytes[320]), int(quint8(file[376])));
        QVERIFY(proto.getData()->rest.empty());
        QCOMPARE(saveBytes(proto), file);
    }

    void weaponFieldsLandWhereTheyBelong()
    {
        Proto proto;
        loadBytes(proto, protoFile(Proto::Weapon));
        const Proto::WeaponData* weapon = proto.asWeapon();
        QVERIFY(weapon);
        QCOMPARE(weapon->internalIndex, 123u);
        QCOMPARE(weapon->knownIndex, 456u);
        QCOMPARE(weapon->hitPoints, 75u);
        QCOMPARE(weapon->material, quint32(Proto::Metal));
        QCOMPARE(weapon->flags1, 0x40081400u);
        QCOMPARE(weapon->resistances.count, 2u);
        QCOMPARE(weapon->resistances.values[1], -20);
        QCOMPARE(weapon->optionals[0].bytes.size(), std::size_t(8));
        QVERIFY(!weapon->optionals[1].isPresent());
        QCOMPARE(weapon->scripts.mask(), (quint64(1) << 35) | 0x82);
        QCOMPARE(weapon->scripts.args[2].number, 2035u);
        QCOMPARE(int(weapon->scripts.args[2].counters[3]), 35);
        QCOMPARE(weapon->sound, 5555u);
        QCOMPARE(int(weapon->itemFlags[1]), 0xA1);
        QCOMPARE(weapon->weight, 100u);
        QCOMPARE(weapon->magicComplexity, 800u);
        QCOMPARE(weapon->effectIndex, 1100u);
        QCOMPARE(weapon->spellsMana, 1234u);
        QCOMPARE(int(weapon->weaponFlags), 0xFF);
        QCOMPARE(weapon->toHit, 5u);
        QCOMPARE(std::int32_t(weapon->toHitMagic), -3);
        QCOMPARE(weapon->maxDamages.values[1], 3);
        QVERIFY(!weapon->magicDamages.isPresent());
        QCOMPARE(weapon->speed, 1u);
        QCOMPARE(weapon->msrMagic, 6u);
        QCOMPARE(weapon->ammoType, quint32(Proto::NoAmmo));
        QCOMPARE(weapon->criticalHit, quint32(Proto::Impaling));
        QCOMPARE(weapon->criticalMiss, quint32(Proto::Gun));
        QCOMPARE(weapon->criticalMissMagic, 1u);
    }

    void armourAndSchematicFields()
    {
        Proto proto;
        loadBytes(proto, protoFile(Proto::Armor));
        QVERIFY(proto.asArmor());
        QCOMPARE(proto.asArmor()->armorClass, 12u);
        QCOMPARE(proto.asArmor()->armorResistancesMagic.maskLow, 0x1Cu);
        QCOMPARE(proto.asArmor()->silentMoveMagic, 1u);
        loadBytes(proto, protoFile(Proto::Schematic));
        QVERIFY(proto.asSchematic());
        QCOMPARE(proto.asSchematic()->scrollType, quint32(Proto::Schema));
        QCOMPARE(proto.asSchematic()->endLine, 20u);
    }

    void absentRecordsAreOneByte()
    {
        Proto proto;
        QVERIFY(proto.create(Proto::Portal));
        proto.header().index = 7;
        const QByteArray file = saveBytes(proto);
        // 16 + 4 + 9, four absent optionals, 29, flags, 5, three words, 8 + 4, 8 + 4, absent damages, tail 37
        QCOMPARE(file.size(), 56 + 29 + 3 + 29 + 1 + 8 + 5 + 12 + 12 + 12 + 1 + 37);
        QCOMPARE(file.mid(56 + 29, 3), QByteArray(3, '\0'));

        QVERIFY(proto.create(Proto::Weapon));
        proto.asWeapon()->minDamages.present = 1;
        proto.asWeapon()->minDamages.elementSize = 4;
        proto.asWeapon()->minDamages.count = 1;
        proto.asWeapon()->minDamages.values[0] = 9;
        proto.asWeapon()->minDamages.maskLow = 0x4;
        Proto reloaded;
        FormatChecks::writeFile(path(QStringLiteral("w.pro")), saveBytes(proto));
        reloaded.load(local(path(QStringLiteral("w.pro"))));
        QVERIFY(reloaded.isLoaded());
        QCOMPARE(reloaded.asWeapon()->minDamages.count, 1u);
        QCOMPARE(reloaded.asWeapon()->minDamages.values[0], 9);
    }

    void refusedFilesLeaveTheModelEmpty_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("message");

        QByteArray wrongSignature = protoFile(Proto::Wall);
        wrongSignature[0] = char(0x78);
        QTest::newRow("signature 0x78") << wrongSignature << "Proto::load() failed: wrong signature.\n";
        QTest::newRow("empty file") << QByteArray() << "Proto::load() failed: wrong signature.\n";
        QTest::newRow("header cut short") << protoFile(Proto::Weapon).left(55)
                                          << "Proto::load() failed: the file ends inside the header.\n";

        // Static object with its first optional record replaced by a damaged one.
        const auto staticWith = [](const std::function<void(Bytes&)>& firstOptional) {
            Bytes b;
            b.header(Proto::Portal).raw(16).u32(0).raw(9);
            firstOptional(b);
            return b.bytes + QByteArray(200, '\0');
        };
        QTest::newRow("optional count 1000000") << staticWith([](Bytes& b) {
            b.sparseHead(4, 1000000);
        }) << "Proto::load() failed: damaged file: optional record count 1000000 is more than the room for 64.\n";
        QTest::newRow("optional larger than the file") << staticWith([](Bytes& b) {
            b.sparseHead(0x10000, 2);
        }) << "Proto::load() failed: damaged file: optional record of 131072 bytes is larger than the 200 bytes left in the file.\n";
        QTest::newRow("optional count against mask") << staticWith([](Bytes& b) {
            b.sparseHead(1, 2).raw(2).sparseTail(0x7, 0);
        }) << "Proto::load() failed: damaged file: optional record count 2 disagrees with its mask 0x7.\n";

        // Weapon whose minimal damages are replaced.
        const auto weaponWith = [](const std::function<void(Bytes&)>& damages) {
            Bytes b;
            b.header(Proto::Weapon);
            movableHead(b);
            b.raw(10).u8(0).raw(3).u32(0).u32(0).u32(0);
            damages(b);
            return b.bytes + QByteArray(200, '\0');
        };
        QTest::newRow("damages count 6") << weaponWith([](Bytes& b) { b.sparseHead(4, 6); })
                                         << "Proto::load() failed: damaged file: damages count 6 is more than the room for 5.\n";
        QTest::newRow("damages count 1000000") << weaponWith([](Bytes& b) { b.sparseHead(4, 1000000); })
                                               << "Proto::load() failed: damaged file: damages count 1000000 is more than the room for 5.\n";
        QTest::newRow("damages mask beyond kind 4") << weaponWith([](Bytes& b) {
            b.sparseHead(4, 1).u32(3).sparseTail(0x20, 0);
        }) << "Proto::load() failed: damaged file: damages count 1 disagrees with its mask 0x20.\n";
        QTest::newRow("damages count against mask") << weaponWith([](Bytes& b) {
            b.sparseHead(4, 1).u32(3).sparseTail(0x3, 0);
        }) << "Proto::load() failed: damaged file: damages count 1 disagrees with its mask 0x3.\n";

        Bytes scripts37;
        scripts37.header(Proto::Key);
        objectHead(scripts37, 13);
        scripts37.sparseHead(12, 37);
        QTest::newRow("scripts count 37") << scripts37.bytes + QByteArray(600, '\0')
                                          << "Proto::load() failed: damaged file: scripts count 37 is more than the room for 36.\n";
        Bytes scriptsMask;
        scriptsMask.header(Proto::Key);
        objectHead(scriptsMask, 13);
        scriptsMask.sparseHead(12, 1).raw(12).sparseTail(0, 0x10);
        QTest::newRow("script point 36") << scriptsMask.bytes + QByteArray(600, '\0')
                                         << "Proto::load() failed: damaged file: scripts count 1 disagrees with its mask 0x1000000000.\n";
    }

    void refusedFilesLeaveTheModelEmpty()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, message);
        Proto proto;
        loadBytes(proto, protoFile(Proto::Wall));
        QVERIFY(proto.isLoaded());
        QCOMPARE(QString::fromStdString(loadBytes(proto, file)), message);
        QVERIFY(!proto.isLoaded());
        QVERIFY(proto.getPath().empty());
        QVERIFY(!proto.getData());
    }

    void missingFileSaysSo()
    {
        Proto proto;
        const std::string missing = local(path(QStringLiteral("nothing.pro")));
        QCOMPARE(captureOutput([&] { proto.load(missing); }), "Proto::load() failed: can't open " + missing + "\n");
        QVERIFY(!proto.isLoaded());
        const std::string folder = local(dir.path());
        QCOMPARE(captureOutput([&] { proto.load(folder); }), "Proto::load() failed: can't open " + folder + "\n");
        QVERIFY(!proto.isLoaded());
    }

    void unknownItemTypeKeepsThePath()
    {
        Proto proto;
        QCOMPARE(loadBytes(proto, protoFile(18) + QByteArray(40, '\0')),
                 std::string("Read method unimplemented fot ItemType: 18\n"));
        QVERIFY(!proto.isLoaded());
        QCOMPARE(proto.getPath(), local(path(QStringLiteral("x.pro"))));
        QVERIFY(!proto.getData());
        QVERIFY(!proto.save(local(path(QStringLiteral("none.pro")))));
        QVERIFY(!QFile::exists(path(QStringLiteral("none.pro"))));
    }

    void shortFilesAreRefused()
    {
        // Read on, the missing part would be zeros, and a save would pad the file with invented bytes.
        const QByteArray file = protoFile(Proto::Wall).left(100);
        Proto proto;
        loadBytes(proto, file);
        QVERIFY(!proto.isLoaded());
        QCOMPARE(proto.loadFailure(), std::string("the file ends at byte 100, inside the data of its item type 0"));
        QCOMPARE(proto.loadFailureOffset(), std::uint64_t(100));
    }

    void everyPrefixOfAWeaponIsSafe()
    {
        const QByteArray file = protoFile(Proto::Weapon, QByteArray("tail"));
        int loaded = 0;
        FormatChecks::forEveryPrefix(file, path(QStringLiteral("prefix.pro")), [&](const QString& name) {
            Proto proto;
            captureOutput([&] { proto.load(local(name)); });
            if (proto.isLoaded()) {
                QVERIFY(proto.asWeapon());
                ++loaded;
            }
        });
        QVERIFY(loaded > 0 && loaded <= 6); // the whole file (twice) and cuts inside the four bytes after it
    }

    void corruptWeaponsAreSafe()
    {
        const QByteArray file = protoFile(Proto::Weapon);
        for (unsigned seed = 1; seed <= 300; ++seed) {
            FormatChecks::writeFile(path(QStringLiteral("corrupt.pro")), FormatChecks::corrupt(file, seed, 12));
            Proto proto;
            captureOutput([&] { proto.load(local(path(QStringLiteral("corrupt.pro")))); });
            if (proto.isLoaded())
                QVERIFY(proto.save(local(path(QStringLiteral("corrupt-saved.pro")))));
        }
    }

    void saveFailureSaysSo()
    {
        Proto proto;
        loadBytes(proto, protoFile(Proto::Wall));
        const std::string bad = local(path(QStringLiteral("no/dir/x.pro")));
        QCOMPARE(captureOutput([&] { QVERIFY(!proto.save(bad)); }), "Proto::save() failed: can't open " + bad + "\n");
    }

    void nonAsciiPathsWork()
    {
        Proto proto;
        const QString name = QStringLiteral("\u041C\u0435\u0447.pro");
        loadBytes(proto, protoFile(Proto::Scroll), name);
        QVERIFY(proto.isLoaded());
        QVERIFY(proto.asScroll());
        QVERIFY(proto.save(local(path(name))));
        QCOMPARE(FormatChecks::readFile(path(name)), protoFile(Proto::Scroll));
    }

    void enumerationTexts()
    {
        QCOMPARE(Proto::itemTypeToString(Proto::Trap), std::string("Trap"));
        QCOMPARE(Proto::itemTypeToString(Proto::ItemType(18)), std::string("18"));
        QCOMPARE(Proto::scriptPointToString(Proto::CatchingThievingPC), std::string("Catching thieving PC"));
        QCOMPARE(Proto::scriptPointToString(Proto::CriticalMissPoint), std::string("Critical miss"));
        QCOMPARE(Proto::scriptPointToString(Proto::ScriptPoint(36)), std::string("36"));
        QCOMPARE(Proto::criticalHitToString(Proto::FireHit), std::string("Fire"));
        QCOMPARE(Proto::criticalMissToString(Proto::Electricity), std::string("Electricity"));
        QCOMPARE(Proto::socialClassToString(Proto::Bandit), std::string("Bandit"));
        QCOMPARE(Proto::materialTypeToString(Proto::Unknown14), std::string("Unknown 14"));
        QCOMPARE(Proto::materialTypeToString(Proto::MaterialType(0xFFFFFFFF)), std::string("4294967295"));
        QCOMPARE(Proto::scrollTypeToString(Proto::Schema), std::string("Schema"));
        QCOMPARE(Proto::clothTypeToString(Proto::Locket), std::string("Locket"));
        QCOMPARE(Proto::weaponTypeToString(Proto::THSword), std::string("TH Sword"));
        QCOMPARE(Proto::ammoTypeToString(Proto::Fuel), std::string("Fuel"));
        QCOMPARE(Proto::ammoTypeToString(Proto::NoAmmo), std::string("None"));
        QCOMPARE(Proto::ammoTypeToString(Proto::AmmoType(4)), std::string("4"));
        QCOMPARE(Proto::resistanceTypeToString(Proto::ResistElectrical), std::string("Electical"));
        QCOMPARE(Proto::damageTypeToString(Proto::Fatigue), std::string("Fatigue"));
    }

    void artIndexDecodes_data()
    {
        QTest::addColumn<quint32>("art");
        QTest::addColumn<quint32>("type");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<bool>("item");
        QTest::addColumn<quint32>("index"); // weapon or cloth index
        QTest::addColumn<quint32>("base");
        QTest::addColumn<int>("image");
        QTest::addColumn<int>("palette");

        QTest::newRow("zero") << 0u << quint32(Proto::Weapon) << false << false << 0u << 0u << 0 << 0;
        QTest::newRow("not item art") << 0x12345678u << quint32(Proto::Weapon) << true << false << 0u << 0u << 0 << 0;
        QTest::newRow("weapon key 0x280") << (0x60000000u | 0x280 | 0x20 | (7u << 17)) << quint32(Proto::Weapon) << true
                                          << true << 8u << 200u << 7 << 2;
        QTest::newRow("weapon without key") << (0x60000000u | 0x1000) << quint32(Proto::Weapon) << true << true << 0u
                                            << 0u << 0 << 0;
        QTest::newRow("armour key 0x18002") << (0x60000000u | 0x18002 | 0x30 | (0xFFu << 17)) << quint32(Proto::Armor)
                                            << true << true << 13u << 2800u << 255 << 3;
        QTest::newRow("ammo") << (0x60000000u | 0x1CFCF) << quint32(Proto::Ammo) << true << true << 0u << 1000u << 0 << 0;
        QTest::newRow("generic") << 0x60000001u << quint32(Proto::Generic) << true << true << 0u << 9000u << 0 << 0;
        QTest::newRow("other type") << 0x60000001u << quint32(Proto::Portal) << true << true << 0u << 8888u << 0 << 0;
    }

    void artIndexDecodes()
    {
        QFETCH(quint32, art);
        QFETCH(quint32, type);
        Proto::ArtIndex index(art, type);
        index.decode();
        QTEST(index.valid, "valid");
        QTEST(index.isItemArt, "item");
        QTEST(type == Proto::Armor ? index.clothIndex : index.weaponIndex, "index");
        QTEST(index.base, "base");
        QTEST(int(index.image), "image");
        QTEST(int(index.palette), "palette");
        QCOMPARE(index.encode(), art);
    }
};

QTEST_GUILESS_MAIN(TestProto)
#include "tst_proto.moc"
