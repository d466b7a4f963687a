#pragma once

#include <QWidget>

#include <memory>

class DialogueRowStack;

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

signals:
    void wasModifiedSignal();
    void newLineNumber(int number);

public slots:
    void wasModified();
    void lineNumberChanged(int number);

protected:
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
