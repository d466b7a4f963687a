#include "DialogueOpcodeSettings.h"

#include "TestOrResultForm.h"

namespace arcanum::dlg {

namespace {

// The spin1 template with "%1" as the amount and "%2" as the chosen comparison (">=" or "<=").
QString comparisonSentence(const TestOrResultGuiSettings& settings, const TestOrResultForm& form)
{
    QString text = settings.spin1ToolTip();
    text.replace(QLatin1String("%1"), QString::number(form.value(TestOrResultForm::spin1)));
    return text.replace(QLatin1String("%2"), form.currentText(TestOrResultForm::combo1));
}

} // namespace

#define ARCANUM_DLG_METHODS_Plain(CLASS)
#define ARCANUM_DLG_METHODS_Comparison(CLASS)                                                    \
    QString CLASS::getCombo1ToolTip(const TestOrResultForm& form) const                          \
    {                                                                                            \
        return comparisonSentence(*this, form);                                                  \
    }                                                                                            \
    QString CLASS::getSpin1ToolTip(const TestOrResultForm& form) const                           \
    {                                                                                            \
        return getCombo1ToolTip(form);                                                           \
    }
#define ARCANUM_DLG_DEFINE_METHODS(NAME, CODE, ARGUMENTS, LABEL, KIND) ARCANUM_DLG_METHODS_##KIND(NAME##_Settings)

namespace test {
ARCANUM_DLG_TESTS(ARCANUM_DLG_DEFINE_METHODS)
} // namespace test

} // namespace arcanum::dlg
