#pragma once

#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/Rate.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

namespace Orvik::TimePoints {

/// A time point together with the rate it is counted in and an offset from it.
class RatedTimePoint {
public:
    constexpr RatedTimePoint() = default;
    constexpr RatedTimePoint(const TimePoints::TimePoint& timePoint, const TimePoints::Rate& rate,
                             const TimePoints::Duration& delta)
        : timePoint(timePoint), rate(rate), delta(delta)
    {}

    constexpr const TimePoints::TimePoint& TimePoint() const { return timePoint; }
    constexpr void TimePoint(const TimePoints::TimePoint& value) { timePoint = value; }
    constexpr const TimePoints::Rate& Rate() const { return rate; }
    constexpr void Rate(const TimePoints::Rate& value) { rate = value; }
    constexpr const TimePoints::Duration& Delta() const { return delta; }
    constexpr void Delta(const TimePoints::Duration& value) { delta = value; }

    constexpr bool operator==(const RatedTimePoint& other) const
    {
        return timePoint == other.timePoint && rate == other.rate && delta == other.delta;
    }
    constexpr bool operator!=(const RatedTimePoint& other) const { return !(*this == other); }

private:
    TimePoints::TimePoint timePoint;
    TimePoints::Rate rate;
    TimePoints::Duration delta;
};

}  // namespace Orvik::TimePoints
