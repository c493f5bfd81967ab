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

/// True when the timecode's rate is positive, which reading it as a clock requires.
bool HasClock(const DataModel::MediaAssets::Timecode& timecode);

/// "HH:MM:SS:FF @ 25/1", with ";" before the frames of a drop-frame timecode and the date first
/// ("2024-05-01 10:00:00:00 @ 25/1") when the timecode has one. A timecode whose rate is not
/// positive cannot be read as a clock: "sample 12 @ 0/1".
std::string TimecodeText(const DataModel::MediaAssets::Timecode& timecode);

/// Seconds since the epoch as "2024-05-01 12:00:00 UTC", or the bare number when it is outside
/// the calendar this platform can represent.
std::string DateText(DataModel::MediaAssets::DateTime seconds);

}  // namespace Orvik::AssetTool
