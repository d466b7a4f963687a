#include "ProtoFields.h"

#include <limits>

namespace protofields {

namespace {
const char* const CHOICE_COUNT = "protoChoiceCount";
}

void allowWholeWord(QSpinBox* spin)
{
    spin->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

void setChoices(QComboBox* combo, const std::vector<std::pair<QString, std::uint32_t>>& choices)
{
    combo->clear();
    for (const auto& choice : choices)
        combo->addItem(choice.first, choice.second);
    combo->setProperty(CHOICE_COUNT, combo->count());
}

void selectValue(QComboBox* combo, std::uint32_t value)
{
    const int choices = combo->property(CHOICE_COUNT).toInt();
    while (combo->count() > choices)
        combo->removeItem(combo->count() - 1);
    int index = combo->findData(value);
    if (index < 0) {
        combo->addItem(QString::number(value), value);
        index = combo->count() - 1;
    }
    combo->setCurrentIndex(index);
}

std::uint32_t selectedValue(const QComboBox* combo)
{
    return combo->currentData().toUInt();
}

} // namespace protofields
