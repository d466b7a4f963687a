#pragma once

#include <QDialog>

#include <memory>

class Ui_DialogOptions;
namespace arcanum {
class Manager;
}

// Chooses the game's base directory; a change is stored at once, whatever button closes the dialog.
class DialogOptions : public QDialog
{
    Q_OBJECT

public:
    DialogOptions(QWidget* parent, arcanum::Manager* manager);
    ~DialogOptions() override;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_baseDirLineEdit_editingFinished();
    void on_baseDirBrowse_clicked();

private:
    std::unique_ptr<Ui_DialogOptions> ui;
    arcanum::Manager* manager;
};
