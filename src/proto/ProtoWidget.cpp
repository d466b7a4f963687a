#include "ProtoWidget.h"

#include "FormatRegistry.h"

#include "Prompt.h"
#include "ProtoDamagesWidget.h"
#include "ProtoDocument.h"
#include "ProtoScriptsWidget.h"
#include "ProtoStaticData.h"
#include "WheelGuard.h"
#include "ui_ProtoWidget.h"

#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

using arcanum::Proto;
using namespace protofields;

namespace {

struct FlagBit
{
    std::size_t word; // index of the word or byte the bit lives in
    std::uint32_t mask;
};

// In the order of ObjectControls::flags.
constexpr FlagBit OBJECT_FLAG_BITS[] = {
    {0, arcanum::ObjectFlag1::Flat},         {0, arcanum::ObjectFlag1::SeeThrough},
    {0, arcanum::ObjectFlag1::ShootThrough}, {0, arcanum::ObjectFlag1::NoBlock},
    {0, arcanum::ObjectFlag1::ClickThrough}, {0, arcanum::ObjectFlag1::DontLight},
    {0, arcanum::ObjectFlag1::Invulnerable}, {1, arcanum::ObjectFlag2::Illusion},
    {1, arcanum::ObjectFlag2::Stoned}};

constexpr FlagBit ITEM_FLAG_BITS[] = {
    {0, arcanum::ItemFlag0::Identified},    {0, arcanum::ItemFlag0::Unsellable},
    {0, arcanum::ItemFlag0::IsMagical},     {0, arcanum::ItemFlag0::TransferLight},
    {0, arcanum::ItemFlag0::NoDisplay},     {0, arcanum::ItemFlag0::NoDrop},
    {0, arcanum::ItemFlag0::Hexed},         {0, arcanum::ItemFlag0::CanUseBox},
    {1, arcanum::ItemFlag1::NeedsTarget},   {1, arcanum::ItemFlag1::Persistent},
    {1, arcanum::ItemFlag1::Stolen},        {2, arcanum::ItemFlag2::NoDecay},
    {2, arcanum::ItemFlag2::Uber},          {2, arcanum::ItemFlag2::NoNpcPickup}};

constexpr std::uint8_t WEAPON_FLAG_BITS[] = {
    arcanum::WeaponFlag::Loud,           arcanum::WeaponFlag::Silent,    arcanum::WeaponFlag::TwoHanded,
    arcanum::WeaponFlag::HandCountFixed, arcanum::WeaponFlag::Throwable, arcanum::WeaponFlag::Boomerang};

// The flag fields of boxes[i] over bits[i], each reaching its word through words.
template <class Word, std::size_t N>
std::vector<FlagField<Word>> flagFields(const std::array<QCheckBox*, N>& boxes, const FlagBit (&bits)[N],
                                        const std::vector<Word*>& words)
{
    std::vector<FlagField<Word>> fields;
    for (std::size_t i = 0; i < N; ++i)
        fields.push_back({boxes[i], words[bits[i].word], static_cast<Word>(bits[i].mask)});
    return fields;
}

// The texts of 0 .. count-1 of an enumeration.
template <class Enum>
std::vector<std::pair<QString, std::uint32_t>> choices(std::uint32_t count, std::string (*toString)(Enum))
{
    std::vector<std::pair<QString, std::uint32_t>> list;
    for (std::uint32_t value = 0; value < count; ++value)
        list.emplace_back(QString::fromStdString(toString(Enum(value))), value);
    return list;
}

} // namespace

ProtoWidget::ProtoWidget(QWidget* parent)
    : Page(parent)
    , ui(std::make_unique<Ui_ProtoWidget>())
{
    ui->setupUi(this);
    blockGroups = {ui->wallGroup,     ui->staticGroup,   ui->portalGroup,  ui->containerGroup, ui->sceneryGroup,
                   ui->trapGroup,     ui->movableGroup,  ui->projectileGroup, ui->weaponGroup, ui->ammoGroup,
                   ui->armorGroup,    ui->goldGroup,     ui->foodGroup,    ui->scrollGroup,    ui->keyGroup,
                   ui->keyringGroup,  ui->schematicGroup, ui->genericGroup, ui->npcGroup};
    bindControls();
    fillChoiceLists();
    connectEdits();
    WheelGuard::install(this);
    updateData();
}

ProtoWidget::~ProtoWidget() = default;

QStringList ProtoWidget::suffixes() const
{
    return arcanum::FormatRegistry::byKind(arcanum::FileFormat::Kind::Prototype)->suffixes;
}

