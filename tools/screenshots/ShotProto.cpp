// The Proto tab with bundled prototypes open: the weapon at the top of its form and scrolled to the
// weapon's own group, then an armour, a wall and the script dialog.
#include "ShotRegistry.h"

#include "DialogProtoScript.h"
#include "MainWindow.h"
#include "ProtoMovableData.h"

#include <QGroupBox>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>

namespace {

void openPrototype(MainWindow& window, const QString& name)
{
    ShotRegistry::showTab(window, 4);
    auto* list = window.findChild<QListWidget*>(QStringLiteral("protoList"));
    if (!list)
        return;
    const QList<QListWidgetItem*> found = list->findItems(name, Qt::MatchExactly);
    if (!found.isEmpty())
        list->setCurrentItem(found.first());
}

// Scrolls the form so the named group is at the top.
void scrollTo(MainWindow& window, const char* groupName)
{
    auto* scroll = window.findChild<QScrollArea*>(QStringLiteral("scrollArea"));
    auto* group = window.findChild<QGroupBox*>(QString::fromLatin1(groupName));
    if (!scroll || !group)
        return;
    ShotRegistry::settle();
    scroll->verticalScrollBar()->setValue(group->y() - 8);
}

QWidget* weapon(MainWindow& window)
{
    openPrototype(window, QStringLiteral("weapon_sword.pro"));
    return nullptr;
}

QWidget* weaponOwnGroup(MainWindow& window)
{
    openPrototype(window, QStringLiteral("weapon_sword.pro"));
    scrollTo(window, "weaponGroup");
    return nullptr;
}

QWidget* armour(MainWindow& window)
{
    openPrototype(window, QStringLiteral("armor_leather.pro"));
    scrollTo(window, "armorGroup");
    return nullptr;
}

QWidget* wall(MainWindow& window)
{
    openPrototype(window, QStringLiteral("wall_stone.pro"));
    return nullptr;
}

// The arguments of the sword's "Wield on" script, in the dialog its script button opens.
QWidget* scriptDialog(MainWindow& window)
{
    openPrototype(window, QStringLiteral("weapon_sword.pro"));
    auto* dialog = new DialogProtoScript(&window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    arcanum::Proto::ScriptArgs args;
    args.number = 1530;
    args.counters = {2, 0, 0, 0};
    args.flags = 0x5;
    dialog->setArgs(args);
    dialog->show();
    return dialog;
}

const ShotRegistration weaponShot(50, "tab-5-proto", &weapon);
const ShotRegistration weaponGroupShot(51, "tab-5-proto-weapon", &weaponOwnGroup);
const ShotRegistration armourShot(52, "tab-5-proto-armor", &armour);
const ShotRegistration wallShot(53, "tab-5-proto-wall", &wall);
const ShotRegistration scriptShot(54, "tab-5-proto-script", &scriptDialog);

} // namespace
