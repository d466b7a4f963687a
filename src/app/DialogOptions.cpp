#include "DialogOptions.h"

#include "Manager.h"
#include "Prompt.h"
#include "ui_DialogOptions.h"

#include <QEvent>

DialogOptions::DialogOptions(QWidget* parent, arcanum::Manager* manager)
    : QDialog(parent)
    , ui(std::make_unique<Ui_DialogOptions>())
    , manager(manager)
{
    ui->setupUi(this);
    if (manager)
        ui->baseDirLineEdit->setText(manager->getBaseDirPath());
}

DialogOptions::~DialogOptions() = default;

void DialogOptions::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
}

void DialogOptions::on_baseDirLineEdit_editingFinished()
{
    if (!manager)
        return;
    manager->setBaseDir(ui->baseDirLineEdit->text());
    ui->baseDirLineEdit->setText(manager->getBaseDirPath());
}

void DialogOptions::on_baseDirBrowse_clicked()
{
    if (!manager)
        return;
    // A cancelled chooser answers "", which the manager takes as the working directory.
    const QString dir = Prompt::existingDirectory(this, tr("Choose Arcanum base directory"),
                                                  manager->getBaseDirPath());
    if (manager->setBaseDir(dir))
        ui->baseDirLineEdit->setText(dir);
}
