#include "DialogueTestsWidget.h"

#include "OpcodeWords.h"

#include "ui_DialogueTestsWidget.h"

#include <QEvent>

#include <limits>

using arcanum::dlg::TestOrResultData;
using arcanum::dlg::TestOrResultGuiSettings;
using arcanum::dlg::TestOrResultType;

namespace {

const TestOrResultGuiSettings* settingsOf(const TestOrResultType* type)
{
    return type ? type->settings() : nullptr;
}

// The magnitude of a negative value; the smallest int has none that fits, so it gets the largest.
int magnitude(qint32 value)
{
    const qint64 positive = -static_cast<qint64>(value);
    return static_cast<int>(qMin<qint64>(positive, std::numeric_limits<int>::max()));
}

} // namespace

DialogueTestsWidget::DialogueTestsWidget(QWidget* parent, int rowNumber, const Types* types_)
    : DialogueTestsWidget(parent, rowNumber, types_,
                          TestOrResultData(types_ && !types_->isEmpty() ? types_->first() : nullptr))
{
}

DialogueTestsWidget::DialogueTestsWidget(QWidget* parent, int rowNumber, const Types* types_, TestOrResultData data_)
    : QWidget(parent)
    , mRowNumber(rowNumber)
    , types(types_)
    , ui(std::make_unique<Ui_DialogueTestsWidget>())
    , data(data_)
{
    init();
}

DialogueTestsWidget::~DialogueTestsWidget() = default;

void DialogueTestsWidget::init()
{
    ui->setupUi(this);
    // Room for the code and the start of its meaning ("gf — global flag").
    ui->comboOp->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    ui->comboOp->setMinimumContentsLength(15);
    initialising = true;
    fillOpcodes();
    ui->comboOp->setCurrentIndex(types ? static_cast<int>(types->indexOf(data.type)) : -1);
    fillCombos(data.type);
    showControls(settingsOf(data.type));
    enableArguments(data.type);
    showValues();
    connectControls();
    initialising = false;
    updateToolTips();
}

QString DialogueTestsWidget::opcodeToolTip(const TestOrResultType* type)
{
    const QStringList names = arcanum::dlg::OpcodeWords::argumentNames(type);
    const QString meaning = arcanum::dlg::OpcodeWords::meaning(type);
    if (names.isEmpty())
        return tr("\"%1\": %2, without arguments").arg(type->code(), meaning);
    return tr("\"%1\": %2; arguments: %3").arg(type->code(), meaning, names.join(QStringLiteral(", ")));
}

void DialogueTestsWidget::fillOpcodes()
{
    if (!types)
        return;
    for (const TestOrResultType* type : *types) {
        if (!type) {
            ui->comboOp->addItem(QString());
            continue;
        }
        // The code comes first, so typing it still finds the opcode; the words say what it does.
        ui->comboOp->addItem(arcanum::dlg::OpcodeWords::label(type));
        ui->comboOp->setItemData(ui->comboOp->count() - 1, opcodeToolTip(type), Qt::ToolTipRole);
    }
}

void DialogueTestsWidget::fillCombos(const TestOrResultType* type)
{
    ui->combo1->clear();
    ui->combo2->clear();
    if (const TestOrResultGuiSettings* settings = settingsOf(type)) {
        ui->combo1->addItems(settings->combo1Items());
        ui->combo2->addItems(settings->combo2Items());
    }
}

void DialogueTestsWidget::showControls(const TestOrResultGuiSettings* settings)
{
    const auto shows = [settings](TestOrResultGuiSettings::VisibleControl control) {
        return settings && settings->shows(control);
    };
    ui->combo1->setVisible(shows(TestOrResultGuiSettings::COMBO1));
    ui->spin1->setVisible(shows(TestOrResultGuiSettings::SPIN1));
    ui->combo2->setVisible(shows(TestOrResultGuiSettings::COMBO2));
    ui->spin2->setVisible(shows(TestOrResultGuiSettings::SPIN2));
}

// Controls an opcode does not read stay where they are but go grey, so the row says which values
// reach the file. A combo box with a single item only names its value.
void DialogueTestsWidget::enableArguments(const TestOrResultType* type)
{
    const int arguments = type ? type->argumentCount() : 0;
    ui->combo1->setEnabled(arguments >= 1 && ui->combo1->count() > 1);
    ui->spin1->setEnabled(arguments >= 1);
    ui->combo2->setEnabled(arguments >= 2 && ui->combo2->count() > 1);
    ui->spin2->setEnabled(arguments >= 2);
}

// With a choice in combo1 (">=" / "<="), a negative value shows as its magnitude with the second item.
void DialogueTestsWidget::showValues()
{
    if (ui->combo1->count() > 1) {
        const bool negative = data.value1 < 0;
        ui->combo1->setCurrentIndex(negative ? 1 : 0);
        ui->spin1->setValue(negative ? magnitude(data.value1) : data.value1);
    } else {
        ui->spin1->setValue(data.value1);
    }
    ui->spin2->setValue(data.value2);
}

