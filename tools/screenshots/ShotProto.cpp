// The Proto tab with the first bundled prototype open.
#include "ShotRegistry.h"

#include "MainWindow.h"

namespace {

QWidget* proto(MainWindow& window)
{
    ShotRegistry::showTab(window, 4);
    ShotRegistry::selectFirst(window, "protoList");
    return nullptr;
}

const ShotRegistration shot(50, "tab-5-proto", &proto);

} // namespace
