#include "ShotRegistry.h"

#include "MainWindow.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QListWidget>
#include <QTabWidget>

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

void ShotRegistry::showTab(MainWindow& window, int index)
{
    if (auto* tabs = window.findChild<QTabWidget*>(QStringLiteral("tabWidget")))
        tabs->setCurrentIndex(index);
}

void ShotRegistry::selectFirst(MainWindow& window, const char* listName)
{
    auto* list = window.findChild<QListWidget*>(QString::fromLatin1(listName));
    if (list && list->count() > 0)
        list->setCurrentRow(0);
}
