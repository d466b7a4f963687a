#pragma once

#include <QString>
#include <QtGlobal>

namespace arcanum::dlg {

class TestOrResultType;

// One test or result of a dialogue line: which opcode and its arguments (0 where it takes fewer).
struct TestOrResultData
{
    const TestOrResultType* type = nullptr;
    qint32 value1 = 0;
    qint32 value2 = 0;

    TestOrResultData() = default;
    TestOrResultData(const TestOrResultType* type, qint32 value1 = 0, qint32 value2 = 0);
    // Unpacks what TestOrResultGuiSettings::getValues packed.
    static TestOrResultData fromValues(const TestOrResultType* type, qint64 values);

    // The opcode as a file writes it: code, then as many arguments as the opcode takes ("gf 12 1").
    QString toString() const;

    bool operator==(const TestOrResultData& other) const;
    bool operator!=(const TestOrResultData& other) const { return !(*this == other); }
};

} // namespace arcanum::dlg
