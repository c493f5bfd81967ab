#pragma once

// The texts of the named time points, shared by the ISO 8601 parser and formatter.

#include <Orvik/TimePoints/Core/TimePoint.h>

namespace Orvik::TimePoints::detail {

struct NamedTimePoint {
    const char* text;
    TimePoint point;
};

inline constexpr NamedTimePoint kNamedTimePoints[] = {
    {"unset", TimePoint::Empty()},
    {"min", TimePoint::MinValue()},
    {"max", TimePoint::MaxValue()},
};

}  // namespace Orvik::TimePoints::detail
