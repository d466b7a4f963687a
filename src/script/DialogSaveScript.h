#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;

// Asks for the number and the name a script is saved under: 42 and "guard" make 00042guard.scr. The
// page checks the answer; the dialog only shows the file name it makes.
class DialogSaveScript : public QDialog
{
    Q_OBJECT

public:
    DialogSaveScript(int number, const QString& name, QWidget* parent = nullptr);

    QString numberText() const;
    QString name() const;

private:
    void showFileName();

    QLineEdit* numberEdit;
    QLineEdit* nameEdit;
    QLabel* fileLabel;
};
