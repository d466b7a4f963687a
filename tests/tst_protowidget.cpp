// The prototype editor, driven offscreen: filling, flag bits, damage sets, scripts, saving.
#include "DialogProtoScript.h"
#include "FormatChecks.h"
#include "HexWidget.h"
#include "Proto.h"
#include "ProtoDamagesWidget.h"
#include "ProtoMovableData.h"
#include "ProtoScriptsWidget.h"
#include "ProtoStaticData.h"
#include "ProtoWidget.h"
#include "Document.h"
#include "UndoChecks.h"

#include <QUndoStack>
#include <QWheelEvent>
#include "FramedPage.h"
#include "ScriptedAnswerer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

#include <bitset>

using arcanum::Proto;

namespace {

std::string local(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

void setDamages(Proto::Damages& damages, std::initializer_list<std::pair<std::uint32_t, std::int32_t>> kinds)
{
    damages.present = 1;
    damages.elementSize = 4;
    damages.keptBefore = 0x11223344;
    damages.maskHigh = 0x55;
    for (const auto& kind : kinds) {
        damages.values[damages.count++] = kind.second;
        damages.maskLow |= 1u << kind.first;
    }
}

// Flag words with a mix of set and clear bits, so a box that touched a neighbour would show.
void fillFlags(Proto::ObjectData& object)
{
    object.flags1 = 0x5A5A5A5A;
    object.flags2 = 0xA5A5A5A5;
}

void fillWeapon(Proto& proto)
{
    proto.create(Proto::Weapon);
    proto.header().index = 4027;
    Proto::WeaponData* weapon = proto.asWeapon();
    fillFlags(*weapon);
    weapon->itemFlags = {0x5A, 0xA5, 0x5A};
    weapon->weaponFlags = 0xA5;
    weapon->hitPoints = 150;
    weapon->material = Proto::Metal;
    weapon->toHit = 5;
    weapon->ammoType = Proto::NoAmmo;
    weapon->criticalMiss = Proto::Gun;
    weapon->rest = {1, 2, 3};
    setDamages(weapon->resistances, {{0, 10}, {3, -5}});
    setDamages(weapon->minDamages, {{2, 7}});
    setDamages(weapon->maxDamages, {{0, 9}, {4, 12}});
    weapon->scripts.present = 1;
    weapon->scripts.elementSize = 12;
    weapon->scripts.count = 1;
    weapon->scripts.args[0].number = 1530;
    weapon->scripts.args[0].counters = {1, 2, 3, 4};
    weapon->scripts.args[0].flags = 0x81;
    weapon->scripts.setMask(std::uint64_t(1) << 35);
}

int differingBits(const QByteArray& a, const QByteArray& b)
{
    if (a.size() != b.size())
        return -1;
    int bits = 0;
    for (int i = 0; i < a.size(); ++i)
        bits += std::bitset<8>(static_cast<unsigned char>(a[i] ^ b[i])).count();
    return bits;
}

} // namespace

class TestProtoWidget : public QObject
{
    Q_OBJECT

    QTemporaryDir dir;

    QString write(const Proto& proto, const QString& name)
    {
        const QString path = dir.filePath(name);
        proto.save(local(path));
        return path;
    }

    QString weaponFile()
    {
        Proto proto;
        fillWeapon(proto);
        return write(proto, QStringLiteral("weapon.pro"));
    }

    template <typename T>
    static T* child(const QWidget& page, const char* name)
    {
        T* found = page.findChild<T*>(QString::fromLatin1(name));
        if (!found)
            qWarning("no child %s", name);
        return found;
    }

    static bool visible(const QWidget& page, const char* name)
    {
        const QWidget* widget = child<QWidget>(page, name);
        return widget && widget->isVisibleTo(&page);
    }

    // Shows the page with a file, its groups laid out, so clicks land on real buttons.
    static bool showLoaded(ProtoWidget& page, const QString& path)
    {
        page.resize(1000, 800);
        page.show();
        if (!QTest::qWaitForWindowExposed(&page))
            return false;
        openProto(page, path);
        QCoreApplication::processEvents();
        return true;
    }

    static void clickSave(ProtoWidget& page)
    {
        ScriptedAnswerer answers;
        answers.buttons << QMessageBox::Yes;
        page.save();
    }

