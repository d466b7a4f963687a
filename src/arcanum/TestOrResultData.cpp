#include "TestOrResultData.h"

#include "TestOrResultGuiSettings.h"
#include "TestOrResultType.h"

namespace arcanum::dlg {

TestOrResultData::TestOrResultData(const TestOrResultType* type_, qint32 value1_, qint32 value2_)
    : type(type_)
    , value1(value1_)
    , value2(value2_)
{
}

TestOrResultData TestOrResultData::fromValues(const TestOrResultType* type, qint64 values)
{
    return TestOrResultData(type, TestOrResultGuiSettings::value1Of(values), TestOrResultGuiSettings::value2Of(values));
}

QString TestOrResultData::toString() const
{
    if (!type)
        return QString();
    QString text = type->code();
    if (type->argumentCount() >= 1)
        text += QLatin1Char(' ') + QString::number(value1);
    if (type->argumentCount() >= 2)
        text += QLatin1Char(' ') + QString::number(value2);
    return text;
}

bool TestOrResultData::operator==(const TestOrResultData& other) const
{
    return type == other.type && value1 == other.value1 && value2 == other.value2;
}

} // namespace arcanum::dlg
