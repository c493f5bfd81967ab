#include "TimeText.h"

#include <Orvik/TimePoints/Core/Formatters/SmpteTimeCodeFormatter.h>

#include <ctime>
#include <iomanip>
#include <sstream>
#include <stdexcept>

namespace Orvik::AssetTool {

using namespace DataModel::MediaAssets;

namespace {

constexpr uint64_t kNanosecondsPerSecond = 1000000000;

std::string TwoDigits(int64_t value)
{
    std::ostringstream text;
    text << std::setw(2) << std::setfill('0') << value;
    return text.str();
}

/// The nanoseconds below a second as ".5" or ".000000001"; empty when there are none.
std::string Fraction(uint64_t nanoseconds)
{
    if (nanoseconds == 0)
        return std::string();
    std::ostringstream text;
    text << std::setw(9) << std::setfill('0') << nanoseconds;
    std::string digits = text.str();
    digits.erase(digits.find_last_not_of('0') + 1);
    return "." + digits;
}

}  // namespace

std::string DurationText(int64_t nanoseconds)
{
    // The magnitude in unsigned arithmetic, so that the most negative value has one too.
    const uint64_t magnitude = nanoseconds < 0 ? 0 - static_cast<uint64_t>(nanoseconds) : static_cast<uint64_t>(nanoseconds);
    const uint64_t seconds = magnitude / kNanosecondsPerSecond;
    return (nanoseconds < 0 ? "-" : "") + std::to_string(seconds / 3600) + "h "
        + TwoDigits(static_cast<int64_t>(seconds / 60 % 60)) + "m " + TwoDigits(static_cast<int64_t>(seconds % 60))
        + Fraction(magnitude % kNanosecondsPerSecond) + "s";
}

std::string TimePointText(const TimePoint& timePoint) { return DurationText(timePoint.ToNanoseconds()); }

std::string BoundaryText(const TimeBoundary& boundary)
{
    if (boundary == TimeBoundary::Empty())
        return "unset";
    return TimePointText(boundary.TimePoint()) + (boundary.IsMoving() ? " (moving)" : "");
}

std::string RateText(int64_t numerator, int64_t denominator)
{
    return std::to_string(numerator) + "/" + std::to_string(denominator);
}

std::string TimecodeText(const Timecode& timecode)
{
    const auto& rate = timecode.Rate();
    const std::string rateText = " @ " + RateText(rate.Numerator(), rate.Denominator());
    try {
        return timecode.ToString(TimePoints::SmpteTimeCodeFormatter()) + rateText;
    } catch (const std::invalid_argument&) {
        return "sample " + std::to_string(timecode.TotalSample()) + rateText;
    }
}

std::string DateText(DateTime seconds)
{
    std::tm calendar{};
    if (gmtime_r(&seconds, &calendar) == nullptr)
        return std::to_string(seconds);
    std::ostringstream text;
    text << std::put_time(&calendar, "%Y-%m-%d %H:%M:%S") << " UTC";
    return text.str();
}

}  // namespace Orvik::AssetTool