void DialogueTestsWidget::connectControls()
{
    connect(ui->buttonAdd, &QToolButton::clicked, this, &DialogueTestsWidget::timeToEmitPlusButtonPressed);
    connect(ui->buttonRemove, &QToolButton::clicked, this, &DialogueTestsWidget::timeToEmitMinusButtonPressed);
    for (QComboBox* combo : {ui->combo1, ui->combo2})
        connect(combo, &QComboBox::currentIndexChanged, this, &DialogueTestsWidget::onValuesChanged);
    for (QSpinBox* spin : {ui->spin1, ui->spin2})
        connect(spin, &QSpinBox::valueChanged, this, &DialogueTestsWidget::onValuesChanged);
}

// The row keeps the controls its first opcode showed: only the items and the greyed state follow the
// new opcode.
void DialogueTestsWidget::on_comboOp_currentIndexChanged(int index)
{
    if (initialising)
        return;
    initialising = true;
    const TestOrResultType* type = types && index >= 0 && index < types->size() ? types->at(index) : nullptr;
    showControls(settingsOf(data.type));
    fillCombos(type);
    enableArguments(type);
    initialising = false;
    updateToolTips();
    edited = true;
    emit valueEdited();
}

void DialogueTestsWidget::onValuesChanged()
{
    if (initialising)
        return;
    updateToolTips();
    edited = true;
    emit valueEdited();
}

void DialogueTestsWidget::timeToEmitPlusButtonPressed()
{
    emit plusButtonPressed(mRowNumber);
}

void DialogueTestsWidget::timeToEmitMinusButtonPressed()
{
    emit minusButtonPressed(mRowNumber);
}

void DialogueTestsWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    QWidget::changeEvent(event);
}

// Tool tips come from the opcode the row was created with, like its layout.
void DialogueTestsWidget::updateToolTips()
{
    const TestOrResultGuiSettings* settings = settingsOf(data.type);
    if (!settings)
        return;
    if (isShown(combo1))
        ui->combo1->setToolTip(settings->getCombo1ToolTip(*this));
    if (isShown(combo2))
        ui->combo2->setToolTip(settings->getCombo2ToolTip(*this));
    if (isShown(spin1))
        ui->spin1->setToolTip(settings->getSpin1ToolTip(*this));
    if (isShown(spin2))
        ui->spin2->setToolTip(settings->getSpin2ToolTip(*this));
    // Each value box is named after the argument it holds, where the opcode's arguments have names.
    QStringList names = arcanum::dlg::OpcodeWords::argumentNames(data.type);
    if (!arcanum::dlg::OpcodeWords::namesArguments(data.type))
        names.clear();
    if (!names.isEmpty() && isShown(spin1))
        ui->spin1->setToolTip(names.at(0) + QStringLiteral(": ") + ui->spin1->toolTip());
    if (names.size() > 1 && isShown(spin2))
        ui->spin2->setToolTip(names.at(1) + QStringLiteral(": ") + ui->spin2->toolTip());
    if (data.type != nullptr)
        setToolTip(opcodeToolTip(data.type));
}

const TestOrResultType* DialogueTestsWidget::chosenType() const
{
    const int index = ui->comboOp->currentIndex();
    if (!types || index < 0 || index >= types->size())
        return data.type;
    return types->at(index);
}

std::unique_ptr<TestOrResultData> DialogueTestsWidget::getCalculatedValue() const
{
    if (!edited)
        return std::make_unique<TestOrResultData>(data);
    const TestOrResultType* type = chosenType();
    const TestOrResultGuiSettings* settings = settingsOf(type);
    if (!settings)
        return std::make_unique<TestOrResultData>(type);
    return std::make_unique<TestOrResultData>(TestOrResultData::fromValues(type, settings->getValues(*this)));
}

QComboBox* DialogueTestsWidget::comboBox(ComboBox combo) const
{
    switch (combo) {
    case comboOp:
        return ui->comboOp;
    case combo1:
        return ui->combo1;
    case combo2:
        return ui->combo2;
    }
    return ui->comboOp;
}

QSpinBox* DialogueTestsWidget::spinBox(SpinBox spin) const
{
    return spin == spin1 ? ui->spin1 : ui->spin2;
}

int DialogueTestsWidget::currentIndex(ComboBox combo) const
{
    return comboBox(combo)->currentIndex();
}

QString DialogueTestsWidget::currentText(ComboBox combo) const
{
    return comboBox(combo)->currentText();
}

int DialogueTestsWidget::count(ComboBox combo) const
{
    return comboBox(combo)->count();
}

int DialogueTestsWidget::value(SpinBox spin) const
{
    return spinBox(spin)->value();
}

bool DialogueTestsWidget::isShown(ComboBox combo) const
{
    return !comboBox(combo)->isHidden();
}

bool DialogueTestsWidget::isShown(SpinBox spin) const
{
    return !spinBox(spin)->isHidden();
}
