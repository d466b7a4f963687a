#pragma once

class QWidget;

// Gives every control below a widget that has no tool tip of its own one made from what the form
// already says about it: its label (a buddy, its form row or the label beside it), its group box, and
// for a number its range. Hand-written tips are never replaced.
class ToolTipFiller
{
public:
    static void fill(QWidget* root);
};
