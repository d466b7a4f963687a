#pragma once

#include "PageFrame.h"

#include <QPushButton>

// A page inside the frame the window puts around it, for tests of the frame's Save and Save As.
template <typename PageType>
class FramedPage
{
public:
    FramedPage()
        : frame(new PageType, QString())
        , page(*static_cast<PageType*>(frame.page()))
    {
    }

    QPushButton* saveButton() const { return frame.findChild<QPushButton*>(QStringLiteral("frameSave")); }
    QPushButton* saveAsButton() const { return frame.findChild<QPushButton*>(QStringLiteral("frameSaveAs")); }

    PageFrame frame;
    PageType& page;
};
