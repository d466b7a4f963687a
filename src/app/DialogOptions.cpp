#include "DialogOptions.h"

#include "Prompt.h"
#include "ui_DialogOptions.h"

#include <QEvent>

DialogOptions::DialogOptions(QWidget* parent, const QString& baseDir)
    : QDialog(parent)
    , ui(std::make_unique<Ui_DialogOptions>())
{
    ui->setupUi(this);
    ui->baseDirLineEdit->setText(baseDir);
}

DialogOptions::~DialogOptions() = default;

QString DialogOptions::baseDir() const
{
    return ui->baseDirLineEdit->text();
}

void DialogOptions::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ui->retranslateUi(this);
}

void DialogOptions::on_baseDirBrowse_clicked()
{
    const QString dir = Prompt::existingDirectory(this, tr("Choose Arcanum base directory"), baseDir());
    // A cancelled chooser answers nothing: the directory stays as it was.
    if (!dir.isEmpty())
        ui->baseDirLineEdit->setText(dir);
}
