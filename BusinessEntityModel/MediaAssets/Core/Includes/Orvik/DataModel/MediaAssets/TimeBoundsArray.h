#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>

namespace Orvik::DataModel::MediaAssets {

/// Orders stretches by in time point, then by out time point; the moving flags take no part.
struct TimeBoundsCompareLess {
    bool operator()(const TimeBounds& a, const TimeBounds& b) const
    {
        const TimePoint& aIn = a.InBoundary().TimePoint();
        const TimePoint& bIn = b.InBoundary().TimePoint();
        return aIn < bIn || (aIn == bIn && a.OutBoundary().TimePoint() < b.OutBoundary().TimePoint());
    }
};

/// Two stretches are the same when both boundaries match in time point and moving flag.
struct TimeBoundsCompareEqual {
    bool operator()(const TimeBounds& a, const TimeBounds& b) const { return a == b; }
};

/// The stretches of the media time line that an asset, resource or stream covers, sorted, with
/// an overall in and out boundary marking the range in use.
///
/// Both boundaries start unset (TimeBoundary::Empty()). Stretches are ordered by in and then out
/// time point; a stretch equal in all four fields to the one at its place is refused with
/// std::runtime_error "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present
/// in the collection", so two stretches that differ only in a moving flag are both kept. The
/// validity questions use half-open stretches: a boundary lies inside [in, out) of a stretch.
/// Equal when both boundaries, the count and every stretch (all four fields) are equal.
///
/// Failure guarantee: every insert is strong, as in the sorted vector it is; copy assignment is
/// member-wise and basic.
class TimeBoundsArray : public SortedVectorBase<TimeBounds, TimeBoundsCompareLess, TimeBoundsCompareEqual> {
public:
    TimeBoundsArray() = default;
    TimeBoundsArray(const TimeBoundsArray&) = default;
    TimeBoundsArray(TimeBoundsArray&&) noexcept = default;
    TimeBoundsArray& operator=(const TimeBoundsArray&) = default;
    TimeBoundsArray& operator=(TimeBoundsArray&&) noexcept = default;
    ~TimeBoundsArray() = default;

    const TimeBoundary& InBoundary() const { return inBoundary; }
    void InBoundary(const TimeBoundary& value) { inBoundary = value; }
    const TimeBoundary& OutBoundary() const { return outBoundary; }
    void OutBoundary(const TimeBoundary& value) { outBoundary = value; }

    /// The sum of out minus in over the stretches, in plain 64-bit arithmetic that wraps around
    /// (never clamps, never throws); the array's own boundaries take no part.
    Duration GetDuration() const;
    /// True when two different stretches overlap (touching ones do not).
    bool HasOverlappingTimeBounds() const;
    /// True when either boundary is unset, or in lies strictly before out.
    bool IsInValid() const;
    /// The same answer as IsInValid(), asked from the out side.
    bool IsOutValid() const;
    /// True when the in boundary is set and no stretch holds it (searching from the first).
    bool IsInOutOfTimeBounds() const;
    /// True when the out boundary is set and no stretch holds it (searching from the last): an out
    /// boundary equal to a stretch's out point is outside that stretch.
    bool IsOutOutOfTimeBounds() const;
    /// No overlap, in and out valid, and neither boundary out of bounds.
    bool IsValid() const;

    bool operator==(const TimeBoundsArray& other) const;
    bool operator!=(const TimeBoundsArray& other) const { return !(*this == other); }

private:
    TimeBoundary inBoundary;
    TimeBoundary outBoundary;
};

}  // namespace Orvik::DataModel::MediaAssets
