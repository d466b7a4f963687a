#pragma once

#include <QWidget>

class QSpinBox;
class QToolButton;

namespace token_controls {

// A number operand in place: a small button naming where the number comes from (opens the
// type list) beside a spin box holding the number.
class TokenEditorNum : public QWidget
{
    Q_OBJECT

public:
    static constexpr int Minimum = -2000000;
    static constexpr int Maximum = 2000000;

    TokenEditorNum(int numType, int value, QWidget* parent = nullptr);

    int numType() const { return type; }
    // The operand's number; a value outside the spin box range stays as read until it is edited.
    int value() const { return number; }
    QToolButton* typeButton() const { return button; }
    QSpinBox* valueBox() const { return spin; }

signals:
    void edited();

private slots:
    void chooseType();
    void onValueChanged(int newValue);

private:
    void showType();

    int type;
    int number;
    QToolButton* button;
    QSpinBox* spin;
};

} // namespace token_controls
