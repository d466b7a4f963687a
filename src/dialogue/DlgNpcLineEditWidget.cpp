#include "DlgNpcLineEditWidget.h"

#include "ui_DlgNpcLineEditWidget.h"

#include <QEvent>

using arcanum::dlg::result::ALL_NPC_RESULTS;

namespace {

void showAndEnable(const QList<QWidget*>& widgets, bool on)
{
    for (QWidget* widget : widgets) {
        widget->setVisible(on);
        widget->setEnabled(on);
    }
}

} // namespace

DlgNpcLineEditWidget::DlgNpcLineEditWidget(QWidget* parent)
    : DlgLineEditWidget(parent)
    , ui(setUp<Ui_DlgNpcLineEditWidget>(this))
    , maleTextBox(ui->maleText)
    , femaleTextBox(ui->femaleText)
    , results(ui->resultsLayout, &ALL_NPC_RESULTS, {"removeResultsWidget", "remove resultWidget out of range"},
              {[this](int position) { addResultWidgetAfter(position); },
               [this](int position) { removeResultWidget(position); }, [this] { wasModified(); }})
{
    connectChecks();
    connectControls();
    clear();
}

DlgNpcLineEditWidget::~DlgNpcLineEditWidget() = default;

// The check boxes only show, hide, enable and disable what they govern; the line's fields follow
// the controls when the form is applied.
void DlgNpcLineEditWidget::connectChecks()
{
    connect(ui->checkIsGenerated, &QCheckBox::toggled, ui->checkDifferentFemale, &QWidget::setVisible);
    connect(ui->checkIsGenerated, &QCheckBox::toggled, ui->frameGoto, &QWidget::setVisible);
    connect(ui->checkIsGenerated, &QCheckBox::toggled, ui->checkHasGoto, &QWidget::setEnabled);
    governs(ui->checkHasGoto, responseControls());
    governs(ui->checkDifferentFemale, femaleControls());
}

void DlgNpcLineEditWidget::governs(QCheckBox* check, const QList<QWidget*>& widgets)
{
    for (QWidget* widget : widgets) {
        connect(check, &QCheckBox::toggled, widget, &QWidget::setVisible);
        connect(check, &QCheckBox::toggled, widget, &QWidget::setEnabled);
    }
}

QList<QWidget*> DlgNpcLineEditWidget::responseControls() const
{
    return {ui->labelResponseLine, ui->spinResponseLine};
}

QList<QWidget*> DlgNpcLineEditWidget::femaleControls() const
{
    return {ui->labelFemaleText, ui->femaleText};
}

void DlgNpcLineEditWidget::connectControls()
{
    for (QPlainTextEdit* text : {ui->maleText, ui->femaleText})
        connect(text, &QPlainTextEdit::textChanged, this, &DlgNpcLineEditWidget::wasModified);
    // Of the check boxes only the goto reaches the line: switching it on applies the response line.
    connect(ui->checkHasGoto, &QCheckBox::toggled, this, &DlgNpcLineEditWidget::wasModified);
    connect(ui->spinResponseLine, &QSpinBox::valueChanged, this, &DlgNpcLineEditWidget::wasModified);
    watchLineNumber(ui->spinLineNumber, [this] { return line ? std::optional<int>(line->index()) : std::nullopt; });
    watchTarget(ui->spinResponseLine);
}

void DlgNpcLineEditWidget::fillWithData(NPCLinePointer data)
{
    line = data;
    fill(line.data() != nullptr, "DlgNpcLineEditWidget::fillWithData():data == NULL");
}

// A line with a female variant or a response line counts as generated, so both show; one with
// a response line has its goto ticked.
void DlgNpcLineEditWidget::showLine()
{
    const bool hasFemaleText = !line->femaleText().isEmpty();
    const bool hasGoto = line->responseLine() >= 0;
    ui->spinLineNumber->setValue(line->index());
    maleTextBox.show(line->text());
    femaleTextBox.show(line->femaleText());
    ui->checkIsGenerated->setChecked(hasFemaleText || hasGoto);
    ui->checkDifferentFemale->setChecked(hasFemaleText);
    ui->checkHasGoto->setChecked(hasGoto);
    ui->spinResponseLine->setValue(hasGoto ? line->responseLine() : 0);
    showDependentControls();
    results.fill(line->results().records());
}

// The check boxes' signals only fire on a change, so filling sets what they govern itself.
void DlgNpcLineEditWidget::showDependentControls()
{
    const bool generated = ui->checkIsGenerated->isChecked();
    ui->checkDifferentFemale->setVisible(generated);
    ui->frameGoto->setVisible(generated);
    ui->checkHasGoto->setEnabled(generated);
    showAndEnable(responseControls(), ui->checkHasGoto->isChecked());
    showAndEnable(femaleControls(), ui->checkDifferentFemale->isChecked());
}

void DlgNpcLineEditWidget::rememberShownValues()
{
    maleTextBox.markApplied();
    femaleTextBox.markApplied();
    shownResponse = ui->spinResponseLine->value();
    responseShown = responseLineApplies();
}

void DlgNpcLineEditWidget::clear()
{
    line.reset();
    filling([this] {
        ui->spinLineNumber->setValue(0);
        maleTextBox.show(QString());
        femaleTextBox.show(QString());
        ui->checkIsGenerated->setChecked(false);
        ui->checkDifferentFemale->setChecked(false);
        ui->checkHasGoto->setChecked(false);
        ui->spinResponseLine->setValue(0);
        showDependentControls();
        results.clear();
    });
    setEnabled(false);
}

void DlgNpcLineEditWidget::focusText()
{
    ui->maleText->setFocus(Qt::OtherFocusReason);
}

// The response line counts only while its spin box is on offer: enabled and not hidden.
bool DlgNpcLineEditWidget::responseLineApplies() const
{
    return ui->spinResponseLine->isEnabledTo(this) && ui->spinResponseLine->isVisibleTo(this);
}

void DlgNpcLineEditWidget::applyChangesToData()
{
    if (updating || !pending)
        return;
    if (!line) {
        qWarning("DlgNpcLineEditWidget::applyChangesToData(): line == NULL");
        return;
    }
    if (maleTextBox.isChanged())
        line->setText(maleTextBox.text());
    if (femaleTextBox.isChanged())
        line->setFemaleText(femaleTextBox.text());
    applyResponseLine();
    line->setResults(getResults());
    rememberShownValues();
    pending = false;
}

// A goto the user just switched on counts even with the number it showed before.
void DlgNpcLineEditWidget::applyResponseLine()
{
    if (!responseLineApplies())
        return;
    if (!responseShown || ui->spinResponseLine->value() != shownResponse)
        line->setResponseLine(ui->spinResponseLine->value());
}

void DlgNpcLineEditWidget::on_buttonReset_clicked()
{
}

void DlgNpcLineEditWidget::addResultWidgetAfter(int position)
{
    addRowAfter(results, position);
}

void DlgNpcLineEditWidget::removeResultWidget(int position)
{
    removeRow(results, position);
}

void DlgNpcLineEditWidget::on_addResults_clicked()
{
    addResultWidgetAfter(-1);
}

void DlgNpcLineEditWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    DlgLineEditWidget::changeEvent(event);
}
