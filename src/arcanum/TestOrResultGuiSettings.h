#pragma once

#include <QStringList>
#include <QtGlobal>

namespace arcanum::dlg {

class TestOrResultForm;

// How the row editor presents one opcode: the items of its two combo boxes, which controls it shows,
// the tool tips it gives, and how the controls' values become the opcode's two arguments.
class TestOrResultGuiSettings
{
public:
    // Bits of the visible-controls mask; a cleared bit hides the control.
    enum VisibleControl { COMBO1 = 1, SPIN1 = 2, COMBO2 = 4, SPIN2 = 8 };

    TestOrResultGuiSettings(QStringList combo1Items, QStringList combo2Items, QStringList combo1ToolTips,
                            QStringList combo2ToolTips, QString spin1ToolTip, QString spin2ToolTip,
                            int visibleControls);
    virtual ~TestOrResultGuiSettings();
    TestOrResultGuiSettings(const TestOrResultGuiSettings&) = delete;
    TestOrResultGuiSettings& operator=(const TestOrResultGuiSettings&) = delete;

    virtual QString getCombo1ToolTip(const TestOrResultForm& form) const;
    virtual QString getCombo2ToolTip(const TestOrResultForm& form) const;
    virtual QString getSpin1ToolTip(const TestOrResultForm& form) const;
    virtual QString getSpin2ToolTip(const TestOrResultForm& form) const;
    virtual bool validateInput(const TestOrResultForm& form) const;
    // value1 in the lower 32 bits, value2 (only while spin2 is shown) in the upper 32 bits.
    virtual qint64 getValues(const TestOrResultForm& form) const;

    const QStringList& combo1Items() const { return mCombo1Items; }
    const QStringList& combo2Items() const { return mCombo2Items; }
    const QStringList& combo1ToolTips() const { return mCombo1ToolTips; }
    const QStringList& combo2ToolTips() const { return mCombo2ToolTips; }
    const QString& spin1ToolTip() const { return mSpin1ToolTip; }
    const QString& spin2ToolTip() const { return mSpin2ToolTip; }
    int visibleControls() const { return mVisibleControls; }
    bool shows(VisibleControl control) const { return (mVisibleControls & control) != 0; }

    static qint64 packValues(qint32 value1, qint32 value2);
    static qint32 value1Of(qint64 values);
    static qint32 value2Of(qint64 values);

protected:
    // The spin tool tip template with "%1" replaced by the spin box's value.
    static QString fillSpinToolTip(const QString& toolTip, int value);

private:
    QStringList mCombo1Items;
    QStringList mCombo2Items;
    QStringList mCombo1ToolTips;
    QStringList mCombo2ToolTips;
    QString mSpin1ToolTip;
    QString mSpin2ToolTip;
    int mVisibleControls;
};

} // namespace arcanum::dlg