QString ProtoWidget::fileFilter() const
{
    return tr("Arcanum Proto (*.pro);;All files (*)");
}

std::unique_ptr<Document> ProtoWidget::fromBytes(const QString& path, const QByteArray& bytes, QString& error) const
{
    return ProtoDocument::fromBytes(path, bytes, error);
}

ProtoDocument* ProtoWidget::protoDocument() const
{
    return static_cast<ProtoDocument*>(document());
}

const arcanum::Proto& ProtoWidget::getProto() const
{
    return protoDocument() ? protoDocument()->proto() : empty;
}

Proto& ProtoWidget::model()
{
    return protoDocument() ? protoDocument()->proto() : empty;
}

void ProtoWidget::showDocument()
{
    if (ProtoDocument* shown = protoDocument()) {
        // An undo or redo puts back a whole prototype: the form is filled again from it.
        connect(shown, &Document::changed, this, &ProtoWidget::updateData);
    }
    updateData();
}

void ProtoWidget::bindControls()
{
    bindObjectControls();
    bindItemControls();
}

void ProtoWidget::bindObjectControls()
{
    staticControls.spins = {{ui->staticInternalIndexSpin, &ObjectData::internalIndex},
                            {ui->staticKnownIndexSpin, &ObjectData::knownIndex},
                            {ui->staticHitPointsSpin, &ObjectData::hitPoints}};
    staticControls.combos = {{ui->staticMaterialCombo, &ObjectData::material}};
    staticControls.flags = {ui->staticFlatCheck,         ui->staticSeeThroughCheck,   ui->staticShootThroughCheck,
                            ui->staticNoBlockCheck,      ui->staticClickThroughCheck, ui->staticDontLightCheck,
                            ui->staticInvulnerableCheck, ui->staticIllusionCheck,     ui->staticStonedCheck};
    staticControls.resistances = ui->staticResistances;

    movableControls.spins = {{ui->movableInternalIndexSpin, &ObjectData::internalIndex},
                             {ui->movableKnownIndexSpin, &ObjectData::knownIndex},
                             {ui->movableHitPointsSpin, &ObjectData::hitPoints}};
    movableControls.combos = {{ui->movableMaterialCombo, &ObjectData::material}};
    movableControls.flags = {ui->movableFlatCheck,         ui->movableSeeThroughCheck,   ui->movableShootThroughCheck,
                             ui->movableNoBlockCheck,      ui->movableClickThroughCheck, ui->movableDontLightCheck,
                             ui->movableInvulnerableCheck, ui->movableIllusionCheck,     ui->movableStonedCheck};
    movableControls.resistances = ui->movableResistances;
}

void ProtoWidget::bindItemControls()
{
    movableSpins = {{ui->movableSound, &MovableData::sound},
                    {ui->movableWeight, &MovableData::weight},
                    {ui->movableWeightMagical, &MovableData::weightMagical},
                    {ui->movableWorth, &MovableData::worth},
                    {ui->movableManaStore, &MovableData::manaStore},
                    {ui->movableMagicComplexity, &MovableData::magicComplexity},
                    {ui->movableEffectIndex, &MovableData::effectIndex},
                    {ui->movableSpellsMana, &MovableData::spellsMana}};
    itemFlagChecks = {ui->movableIdentifiedCheck,    ui->movableUnsellableCheck, ui->movableIsMagicalCheck,
                      ui->movableTransferLightCheck, ui->movableNoDisplayCheck,  ui->movableNoDropCheck,
                      ui->movableHexedCheck,         ui->movableCanUseBoxCheck,  ui->movableNeedsTargetCheck,
                      ui->movablePersistentCheck,    ui->movableStolenCheck,     ui->movableNoDecayCheck,
                      ui->movableUberCheck,          ui->movableNoNpcPickupCheck};
    weaponSpins = {{ui->weaponToHit, &WeaponData::toHit},
                   {ui->weaponToHitMagic, &WeaponData::toHitMagic},
                   {ui->weaponSpeed, &WeaponData::speed},
                   {ui->weaponSpeedMagic, &WeaponData::speedMagic},
                   {ui->weaponRange, &WeaponData::range},
                   {ui->weaponRangeMagic, &WeaponData::rangeMagic},
                   {ui->weaponMSR, &WeaponData::msr},
                   {ui->weaponMSRMagic, &WeaponData::msrMagic},
                   {ui->weaponAmmoUsage, &WeaponData::ammoUsage},
                   {ui->weaponCriticalHitMagicEfficiency, &WeaponData::criticalHitMagicEfficiency}};
    weaponCombos = {{ui->weaponAmmoType, &WeaponData::ammoType},
                    {ui->weaponCriticalHit, &WeaponData::criticalHit},
                    {ui->weaponCriticalHitMagic, &WeaponData::criticalHitMagic},
                    {ui->weaponCriticalMiss, &WeaponData::criticalMiss},
                    {ui->weaponCriticalMissMagic, &WeaponData::criticalMissMagic}};
    weaponFlagChecks = {ui->weaponLoudCheck,           ui->weaponSilentCheck,    ui->weaponTwoHandedCheck,
                        ui->weaponHandCountFixedCheck, ui->weaponThrowableCheck, ui->weaponBoomerangCheck};
    armorSpins = {{ui->armorArmorClass, &ArmorData::armorClass},
                  {ui->armorArmorClassMagical, &ArmorData::armorClassMagic},
                  {ui->armorSilentMove, &ArmorData::silentMove},
                  {ui->armorMagickalSilentMove, &ArmorData::silentMoveMagic}};
    schematicSpins = {{ui->schematicStartLine, &SchematicData::startLine},
                      {ui->schematicEndLine, &SchematicData::endLine}};
    schematicCombos = {{ui->schematicScrollType, &SchematicData::scrollType}};
}

