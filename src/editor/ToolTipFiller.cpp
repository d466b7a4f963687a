#include "ToolTipFiller.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

namespace {

QString plain(QString text)
{
    text.remove(QLatin1Char('&'));
    while (text.endsWith(QLatin1Char(':')) || text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text.trimmed();
}

// The layout, at any depth below root, that holds control itself.
QLayout* holderOf(QLayout* root, const QWidget* control)
{
    if (root == nullptr)
        return nullptr;
    for (int i = 0; i < root->count(); ++i) {
        QLayoutItem* item = root->itemAt(i);
        if (item->widget() == control)
            return root;
        if (QLayout* found = holderOf(item->layout(), control))
            return found;
    }
    return nullptr;
}

// A label, or the check box that switches the value beside it on.
QString labelText(const QLayoutItem* item)
{
    QWidget* widget = item ? item->widget() : nullptr;
    if (const auto* label = qobject_cast<const QLabel*>(widget))
        return plain(label->text());
    if (const auto* check = qobject_cast<const QCheckBox*>(widget))
        return plain(check->text());
    return QString();
}

// The label a form shows for control: its buddy, its form row, or the label just before it.
QString formLabel(QWidget* control)
{
    QWidget* parent = control->parentWidget();
    if (parent == nullptr)
        return QString();
    for (const QLabel* label : parent->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly))
        if (label->buddy() == control)
            return plain(label->text());
    QLayout* layout = holderOf(parent->layout(), control);
    if (auto* form = qobject_cast<QFormLayout*>(layout)) {
        if (auto* label = qobject_cast<QLabel*>(form->labelForField(control)))
            return plain(label->text());
    } else if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
        int row = 0, column = 0, rows = 0, columns = 0;
        grid->getItemPosition(grid->indexOf(control), &row, &column, &rows, &columns);
        if (column > 0)
            return labelText(grid->itemAtPosition(row, column - 1));
    } else if (layout != nullptr) {
        const int index = layout->indexOf(control);
        if (index > 0)
            return labelText(layout->itemAt(index - 1));
    }
    return QString();
}

QString groupOf(const QWidget* control)
{
    for (const QWidget* up = control->parentWidget(); up; up = up->parentWidget())
        if (const auto* group = qobject_cast<const QGroupBox*>(up))
            return plain(group->title());
    return QString();
}

QString withGroup(const QString& tip, const QString& group)
{
    return group.isEmpty() ? tip : QCoreApplication::translate("ToolTipFiller", "%1 (%2)").arg(tip, group);
}

QString explain(QWidget* control)
{
    const QString label = formLabel(control);
    const QString group = groupOf(control);
    if (auto* check = qobject_cast<QCheckBox*>(control)) {
        const QString name = plain(check->text()).isEmpty() ? label : plain(check->text());
        return name.isEmpty() ? QString() : withGroup(QCoreApplication::translate("ToolTipFiller", "%1: checked sets it, unchecked clears it").arg(name), group);
    }
    if (label.isEmpty())
        return QString();
    if (auto* spin = qobject_cast<QSpinBox*>(control))
        return withGroup(QCoreApplication::translate("ToolTipFiller", "%1: a whole number from %2 to %3").arg(label).arg(spin->minimum()).arg(spin->maximum()), group);
    if (auto* spin = qobject_cast<QDoubleSpinBox*>(control))
        return withGroup(QCoreApplication::translate("ToolTipFiller", "%1: a number from %2 to %3").arg(label).arg(spin->minimum()).arg(spin->maximum()), group);
    if (qobject_cast<QComboBox*>(control))
        return withGroup(QCoreApplication::translate("ToolTipFiller", "%1: one of the values the game knows (type to jump to one)").arg(label), group);
    if (qobject_cast<QLineEdit*>(control))
        return withGroup(label, group);
    return QString();
}

} // namespace

void ToolTipFiller::fill(QWidget* root)
{
    for (QWidget* control : root->findChildren<QWidget*>()) {
        if (!control->toolTip().isEmpty())
            continue;
        // A spin box's own line edit is explained by the spin box.
        if (qobject_cast<QAbstractSpinBox*>(control->parentWidget()) || qobject_cast<QComboBox*>(control->parentWidget()))
            continue;
        const QString tip = explain(control);
        if (!tip.isEmpty())
            control->setToolTip(tip);
    }
}
