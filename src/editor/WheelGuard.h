#pragma once

#include <QObject>

class QWidget;

// Keeps the mouse wheel scrolling a form: spin boxes, combo boxes and sliders take the wheel only when
// they have the focus, so scrolling past them never changes a value.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    // Installs one guard (owned by root) on every such control below root.
    static void install(QWidget* root);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit WheelGuard(QObject* parent);
};
