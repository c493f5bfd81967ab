#pragma once

#include <Orvik/TimePoints/Core/Parsers/TimePointParser.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

#include <string>
#include <utility>

namespace Orvik::TimePoints {

/// Reads time points written as ISO 8601 / RFC 3339 date and time, the point being nanoseconds
/// since 1970-01-01T00:00:00Z: "YYYY-MM-DDTHH:MM:SS", an optional fraction of one to nine digits
/// after ".", then "Z" or a numeric offset "+HH:MM" / "-HH:MM" ("2026-11-23T10:15:00.04+01:00").
/// "T" and "Z" may be lower case, and a blank may stand for "T". No leap second (seconds 00 to
/// 59), no week or ordinal dates, nothing before or after.
///
/// The named points have texts of their own, read back exactly: "unset" (TimePoint::Empty()),
/// "min" (MinValue()) and "max" (MaxValue()). A date and time outside the 64-bit time line
/// (1677-09-21T00:12:43.145224192Z to 2262-04-11T23:47:16.854775807Z) is refused.
///
/// Parse throws std::invalid_argument "Invalid time point '" + text + "': " + the reason;
/// TryParse and IsStringFormatValid never throw. Stateless: usable from several threads at once.
class Iso8601TimePointParser : public TimePointParser {
public:
    Iso8601TimePointParser() = default;

    TimePoint Parse(const std::string& text) const override;
    bool IsStringFormatValid(const std::string& text) const override;
    std::pair<bool, TimePoint> TryParse(const std::string& text) const override;
};

}  // namespace Orvik::TimePoints
