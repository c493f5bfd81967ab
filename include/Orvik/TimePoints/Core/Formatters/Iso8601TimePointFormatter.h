#pragma once

#include <Orvik/TimePoints/Core/Formatters/TimePointFormatter.h>
#include <Orvik/TimePoints/Core/TimePoint.h>

#include <string>

namespace Orvik::TimePoints {

/// Writes a time point as an RFC 3339 UTC date and time with nine fraction digits, the point being
/// nanoseconds since 1970-01-01T00:00:00Z: "2026-11-23T09:15:00.040000000Z". The fixed width
/// makes texts sort as their points do. The named points are written "unset"
/// (TimePoint::Empty()), "min" (MinValue()) and "max" (MaxValue()); Iso8601TimePointParser reads
/// every text written here back to the same point. Never throws but for memory.
class Iso8601TimePointFormatter : public TimePointFormatter {
public:
    Iso8601TimePointFormatter() = default;

    std::string Format(const TimePoint& timePoint) const override;
};

}  // namespace Orvik::TimePoints
