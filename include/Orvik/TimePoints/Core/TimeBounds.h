#pragma once

#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/TimeBoundary.h>

namespace Orvik::TimePoints {

/// An in/out pair of boundaries. Equal when both boundaries are equal in both their fields. A
/// default pair has both boundaries unset (TimeBoundary::Empty()).
class TimeBounds {
public:
    constexpr TimeBounds() = default;
    constexpr TimeBounds(const TimeBoundary& in, const TimeBoundary& out) : inBoundary(in), outBoundary(out) {}

    constexpr const TimeBoundary& InBoundary() const { return inBoundary; }
    constexpr void InBoundary(const TimeBoundary& value) { inBoundary = value; }
    constexpr const TimeBoundary& OutBoundary() const { return outBoundary; }
    constexpr void OutBoundary(const TimeBoundary& value) { outBoundary = value; }

    /// Out time point minus in time point (plain 64-bit subtraction).
    constexpr TimePoints::Duration Duration() const { return outBoundary.TimePoint() - inBoundary.TimePoint(); }

    constexpr bool operator==(const TimeBounds& other) const
    {
        return inBoundary == other.inBoundary && outBoundary == other.outBoundary;
    }
    constexpr bool operator!=(const TimeBounds& other) const { return !(*this == other); }

private:
    TimeBoundary inBoundary;
    TimeBoundary outBoundary;
};

}  // namespace Orvik::TimePoints
