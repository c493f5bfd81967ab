#include <Orvik/TimePoints/Core/Formatters/TimeCodeDurationFormatter.h>

#include "DecimalText.h"
#include "TimeCodeCounting.h"

#include <limits>
#include <stdexcept>
#include <string>

namespace Orvik::TimePoints {
namespace {

__extension__ using UnsignedWide = unsigned __int128;

constexpr char kInvalidCounting[] = "Orvik::TimePoints::TimeCodeDurationFormatter: ";  // followed by the reason
constexpr char kTooManyFrames[] = "Orvik::TimePoints::TimeCodeDurationFormatter: the frame count does not fit in 64 bits";
constexpr uint64_t kNanosecondsPerSecond = 1000000000;

}  // namespace

TimeCodeDurationFormatter::TimeCodeDurationFormatter(const TimePoints::Rate& rate, bool isDrop) : rate(rate), isDrop(isDrop)
{
    if (!detail::TimeCodeCounting(rate, isDrop).HasDropFrameRate())
        throw std::invalid_argument(kInvalidCounting + std::string(detail::Describe(detail::LabelFault::DropFrameRate)));
}

std::string TimeCodeDurationFormatter::Format(const Duration& duration) const
{
    const detail::TimeCodeCounting counting(rate, isDrop);
    const int64_t nanoseconds = duration.ToNanoseconds();
    const uint64_t magnitude = nanoseconds < 0 ? 0 - static_cast<uint64_t>(nanoseconds) : static_cast<uint64_t>(nanoseconds);
    // Whole frames, rounded toward zero: magnitude × rate / 10^9 < 2^127.
    const UnsignedWide frames = UnsignedWide(magnitude) * static_cast<uint64_t>(rate.Numerator())
        / (UnsignedWide(static_cast<uint64_t>(rate.Denominator())) * kNanosecondsPerSecond);
    if (frames > static_cast<uint64_t>(std::numeric_limits<int64_t>::max()))
        throw std::out_of_range(kTooManyFrames);
    const detail::Clock clock = counting.ToClock(static_cast<int64_t>(frames));

    char text[48];
    char* end = text;
    if (nanoseconds < 0 && frames != 0)
        *end++ = '-';
    end = detail::WriteDigits(end, static_cast<uint64_t>(clock.days * 24 + clock.hour), 2);
    *end++ = ':';
    end = detail::WriteDigits(end, static_cast<uint64_t>(clock.minute), 2);
    *end++ = ':';
    end = detail::WriteDigits(end, static_cast<uint64_t>(clock.second), 2);
    *end++ = isDrop ? ';' : ':';
    end = detail::WriteDigits(end, static_cast<uint64_t>(clock.frame), counting.FrameDigits());
    return std::string(text, end);
}

}  // namespace Orvik::TimePoints
