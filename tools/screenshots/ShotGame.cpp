// The Game tab: the sample game's archive and loose folders layered as the engine reads them.
#include "ShotRegistry.h"

#include "GameWidget.h"
#include "MainWindow.h"

#include <QTreeWidget>

namespace {

QWidget* game(MainWindow& window)
{
    ShotRegistry::showTab(window, 5);
    if (auto* tree = window.gamePage()->findChild<QTreeWidget*>(QStringLiteral("gameTree"))) {
        tree->expandAll();
        const QList<QTreeWidgetItem*> found = tree->findItems(QStringLiteral("sample_items.mes"),
                                                              Qt::MatchRecursive | Qt::MatchExactly);
        if (!found.isEmpty())
            tree->setCurrentItem(found.first());
    }
    return nullptr;
}

const ShotRegistration shot(60, "tab-6-game", &game);

} // namespace
