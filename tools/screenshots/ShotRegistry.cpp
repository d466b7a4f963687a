#include "ShotRegistry.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>

namespace {
std::vector<ShotRegistry::Entry>& registry()
{
    static std::vector<ShotRegistry::Entry> entries;
    return entries;
}
} // namespace

void ShotRegistry::add(int order, const QString& name, Prepare prepare)
{
    registry().push_back({order, name, prepare});
    std::stable_sort(registry().begin(), registry().end(),
                     [](const Entry& a, const Entry& b) { return a.order < b.order; });
}

const std::vector<ShotRegistry::Entry>& ShotRegistry::all()
{
    return registry();
}

void ShotRegistry::settle()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 300)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
}
