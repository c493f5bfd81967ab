#pragma once

#include <Orvik/TimePoints/Core/TimeCode.h>

#include <string>
#include <utility>

namespace Orvik::TimePoints {

/// Reads timecodes from a text format chosen by the implementing class.
class TimeCodeParser {
public:
    virtual ~TimeCodeParser() = default;
    /// The timecode written in `text`; throws (an exception of the implementer's choice) when
    /// the text is not in the format.
    virtual TimeCode Parse(const std::string& text) const = 0;
    virtual bool IsStringFormatValid(const std::string& text) const = 0;
    /// Whether `text` is in the format, and the timecode when it is; never throws for bad text.
    virtual std::pair<bool, TimeCode> TryParse(const std::string& text) const = 0;

protected:
    TimeCodeParser() = default;
    TimeCodeParser(const TimeCodeParser&) = default;
    TimeCodeParser& operator=(const TimeCodeParser&) = default;
};

}  // namespace Orvik::TimePoints
