#pragma once

#include <QDialog>

#include <memory>

class Ui_DialogOptions;

// Chooses the game's base directory. Nothing changes until the dialog is accepted; the window then
// settles open documents before it switches.
class DialogOptions : public QDialog
{
    Q_OBJECT

public:
    DialogOptions(QWidget* parent, const QString& baseDir);
    ~DialogOptions() override;

    // The directory chosen in the dialog (as typed or browsed).
    QString baseDir() const;
    // Writes the per-page "Confirm overwrite" and "Confirm abandon" boxes to the settings.
    void storeConfirmations() const;

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void on_baseDirBrowse_clicked();

private:
    template <typename Apply>
    void forEachConfirmation(Apply apply) const;

    std::unique_ptr<Ui_DialogOptions> ui;
};
