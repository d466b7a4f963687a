#pragma once

#include "Page.h"
#include "Proto.h"
#include "ProtoFields.h"
#include "ProtoMovableData.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

class QGroupBox;
class ProtoDamagesWidget;
class ProtoDocument;
class Ui_ProtoWidget;

// The Proto tab: one prototype file as a form of the groups its item type has, saved in place or
// under a new name. Raw parts show as hex; whatever the form does not show is written back as read.
class ProtoWidget : public Page
{
    Q_OBJECT

public:
    explicit ProtoWidget(QWidget* parent = nullptr);
    ~ProtoWidget() override;

    QStringList suffixes() const override;
    QString fileFilter() const override;
    std::unique_ptr<Document> fromBytes(const QString& path, const QByteArray& bytes, QString& error) const override;

    ProtoDocument* protoDocument() const;
    const arcanum::Proto& getProto() const;

protected:
    void showDocument() override;

public slots:
    void edited();
    void onDamagesEdited();
    void onScriptsEdited();

private:
    using ObjectData = arcanum::Proto::ObjectData;
    using MovableData = arcanum::Proto::MovableData;
    using WeaponData = arcanum::Proto::WeaponData;
    using ArmorData = arcanum::Proto::ArmorData;
    using SchematicData = arcanum::Proto::SchematicData;

    // The controls that static objects and movable items both have, once per group.
    struct ObjectControls
    {
        std::vector<protofields::SpinField<ObjectData>> spins;
        std::vector<protofields::ComboField<ObjectData>> combos;
        std::array<QCheckBox*, 9> flags{};
        ProtoDamagesWidget* resistances = nullptr;
    };

    void bindControls();
    void bindObjectControls();
    void bindItemControls();
    void fillChoiceLists();
    void connectEdits();
    std::vector<QSpinBox*> boundSpins() const;
    std::vector<QCheckBox*> boundChecks() const;

    void updateData();
    void showHeader();
    void showBlock();
    void fillObject(const ObjectControls& controls, ObjectData& object);
    void fillMovable(MovableData& movable);
    void fillWeapon(WeaponData& weapon);
    void collectData();
    void collectObject(const ObjectControls& controls, ObjectData& object);
    void collectMovable(MovableData& movable);
    void collectWeapon(WeaponData& weapon);
    arcanum::Proto& model();

    std::vector<protofields::FlagField<std::uint32_t>> objectFlags(const ObjectControls& controls,
                                                                   ObjectData& object) const;
    std::vector<protofields::FlagField<std::uint8_t>> itemFlags(MovableData& movable) const;
    std::vector<protofields::FlagField<std::uint8_t>> weaponFlags(WeaponData& weapon) const;

    std::unique_ptr<Ui_ProtoWidget> ui;
    // Shown while no document is open.
    arcanum::Proto empty;
    bool updating = false;

    std::vector<QGroupBox*> blockGroups;
    ObjectControls staticControls;
    ObjectControls movableControls;
    std::vector<protofields::SpinField<MovableData>> movableSpins;
    std::array<QCheckBox*, 14> itemFlagChecks{};
    std::vector<protofields::SpinField<WeaponData>> weaponSpins;
    std::vector<protofields::ComboField<WeaponData>> weaponCombos;
    std::array<QCheckBox*, 6> weaponFlagChecks{};
    std::vector<protofields::SpinField<ArmorData>> armorSpins;
    std::vector<protofields::SpinField<SchematicData>> schematicSpins;
    std::vector<protofields::ComboField<SchematicData>> schematicCombos;
};
