// The Dialogue tab.
#include "ShotRegistry.h"

#include "MainWindow.h"

namespace {

QWidget* dialogue(MainWindow& window)
{
    ShotRegistry::showTab(window, 2);
    return nullptr;
}

const ShotRegistration shot(30, "tab-3-dialogue", &dialogue);

} // namespace
