#include "DialogNewStatement.h"

#include "Script.h"
#include "ui_DialogNewStatement.h"

using arcanum::Script;

DialogNewStatement::DialogNewStatement(int type, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::DialogNewStatement>())
    , firstCode(type == Condition ? 1 : 0)
{
    ui->setupUi(this);
    setWindowTitle(type == Condition ? tr("Condition") : tr("Action"));
    const int count = type == Condition ? Script::ConditionCount : Script::ActionCount;
    for (int row = 0; row < count; ++row) {
        const std::string text = type == Condition ? Script::conditionString(row) : Script::actionString(row);
        ui->listStatements->addItem(QString::fromStdString(text));
        ui->listStatements->item(row)->setToolTip(tr("Code %1").arg(row + firstCode));
    }
}

DialogNewStatement::~DialogNewStatement() = default;

void DialogNewStatement::setCode(int code)
{
    const int row = code - firstCode;
    if (row < 0 || row >= ui->listStatements->count())
        return;
    ui->listStatements->setCurrentRow(row);
}

// The list has its size only now, so only now can the chosen row be brought to the middle.
void DialogNewStatement::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (QListWidgetItem* current = ui->listStatements->currentItem())
        ui->listStatements->scrollToItem(current, QAbstractItemView::PositionAtCenter);
}

int DialogNewStatement::code() const
{
    const int row = ui->listStatements->currentRow();
    return row < 0 ? -1 : row + firstCode;
}

// Hides the templates that do not contain the text; a hidden current row gives way to the first shown one.
void DialogNewStatement::on_editFilter_textChanged(const QString& text)
{
    QListWidget* list = ui->listStatements;
    int firstShown = -1;
    for (int row = 0; row < list->count(); ++row) {
        const bool shown = list->item(row)->text().contains(text, Qt::CaseInsensitive);
        list->item(row)->setHidden(!shown);
        if (shown && firstShown < 0)
            firstShown = row;
    }
    const QListWidgetItem* current = list->currentItem();
    if (!current || current->isHidden())
        list->setCurrentRow(firstShown);
}
