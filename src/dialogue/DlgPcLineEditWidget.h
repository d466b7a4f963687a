#pragma once

#include "DialogueFileNew.h"
#include "DialogueRowStack.h"
#include "DlgLineEditWidget.h"
#include "DlgTextBox.h"

#include <memory>

class Ui_DlgPcLineEditWidget;

// The form of one PC line (a response the player may choose): text, intelligence and gender it
// needs, the NPC line that answers it, and its tests and results as rows.
class DlgPcLineEditWidget : public DlgLineEditWidget
{
    Q_OBJECT

public:
    using Gender = arcanum::DialogueFileNew::Gender;
    using PCLinePointer = arcanum::DialogueFileNew::PCLinePointer;

    explicit DlgPcLineEditWidget(QWidget* parent = nullptr);
    ~DlgPcLineEditWidget() override;

    void fillWithData(PCLinePointer data);
    void applyChangesToData() override;
    // Shows no line.
    void clear() override;
    void focusText() override;
    PCLinePointer getOriginalLine() const { return line; }

    QVector<arcanum::dlg::TestOrResultData> getTests() const { return tests.values(); }
    QVector<arcanum::dlg::TestOrResultData> getResults() const { return results.values(); }
    // Negative for a maximum.
    int getIntelligence() const;
    void setIntelligence(int intelligence);
    // Throws the C string "error" when the gender box shows no known choice.
    Gender getGender() const;
    void setGender(Gender gender);

public slots:
    void addTestWidgetAfter(int position);
    void removeTestWidget(int position);
    void addResultWidgetAfter(int position);
    void removeResultWidget(int position);
    void on_addTests_clicked();
    void on_addResults_clicked();
    void on_buttonReset_clicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    void connectControls();
    void showLine() override;
    void applyGender();
    void rememberShownValues() override;

    std::unique_ptr<Ui_DlgPcLineEditWidget> ui;
    PCLinePointer line;
    DlgTextBox textBox;
    DialogueRowStack tests;
    DialogueRowStack results;
    // The numbers as shown, which may be clamped to the spin boxes' ranges.
    int shownIntelligence = 0;
    int shownResponse = 0;
};
