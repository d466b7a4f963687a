#include "DialogProtoScript.h"

#include "ui_DialogProtoScript.h"

#include <QCheckBox>
#include <QScopedValueRollback>

#include <limits>

namespace {
constexpr int FLAGS_PER_ROW = 8;
}

DialogProtoScript::DialogProtoScript(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui_DialogProtoScript>())
{
    ui->setupUi(this);
    // Script numbers fill the whole 32-bit word; the spin shows them as the signed value of its bits.
    ui->spinScript->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    connect(ui->spinScript, qOverload<int>(&QSpinBox::valueChanged), this, &DialogProtoScript::takeScript);
    counters = {ui->spinCounter0, ui->spinCounter1, ui->spinCounter2, ui->spinCounter3};
    for (int counter = 0; counter < 4; ++counter)
        connect(counters[counter], qOverload<int>(&QSpinBox::valueChanged), this,
                [this, counter](int value) { takeCounter(counter, value); });
    addFlagChecks();
}

DialogProtoScript::~DialogProtoScript() = default;

void DialogProtoScript::addFlagChecks()
{
    for (int bit = 0; bit < 32; ++bit) {
        auto* check = new QCheckBox(QString::number(bit));
        check->setObjectName(QStringLiteral("flagBit%1").arg(bit));
        ui->flagsLayout->addWidget(check, bit / FLAGS_PER_ROW, bit % FLAGS_PER_ROW);
        connect(check, &QCheckBox::toggled, this, [this, bit](bool on) { takeFlag(bit, on); });
        flags[bit] = check;
    }
}

void DialogProtoScript::setArgs(const ScriptArgs& value)
{
    QScopedValueRollback<bool> guard(updating, true);
    args = value;
    ui->spinScript->setValue(static_cast<int>(static_cast<std::int32_t>(args.number)));
    for (int counter = 0; counter < 4; ++counter)
        counters[counter]->setValue(args.counters[counter]);
    for (int bit = 0; bit < 32; ++bit)
        flags[bit]->setChecked(args.flags >> bit & 1u);
}

QSpinBox* DialogProtoScript::scriptSpin() const
{
    return ui->spinScript;
}

QSpinBox* DialogProtoScript::counterSpin(int counter) const
{
    return counter >= 0 && counter < 4 ? counters[counter] : nullptr;
}

QCheckBox* DialogProtoScript::flagCheck(int bit) const
{
    return bit >= 0 && bit < 32 ? flags[bit] : nullptr;
}

void DialogProtoScript::takeScript(int value)
{
    if (!updating)
        args.number = static_cast<std::uint32_t>(value);
}

void DialogProtoScript::takeCounter(int counter, int value)
{
    if (!updating)
        args.counters[counter] = static_cast<std::uint8_t>(value);
}

void DialogProtoScript::takeFlag(int bit, bool on)
{
    if (updating)
        return;
    const std::uint32_t mask = std::uint32_t(1) << bit;
    args.flags = on ? args.flags | mask : args.flags & ~mask;
}
