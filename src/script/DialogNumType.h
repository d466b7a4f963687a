#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class DialogNumType;
}

// Picks where a number operand comes from (counter, variable, flag or a plain number).
class DialogNumType : public QDialog
{
    Q_OBJECT

public:
    explicit DialogNumType(int current, QWidget* parent = nullptr);
    ~DialogNumType() override;

    // The chosen type, or -1 when no row is selected.
    int numType() const;

private:
    std::unique_ptr<Ui::DialogNumType> ui;
};
