#pragma once

#include "DialogueOpcodes.h"
#include "TestOrResultGuiSettings.h"

// One settings class per dialogue opcode (TEST_MONEY_Settings, ..., RESULT_XP_Settings), so that each
// opcode has a type of its own. Plain classes only pass their constructor arguments through; the two
// comparison classes (money and reaction tests) show one sentence on combo1 and spin1 that reads both.

#define ARCANUM_DLG_SETTINGS_Plain(CLASS)                                                        \
    class CLASS : public TestOrResultGuiSettings                                                 \
    {                                                                                            \
    public:                                                                                      \
        using TestOrResultGuiSettings::TestOrResultGuiSettings;                                  \
    };

#define ARCANUM_DLG_SETTINGS_Comparison(CLASS)                                                   \
    class CLASS : public TestOrResultGuiSettings                                                 \
    {                                                                                            \
    public:                                                                                      \
        using TestOrResultGuiSettings::TestOrResultGuiSettings;                                  \
        QString getCombo1ToolTip(const TestOrResultForm& form) const override;                   \
        QString getSpin1ToolTip(const TestOrResultForm& form) const override;                    \
    };

#define ARCANUM_DLG_DECLARE_SETTINGS(NAME, CODE, ARGUMENTS, LABEL, KIND) ARCANUM_DLG_SETTINGS_##KIND(NAME##_Settings)

namespace arcanum::dlg {

namespace test {
ARCANUM_DLG_TESTS(ARCANUM_DLG_DECLARE_SETTINGS)
} // namespace test

namespace result {
ARCANUM_DLG_RESULTS(ARCANUM_DLG_DECLARE_SETTINGS)
} // namespace result

} // namespace arcanum::dlg
