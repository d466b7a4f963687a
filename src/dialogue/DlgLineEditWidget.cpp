#include "DlgLineEditWidget.h"

#include "DialogueRowStack.h"

#include <QEvent>
#include <QLineEdit>
#include <QSpinBox>

void DlgLineEditWidget::wasModified()
{
    if (updating)
        return;
    pending = true;
    emit wasModifiedSignal();
}

void DlgLineEditWidget::watchLineNumber(QSpinBox* spin, std::function<std::optional<int>()> index)
{
    connect(spin, &QSpinBox::editingFinished, this, [this, spin, index] {
        const std::optional<int> shown = index();
        if (!updating && shown && *shown != spin->value())
            emit newLineNumber(spin->value());
    });
}

// The spin box's own editor gets the mouse.
void DlgLineEditWidget::watchTarget(QSpinBox* spin)
{
    spin->findChild<QLineEdit*>()->installEventFilter(this);
    spin->findChild<QLineEdit*>()->setProperty("targetOf", QVariant::fromValue<QObject*>(spin));
}

bool DlgLineEditWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick) {
        if (auto* spin = qobject_cast<QSpinBox*>(watched->property("targetOf").value<QObject*>())) {
            emit targetActivated(spin->value());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
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
