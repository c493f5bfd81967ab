#pragma once

#include <Orvik/TimePoints/Core/TimeCode.h>

#include <string>

namespace Orvik::TimePoints {

/// Writes timecodes in a text format chosen by the implementing class.
class TimeCodeFormatter {
public:
    virtual ~TimeCodeFormatter() = default;
    virtual std::string Format(const TimeCode& timeCode) const = 0;

protected:
    TimeCodeFormatter() = default;
    TimeCodeFormatter(const TimeCodeFormatter&) = default;
    TimeCodeFormatter& operator=(const TimeCodeFormatter&) = default;
};

}  // namespace Orvik::TimePoints