void ProtoWidget::fillChoiceLists()
{
    const auto materials = choices(Proto::MATERIAL_TYPE_COUNT, &Proto::materialTypeToString);
    setChoices(ui->staticMaterialCombo, materials);
    setChoices(ui->movableMaterialCombo, materials);
    // The last entry stands for no ammunition, stored as NoAmmo.
    auto ammo = choices(Proto::AMMO_TYPE_COUNT, &Proto::ammoTypeToString);
    ammo.emplace_back(QString::fromStdString(Proto::ammoTypeToString(Proto::NoAmmo)), Proto::NoAmmo);
    setChoices(ui->weaponAmmoType, ammo);
    const auto hits = choices(Proto::CRITICAL_HIT_COUNT, &Proto::criticalHitToString);
    setChoices(ui->weaponCriticalHit, hits);
    setChoices(ui->weaponCriticalHitMagic, hits);
    const auto misses = choices(Proto::CRITICAL_MISS_COUNT, &Proto::criticalMissToString);
    setChoices(ui->weaponCriticalMiss, misses);
    setChoices(ui->weaponCriticalMissMagic, misses);
    setChoices(ui->schematicScrollType, choices(Proto::SCROLL_TYPE_COUNT, &Proto::scrollTypeToString));
}

namespace {
template <class Record>
void addSpins(std::vector<QSpinBox*>& spins, const std::vector<SpinField<Record>>& fields)
{
    for (const SpinField<Record>& field : fields)
        spins.push_back(field.spin);
}
} // namespace

std::vector<QSpinBox*> ProtoWidget::boundSpins() const
{
    std::vector<QSpinBox*> spins;
    addSpins(spins, staticControls.spins);
    addSpins(spins, movableControls.spins);
    addSpins(spins, movableSpins);
    addSpins(spins, weaponSpins);
    addSpins(spins, armorSpins);
    addSpins(spins, schematicSpins);
    return spins;
}

std::vector<QCheckBox*> ProtoWidget::boundChecks() const
{
    std::vector<QCheckBox*> checks(staticControls.flags.begin(), staticControls.flags.end());
    checks.insert(checks.end(), movableControls.flags.begin(), movableControls.flags.end());
    checks.insert(checks.end(), itemFlagChecks.begin(), itemFlagChecks.end());
    checks.insert(checks.end(), weaponFlagChecks.begin(), weaponFlagChecks.end());
    return checks;
}

// Every bound control reports an edit; the damage and script widgets report theirs through beenEdited().
void ProtoWidget::connectEdits()
{
    for (QSpinBox* spin : boundSpins()) {
        allowWholeWord(spin);
        connect(spin, qOverload<int>(&QSpinBox::valueChanged), this, &ProtoWidget::edited);
    }
    for (QComboBox* combo : {ui->staticMaterialCombo, ui->movableMaterialCombo, ui->weaponAmmoType,
                             ui->weaponCriticalHit, ui->weaponCriticalHitMagic, ui->weaponCriticalMiss,
                             ui->weaponCriticalMissMagic, ui->schematicScrollType})
        connect(combo, qOverload<int>(&QComboBox::currentIndexChanged), this, &ProtoWidget::edited);
    for (QCheckBox* box : boundChecks())
        connect(box, &QCheckBox::toggled, this, &ProtoWidget::edited);
    for (ProtoDamagesWidget* damages : ui->scrollContents->findChildren<ProtoDamagesWidget*>())
        connect(damages, &ProtoDamagesWidget::beenEdited, this, &ProtoWidget::onDamagesEdited);
    connect(ui->movableScripts, &ProtoScriptsWidget::beenEdited, this, &ProtoWidget::onScriptsEdited);
}

