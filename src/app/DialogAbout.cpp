#include "DialogAbout.h"

#include "constants.h"
#include "ui_DialogAbout.h"

#include <QEvent>

DialogAbout::DialogAbout(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui_DialogAbout>())
{
    ui->setupUi(this);
    ui->labelVersion->setText(arcanum::VERSION_STRING);
}

DialogAbout::~DialogAbout() = default;

void DialogAbout::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    // Retranslating puts the form's "<version>" placeholder back; the version is not set again.
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
}