    static bool openProto(ProtoWidget& page, const QString& path)
    {
        ScriptedAnswerer quiet; // a refused file is reported in a message box
        return page.openFile(path);
    }

    static bool modified(const ProtoWidget& page) { return page.document() && page.document()->isModified(); }

private slots:
    void everyFieldUndoes_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<int>("steps");
        QTest::newRow("spin box, typed twice") << "weaponToHit" << 1;
        QTest::newRow("combo box") << "movableMaterialCombo" << 1;
        QTest::newRow("flag") << "weaponTwoHandedCheck" << 1;
        QTest::newRow("two fields") << "two" << 2;
    }

    void everyFieldUndoes()
    {
        QFETCH(QString, control);
        QFETCH(int, steps);
        ProtoWidget page;
        QVERIFY(openProto(page, weaponFile()));
        const auto edit = [&] {
            if (control == QLatin1String("weaponToHit") || control == QLatin1String("two")) {
                child<QSpinBox>(page, "weaponToHit")->setValue(7);
                child<QSpinBox>(page, "weaponToHit")->setValue(9);
            }
            if (control == QLatin1String("movableMaterialCombo") || control == QLatin1String("two"))
                child<QComboBox>(page, "movableMaterialCombo")->setCurrentIndex(2);
            if (control == QLatin1String("weaponTwoHandedCheck"))
                child<QCheckBox>(page, "weaponTwoHandedCheck")->toggle();
        };
        QVERIFY(checkUndoRedo(*page.document(), edit, steps));
        QVERIFY(page.document()->undoStack()->undoText().startsWith(QStringLiteral("Edit ")));
    }

