#include "WheelGuard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QWidget>

WheelGuard::WheelGuard(QObject* parent)
    : QObject(parent)
{
}

void WheelGuard::install(QWidget* root)
{
    auto* guard = new WheelGuard(root);
    const auto guardAll = [guard](const auto& widgets) {
        for (QWidget* widget : widgets) {
            widget->setFocusPolicy(Qt::StrongFocus);
            widget->installEventFilter(guard);
        }
    };
    guardAll(root->findChildren<QAbstractSpinBox*>());
    guardAll(root->findChildren<QComboBox*>());
    guardAll(root->findChildren<QAbstractSlider*>());
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel)
        return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->hasFocus())
        return false;
    // Ignored, the event travels on to the scroll area around the control.
    event->ignore();
    return true;
}
