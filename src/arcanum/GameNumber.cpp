#include "GameNumber.h"

#include <limits>

namespace arcanum {

GameNumber GameNumber::read(QStringView text)
{
    GameNumber number;
    qsizetype at = 0;
    while (at < text.size() && text.at(at).isSpace())
        ++at;
    bool negative = false;
    if (at < text.size() && (text.at(at) == QLatin1Char('-') || text.at(at) == QLatin1Char('+')))
        negative = text.at(at++) == QLatin1Char('-');
    // Saturates at the ends of int, as the C library's readers do, instead of overflowing.
    const qint64 limit = negative ? -qint64(std::numeric_limits<int>::min()) : std::numeric_limits<int>::max();
    qint64 magnitude = 0;
    bool saturated = false;
    const qsizetype digits = at;
    for (; at < text.size() && text.at(at) >= QLatin1Char('0') && text.at(at) <= QLatin1Char('9'); ++at) {
        magnitude = magnitude * 10 + (text.at(at).unicode() - '0');
        saturated = saturated || magnitude > limit;
        magnitude = qMin(limit, magnitude);
    }
    number.mHasDigits = at > digits;
    number.mValue = int(negative ? -magnitude : magnitude);
    // Our stricter reading also refuses a number that does not fit an int, which the game saturates.
    number.mExact = number.mHasDigits && !saturated && text.mid(at).trimmed().isEmpty();
    return number;
}

} // namespace arcanum
