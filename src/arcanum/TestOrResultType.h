#pragma once

#include <QString>

#include <memory>

namespace arcanum::dlg {

class TestOrResultGuiSettings;

// One dialogue opcode: its two-character code, how many integer arguments follow it in a file, the
// label of the opcode chooser and how the row editor presents it. The catalogue holds exactly one
// object per opcode and is compared by identity, so types are neither copied nor moved.
class TestOrResultType
{
public:
    // Takes ownership of settings. An empty description shows the code instead.
    TestOrResultType(QString code, signed char argumentCount, QString description,
                     TestOrResultGuiSettings* settings);
    ~TestOrResultType();
    TestOrResultType(const TestOrResultType&) = delete;
    TestOrResultType& operator=(const TestOrResultType&) = delete;

    const QString& code() const { return mCode; }
    signed char argumentCount() const { return mArgumentCount; }
    // The chooser label in the user's language.
    QString description() const;
    const TestOrResultGuiSettings* settings() const { return mSettings.get(); }

private:
    QString mCode;
    signed char mArgumentCount;
    QString mDescription;
    std::unique_ptr<TestOrResultGuiSettings> mSettings;
};

} // namespace arcanum::dlg
