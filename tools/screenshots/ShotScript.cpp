// The Script tab with the first bundled script open.
#include "ShotRegistry.h"

#include "MainWindow.h"

namespace {

QWidget* scripts(MainWindow& window)
{
    ShotRegistry::showTab(window, 0);
    ShotRegistry::selectFirst(window, "listScripts");
    return nullptr;
}

const ShotRegistration shot(10, "tab-1-script", &scripts);

} // namespace
