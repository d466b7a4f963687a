#include "DlgLineEditWidget.h"

#include "DialogueRowStack.h"

void DlgLineEditWidget::wasModified()
{
    if (updating)
        return;
    pending = true;
    emit wasModifiedSignal();
}

void DlgLineEditWidget::lineNumberChanged(int number)
{
    if (!updating)
        emit newLineNumber(number);
}

void DlgLineEditWidget::rowsChanged(const char* log)
{
    if (updating)
        return;
    qDebug("%s", log);
    pending = true;
    applyChangesToData();
    emit wasModifiedSignal();
}

void DlgLineEditWidget::fill(bool hasLine, const char* noLineWarning)
{
    if (!hasLine) {
        qWarning("%s", noLineWarning);
        clear();
        return;
    }
    filling([this] { showLine(); });
    rememberShownValues();
    setEnabled(true);
}

void DlgLineEditWidget::addRowAfter(DialogueRowStack& rows, int position)
{
    if (rows.insertAfter(position))
        rowsChanged("modified");
}

void DlgLineEditWidget::removeRow(DialogueRowStack& rows, int position)
{
    if (rows.remove(position))
        rowsChanged("wasModified: updating");
}
