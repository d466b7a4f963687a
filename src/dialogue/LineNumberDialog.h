#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;

// Asks for the number of a new dialogue line, offering a proposed one. The text is checked by the
// caller, which refuses it with a message and asks again.
class LineNumberDialog : public QDialog
{
    Q_OBJECT

public:
    LineNumberDialog(const QString& title, const QString& question, int proposed, QWidget* parent = nullptr);

    QString text() const;
    void setText(const QString& text);

private:
    QLabel* label = nullptr;
    QLineEdit* number = nullptr;
};
