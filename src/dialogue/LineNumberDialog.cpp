#include "LineNumberDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

LineNumberDialog::LineNumberDialog(const QString& title, const QString& question, int proposed, QWidget* parent)
    : QDialog(parent)
    , label(new QLabel(question, this))
    , number(new QLineEdit(QString::number(proposed), this))
{
    setWindowTitle(title);
    setObjectName(QStringLiteral("lineNumberDialog"));
    number->setObjectName(QStringLiteral("lineNumber"));
    number->selectAll();
    label->setBuddy(number);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(number);
    layout->addWidget(buttons);
}

QString LineNumberDialog::text() const
{
    return number->text();
}

void LineNumberDialog::setText(const QString& text)
{
    number->setText(text);
}