    void wheelDoesNotChangeValues()
    {
        ProtoWidget page;
        QVERIFY(showLoaded(page, weaponFile()));
        auto* weight = child<QSpinBox>(page, "movableWeight");
        const int before = weight->value();
        QWheelEvent wheel(QPointF(5, 5), weight->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(weight, &wheel);
        QCOMPARE(weight->value(), before);
        QVERIFY(!modified(page));
    }

    void fillingDoesNotEdit()
    {
        FramedPage<ProtoWidget> framed;
        ProtoWidget& page = framed.page;
        framed.frame.show();
        QVERIFY(!framed.saveButton()->isEnabled());
        QVERIFY(!framed.saveAsButton()->isEnabled());
        QCOMPARE(child<QLabel>(page, "labelIndex")->text(), QStringLiteral("No item"));

        QVERIFY(openProto(page, weaponFile()));
        QVERIFY(!modified(page));
        QCOMPARE(child<QLabel>(page, "labelIndex")->text(), QStringLiteral("4027"));
        QCOMPARE(child<QLabel>(page, "labelItemType")->text(), QStringLiteral("Weapon"));
        QVERIFY(!framed.saveButton()->isEnabled());
        QVERIFY(framed.saveAsButton()->isEnabled());
        QCOMPARE(child<QSpinBox>(page, "movableHitPointsSpin")->value(), 150);
        QCOMPARE(child<QComboBox>(page, "movableMaterialCombo")->currentText(), QStringLiteral("Metal"));
        QCOMPARE(child<QComboBox>(page, "weaponCriticalMiss")->currentText(), QStringLiteral("Gun"));

        child<QSpinBox>(page, "weaponToHit")->setValue(6);
        QVERIFY(modified(page));
        QVERIFY(framed.saveButton()->isEnabled());
        // A new file starts clean again.
        openProto(page, weaponFile());
        QVERIFY(!modified(page));
    }

    void refusedFileShowsNoItem()
    {
        ProtoWidget page;
        const QString broken = dir.filePath(QStringLiteral("broken.pro"));
        FormatChecks::writeFile(broken, QByteArray("\x78\0\0\0", 4));
        ScriptedAnswerer answers;
        QVERIFY(!page.openFile(broken));
        QVERIFY2(answers.last(QStringLiteral("message"))->text.contains(QStringLiteral("wrong signature 120")),
                 qPrintable(answers.last(QStringLiteral("message"))->text));
        QVERIFY(!page.document());
        QCOMPARE(child<QLabel>(page, "labelItemType")->text(), QStringLiteral("No item"));
        QVERIFY(!page.document());

        // A prototype cut short is refused too, with the byte where it ends, and the page keeps its file.
        QVERIFY(openProto(page, weaponFile()));
        const QString cut = dir.filePath(QStringLiteral("cut.pro"));
        FormatChecks::writeFile(cut, FormatChecks::readFile(weaponFile()).left(250));
        QVERIFY(!page.openFile(cut));
        QVERIFY(answers.last(QStringLiteral("message"))->text.contains(QStringLiteral("the file ends at byte 250")));
        QCOMPARE(child<QLabel>(page, "labelItemType")->text(), QStringLiteral("Weapon"));
    }

    void groupsFollowTheItemType_data()
    {
        QTest::addColumn<quint32>("type");
        QTest::addColumn<QStringList>("groups");
        const QStringList own = {"wallGroup",    "portalGroup", "containerGroup", "sceneryGroup", "projectileGroup",
                                 "weaponGroup",  "ammoGroup",   "armorGroup",     "goldGroup",    "foodGroup",
                                 "scrollGroup",  "keyGroup",    "keyringGroup",   "schematicGroup", "genericGroup",
                                 "npcGroup",     "npcGroup",    "trapGroup"};
        for (quint32 type = 0; type < Proto::ITEM_TYPE_COUNT; ++type) {
            QStringList groups = {own[int(type)]};
            if (type >= Proto::Projectile && type <= Proto::Generic)
                groups << "movableGroup";
            else if (type != Proto::Wall && type != Proto::PC && type != Proto::NPC)
                groups << "staticGroup";
            QTest::newRow(Proto::itemTypeToString(Proto::ItemType(type)).c_str()) << type << groups;
        }
    }

    void groupsFollowTheItemType()
    {
        QFETCH(quint32, type);
        QFETCH(QStringList, groups);
        Proto proto;
        proto.create(type);
        ProtoWidget page;
        openProto(page, write(proto, QStringLiteral("type.pro")));
        QStringList shown;
        for (const QGroupBox* group : page.findChildren<QGroupBox*>(QRegularExpression(QStringLiteral("^[a-z]+Group$"))))
            if (group->isVisibleTo(&page) && group->objectName() != QLatin1String("headerGroup"))
                shown << group->objectName();
        shown.sort();
        groups.sort();
        QCOMPARE(shown, groups);
    }

    void wallShowsItsBlockInHex()
    {
        Proto proto;
        proto.create(Proto::Wall);
        proto.asWall()->bytes[0] = 0xAB;
        proto.header().unknown1[29] = 0x7F;
        ProtoWidget page;
        openProto(page, write(proto, QStringLiteral("wall.pro")));
        auto* hex = child<HexWidget>(page, "hexWall");
        auto* table = hex->findChild<QTableWidget*>(QStringLiteral("table"));
        QCOMPARE(table->rowCount(), 321 / 20 + 1);
        QCOMPARE(table->item(0, 0)->text(), QStringLiteral("AB"));
        table->setCurrentCell(16, 0); // byte 320, the last one
        QCOMPARE(hex->positionText(), QStringLiteral("00000178"));
        QVERIFY(hex->findChild<QLabel*>(QStringLiteral("labelTitle"))->text() == QStringLiteral("Unknown [0x0038 - 0x00178]"));

        auto* header = child<HexWidget>(page, "hexUnknown1");
        auto* headerTable = header->findChild<QTableWidget*>(QStringLiteral("table"));
        QCOMPARE(headerTable->rowCount(), 2);
        QCOMPARE(headerTable->item(1, 9)->text(), QStringLiteral("7F"));
        headerTable->setCurrentCell(1, 9);
        QCOMPARE(header->positionText(), QStringLiteral("00000023"));
        headerTable->setCurrentCell(1, 10); // past the block
        QCOMPARE(header->positionText(), QString());
    }

    void unchangedFilesSaveAsTheyCame()
    {
        const QString original = weaponFile();
        ProtoWidget page;
        openProto(page, original);
        ScriptedAnswerer answers;
        answers.fileNames << dir.filePath(QStringLiteral("copy.pro"));
        page.saveAs();
        QCOMPARE(answers.last(QStringLiteral("save"))->title, QStringLiteral("Save As"));
        QCOMPARE(FormatChecks::readFile(dir.filePath(QStringLiteral("copy.pro"))), FormatChecks::readFile(original));
        QCOMPARE(page.document()->path(), dir.filePath(QStringLiteral("copy.pro"))); // the page goes on with the copy
    }

    void changedValueIsTheOnlyChange()
    {
        const QString path = weaponFile();
        const QByteArray before = FormatChecks::readFile(path);
        ProtoWidget page;
        openProto(page, path);
        child<QSpinBox>(page, "movableHitPointsSpin")->setValue(151);
        clickSave(page);
        QVERIFY(!modified(page)); // saved
        const QByteArray after = FormatChecks::readFile(path);
        QCOMPARE(differingBits(before, after), 1); // 150 -> 151
        Proto reopened;
        reopened.load(local(path));
        QCOMPARE(reopened.asWeapon()->hitPoints, 151u);
        QCOMPARE(reopened.asWeapon()->ammoType, quint32(Proto::NoAmmo));
        QCOMPARE(reopened.getData()->rest.size(), std::size_t(3));
    }

    void noAmmunitionKeeps10000()
    {
        ProtoWidget page;
        openProto(page, weaponFile());
        auto* ammo = child<QComboBox>(page, "weaponAmmoType");
        QCOMPARE(ammo->currentIndex(), ammo->count() - 1);
        QCOMPARE(ammo->currentText(), QStringLiteral("None"));
        child<QSpinBox>(page, "weaponSpeed")->setValue(3);
        clickSave(page);
        Proto reopened;
        reopened.load(local(page.document()->path()));
        QCOMPARE(reopened.asWeapon()->ammoType, 10000u);
        QCOMPARE(reopened.asWeapon()->speed, 3u);

        ammo->setCurrentIndex(1);
        clickSave(page);
        reopened.load(local(page.document()->path()));
        QCOMPARE(reopened.asWeapon()->ammoType, quint32(Proto::Bullet));
    }

    void valuesWithoutTextKeepTheirNumber()
    {
        Proto proto;
        fillWeapon(proto);
        proto.asWeapon()->material = 99;
        proto.asWeapon()->criticalHit = 7;
        proto.asWeapon()->worth = 0xFFFFFFF0;
        ProtoWidget page;
        openProto(page, write(proto, QStringLiteral("odd.pro")));
        QCOMPARE(child<QComboBox>(page, "movableMaterialCombo")->currentText(), QStringLiteral("99"));
        QCOMPARE(child<QComboBox>(page, "weaponCriticalHit")->currentText(), QStringLiteral("7"));
        QCOMPARE(child<QSpinBox>(page, "movableWorth")->value(), -16); // all 32 bits, shown signed
        child<QSpinBox>(page, "movableWeight")->setValue(5);
        clickSave(page);
        Proto reopened;
        reopened.load(local(page.document()->path()));
        QCOMPARE(reopened.asWeapon()->material, 99u);
        QCOMPARE(reopened.asWeapon()->criticalHit, 7u);
        QCOMPARE(reopened.asWeapon()->worth, 0xFFFFFFF0u);
        // The odd entry goes again with the next file.
        openProto(page, weaponFile());
        QCOMPARE(child<QComboBox>(page, "movableMaterialCombo")->count(), int(Proto::MATERIAL_TYPE_COUNT));
    }

    void eachFlagBoxTouchesOnlyItsBit_data()
    {
        QTest::addColumn<quint32>("type");
        QTest::addColumn<QString>("box");
        const QStringList objectFlags = {"Flat", "SeeThrough", "ShootThrough", "NoBlock", "ClickThrough",
                                         "DontLight", "Invulnerable", "Illusion", "Stoned"};
        for (const QString& flag : objectFlags) {
            QTest::newRow(qPrintable(QStringLiteral("static ") + flag))
                << quint32(Proto::Container) << QStringLiteral("static%1Check").arg(flag);
            QTest::newRow(qPrintable(QStringLiteral("movable ") + flag))
                << quint32(Proto::Weapon) << QStringLiteral("movable%1Check").arg(flag);
        }
        for (const char* flag : {"Identified", "Unsellable", "IsMagical", "TransferLight", "NoDisplay", "NoDrop",
                                 "Hexed", "CanUseBox", "NeedsTarget", "Persistent", "Stolen", "NoDecay", "Uber",
                                 "NoNpcPickup"})
            QTest::newRow(flag) << quint32(Proto::Weapon) << QStringLiteral("movable%1Check").arg(QLatin1String(flag));
        for (const char* flag : {"Loud", "Silent", "TwoHanded", "HandCountFixed", "Throwable", "Boomerang"})
            QTest::newRow(flag) << quint32(Proto::Weapon) << QStringLiteral("weapon%1Check").arg(QLatin1String(flag));
    }

    void eachFlagBoxTouchesOnlyItsBit()
    {
        QFETCH(quint32, type);
        QFETCH(QString, box);
        Proto proto;
        if (type == Proto::Weapon) {
            fillWeapon(proto);
        } else {
            proto.create(type);
            fillFlags(*proto.asStatic());
            setDamages(proto.asStatic()->resistances, {{1, 3}});
        }
        const QString path = write(proto, QStringLiteral("flags.pro"));
        const QByteArray before = FormatChecks::readFile(path);
        ProtoWidget page;
        QVERIFY(showLoaded(page, path));
        auto* check = page.findChild<QCheckBox*>(box);
        QVERIFY(check);
        QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(4, check->height() / 2));
        QVERIFY(modified(page));
        clickSave(page);
        QCOMPARE(differingBits(before, FormatChecks::readFile(path)), 1);
    }

