#include "TestOrResultType.h"

#include "TestOrResultGuiSettings.h"

#include <QCoreApplication>

namespace arcanum::dlg {

TestOrResultType::TestOrResultType(QString code, signed char argumentCount, QString description,
                                   TestOrResultGuiSettings* settings)
    : mCode(std::move(code))
    , mArgumentCount(argumentCount)
    , mDescription(description.isEmpty() ? mCode : std::move(description))
    , mSettings(settings)
{
}

TestOrResultType::~TestOrResultType() = default;

QString TestOrResultType::description() const
{
    // Translated when asked, not when built: the catalogue exists before any translator is installed.
    return QCoreApplication::translate("arcanum::dlg::TestOrResultType", mDescription.toUtf8().constData());
}

} // namespace arcanum::dlg
