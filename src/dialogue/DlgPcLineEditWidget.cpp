#include "DlgPcLineEditWidget.h"

#include "ui_DlgPcLineEditWidget.h"

#include <QEvent>

#include <limits>

using arcanum::DialogueFileNew;
using arcanum::dlg::result::ALL_PC_RESULTS;
using arcanum::dlg::test::ALL_TESTS;

namespace {

constexpr int MAXIMUM_INDEX = 1; // "Maximum intelligence"

int clampedMagnitude(int value)
{
    const qint64 magnitude = qAbs(static_cast<qint64>(value));
    return static_cast<int>(qMin<qint64>(magnitude, std::numeric_limits<int>::max()));
}

} // namespace

DlgPcLineEditWidget::DlgPcLineEditWidget(QWidget* parent)
    : DlgLineEditWidget(parent)
    , ui(setUp<Ui_DlgPcLineEditWidget>(this))
    , textBox(ui->text)
    , tests(ui->testsLayout, &ALL_TESTS, {"removetestWidget", "remove testWidget out of range"},
            {[this](int position) { addTestWidgetAfter(position); },
             [this](int position) { removeTestWidget(position); }, [this] { wasModified(); }})
    , results(ui->resultsLayout, &ALL_PC_RESULTS, {"removeResultsWidget", "remove resultWidget out of range"},
              {[this](int position) { addResultWidgetAfter(position); },
               [this](int position) { removeResultWidget(position); }, [this] { wasModified(); }})
{
    connectControls();
    clear();
}

DlgPcLineEditWidget::~DlgPcLineEditWidget() = default;

void DlgPcLineEditWidget::connectControls()
{
    connect(ui->text, &QPlainTextEdit::textChanged, this, &DlgPcLineEditWidget::wasModified);
    for (QComboBox* combo : {ui->comboIntType, ui->comboGender})
        connect(combo, &QComboBox::currentIndexChanged, this, &DlgPcLineEditWidget::wasModified);
    for (QSpinBox* spin : {ui->spinIntelligence, ui->spinResponse})
        connect(spin, &QSpinBox::valueChanged, this, &DlgPcLineEditWidget::wasModified);
    watchLineNumber(ui->spinLineNumber, [this] { return line ? std::optional<int>(line->index()) : std::nullopt; });
    watchTarget(ui->spinResponse);
}

void DlgPcLineEditWidget::fillWithData(PCLinePointer data)
{
    line = data;
    fill(line.data() != nullptr, "DlgPcLineEditWidget::fillWithData():data == NULL");
}

void DlgPcLineEditWidget::showLine()
{
    ui->spinLineNumber->setValue(line->index());
    textBox.show(line->text());
    setIntelligence(line->intelligence());
    ui->spinResponse->setValue(line->responseLine());
    setGender(line->gender());
    tests.fill(line->tests().records());
    results.fill(line->results().records());
}

void DlgPcLineEditWidget::rememberShownValues()
{
    textBox.markApplied();
    shownIntelligence = getIntelligence();
    shownResponse = ui->spinResponse->value();
}

void DlgPcLineEditWidget::clear()
{
    line.reset();
    filling([this] {
        ui->spinLineNumber->setValue(0);
        textBox.show(QString());
        setIntelligence(0);
        ui->spinResponse->setValue(0);
        setGender(DialogueFileNew::GENDER_EITHER);
        tests.clear();
        results.clear();
    });
    setEnabled(false);
}

void DlgPcLineEditWidget::focusText()
{
    ui->text->setFocus(Qt::OtherFocusReason);
}

void DlgPcLineEditWidget::applyChangesToData()
{
    if (!line) {
        qWarning("DlgPcLineEditWidget::applyChangesToData(): line == NULL");
        return;
    }
    if (updating || !pending)
        return;
    if (textBox.isChanged())
        line->setText(textBox.text());
    applyGender();
    if (getIntelligence() != shownIntelligence)
        line->setIntelligence(getIntelligence());
    if (ui->spinResponse->value() != shownResponse)
        line->setResponseLine(ui->spinResponse->value());
    line->setTests(getTests());
    line->setResults(getResults());
    rememberShownValues();
    pending = false;
}

void DlgPcLineEditWidget::applyGender()
{
    try {
        line->setGender(getGender());
    } catch (const char* error) {
        qWarning("DlgPcLineEditWidget::applyChangesToData(): gender not applied: %s", error);
    }
}

int DlgPcLineEditWidget::getIntelligence() const
{
    const int magnitude = ui->spinIntelligence->value();
    return ui->comboIntType->currentIndex() == MAXIMUM_INDEX ? -magnitude : magnitude;
}

void DlgPcLineEditWidget::setIntelligence(int intelligence)
{
    ui->comboIntType->setCurrentIndex(intelligence < 0 ? MAXIMUM_INDEX : 0);
    ui->spinIntelligence->setValue(clampedMagnitude(intelligence));
}

DlgPcLineEditWidget::Gender DlgPcLineEditWidget::getGender() const
{
    switch (ui->comboGender->currentIndex()) {
    case 0:
        return DialogueFileNew::GENDER_EITHER;
    case 1:
        return DialogueFileNew::GENDER_FEMALE;
    case 2:
        return DialogueFileNew::GENDER_MALE;
    default:
        throw "error";
    }
}

void DlgPcLineEditWidget::setGender(Gender gender)
{
    switch (gender) {
    case DialogueFileNew::GENDER_EITHER:
        ui->comboGender->setCurrentIndex(0);
        break;
    case DialogueFileNew::GENDER_FEMALE:
        ui->comboGender->setCurrentIndex(1);
        break;
    case DialogueFileNew::GENDER_MALE:
        ui->comboGender->setCurrentIndex(2);
        break;
    }
}

void DlgPcLineEditWidget::addTestWidgetAfter(int position)
{
    addRowAfter(tests, position);
}

void DlgPcLineEditWidget::removeTestWidget(int position)
{
    removeRow(tests, position);
}

void DlgPcLineEditWidget::addResultWidgetAfter(int position)
{
    addRowAfter(results, position);
}

void DlgPcLineEditWidget::removeResultWidget(int position)
{
    removeRow(results, position);
}

void DlgPcLineEditWidget::on_addTests_clicked()
{
    addTestWidgetAfter(-1);
}

void DlgPcLineEditWidget::on_addResults_clicked()
{
    addResultWidgetAfter(-1);
}

void DlgPcLineEditWidget::on_buttonReset_clicked()
{
    if (!line)
        return;
    fillWithData(line);
}

void DlgPcLineEditWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
    DlgLineEditWidget::changeEvent(event);
}
