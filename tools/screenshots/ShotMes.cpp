// The Mes tab: the bundled item messages with a multi-line text selected, and a dialogue file as a table.
#include "ShotRegistry.h"

#include "MainWindow.h"
#include "MesWidget.h"
#include "constants.h"

#include <QDir>
#include <QTableView>
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

QWidget* dialogueTable(MainWindow& window)
{
    ShotRegistry::showTab(window, 1);
    window.mesPage()->openFile(QDir::current().absoluteFilePath(arcanum::DLG_DIR + QStringLiteral("sample_table.dlg")));
    selectCell(*window.mesPage(), 1, 3);
    return nullptr;
}

const ShotRegistration shot(20, "tab-2-mes", &messages);
const ShotRegistration dialogueShot(21, "tab-2-mes-dlg", &dialogueTable);

} // namespace
