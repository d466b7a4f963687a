#pragma once

#include <QString>

namespace arcanum::dlg {

// What an opcode's settings read from the row that edits one test or result: the opcode chooser, two
// combo boxes and two spin boxes. The row widget implements it; the catalogue stays free of widgets.
class TestOrResultForm
{
public:
    enum ComboBox { comboOp, combo1, combo2 };
    enum SpinBox { spin1, spin2 };

    virtual ~TestOrResultForm() = default;

    virtual int currentIndex(ComboBox combo) const = 0; // -1 when nothing is selected
    virtual QString currentText(ComboBox combo) const = 0;
    virtual int count(ComboBox combo) const = 0;
    virtual int value(SpinBox spin) const = 0;
    // Whether the row shows the control (its own choice, not whether the window is on screen).
    virtual bool isShown(ComboBox combo) const = 0;
    virtual bool isShown(SpinBox spin) const = 0;
};

} // namespace arcanum::dlg
