#pragma once

#include "DialogueCheck.h"

#include <QWidget>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

// The "Problems" list under the dialogue page's form: what `loreka check` reports for the open file,
// errors and notes told apart, in file order. Clicking a row asks for its line to be opened.
class DialogueProblemsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit DialogueProblemsPanel(QWidget* parent = nullptr);

    // Shows these findings in place of the ones shown; none for no open file.
    void showFindings(const QList<arcanum::DialogueCheck::Finding>& findings);

signals:
    // The row of a finding about a dialogue line was clicked.
    void lineActivated(bool pc, int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    void rowClicked(QTreeWidgetItem* item);
    void showSummary();

    QLabel* summary;
    QTreeWidget* list;
    int errors = 0;
    int notes = 0;
};
