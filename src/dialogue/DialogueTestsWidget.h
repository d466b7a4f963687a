#pragma once

#include "DialogueCatalogue.h"
#include "TestOrResultForm.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QSpinBox;
class Ui_DialogueTestsWidget;

// One row of a line form: one test or result, chosen from a list of opcodes, with up to two combo
// boxes and two spin boxes for its arguments. Which of them show, and how they read, is up to the
// settings of the opcode the row was created with; choosing another opcode keeps that layout.
class DialogueTestsWidget : public QWidget, public arcanum::dlg::TestOrResultForm
{
    Q_OBJECT

public:
    using Types = arcanum::dlg::TestOrResultTypes;

    // A new row: the first opcode of types with both values 0.
    DialogueTestsWidget(QWidget* parent, int rowNumber, const Types* types);
    DialogueTestsWidget(QWidget* parent, int rowNumber, const Types* types, arcanum::dlg::TestOrResultData data);
    ~DialogueTestsWidget() override;

    // What the row holds now. A row nobody changed gives back exactly the data it was created with,
    // even where a value lies outside what its spin boxes can show.
    std::unique_ptr<arcanum::dlg::TestOrResultData> getCalculatedValue() const;

    int rowNumber() const { return mRowNumber; }
    void setRowNumber(int rowNumber) { mRowNumber = rowNumber; }
    bool isEdited() const { return edited; }

    int currentIndex(ComboBox combo) const override;
    QString currentText(ComboBox combo) const override;
    int count(ComboBox combo) const override;
    int value(SpinBox spin) const override;
    bool isShown(ComboBox combo) const override;
    bool isShown(SpinBox spin) const override;

signals:
    void plusButtonPressed(int rowNumber);
    void minusButtonPressed(int rowNumber);
    // The user changed the opcode or one of its values.
    void valueEdited();

public slots:
    void on_comboOp_currentIndexChanged(int index);
    void onValuesChanged();
    void timeToEmitPlusButtonPressed();
    void timeToEmitMinusButtonPressed();

protected:
    void changeEvent(QEvent* event) override;

private:
    void init();
    void fillOpcodes();
    static QString opcodeToolTip(const arcanum::dlg::TestOrResultType* type);
    void fillCombos(const arcanum::dlg::TestOrResultType* type);
    void showControls(const arcanum::dlg::TestOrResultGuiSettings* settings);
    void enableArguments(const arcanum::dlg::TestOrResultType* type);
    void showValues();
    void updateToolTips();
    void connectControls();
    const arcanum::dlg::TestOrResultType* chosenType() const;
    QComboBox* comboBox(ComboBox combo) const;
    QSpinBox* spinBox(SpinBox spin) const;

    int mRowNumber;
    const Types* types;
    std::unique_ptr<Ui_DialogueTestsWidget> ui;
    arcanum::dlg::TestOrResultData data;
    bool initialising = false;
    bool edited = false;
};
