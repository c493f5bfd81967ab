#pragma once

#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/Formatters/DurationFormatter.h>

#include <string>

namespace Orvik::TimePoints {

/// Writes a duration as a clock reading to the nanosecond, "[-]HH:MM:SS.fffffffff": a minus sign
/// for negative durations, hours with at least two digits and as many as needed (a duration of a
/// day is "24:00:00.000000000"), minutes and seconds with two, nine fraction digits. Every
/// duration has its text, Duration::MinValue() included. Never throws but for memory.
class ClockDurationFormatter : public DurationFormatter {
public:
    ClockDurationFormatter() = default;

    std::string Format(const Duration& duration) const override;
};

}  // namespace Orvik::TimePoints
