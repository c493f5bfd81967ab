#pragma once

#include <Orvik/TimePoints/Core/TimePoint.h>

namespace Orvik::TimePoints {

/// An in or out point that may still be moving (a recording that goes on).
///
/// Equal when the time point and the moving flag both are. The unset boundary is Empty(): time
/// point -9223372036854775807 ns, not moving; a moving boundary at that point is not empty. A
/// default boundary is Empty().
class TimeBoundary {
public:
    constexpr TimeBoundary() = default;
    constexpr TimeBoundary(const TimePoints::TimePoint& timePoint, bool isMoving) : timePoint(timePoint), isMoving(isMoving)
    {}

    /// The one unset boundary, a compile-time constant: usable during static initialisation.
    static constexpr const TimeBoundary& Empty();

    constexpr const TimePoints::TimePoint& TimePoint() const { return timePoint; }
    constexpr void TimePoint(const TimePoints::TimePoint& value) { timePoint = value; }
    constexpr bool IsMoving() const { return isMoving; }
    constexpr void IsMoving(bool value) { isMoving = value; }

    constexpr bool operator==(const TimeBoundary& other) const
    {
        return timePoint == other.timePoint && isMoving == other.isMoving;
    }
    constexpr bool operator!=(const TimeBoundary& other) const { return !(*this == other); }

private:
    TimePoints::TimePoint timePoint = TimePoints::TimePoint::Empty();
    bool isMoving = false;
};

namespace detail {
inline constexpr TimeBoundary kEmptyTimeBoundary{TimePoint::Empty(), false};
}  // namespace detail

constexpr const TimeBoundary& TimeBoundary::Empty() { return detail::kEmptyTimeBoundary; }

}  // namespace Orvik::TimePoints
