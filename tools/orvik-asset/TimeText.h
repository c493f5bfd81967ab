#pragma once

// The text forms in which the tool shows time values to a person.

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>

#include <cstdint>
#include <string>

namespace Orvik::AssetTool {

/// Hours, minutes and seconds, with the fraction of a second only when there is one:
/// "0h 00m 10s", "1h 02m 03.5s", "-0h 00m 00.000000001s".
std::string DurationText(int64_t nanoseconds);

/// A time point as its distance from the origin of the media time line, in the form of
/// DurationText().
std::string TimePointText(const DataModel::MediaAssets::TimePoint& timePoint);

/// "unset" for TimeBoundary::Empty(); otherwise the time point, followed by " (moving)" for a
/// moving boundary.
std::string BoundaryText(const DataModel::MediaAssets::TimeBoundary& boundary);

/// A rate as "numerator/denominator": "25/1", "30000/1001"; both the essence rates and the
/// timecodes' rates are shown so.
std::string RateText(int64_t numerator, int64_t denominator);

/// The SMPTE label of the timecode and its rate: "10:00:00:00 @ 25/1", "00:01:00;02 @ 30000/1001"
/// with drop-frame counting, "2024-05-01 10:00:00:00 @ 25/1" with a date. A timecode that cannot
/// be read as a label (a rate that is not positive, say) is written as its count:
/// "sample 12 @ 0/1".
std::string TimecodeText(const DataModel::MediaAssets::Timecode& timecode);

/// Seconds since the epoch as "2024-05-01 12:00:00 UTC", or the bare number when it is outside
/// the calendar this platform can represent.
std::string DateText(DataModel::MediaAssets::DateTime seconds);

}  // namespace Orvik::AssetTool
