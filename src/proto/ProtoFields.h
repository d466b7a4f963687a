#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

#include <cstdint>
#include <utility>
#include <vector>

// Ties the prototype page's controls to model fields, so filling the form and reading it back are
// the same tables walked in two directions.
namespace protofields {

// 32-bit words show in spin boxes as the signed value of their bits, so every value survives.
inline int toSpin(std::uint32_t value)
{
    return static_cast<int>(static_cast<std::int32_t>(value));
}

inline std::uint32_t fromSpin(int value)
{
    return static_cast<std::uint32_t>(value);
}

void allowWholeWord(QSpinBox* spin);

// Choice lists hold each value as item data; a value without a text gets an entry of its own that
// shows the number, and is dropped again when another value is shown.
void setChoices(QComboBox* combo, const std::vector<std::pair<QString, std::uint32_t>>& choices);
void selectValue(QComboBox* combo, std::uint32_t value);
std::uint32_t selectedValue(const QComboBox* combo);

template <class Record>
struct SpinField
{
    QSpinBox* spin;
    std::uint32_t Record::*field;
};

template <class Record>
struct ComboField
{
    QComboBox* combo;
    std::uint32_t Record::*field;
};

// One bit of a flag word, reached through the record being shown.
template <class Word>
struct FlagField
{
    QCheckBox* box;
    Word* word;
    Word mask;
};

template <class Record>
void showFields(const std::vector<SpinField<Record>>& fields, const Record& record)
{
    for (const SpinField<Record>& f : fields)
        f.spin->setValue(toSpin(record.*f.field));
}

template <class Record>
void takeFields(const std::vector<SpinField<Record>>& fields, Record& record)
{
    for (const SpinField<Record>& f : fields)
        record.*f.field = fromSpin(f.spin->value());
}

template <class Record>
void showFields(const std::vector<ComboField<Record>>& fields, const Record& record)
{
    for (const ComboField<Record>& f : fields)
        selectValue(f.combo, record.*f.field);
}

template <class Record>
void takeFields(const std::vector<ComboField<Record>>& fields, Record& record)
{
    for (const ComboField<Record>& f : fields)
        record.*f.field = selectedValue(f.combo);
}

template <class Word>
void showFields(const std::vector<FlagField<Word>>& fields)
{
    for (const FlagField<Word>& f : fields)
        f.box->setChecked((*f.word & f.mask) != 0);
}

// Each box sets or clears its own bit and leaves every other bit of the word as it was.
template <class Word>
void takeFields(const std::vector<FlagField<Word>>& fields)
{
    for (const FlagField<Word>& f : fields)
        *f.word = static_cast<Word>(f.box->isChecked() ? *f.word | f.mask : *f.word & ~f.mask);
}

} // namespace protofields
