#include "DialogOptions.h"

#include "Prompt.h"
#include "ui_DialogOptions.h"

#include "gui.h"

#include <QCheckBox>
#include <QEvent>

#include <tuple>
#include <vector>

DialogOptions::DialogOptions(QWidget* parent, const QString& baseDir)
    : QDialog(parent)
    , ui(std::make_unique<Ui_DialogOptions>())
{
    ui->setupUi(this);
    ui->baseDirLineEdit->setText(baseDir);
    forEachConfirmation([](QCheckBox* box, const QString& page, gui::Confirmation kind) {
        box->setChecked(gui::confirms(page, kind));
    });
}

template <typename Apply>
void DialogOptions::forEachConfirmation(Apply apply) const
{
    const std::vector<std::tuple<QCheckBox*, QCheckBox*, QString>> groups = {
        {ui->scriptConfirmOverwrite, ui->scriptConfirmAbandon, QStringLiteral("script")},
        {ui->mesConfirmOverwrite, ui->mesConfirmAbandon, QStringLiteral("mes")},
        {ui->artConfirmOverwrite, ui->artConfirmAbandon, QStringLiteral("art")},
        {ui->protoConfirmOverwrite, ui->protoConfirmAbandon, QStringLiteral("proto")}};
    for (const auto& [overwrite, abandon, page] : groups) {
        apply(overwrite, page, gui::Confirmation::Overwrite);
        apply(abandon, page, gui::Confirmation::Abandon);
    }
}

void DialogOptions::storeConfirmations() const
{
    forEachConfirmation([](QCheckBox* box, const QString& page, gui::Confirmation kind) {
        gui::setConfirms(page, kind, box->isChecked());
    });
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
