// The Art tab.
#include "ShotRegistry.h"

#include "MainWindow.h"

namespace {

QWidget* art(MainWindow& window)
{
    ShotRegistry::showTab(window, 3);
    return nullptr;
}

const ShotRegistration shot(40, "tab-4-art", &art);

} // namespace
