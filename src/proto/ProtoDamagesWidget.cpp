#include "ProtoDamagesWidget.h"

#include "ui_ProtoDamagesWidget.h"

#include <QScopedValueRollback>

#include <limits>

ProtoDamagesWidget::ProtoDamagesWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ProtoDamagesWidget>())
{
    ui->setupUi(this);
    checks = {ui->check0, ui->check1, ui->check2, ui->check3, ui->check4};
    spins = {ui->spin0, ui->spin1, ui->spin2, ui->spin3, ui->spin4};
    for (int kind = 0; kind < static_cast<int>(Damages::ROOM); ++kind) {
        checks[kind]->setText(QString::fromStdString(
            arcanum::Proto::resistanceTypeToString(arcanum::Proto::ResistanceType(kind))));
        spins[kind]->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        // Values are small in practice; the whole range stays allowed but does not size the box.
        spins[kind]->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-000000")) + 40);
        spins[kind]->setEnabled(false);
        connect(checks[kind], &QCheckBox::toggled, this, [this, kind](bool on) { rowToggled(kind, on); });
        connect(spins[kind], qOverload<int>(&QSpinBox::valueChanged), this, &ProtoDamagesWidget::reportEdit);
    }
}

ProtoDamagesWidget::~ProtoDamagesWidget() = default;

// Damage sets are labelled with the resistance kinds too, so both setters are one.
void ProtoDamagesWidget::setResistances(const Damages* damages, const QString& title)
{
    fill(damages, title);
}

void ProtoDamagesWidget::setDamages(const Damages* damages, const QString& title)
{
    fill(damages, title);
}

ProtoDamagesWidget::Damages ProtoDamagesWidget::getResistances() const
{
    return collect();
}

ProtoDamagesWidget::Damages ProtoDamagesWidget::getDamages() const
{
    return collect();
}

bool ProtoDamagesWidget::isRowChecked(int kind) const
{
    return kind >= 0 && kind < static_cast<int>(Damages::ROOM) && checks[kind]->isChecked();
}

void ProtoDamagesWidget::fill(const Damages* damages, const QString& title)
{
    QScopedValueRollback<bool> guard(updating, true);
    original = damages ? *damages : Damages();
    ui->groupBox->setTitle(title);
    for (std::uint32_t kind = 0; kind < Damages::ROOM; ++kind) {
        checks[kind]->setChecked(false);
        spins[kind]->setValue(0);
        spins[kind]->setEnabled(false);
    }
    ui->groupBox->setChecked(original.isPresent());
    if (!original.isPresent())
        return;
    std::uint32_t stored = 0;
    for (std::uint32_t kind = 0; kind < Damages::ROOM && stored < original.count; ++kind) {
        if (!(original.maskLow & (1u << kind)))
            continue;
        checks[kind]->setChecked(true);
        spins[kind]->setValue(original.values[stored++]);
    }
}

ProtoDamagesWidget::Damages ProtoDamagesWidget::collect() const
{
    Damages damages = original;
    if (!ui->groupBox->isChecked()) {
        damages.present = 0;
        return damages;
    }
    damages.makePresent(Damages::ELEMENT_SIZE);
    damages.count = 0;
    damages.maskLow = 0;
    damages.values = {};
    for (std::uint32_t kind = 0; kind < Damages::ROOM; ++kind) {
        if (!checks[kind]->isChecked())
            continue;
        damages.values[damages.count++] = spins[kind]->value();
        damages.maskLow |= 1u << kind;
    }
    return damages;
}

void ProtoDamagesWidget::on_groupBox_toggled(bool)
{
    reportEdit();
}

void ProtoDamagesWidget::rowToggled(int kind, bool on)
{
    spins[kind]->setEnabled(on);
    reportEdit();
}

void ProtoDamagesWidget::reportEdit()
{
    if (!updating)
        emit beenEdited();
}
