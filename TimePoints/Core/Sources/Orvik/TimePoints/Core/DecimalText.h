#pragma once

// Fixed-width decimal fields of the time texts, written into and read from character buffers
// without allocating.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Orvik::TimePoints::detail {

/// Writes `value` in decimal, zero-padded to at least `width` digits; returns the end.
inline char* WriteDigits(char* out, uint64_t value, int width)
{
    char reversed[20];
    int count = 0;
    do {
        reversed[count++] = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (value != 0);
    for (int pad = count; pad < width; ++pad)
        *out++ = '0';
    while (count > 0)
        *out++ = reversed[--count];
    return out;
}

/// The number of decimal digits of `value` (1 for 0).
inline int DigitCount(uint64_t value)
{
    int count = 1;
    while (value >= 10) {
        value /= 10;
        ++count;
    }
    return count;
}

/// Reads exactly `count` (at most 18) decimal digits at `position`; false when the text is too
/// short or a character is not a digit.
inline bool ReadDigits(std::string_view text, size_t position, size_t count, int64_t& value)
{
    if (position > text.size() || text.size() - position < count)
        return false;
    const char* digit = text.data() + position;
    value = 0;
    for (const char* end = digit + count; digit != end; ++digit) {
        if (*digit < '0' || *digit > '9')
            return false;
        value = value * 10 + (*digit - '0');
    }
    return true;
}

}  // namespace Orvik::TimePoints::detail
