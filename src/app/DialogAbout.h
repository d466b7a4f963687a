#pragma once

#include <QDialog>

#include <memory>

class Ui_DialogAbout;

class DialogAbout : public QDialog
{
    Q_OBJECT

public:
    explicit DialogAbout(QWidget* parent);
    ~DialogAbout() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    std::unique_ptr<Ui_DialogAbout> ui;
};