namespace {

// "movableWeightMagical" → "weight magical": the control's name without its group and kind, in words.
QString fieldWords(const QObject* control)
{
    QString name = control ? control->objectName() : QString();
    for (const char* group : {"static", "movable", "weapon", "armor", "schematic"})
        if (name.startsWith(QLatin1String(group)))
            name = name.mid(int(qstrlen(group)));
    for (const char* kind : {"Spin", "Combo", "Check"})
        if (name.endsWith(QLatin1String(kind)))
            name.chop(int(qstrlen(kind)));
    QString words;
    for (const QChar c : name) {
        if (c.isUpper() && !words.isEmpty())
            words += QLatin1Char(' ');
        words += c.toLower();
    }
    return words;
}

} // namespace

// The form is copied into the model as a whole and the difference recorded as one step named after the
// control that changed; consecutive changes of one control merge (typing a number).
void ProtoWidget::edited()
{
    if (updating || protoDocument() == nullptr)
        return;
    protoDocument()->beginEdit();
    collectData();
    const QObject* control = sender();
    const QString field = fieldWords(control);
    protoDocument()->recordEdit(field.isEmpty() ? tr("Edit prototype") : tr("Edit %1").arg(field), 3001,
                                int(qHash(control ? control->objectName() : QString())));
}

void ProtoWidget::onDamagesEdited()
{
    edited();
}

void ProtoWidget::onScriptsEdited()
{
    edited();
}


void ProtoWidget::updateData()
{
    QScopedValueRollback<bool> guard(updating, true);
    for (QGroupBox* group : blockGroups)
        group->hide();
    const Proto& proto = getProto();
    if (!proto.isLoaded()) {
        ui->labelIndex->setText(tr("No item"));
        ui->labelItemType->setText(tr("No item"));
        ui->hexUnknown1->setLabel(tr("Unknown bytes %1").arg(1));
        ui->hexUnknown1->setData(nullptr, 0, Proto::UNKNOWN1_OFFSET);
        ui->hexUnknown2->setLabel(tr("Unknown bytes %1").arg(2));
        ui->hexUnknown2->setData(nullptr, 0, Proto::UNKNOWN2_OFFSET);
        return;
    }
    showHeader();
    showBlock();
}

void ProtoWidget::showHeader()
{
    const Proto::Header& head = model().header();
    ui->labelIndex->setText(QString::number(head.index));
    ui->labelItemType->setText(QString::fromStdString(Proto::itemTypeToString(Proto::ItemType(head.itemType))));
    ui->hexUnknown1->setLabel(tr("Unknown bytes %1 [%2]").arg(1).arg(QStringLiteral("0x0006 - 0x0023")));
    ui->hexUnknown1->setData(head.unknown1.data(), head.unknown1.size(), Proto::UNKNOWN1_OFFSET);
    // The block holds 12 bytes although the label's range covers 8; the label is kept as modders know it.
    ui->hexUnknown2->setLabel(tr("Unknown bytes %1 [%2]").arg(2).arg(QStringLiteral("0x0028 - 0x002F")));
    ui->hexUnknown2->setData(head.unknown2.data(), head.unknown2.size(), Proto::UNKNOWN2_OFFSET);
}

void ProtoWidget::showBlock()
{
    Proto& proto = model();
    const std::uint32_t type = proto.header().itemType;
    // Item types in file order: the group of each type's own part.
    QGroupBox* const ownGroups[] = {ui->wallGroup,    ui->portalGroup,   ui->containerGroup, ui->sceneryGroup,
                                    ui->projectileGroup, ui->weaponGroup, ui->ammoGroup,     ui->armorGroup,
                                    ui->goldGroup,    ui->foodGroup,     ui->scrollGroup,    ui->keyGroup,
                                    ui->keyringGroup, ui->schematicGroup, ui->genericGroup,  ui->npcGroup,
                                    ui->npcGroup,     ui->trapGroup};
    if (type < Proto::ITEM_TYPE_COUNT)
        ownGroups[type]->show();
    if (Proto::WallData* wall = proto.asWall()) {
        ui->hexWall->setLabel(QStringLiteral("Unknown [0x0038 - 0x00178]"));
        ui->hexWall->setData(wall->bytes.data(), wall->bytes.size(), Proto::DATA_OFFSET);
    } else if (Proto::StaticData* object = proto.asStatic()) {
        ui->staticGroup->show();
        fillObject(staticControls, *object);
    } else if (MovableData* movable = proto.asMovable()) {
        ui->movableGroup->show();
        fillObject(movableControls, *movable);
        fillMovable(*movable);
    }
}

