#pragma once

#include <Orvik/TimePoints/Core/TimePoint.h>

#include <string>
#include <utility>

namespace Orvik::TimePoints {

/// Reads time points from a text format chosen by the implementing class.
class TimePointParser {
public:
    virtual ~TimePointParser() = default;
    /// The point written in `text`; throws (an exception of the implementer's choice) when the
    /// text is not in the format.
    virtual TimePoint Parse(const std::string& text) const = 0;
    virtual bool IsStringFormatValid(const std::string& text) const = 0;
    /// Whether `text` is in the format, and the point when it is; never throws for bad text.
    virtual std::pair<bool, TimePoint> TryParse(const std::string& text) const = 0;

protected:
    TimePointParser() = default;
    TimePointParser(const TimePointParser&) = default;
    TimePointParser& operator=(const TimePointParser&) = default;
};

}  // namespace Orvik::TimePoints
