#pragma once

#include <Orvik/TimePoints/Core/Duration.h>

#include <string>

namespace Orvik::TimePoints {

/// Writes durations in a text format chosen by the implementing class.
class DurationFormatter {
public:
    virtual ~DurationFormatter() = default;
    virtual std::string Format(const Duration& duration) const = 0;

protected:
    DurationFormatter() = default;
    DurationFormatter(const DurationFormatter&) = default;
    DurationFormatter& operator=(const DurationFormatter&) = default;
};

}  // namespace Orvik::TimePoints
