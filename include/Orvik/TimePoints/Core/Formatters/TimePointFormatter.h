#pragma once

#include <Orvik/TimePoints/Core/TimePoint.h>

#include <string>

namespace Orvik::TimePoints {

/// Writes time points in a text format chosen by the implementing class.
class TimePointFormatter {
public:
    virtual ~TimePointFormatter() = default;
    virtual std::string Format(const TimePoint& timePoint) const = 0;

protected:
    TimePointFormatter() = default;
    TimePointFormatter(const TimePointFormatter&) = default;
    TimePointFormatter& operator=(const TimePointFormatter&) = default;
};

}  // namespace Orvik::TimePoints
