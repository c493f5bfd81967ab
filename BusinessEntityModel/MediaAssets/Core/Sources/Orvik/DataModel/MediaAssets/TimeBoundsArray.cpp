#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>

#include "EqualityVisitor.h"

#include <algorithm>

namespace Orvik::DataModel::MediaAssets {
namespace {

bool IsEmpty(const TimeBoundary& boundary) { return boundary == TimeBoundary::Empty(); }

/// Whether `point` lies in the half-open stretch [in, out) of `bounds`.
bool Holds(const TimeBounds& bounds, const TimePoint& point)
{
    return bounds.InBoundary().TimePoint() <= point && point < bounds.OutBoundary().TimePoint();
}

}  // namespace

Duration TimeBoundsArray::GetDuration() const
{
    Duration total;
    for (const TimeBounds& bounds : elements)
        total += bounds.OutBoundary().TimePoint() - bounds.InBoundary().TimePoint();
    return total;
}

bool TimeBoundsArray::HasOverlappingTimeBounds() const
{
    for (const TimeBounds& a : elements) {
        for (const TimeBounds& b : elements) {
            if (a == b)
                continue;
            if (a.OutBoundary().TimePoint() > b.InBoundary().TimePoint()
                && a.InBoundary().TimePoint() < b.OutBoundary().TimePoint())
                return true;
        }
    }
    return false;
}

bool TimeBoundsArray::IsInValid() const
{
    if (IsEmpty(inBoundary) || IsEmpty(outBoundary))
        return true;
    return inBoundary.TimePoint() < outBoundary.TimePoint();
}

bool TimeBoundsArray::IsOutValid() const
{
    if (IsEmpty(outBoundary) || IsEmpty(inBoundary))
        return true;
    return outBoundary.TimePoint() > inBoundary.TimePoint();
}

bool TimeBoundsArray::IsInOutOfTimeBounds() const
{
    if (IsEmpty(inBoundary))
        return false;
    const TimePoint& point = inBoundary.TimePoint();
    return std::none_of(elements.begin(), elements.end(),
                        [&point](const TimeBounds& bounds) { return Holds(bounds, point); });
}

bool TimeBoundsArray::IsOutOutOfTimeBounds() const
{
    if (IsEmpty(outBoundary))
        return false;
    const TimePoint& point = outBoundary.TimePoint();
    return std::none_of(elements.rbegin(), elements.rend(),
                        [&point](const TimeBounds& bounds) { return Holds(bounds, point); });
}

bool TimeBoundsArray::IsValid() const
{
    return !HasOverlappingTimeBounds() && IsInValid() && IsOutValid() && !IsInOutOfTimeBounds() && !IsOutOutOfTimeBounds();
}

bool TimeBoundsArray::operator==(const TimeBoundsArray& other) const { return detail::EqualInOrder(*this, other); }

}  // namespace Orvik::DataModel::MediaAssets
