#pragma once

#include <QString>

#include <vector>

class MainWindow;
class QWidget;

// One registered shot per picture: it prepares the window (a tab, a loaded file, an open dialog)
// and returns the widget to grab, or nullptr for the whole main window.
class ShotRegistry
{
public:
    using Prepare = QWidget* (*)(MainWindow& window);
    struct Entry
    {
        int order;
        QString name;
        Prepare prepare;
    };

    static void add(int order, const QString& name, Prepare prepare);
    static const std::vector<Entry>& all();
    // Lets queued layout and paint events run, so a grab shows the settled page.
    static void settle();
    // Brings tab index of the main window to the front.
    static void showTab(MainWindow& window, int index);
    // Makes row 0 of the named list widget current (a no-op for an empty or missing list).
    static void selectFirst(MainWindow& window, const char* listName);
};

struct ShotRegistration
{
    ShotRegistration(int order, const char* name, ShotRegistry::Prepare prepare)
    {
        ShotRegistry::add(order, QString::fromLatin1(name), prepare);
    }
};
