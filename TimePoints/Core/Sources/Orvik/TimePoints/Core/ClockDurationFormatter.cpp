#include <Orvik/TimePoints/Core/Formatters/ClockDurationFormatter.h>

#include "DecimalText.h"

#include <string>

namespace Orvik::TimePoints {
namespace {

constexpr uint64_t kNanosecondsPerSecond = 1000000000;

}  // namespace

std::string ClockDurationFormatter::Format(const Duration& duration) const
{
    const int64_t nanoseconds = duration.ToNanoseconds();
    // The magnitude in unsigned arithmetic, where that of the smallest value fits.
    const uint64_t magnitude = nanoseconds < 0 ? 0 - static_cast<uint64_t>(nanoseconds) : static_cast<uint64_t>(nanoseconds);
    const uint64_t seconds = magnitude / kNanosecondsPerSecond;

    char text[32];  // "-2562047:47:16.854775808" at most
    char* end = text;
    if (nanoseconds < 0)
        *end++ = '-';
    end = detail::WriteDigits(end, seconds / 3600, 2);
    *end++ = ':';
    end = detail::WriteDigits(end, seconds / 60 % 60, 2);
    *end++ = ':';
    end = detail::WriteDigits(end, seconds % 60, 2);
    *end++ = '.';
    end = detail::WriteDigits(end, magnitude % kNanosecondsPerSecond, 9);
    return std::string(text, end);
}

}  // namespace Orvik::TimePoints
