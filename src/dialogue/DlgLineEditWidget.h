#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class DialogueRowStack;
class QSpinBox;

// What the PC and NPC line forms share: a form shows one line of the model, collects the user's
// changes and writes them into the line when applied. Filling the form is no change.
class DlgLineEditWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    // Writes the changed controls into the line. Controls the user did not touch leave their field
    // alone, so a line nobody edited stays exactly as it was read.
    virtual void applyChangesToData() = 0;
    // The form holds changes not yet written into its line.
    bool hasPendingChanges() const { return pending; }
    // Puts the keyboard in the line's text, where writing a new line starts.
    virtual void focusText() = 0;

signals:
    void wasModifiedSignal();
    // The user typed another number for the line and pressed Enter or left the field.
    void newLineNumber(int number);
    // The user double-clicked the line a response leads to.
    void targetActivated(int line);

public slots:
    void wasModified();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    // The line's number field: a finished change to another number than the line's (index gives it,
    // nothing while no line is shown) is announced with newLineNumber.
    void watchLineNumber(QSpinBox* spin, std::function<std::optional<int>()> index);
    // A double click on the field of a response target announces targetActivated.
    void watchTarget(QSpinBox* spin);
    // A form's generated controls, built before the members that hold on to them.
    template <typename Ui>
    static std::unique_ptr<Ui> setUp(QWidget* form)
    {
        auto ui = std::make_unique<Ui>();
        ui->setupUi(form);
        return ui;
    }
    // Fills the controls from the line the form now holds, or clears the form (with the warning)
    // when it holds none.
    void fill(bool hasLine, const char* noLineWarning);
    virtual void showLine() = 0;
    // Takes the values the controls show as the ones applying measures changes from.
    virtual void rememberShownValues() = 0;
    virtual void clear() = 0;
    // Rows added and removed go into the line at once.
    void addRowAfter(DialogueRowStack& rows, int position);
    void removeRow(DialogueRowStack& rows, int position);
    void rowsChanged(const char* log);
    // Runs fill with change handling off; afterwards nothing is pending.
    template <typename Fill>
    void filling(Fill fill)
    {
        updating = true;
        fill();
        updating = false;
        pending = false;
    }

    bool updating = false;
    bool pending = false;
};
