#include <Orvik/TimePoints/Core/Formatters/SmpteTimeCodeFormatter.h>

#include "Calendar.h"
#include "DecimalText.h"
#include "TimeCodeCounting.h"

#include <stdexcept>
#include <string>

namespace Orvik::TimePoints {
namespace {

constexpr char kInvalidTimeCode[] = "Invalid timecode: ";  // followed by the reason
constexpr char kDateOutOfRange[] = "the date must be a day of the years 0000 to 9999";

}  // namespace

std::string SmpteTimeCodeFormatter::Format(const TimeCode& timeCode) const
{
    const detail::TimeCodeCounting counting(timeCode.Rate(), timeCode.IsDrop());
    if (!counting.HasDropFrameRate())
        throw std::invalid_argument(kInvalidTimeCode + std::string(detail::Describe(detail::LabelFault::DropFrameRate)));
    const detail::Clock clock = counting.ToClock(timeCode.TotalSample());

    char text[32];  // "YYYY-MM-DD " + "HH:MM:SS:" + at most 10 frame digits
    char* end = text;
    if (timeCode.HasDate()) {
        const detail::CivilDate date = detail::ToCivilDate(clock.days);
        if (date.year < 0 || date.year > 9999)
            throw std::invalid_argument(kInvalidTimeCode + std::string(kDateOutOfRange));
        end = detail::WriteDigits(end, static_cast<uint64_t>(date.year), 4);
        *end++ = '-';
        end = detail::WriteDigits(end, static_cast<uint64_t>(date.month), 2);
        *end++ = '-';
        end = detail::WriteDigits(end, static_cast<uint64_t>(date.day), 2);
        *end++ = ' ';
    }
    end = detail::WriteDigits(end, static_cast<uint64_t>(clock.hour), 2);
    *end++ = ':';
    end = detail::WriteDigits(end, static_cast<uint64_t>(clock.minute), 2);
    *end++ = ':';
    end = detail::WriteDigits(end, static_cast<uint64_t>(clock.second), 2);
    *end++ = timeCode.IsDrop() ? ';' : ':';
    end = detail::WriteDigits(end, static_cast<uint64_t>(clock.frame), counting.FrameDigits());
    return std::string(text, end);
}

}  // namespace Orvik::TimePoints
