#pragma once

#include <Orvik/TimePoints/Core/Rate.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

#include <cstdint>
#include <optional>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// How the times of one OpenTimelineIO clip are counted: whole frames of `rate` (both members
/// positive), with frame `offset` at the time point `origin`. Without a start timecode the origin
/// is point 0 and the offset frame 0; with one, the origin is where the timecode starts and the
/// offset is that timecode counted in frames of `rate`, so that the clip's times read as the
/// timecode an editor sees.
///
/// Every conversion is exact integer arithmetic. A point between two frames goes to the nearer
/// frame, and a point exactly halfway to the later one; a frame goes back to its nearest
/// nanosecond the same way.
class OtioClock {
public:
    OtioClock(const TimePoints::Rate& rate, int64_t origin, int64_t offset);

    /// The frame that holds `point`, as OpenTimelineIO writes a RationalTime value (a JSON
    /// number; frames beyond 2^53 lose their last digits there).
    double Frame(const TimePoints::TimePoint& point) const;
    /// The time point of `frame`; empty when it lies outside the 64-bit nanosecond time line.
    std::optional<TimePoints::TimePoint> Point(int64_t frame) const;
    /// The rate as OpenTimelineIO writes it: numerator / denominator as a JSON number.
    double Rate() const;

    /// `frames` of `from` counted in frames of `to`, rounded as above (the start timecode, read
    /// at its own rate, counted at the clip's).
    static int64_t Convert(int64_t frames, const TimePoints::Rate& from, const TimePoints::Rate& to);

private:
    TimePoints::Rate rate;
    int64_t origin;
    int64_t offset;
};

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
