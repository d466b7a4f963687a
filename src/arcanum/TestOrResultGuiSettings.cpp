#include "TestOrResultGuiSettings.h"

#include "TestOrResultForm.h"

#include <QDebug>

namespace arcanum::dlg {

namespace {

QString toolTipAt(const QStringList& toolTips, int index)
{
    return index >= 0 && index < toolTips.size() ? toolTips.at(index) : QString();
}

} // namespace

TestOrResultGuiSettings::TestOrResultGuiSettings(QStringList combo1Items, QStringList combo2Items,
                                                 QStringList combo1ToolTips, QStringList combo2ToolTips,
                                                 QString spin1ToolTip, QString spin2ToolTip, int visibleControls)
    : mCombo1Items(std::move(combo1Items))
    , mCombo2Items(std::move(combo2Items))
    , mCombo1ToolTips(std::move(combo1ToolTips))
    , mCombo2ToolTips(std::move(combo2ToolTips))
    , mSpin1ToolTip(std::move(spin1ToolTip))
    , mSpin2ToolTip(std::move(spin2ToolTip))
    , mVisibleControls(visibleControls)
{
}

TestOrResultGuiSettings::~TestOrResultGuiSettings()
{
    qDebug("~TestOrResultGuiSettings()");
}

QString TestOrResultGuiSettings::getCombo1ToolTip(const TestOrResultForm& form) const
{
    return toolTipAt(mCombo1ToolTips, form.currentIndex(TestOrResultForm::combo1));
}

QString TestOrResultGuiSettings::getCombo2ToolTip(const TestOrResultForm& form) const
{
    return toolTipAt(mCombo2ToolTips, form.currentIndex(TestOrResultForm::combo2));
}

QString TestOrResultGuiSettings::getSpin1ToolTip(const TestOrResultForm& form) const
{
    return fillSpinToolTip(mSpin1ToolTip, form.value(TestOrResultForm::spin1));
}

QString TestOrResultGuiSettings::getSpin2ToolTip(const TestOrResultForm& form) const
{
    return fillSpinToolTip(mSpin2ToolTip, form.value(TestOrResultForm::spin2));
}

bool TestOrResultGuiSettings::validateInput(const TestOrResultForm& /*form*/) const
{
    return true;
}

qint64 TestOrResultGuiSettings::getValues(const TestOrResultForm& form) const
{
    // "<=" (index 1) is how the file writes an upper bound: the argument's sign flips. The 64-bit
    // negation keeps the smallest int from overflowing; the packing keeps its lower 32 bits.
    const qint64 spin = form.value(TestOrResultForm::spin1);
    const qint64 value1 = form.currentIndex(TestOrResultForm::combo1) == 1 ? -spin : spin;
    const qint32 value2 = form.isShown(TestOrResultForm::spin2) ? form.value(TestOrResultForm::spin2) : 0;
    return packValues(value1Of(value1), value2);
}

qint64 TestOrResultGuiSettings::packValues(qint32 value1, qint32 value2)
{
    const quint64 packed = quint64(quint32(value2)) << 32 | quint64(quint32(value1));
    return static_cast<qint64>(packed);
}

qint32 TestOrResultGuiSettings::value1Of(qint64 values)
{
    return static_cast<qint32>(static_cast<quint32>(static_cast<quint64>(values)));
}

qint32 TestOrResultGuiSettings::value2Of(qint64 values)
{
    return static_cast<qint32>(static_cast<quint32>(static_cast<quint64>(values) >> 32));
}

QString TestOrResultGuiSettings::fillSpinToolTip(const QString& toolTip, int value)
{
    QString text = toolTip;
    return text.replace(QLatin1String("%1"), QString::number(value));
}

} // namespace arcanum::dlg
