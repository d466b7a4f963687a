// The Mes tab with the first bundled message file open.
#include "ShotRegistry.h"

#include "MainWindow.h"

#include <QTreeWidget>

namespace {

QWidget* messages(MainWindow& window)
{
    ShotRegistry::showTab(window, 1);
    auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("treeMes"));
    if (tree && tree->topLevelItemCount() > 0 && tree->topLevelItem(0)->childCount() > 0)
        tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    return nullptr;
}

const ShotRegistration shot(20, "tab-2-mes", &messages);

} // namespace
