#pragma once

#include "DialogueFileNew.h"
#include "DialogueRowStack.h"
#include "DlgLineEditWidget.h"
#include "DlgTextBox.h"

#include <memory>

class QCheckBox;
class Ui_DlgNpcLineEditWidget;

// The form of one NPC line (what the character says): its text and female variant, the line the
// dialogue goes on with, and its results as rows.
class DlgNpcLineEditWidget : public DlgLineEditWidget
{
    Q_OBJECT

public:
    using NPCLinePointer = arcanum::DialogueFileNew::NPCLinePointer;

    explicit DlgNpcLineEditWidget(QWidget* parent = nullptr);
    ~DlgNpcLineEditWidget() override;

    void fillWithData(NPCLinePointer data);
    void applyChangesToData() override;
    // Shows no line.
    void clear() override;
    void focusText() override;
    Q_INVOKABLE NPCLinePointer getOriginalLine() const { return line; }

    QVector<arcanum::dlg::TestOrResultData> getResults() const { return results.values(); }

public slots:
    void on_buttonReset_clicked();
    void addResultWidgetAfter(int position);
    void removeResultWidget(int position);
    void on_addResults_clicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    void connectChecks();
    void governs(QCheckBox* check, const QList<QWidget*>& widgets);
    QList<QWidget*> responseControls() const;
    QList<QWidget*> femaleControls() const;
    void connectControls();
    void showLine() override;
    void showDependentControls();
    bool responseLineApplies() const;
    void rememberShownValues() override;
    void applyResponseLine();

    std::unique_ptr<Ui_DlgNpcLineEditWidget> ui;
    NPCLinePointer line;
    DlgTextBox maleTextBox;
    DlgTextBox femaleTextBox;
    DialogueRowStack results;
    // The response line as shown, and whether it was shown at all.
    int shownResponse = 0;
    bool responseShown = false;
};
