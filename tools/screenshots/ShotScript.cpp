// The Script tab with bundled scripts open, and the two lists a script edit opens.
#include "ShotRegistry.h"

#include "DialogNewStatement.h"
#include "DialogNumType.h"
#include "MainWindow.h"
#include "Script.h"
#include "ScriptSourceEdit.h"
#include "ScriptSourceView.h"

#include <QListWidget>
#include <QTabWidget>

namespace {

// Leaves the Source view without edits first: a shot must never stop at the question about them.
void showLines(MainWindow& window)
{
    if (auto* view = window.findChild<ScriptSourceView*>())
        view->revert();
    if (auto* views = window.findChild<QTabWidget*>(QStringLiteral("tabViews")))
        views->setCurrentIndex(0);
}

void selectScript(MainWindow& window, int row)
{
    ShotRegistry::showTab(window, 0);
    showLines(window);
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

// The gate guard's Source view with one mistyped statement, underlined and listed.
QWidget* sourceWithMistake(MainWindow& window)
{
    selectScript(window, 0);
    if (auto* views = window.findChild<QTabWidget*>(QStringLiteral("tabViews")))
        views->setCurrentIndex(1);
    auto* view = window.findChild<ScriptSourceView*>();
    if (!view)
        return nullptr;
    QTextCursor cursor = view->editor()->textCursor();
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(QStringLiteral("// pays the toll twice\nIF (Triggerer) has at least (Number 100) gold THEN gold of (Triggerer): adjst by (Number -100)\n"));
    view->check();
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
// Before the other script shots, whose first one takes the edit back.
const ShotRegistration sourceShot(9, "tab-1-script-source", &sourceWithMistake);
const ShotRegistration statementShot(12, "script-statement-list", &statementList);
const ShotRegistration numberShot(13, "script-number-type", &numberTypes);

} // namespace
