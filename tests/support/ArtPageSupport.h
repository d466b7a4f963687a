#pragma once

#include "ArtWidget.h"
#include "ScriptedAnswerer.h"

#include <QTest>

#include <memory>

// For the tests that link the Art tab: the page shown at a usual size with a file open, so clicks land
// where a user's would.
namespace ArtPageSupport {

inline std::unique_ptr<ArtWidget> showPage(const QString& file)
{
    auto page = std::make_unique<ArtWidget>();
    page->resize(1000, 700);
    page->show();
    if (!QTest::qWaitForWindowExposed(page.get()))
        qWarning("page not exposed");
    ScriptedAnswerer quiet; // a refused file is reported in a message box
    if (!page->openFile(file))
        qFatal("cannot open %s", qPrintable(file));
    return page;
}

} // namespace ArtPageSupport
