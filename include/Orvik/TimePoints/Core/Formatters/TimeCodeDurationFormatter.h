#pragma once

#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/Formatters/DurationFormatter.h>
#include <Orvik/TimePoints/Core/Rate.h>

#include <string>

namespace Orvik::TimePoints {

/// Writes a duration as the timecode of its length at one rate, "[-]HH:MM:SS:FF", or with ";"
/// before the frames for drop-frame counting: the whole frames the duration lasts (rounded toward
/// zero, so a duration shorter than one frame is "00:00:00:00"), counted as TimeCode counts them,
/// with hours not wrapping at a day (at least two digits) and a minus sign for a negative duration
/// of at least one frame. Frames have as many digits as SmpteTimeCodeFormatter writes.
class TimeCodeDurationFormatter : public DurationFormatter {
public:
    /// Throws std::invalid_argument for a rate that TimeCode cannot count, and for drop-frame
    /// counting at a rate other than 30000/1001 or a whole multiple of it.
    explicit TimeCodeDurationFormatter(const TimePoints::Rate& rate, bool isDrop = false);

    /// Throws std::out_of_range when the frame count does not fit in 64 bits (rates above 10^9
    /// frames a second only).
    std::string Format(const Duration& duration) const override;

    const TimePoints::Rate& Rate() const { return rate; }
    bool IsDrop() const { return isDrop; }

private:
    TimePoints::Rate rate;
    bool isDrop;
};

}  // namespace Orvik::TimePoints
