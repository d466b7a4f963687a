// The five tabs, each with the first bundled file of its kind open.
#include "ShotRegistry.h"

#include "MainWindow.h"

#include <QListWidget>
#include <QTabWidget>
#include <QTreeView>
#include <QTreeWidget>

namespace {

QTabWidget* tabs(MainWindow& window)
{
    return window.findChild<QTabWidget*>(QStringLiteral("tabWidget"));
}

void selectFirst(MainWindow& window, const char* listName)
{
    auto* list = window.findChild<QListWidget*>(QString::fromLatin1(listName));
    if (list && list->count() > 0)
        list->setCurrentRow(0);
}

QWidget* scripts(MainWindow& window)
{
    tabs(window)->setCurrentIndex(0);
    selectFirst(window, "listScripts");
    return nullptr;
}

QWidget* messages(MainWindow& window)
{
    tabs(window)->setCurrentIndex(1);
    auto* tree = window.findChild<QTreeWidget*>(QStringLiteral("treeMes"));
    if (tree && tree->topLevelItemCount() > 0 && tree->topLevelItem(0)->childCount() > 0)
        tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    return nullptr;
}

QWidget* dialogue(MainWindow& window)
{
    tabs(window)->setCurrentIndex(2);
    return nullptr;
}

QWidget* art(MainWindow& window)
{
    tabs(window)->setCurrentIndex(3);
    return nullptr;
}

QWidget* proto(MainWindow& window)
{
    tabs(window)->setCurrentIndex(4);
    selectFirst(window, "protoList");
    return nullptr;
}

const ShotRegistration scriptShot(10, "tab-1-script", &scripts);
const ShotRegistration mesShot(20, "tab-2-mes", &messages);
const ShotRegistration dialogueShot(30, "tab-3-dialogue", &dialogue);
const ShotRegistration artShot(40, "tab-4-art", &art);
const ShotRegistration protoShot(50, "tab-5-proto", &proto);

} // namespace
