#include "ProtoScriptsWidget.h"

#include "DialogProtoScript.h"
#include "Prompt.h"
#include "ui_ProtoScriptsWidget.h"

#include <QCheckBox>
#include <QScopedValueRollback>
#include <QToolButton>

namespace {
constexpr int ROWS_PER_COLUMN = 18;
}

ProtoScriptsWidget::ProtoScriptsWidget(QWidget* parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui_ProtoScriptsWidget>())
{
    ui->setupUi(this);
    addRows();
}

ProtoScriptsWidget::~ProtoScriptsWidget() = default;

void ProtoScriptsWidget::addRows()
{
    for (int point = 0; point < static_cast<int>(Scripts::ROOM); ++point) {
        auto* check = new QCheckBox(
            QString::fromStdString(arcanum::Proto::scriptPointToString(arcanum::Proto::ScriptPoint(point))));
        check->setObjectName(QStringLiteral("scriptCheck%1").arg(point));
        auto* button = new QToolButton;
        button->setObjectName(QStringLiteral("scriptButton%1").arg(point));
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setEnabled(false);
        button->setToolTip(tr("The script this event runs and its counters; click to change them"));
        check->setToolTip(tr("Whether the object runs a script when this event happens"));
        QFormLayout* column = point < ROWS_PER_COLUMN ? ui->firstColumn : ui->secondColumn;
        column->addRow(check, button);
        checks[point] = check;
        buttons[point] = button;
        connect(check, &QCheckBox::toggled, this, [this, point](bool on) { rowToggled(point, on); });
        connect(button, &QToolButton::clicked, this, [this, point] { editScript(point); });
        redrawButton(point);
    }
}

QCheckBox* ProtoScriptsWidget::rowCheck(int point) const
{
    return point >= 0 && point < static_cast<int>(Scripts::ROOM) ? checks[point] : nullptr;
}

QToolButton* ProtoScriptsWidget::rowButton(int point) const
{
    return point >= 0 && point < static_cast<int>(Scripts::ROOM) ? buttons[point] : nullptr;
}

void ProtoScriptsWidget::setScripts(const Scripts* scripts)
{
    QScopedValueRollback<bool> guard(updating, true);
    original = scripts ? *scripts : Scripts();
    args.clear();
    std::uint32_t stored = 0;
    for (int point = 0; point < static_cast<int>(Scripts::ROOM); ++point) {
        const bool has = original.isPresent() && stored < original.count && (original.mask() >> point & 1u);
        if (has)
            args[point] = original.args[stored++];
        checks[point]->setChecked(has);
        redrawButton(point);
    }
    ui->groupBox->setChecked(original.isPresent());
}

ProtoScriptsWidget::Scripts ProtoScriptsWidget::getScripts() const
{
    Scripts scripts = original;
    if (!ui->groupBox->isChecked()) {
        scripts.present = 0;
        return scripts;
    }
    scripts.makePresent(Scripts::ELEMENT_SIZE);
    scripts.count = 0;
    scripts.args = {};
    std::uint64_t mask = 0;
    for (int point = 0; point < static_cast<int>(Scripts::ROOM); ++point) {
        if (!checks[point]->isChecked())
            continue;
        const auto found = args.find(point);
        scripts.args[scripts.count++] = found != args.end() ? found->second : ScriptArgs();
        mask |= std::uint64_t(1) << point;
    }
    scripts.setMask(mask);
    return scripts;
}

void ProtoScriptsWidget::on_groupBox_toggled(bool)
{
    reportEdit();
}

void ProtoScriptsWidget::rowToggled(int point, bool on)
{
    buttons[point]->setEnabled(on);
    reportEdit();
}

void ProtoScriptsWidget::editScript(int point)
{
    DialogProtoScript dialog(this);
    const auto found = args.find(point);
    dialog.setArgs(found != args.end() ? found->second : ScriptArgs());
    if (Prompt::run(dialog) != QDialog::Accepted)
        return;
    args[point] = dialog.getArgs();
    redrawButton(point);
    reportEdit();
}

void ProtoScriptsWidget::redrawButton(int point)
{
    QToolButton* button = buttons[point];
    button->setEnabled(checks[point]->isChecked());
    const auto found = args.find(point);
    if (found == args.end()) {
        button->setText(tr("Click to attach a script"));
        return;
    }
    const ScriptArgs& script = found->second;
    // Short enough for the form's column; the words are in the tool tip.
    const QString counters = QStringLiteral("%1 %2 %3 %4")
                                 .arg(int(script.counters[0]))
                                 .arg(int(script.counters[1]))
                                 .arg(int(script.counters[2]))
                                 .arg(int(script.counters[3]));
    button->setText(QStringLiteral("%1 (%2; 0x%3)").arg(script.number).arg(counters).arg(script.flags, 0, 16));
    button->setToolTip(tr("Script %1, counters %2, flags 0x%3. Click to change.")
                           .arg(script.number)
                           .arg(counters)
                           .arg(script.flags, 0, 16));
}

void ProtoScriptsWidget::reportEdit()
{
    if (!updating)
        emit beenEdited();
}
