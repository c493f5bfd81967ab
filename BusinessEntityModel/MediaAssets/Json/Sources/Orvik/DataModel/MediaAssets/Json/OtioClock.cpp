#include "OtioClock.h"

#include <limits>

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

__extension__ using Wide = __int128;

constexpr Wide kNanosecondsPerSecond = 1000000000;

/// numerator / denominator (denominator > 0) rounded to the nearest whole number, halves up:
/// floor((2 × numerator + denominator) / (2 × denominator)).
Wide Nearest(Wide numerator, Wide denominator)
{
    const Wide twice = 2 * numerator + denominator;
    const Wide below = 2 * denominator;
    Wide quotient = twice / below;
    if (twice % below != 0 && twice < 0)
        --quotient;
    return quotient;
}

}  // namespace

OtioClock::OtioClock(const TimePoints::Rate& rate, int64_t origin, int64_t offset)
    : rate(rate), origin(origin), offset(offset)
{}

double OtioClock::Frame(const TimePoints::TimePoint& point) const
{
    const Wide elapsed = Wide(point.ToNanoseconds()) - origin;
    return static_cast<double>(offset
                               + Nearest(elapsed * rate.Numerator(), Wide(rate.Denominator()) * kNanosecondsPerSecond));
}

std::optional<TimePoints::TimePoint> OtioClock::Point(int64_t frame) const
{
    const Wide frames = Wide(frame) - offset;
    const Wide point = origin + Nearest(frames * rate.Denominator() * kNanosecondsPerSecond, Wide(rate.Numerator()));
    if (point < std::numeric_limits<int64_t>::min() || point > std::numeric_limits<int64_t>::max())
        return std::nullopt;
    return TimePoints::TimePoint(static_cast<int64_t>(point));
}

double OtioClock::Rate() const { return static_cast<double>(rate.Numerator()) / static_cast<double>(rate.Denominator()); }

int64_t OtioClock::Convert(int64_t frames, const TimePoints::Rate& from, const TimePoints::Rate& to)
{
    return static_cast<int64_t>(
        Nearest(Wide(frames) * to.Numerator() * from.Denominator(), Wide(to.Denominator()) * from.Numerator()));
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
