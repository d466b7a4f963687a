// The Script tab with bundled scripts open, and the two lists a script edit opens.
#include "ShotRegistry.h"

#include "DialogNewStatement.h"
#include "DialogNumType.h"
#include "MainWindow.h"
#include "Script.h"

#include <QListWidget>

namespace {

void selectScript(MainWindow& window, int row)
{
    ShotRegistry::showTab(window, 0);
    auto* list = window.findChild<QListWidget*>(QStringLiteral("listScripts"));
    if (list && row < list->count())
        list->setCurrentRow(row);
}

QWidget* scripts(MainWindow& window)
{
    selectScript(window, 0);
    return nullptr;
}

QWidget* questScript(MainWindow& window)
{
    selectScript(window, 2);
    return nullptr;
}

// Shown without a modal loop; the screenshot program closes it, which deletes it.
QWidget* showDialog(QDialog* dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    return dialog;
}

QWidget* statementList(MainWindow& window)
{
    auto* dialog = new DialogNewStatement(DialogNewStatement::Action, &window);
    dialog->setCode(102);
    return showDialog(dialog);
}

QWidget* numberTypes(MainWindow& window)
{
    return showDialog(new DialogNumType(arcanum::Script::LocalVar, &window));
}

const ShotRegistration shot(10, "tab-1-script", &scripts);
const ShotRegistration questShot(11, "tab-1-script-quest", &questScript);
const ShotRegistration statementShot(12, "script-statement-list", &statementList);
const ShotRegistration numberShot(13, "script-number-type", &numberTypes);

} // namespace