    void damageSetShowsItsKinds()
    {
        ProtoWidget page;
        openProto(page, weaponFile());
        auto* minimal = child<ProtoDamagesWidget>(page, "weaponMinDamages");
        QVERIFY(minimal->findChild<QGroupBox*>()->isChecked());
        QCOMPARE(minimal->findChild<QGroupBox*>()->title(), QStringLiteral("Minimal damages"));
        for (int kind = 0; kind < 5; ++kind)
            QCOMPARE(minimal->isRowChecked(kind), kind == 2);
        QCOMPARE(minimal->findChild<QSpinBox*>(QStringLiteral("spin2"))->value(), 7);
        QVERIFY(!minimal->findChild<QSpinBox*>(QStringLiteral("spin1"))->isEnabled());
        const Proto::Damages back = minimal->getDamages();
        QCOMPARE(back.count, 1u);
        QCOMPARE(back.maskLow, 0x4u);
        QCOMPARE(back.values[0], 7);
        QCOMPARE(back.keptBefore, 0x11223344u);
        QCOMPARE(back.maskHigh, 0x55u);
        QCOMPARE(minimal->findChild<QCheckBox*>(QStringLiteral("check2"))->text(), QStringLiteral("Electical"));
        QVERIFY(!child<ProtoDamagesWidget>(page, "weaponMagicDamages")->findChild<QGroupBox*>()->isChecked());
    }