void ProtoWidget::fillObject(const ObjectControls& controls, ObjectData& object)
{
    showFields(controls.spins, object);
    showFields(controls.combos, object);
    showFields(objectFlags(controls, object));
    controls.resistances->setResistances(&object.resistances, tr("Resistances"));
}

void ProtoWidget::fillMovable(MovableData& movable)
{
    Proto& proto = model();
    showFields(movableSpins, movable);
    showFields(itemFlags(movable));
    ui->movableScripts->setScripts(&movable.scripts);
    if (WeaponData* weapon = proto.asWeapon())
        fillWeapon(*weapon);
    if (ArmorData* armor = proto.asArmor()) {
        showFields(armorSpins, *armor);
        ui->armorResistances->setResistances(&armor->armorResistances, tr("Resistances"));
        ui->armorMagicResistances->setResistances(&armor->armorResistancesMagic, tr("Magickal resistances"));
    }
    if (SchematicData* schematic = proto.asSchematic()) {
        showFields(schematicSpins, *schematic);
        showFields(schematicCombos, *schematic);
    }
}

void ProtoWidget::fillWeapon(WeaponData& weapon)
{
    showFields(weaponSpins, weapon);
    showFields(weaponCombos, weapon);
    showFields(weaponFlags(weapon));
    ui->weaponMinDamages->setDamages(&weapon.minDamages, tr("Minimal damages"));
    ui->weaponMaxDamages->setDamages(&weapon.maxDamages, tr("Maximal damages"));
    ui->weaponMagicDamages->setDamages(&weapon.magicDamages, tr("Magickal damages"));
}

void ProtoWidget::collectData()
{
    Proto& proto = model();
    if (Proto::StaticData* object = proto.asStatic()) {
        collectObject(staticControls, *object);
    } else if (MovableData* movable = proto.asMovable()) {
        collectObject(movableControls, *movable);
        collectMovable(*movable);
    }
}

void ProtoWidget::collectObject(const ObjectControls& controls, ObjectData& object)
{
    takeFields(controls.spins, object);
    takeFields(controls.combos, object);
    takeFields(objectFlags(controls, object));
    object.resistances = controls.resistances->getResistances();
}

void ProtoWidget::collectMovable(MovableData& movable)
{
    Proto& proto = model();
    takeFields(movableSpins, movable);
    takeFields(itemFlags(movable));
    movable.scripts = ui->movableScripts->getScripts();
    if (WeaponData* weapon = proto.asWeapon())
        collectWeapon(*weapon);
    if (ArmorData* armor = proto.asArmor()) {
        takeFields(armorSpins, *armor);
        armor->armorResistances = ui->armorResistances->getResistances();
        armor->armorResistancesMagic = ui->armorMagicResistances->getResistances();
    }
    if (SchematicData* schematic = proto.asSchematic()) {
        takeFields(schematicSpins, *schematic);
        takeFields(schematicCombos, *schematic);
    }
}

void ProtoWidget::collectWeapon(WeaponData& weapon)
{
    takeFields(weaponSpins, weapon);
    takeFields(weaponCombos, weapon);
    takeFields(weaponFlags(weapon));
    weapon.minDamages = ui->weaponMinDamages->getDamages();
    weapon.maxDamages = ui->weaponMaxDamages->getDamages();
    weapon.magicDamages = ui->weaponMagicDamages->getDamages();
}

std::vector<FlagField<std::uint32_t>> ProtoWidget::objectFlags(const ObjectControls& controls,
                                                               ObjectData& object) const
{
    return flagFields<std::uint32_t>(controls.flags, OBJECT_FLAG_BITS, {&object.flags1, &object.flags2});
}

std::vector<FlagField<std::uint8_t>> ProtoWidget::itemFlags(MovableData& movable) const
{
    return flagFields<std::uint8_t>(itemFlagChecks, ITEM_FLAG_BITS,
                                    {&movable.itemFlags[0], &movable.itemFlags[1], &movable.itemFlags[2]});
}

std::vector<FlagField<std::uint8_t>> ProtoWidget::weaponFlags(WeaponData& weapon) const
{
    std::vector<FlagField<std::uint8_t>> fields;
    for (std::size_t i = 0; i < weaponFlagChecks.size(); ++i)
        fields.push_back({weaponFlagChecks[i], &weapon.weaponFlags, WEAPON_FLAG_BITS[i]});
    return fields;
}
