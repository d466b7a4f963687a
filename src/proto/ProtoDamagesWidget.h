#pragma once

#include "ProtoRecords.h"

#include <QWidget>

#include <array>
#include <memory>

class QCheckBox;
class QSpinBox;
class Ui_ProtoDamagesWidget;

// One resistance or damage set: the group's check is the record's presence, each row one kind.
class ProtoDamagesWidget : public QWidget
{
    Q_OBJECT

public:
    using Damages = arcanum::Proto::Damages;

    explicit ProtoDamagesWidget(QWidget* parent = nullptr);
    ~ProtoDamagesWidget() override;

    // A null record shows an absent set.
    void setResistances(const Damages* damages, const QString& title);
    void setDamages(const Damages* damages, const QString& title);
    Damages getResistances() const;
    Damages getDamages() const;

    bool isRowChecked(int kind) const;

signals:
    void beenEdited();

private slots:
    void on_groupBox_toggled(bool on);

private:
    void fill(const Damages* damages, const QString& title);
    Damages collect() const;
    void rowToggled(int kind, bool on);
    void reportEdit();

    std::unique_ptr<Ui_ProtoDamagesWidget> ui;
    std::array<QCheckBox*, Damages::ROOM> checks{};
    std::array<QSpinBox*, Damages::ROOM> spins{};
    // The record as filled: its kept words survive reading back.
    Damages original;
    bool updating = false;
};
