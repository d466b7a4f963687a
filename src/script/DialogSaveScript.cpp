#include "DialogSaveScript.h"

#include "ScriptDocument.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

DialogSaveScript::DialogSaveScript(int number, const QString& name, QWidget* parent)
    : QDialog(parent)
    , numberEdit(new QLineEdit(QString::number(number), this))
    , nameEdit(new QLineEdit(name, this))
    , fileLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("saveScriptDialog"));
    setWindowTitle(tr("Save script as"));
    numberEdit->setObjectName(QStringLiteral("scriptNumber"));
    numberEdit->setToolTip(tr("The script's number, 1 to 99999: the game finds the script by it"));
    nameEdit->setObjectName(QStringLiteral("scriptName"));
    nameEdit->setToolTip(tr("The rest of the file name, for people: what the script is for"));
    fileLabel->setObjectName(QStringLiteral("scriptFileName"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);
    auto* form = new QFormLayout(this);
    form->addRow(tr("Number:"), numberEdit);
    form->addRow(tr("Name:"), nameEdit);
    form->addRow(tr("File:"), fileLabel);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(numberEdit, &QLineEdit::textChanged, this, &DialogSaveScript::showFileName);
    connect(nameEdit, &QLineEdit::textChanged, this, &DialogSaveScript::showFileName);
    numberEdit->selectAll();
    showFileName();
}

QString DialogSaveScript::numberText() const
{
    return numberEdit->text();
}

QString DialogSaveScript::name() const
{
    return nameEdit->text();
}

void DialogSaveScript::showFileName()
{
    QString error;
    const QString file = ScriptDocument::fileNameFor(numberText(), name(), {}, error);
    fileLabel->setText(file.isEmpty() ? error : file);
}
