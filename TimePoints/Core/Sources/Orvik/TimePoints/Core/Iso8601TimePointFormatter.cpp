#include <Orvik/TimePoints/Core/Formatters/Iso8601TimePointFormatter.h>

#include "Calendar.h"
#include "DecimalText.h"
#include "NamedTimePoints.h"

#include <string>

namespace Orvik::TimePoints {
namespace {

constexpr int64_t kNanosecondsPerSecond = 1000000000;
constexpr int64_t kSecondsPerDay = 86400;

}  // namespace

std::string Iso8601TimePointFormatter::Format(const TimePoint& timePoint) const
{
    for (const detail::NamedTimePoint& named : detail::kNamedTimePoints) {
        if (timePoint == named.point)
            return named.text;
    }
    // Floored, so that a point before 1970 has a positive fraction and time of day.
    int64_t seconds = timePoint.ToNanoseconds() / kNanosecondsPerSecond;
    int64_t fraction = timePoint.ToNanoseconds() % kNanosecondsPerSecond;
    if (fraction < 0) {
        fraction += kNanosecondsPerSecond;
        --seconds;
    }
    int64_t days = seconds / kSecondsPerDay;
    int64_t secondOfDay = seconds % kSecondsPerDay;
    if (secondOfDay < 0) {
        secondOfDay += kSecondsPerDay;
        --days;
    }
    const detail::CivilDate date = detail::ToCivilDate(days);

    char text[30];  // "YYYY-MM-DDTHH:MM:SS.fffffffffZ"; years 1677 to 2262 only
    char* end = detail::WriteDigits(text, static_cast<uint64_t>(date.year), 4);
    *end++ = '-';
    end = detail::WriteDigits(end, static_cast<uint64_t>(date.month), 2);
    *end++ = '-';
    end = detail::WriteDigits(end, static_cast<uint64_t>(date.day), 2);
    *end++ = 'T';
    end = detail::WriteDigits(end, static_cast<uint64_t>(secondOfDay / 3600), 2);
    *end++ = ':';
    end = detail::WriteDigits(end, static_cast<uint64_t>(secondOfDay / 60 % 60), 2);
    *end++ = ':';
    end = detail::WriteDigits(end, static_cast<uint64_t>(secondOfDay % 60), 2);
    *end++ = '.';
    end = detail::WriteDigits(end, static_cast<uint64_t>(fraction), 9);
    *end++ = 'Z';
    return std::string(text, end);
}

}  // namespace Orvik::TimePoints
