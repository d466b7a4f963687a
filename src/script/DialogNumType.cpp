#include "DialogNumType.h"

#include "Script.h"
#include "ui_DialogNumType.h"

using arcanum::Script;

DialogNumType::DialogNumType(int current, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::DialogNumType>())
{
    ui->setupUi(this);
    for (int type = 0; type < Script::NumTypeCount; ++type)
        ui->listTypes->addItem(QString::fromStdString(Script::numTypeToString(static_cast<Script::NumType>(type))));
    if (current >= 0 && current < Script::NumTypeCount)
        ui->listTypes->setCurrentRow(current);
}

DialogNumType::~DialogNumType() = default;

int DialogNumType::numType() const
{
    return ui->listTypes->currentRow();
}
