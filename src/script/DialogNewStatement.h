#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class DialogNewStatement;
}

// Lists every action (type 0) or condition (type 1) template; the chosen row gives the code.
class DialogNewStatement : public QDialog
{
    Q_OBJECT

public:
    enum Type { Action = 0, Condition = 1 };

    explicit DialogNewStatement(int type, QWidget* parent = nullptr);
    ~DialogNewStatement() override;

    // Selects the row of a stored code (condition codes are 1-based); other codes select nothing.
    void setCode(int code);
    // The stored code of the current row, or -1 when none is selected.
    int code() const;

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void on_editFilter_textChanged(const QString& text);

private:
    std::unique_ptr<Ui::DialogNewStatement> ui;
    int firstCode = 0;
};
