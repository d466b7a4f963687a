#pragma once

#include "ProtoRecords.h"

#include <QDialog>

#include <array>
#include <memory>

class QCheckBox;
class QSpinBox;
class Ui_DialogProtoScript;

// The arguments of one script point: script number, four counters and 32 flag bits.
class DialogProtoScript : public QDialog
{
    Q_OBJECT

public:
    using ScriptArgs = arcanum::Proto::ScriptArgs;

    explicit DialogProtoScript(QWidget* parent = nullptr);
    ~DialogProtoScript() override;

    void setArgs(const ScriptArgs& value);
    ScriptArgs getArgs() const { return args; }

    QSpinBox* scriptSpin() const;
    QSpinBox* counterSpin(int counter) const;
    QCheckBox* flagCheck(int bit) const;

private:
    void addFlagChecks();
    void takeScript(int value);
    void takeCounter(int counter, int value);
    void takeFlag(int bit, bool on);

    std::unique_ptr<Ui_DialogProtoScript> ui;
    std::array<QSpinBox*, 4> counters{};
    std::array<QCheckBox*, 32> flags{};
    ScriptArgs args;
    bool updating = false;
};
