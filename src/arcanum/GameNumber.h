#pragma once

#include <QStringView>

namespace arcanum {

// A number in a dialogue field, read the way the game reads it: leading blanks, an optional sign, then
// the digits up to the first other character ("5, -17" reads 5). Our own reading is stricter: it
// accepts only a field that is one number with blanks around it.
class GameNumber
{
public:
    static GameNumber read(QStringView text);

    int value() const { return mValue; }
    // False when the field holds no digit where the game looks for one (it then reads 0).
    bool hasDigits() const { return mHasDigits; }
    // True when the stricter reading gives the same number: nothing but blanks around it.
    bool isExact() const { return mExact; }

private:
    int mValue = 0;
    bool mHasDigits = false;
    bool mExact = false;
};

} // namespace arcanum
