#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeString.h>

#include <cstdint>

namespace Orvik::DataModel::MediaAssets {

/// A discontinuity of a timecode track: where on the media time line it lies, the timecode that
/// starts there and how long that run lasts.
///
/// Equal when time point, timecode text and duration are. Ordered by time point.
class TimeCodeJump {
public:
    TimeCodeJump() = default;
    TimeCodeJump(const MediaAssets::TimePoint& timePoint, const TimeCodeString& timeCode, int64_t duration)
        : timePoint_(timePoint), timeCode_(timeCode), duration_(duration)
    {}

    const MediaAssets::TimePoint& TimePoint() const { return timePoint_; }
    void TimePoint(const MediaAssets::TimePoint& value) { timePoint_ = value; }
    const TimeCodeString& TimeCode() const { return timeCode_; }
    void TimeCode(const TimeCodeString& value) { timeCode_ = value; }
    int64_t Duration() const { return duration_; }
    void Duration(int64_t value) { duration_ = value; }

    bool operator==(const TimeCodeJump& other) const
    {
        return timePoint_ == other.timePoint_ && timeCode_ == other.timeCode_ && duration_ == other.duration_;
    }
    bool operator!=(const TimeCodeJump& other) const { return !(*this == other); }
    bool operator<(const TimeCodeJump& other) const { return timePoint_ < other.timePoint_; }

private:
    MediaAssets::TimePoint timePoint_;
    TimeCodeString timeCode_;
    int64_t duration_ = 0;
};

}  // namespace Orvik::DataModel::MediaAssets
