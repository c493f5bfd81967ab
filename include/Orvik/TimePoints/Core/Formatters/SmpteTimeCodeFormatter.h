#pragma once

#include <Orvik/TimePoints/Core/Formatters/TimeCodeFormatter.h>
#include <Orvik/TimePoints/Core/TimeCode.h>

#include <string>

namespace Orvik::TimePoints {

/// Writes SMPTE ST 12-1 timecode labels: "HH:MM:SS:FF", or "HH:MM:SS;FF" for a drop-frame
/// timecode, with the fields of TimeCode's clock (Hour(), Minute(), Second(), Sample()). Frames
/// have as many digits as the largest frame number at the rate, at least two. A timecode with a
/// date gets its date in front, "YYYY-MM-DD HH:MM:SS:FF"; one without shows the time of day of
/// its count, so a count outside the first day is not read back as itself.
///
/// Format throws std::invalid_argument "Invalid timecode: " + the reason for a rate that TimeCode
/// cannot count, drop-frame counting at a rate other than 30000/1001 or a whole multiple of it,
/// and a date outside the years 0000 to 9999. SmpteTimeCodeParser reads every label written here.
class SmpteTimeCodeFormatter : public TimeCodeFormatter {
public:
    SmpteTimeCodeFormatter() = default;

    std::string Format(const TimeCode& timeCode) const override;
};

}  // namespace Orvik::TimePoints
