// The Mes tab: the bundled item messages with a multi-line text selected, the same file with the find
// and replace bar showing a match, and a dialogue file as a table.
#include "ShotRegistry.h"

#include "MainWindow.h"
#include "MesWidget.h"
#include "constants.h"

#include <QDir>
#include <QLineEdit>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>

namespace {

void selectCell(MesWidget& page, int row, int column)
{
    auto* table = page.findChild<QTableView*>(QStringLiteral("table"));
    if (!table || row >= table->model()->rowCount())
        return;
    table->setCurrentIndex(table->model()->index(row, column));
    table->scrollTo(table->currentIndex());
}

QWidget* messages(MainWindow& window)
{
    ShotRegistry::showTab(window, 1);
    auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("treeMes"));
    if (tree && tree->topLevelItemCount() > 0 && tree->topLevelItem(0)->childCount() > 0)
        tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    selectCell(*window.mesPage(), 7, 1);
    return nullptr;
}

QWidget* findAndReplace(MainWindow& window)
{
    ShotRegistry::showTab(window, 1);
    MesWidget& page = *window.mesPage();
    page.openFile(QDir::current().absoluteFilePath(arcanum::MES_DIR + QStringLiteral("sample_items.mes")));
    page.showFind(true);
    if (auto* pattern = page.findChild<QLineEdit*>(QStringLiteral("findText")))
        pattern->setText(QStringLiteral("dagger"));
    if (auto* replacement = page.findChild<QLineEdit*>(QStringLiteral("replaceText")))
        replacement->setText(QStringLiteral("knife"));
    selectCell(page, 0, 1);
    if (auto* next = page.findChild<QToolButton*>(QStringLiteral("findNext")))
        next->click();
    return nullptr;
}

QWidget* dialogueTable(MainWindow& window)
{
    ShotRegistry::showTab(window, 1);
    if (auto* close = window.mesPage()->findChild<QToolButton*>(QStringLiteral("closeFind")))
        close->click();
    window.mesPage()->openFile(QDir::current().absoluteFilePath(arcanum::DLG_DIR + QStringLiteral("sample_table.dlg")));
    selectCell(*window.mesPage(), 1, 3);
    return nullptr;
}

const ShotRegistration shot(20, "tab-2-mes", &messages);
const ShotRegistration findShot(21, "tab-2-mes-find", &findAndReplace);
const ShotRegistration dialogueShot(22, "tab-2-mes-dlg", &dialogueTable);

} // namespace