    void addingADamageKind()
    {
        ProtoWidget page;
        openProto(page, weaponFile());
        auto* magic = child<ProtoDamagesWidget>(page, "weaponMagicDamages");
        magic->findChild<QGroupBox*>()->setChecked(true);
        magic->findChild<QCheckBox*>(QStringLiteral("check3"))->setChecked(true);
        QVERIFY(magic->findChild<QSpinBox*>(QStringLiteral("spin3"))->isEnabled());
        magic->findChild<QSpinBox*>(QStringLiteral("spin3"))->setValue(-8);
        QVERIFY(modified(page));
        clickSave(page);
        Proto reopened;
        reopened.load(local(page.document()->path()));
        const Proto::Damages& saved = reopened.asWeapon()->magicDamages;
        QCOMPARE(saved.present, 1);
        QCOMPARE(saved.elementSize, 4u);
        QCOMPARE(saved.count, 1u);
        QCOMPARE(saved.maskLow, 0x8u);
        QCOMPARE(saved.values[0], -8);
    }

    void checkedScriptRowWithoutArgumentsSavesZeros()
    {
        ProtoWidget page;
        QVERIFY(showLoaded(page, weaponFile()));
        auto* scripts = child<ProtoScriptsWidget>(page, "movableScripts");
        QVERIFY(scripts->rowCheck(35)->isChecked());
        QVERIFY(scripts->rowButton(35)->isEnabled());
        QCOMPARE(scripts->rowButton(35)->text(), QStringLiteral("1530 (1 2 3 4; 0x81)"));
        QVERIFY(!scripts->rowButton(Proto::Use)->isEnabled());
        QCOMPARE(scripts->rowButton(Proto::Use)->text(), QStringLiteral("Click to attach a script"));
        QCOMPARE(scripts->rowCheck(Proto::Use)->text(), QStringLiteral("Use"));

        scripts->rowCheck(Proto::Use)->setChecked(true);
        QVERIFY(scripts->rowButton(Proto::Use)->isEnabled());
        QVERIFY(modified(page));
        clickSave(page);
        Proto reopened;
        reopened.load(local(page.document()->path()));
        const Proto::Scripts& saved = reopened.asWeapon()->scripts;
        QCOMPARE(saved.count, 2u);
        QCOMPARE(saved.mask(), (std::uint64_t(1) << 35) | 0x2);
        QVERIFY(saved.args[0] == Proto::ScriptArgs());
        QCOMPARE(saved.args[1].number, 1530u);
    }

    void scriptDialogEditsArguments()
    {
        ProtoWidget page;
        QVERIFY(showLoaded(page, weaponFile()));
        auto* scripts = child<ProtoScriptsWidget>(page, "movableScripts");
        ScriptedAnswerer answers;
        answers.dialogs << [](QDialog& dialog) {
            auto& script = dynamic_cast<DialogProtoScript&>(dialog);
            if (script.scriptSpin()->value() != 1530 || !script.flagCheck(7)->isChecked())
                return int(QDialog::Rejected);
            script.scriptSpin()->setValue(77);
            script.counterSpin(2)->setValue(200);
            script.flagCheck(7)->setChecked(false);
            script.flagCheck(31)->setChecked(true);
            return int(QDialog::Accepted);
        };
        QTest::mouseClick(scripts->rowButton(35), Qt::LeftButton);
        QCOMPARE(answers.count(QStringLiteral("dialog")), 1);
        QCOMPARE(scripts->rowButton(35)->text(), QStringLiteral("77 (1 2 200 4; 0x80000001)"));
        QVERIFY(modified(page));
        clickSave(page);
        Proto reopened;
        reopened.load(local(page.document()->path()));
        QCOMPARE(reopened.asWeapon()->scripts.args[0].number, 77u);
        QCOMPARE(reopened.asWeapon()->scripts.args[0].flags, 0x80000001u);

        // A cancelled dialog changes nothing.
        answers.dialogs << [](QDialog&) { return int(QDialog::Rejected); };
        QTest::mouseClick(scripts->rowButton(35), Qt::LeftButton);
        QCOMPARE(scripts->rowButton(35)->text(), QStringLiteral("77 (1 2 200 4; 0x80000001)"));
    }

    void saveAsWithEmptyNameWritesNothing()
    {
        ProtoWidget page;
        openProto(page, weaponFile());
        child<QSpinBox>(page, "weaponRange")->setValue(4);
        const QStringList before = QDir(dir.path()).entryList(QDir::Files);
        const QByteArray original = FormatChecks::readFile(dir.filePath(QStringLiteral("weapon.pro")));
        ScriptedAnswerer answers; // no file name queued: the chooser is cancelled
        page.saveAs();
        QCOMPARE(answers.count(QStringLiteral("save")), 1);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), before);
        QCOMPARE(FormatChecks::readFile(dir.filePath(QStringLiteral("weapon.pro"))), original);
    }

    void failedSaveSaysSo()
    {
        ProtoWidget page;
        openProto(page, weaponFile());
        QDir(dir.path()).mkpath(QStringLiteral("taken.pro")); // a folder where the file should go
        ScriptedAnswerer answers;
        answers.fileNames << dir.filePath(QStringLiteral("taken.pro"));
        page.saveAs();
        QCOMPARE(answers.count(QStringLiteral("message")), 1);
        QCOMPARE(answers.last(QStringLiteral("message"))->title, QStringLiteral("Save failed"));
        QVERIFY(QFileInfo(dir.filePath(QStringLiteral("taken.pro"))).isDir());
        QCOMPARE(QDir(dir.path()).entryList({QStringLiteral("taken.pro.*")}, QDir::Files), QStringList());
    }
};

QTEST_MAIN(TestProtoWidget)
#include "tst_protowidget.moc"
