#pragma once

#include <Orvik/TimePoints/Core/Duration.h>
#include <Orvik/TimePoints/Core/Rate.h>
#include <Orvik/TimePoints/Core/WrappingArithmetic.h>

#include <cstdint>
#include <limits>
#include <string>

namespace Orvik::TimePoints {

class TimePointParser;

/// A point on the media time line, in signed nanoseconds, ordered as a signed 64-bit number.
///
/// Empty() (the smallest 64-bit value plus one) marks an unset point; MinValue() is the smallest
/// point that is not Empty(), MaxValue() the largest. A default point is 0.
///
/// The difference of two points and a point moved by a duration are plain 64-bit and unchecked:
/// they wrap around in two's complement, so MaxValue() - Empty() is -2 ns, not an error.
class TimePoint {
public:
    constexpr TimePoint() = default;
    /// Explicit: a bare number has no unit, and an implicit one would make `point - 5` ambiguous
    /// between a point and a duration.
    constexpr explicit TimePoint(int64_t nanoseconds) : nanoseconds(nanoseconds) {}

    static constexpr TimePoint Empty() { return TimePoint(std::numeric_limits<int64_t>::min() + 1); }
    static constexpr TimePoint MinValue() { return TimePoint(std::numeric_limits<int64_t>::min() + 2); }
    static constexpr TimePoint MaxValue() { return TimePoint(std::numeric_limits<int64_t>::max()); }

    constexpr int64_t ToNanoseconds() const { return nanoseconds; }

    /// The number of the sample of `rate` that holds this point (rounded toward minus infinity).
    int64_t GetSampleNumber(const Rate& rate) const;
    /// The point where sample `sampleNumber` of `rate` starts (rounded toward minus infinity).
    static TimePoint FromSampleNumber(int64_t sampleNumber, const Rate& rate);
    /// The start of the sample of `rate` that holds this point.
    TimePoint AlignWith(const Rate& rate) const { return FromSampleNumber(GetSampleNumber(rate), rate); }

    /// The point that `parser` reads from `text`; its errors pass through.
    static TimePoint Parse(const std::string& text, const TimePointParser& parser);

    constexpr Duration operator-(const TimePoint& other) const
    {
        return Duration(WrappingArithmetic::Subtract(nanoseconds, other.nanoseconds));
    }
    constexpr TimePoint operator+(const Duration& offset) const
    {
        return TimePoint(WrappingArithmetic::Add(nanoseconds, offset.ToNanoseconds()));
    }
    constexpr TimePoint operator-(const Duration& offset) const
    {
        return TimePoint(WrappingArithmetic::Subtract(nanoseconds, offset.ToNanoseconds()));
    }

    constexpr bool operator==(const TimePoint& other) const { return nanoseconds == other.nanoseconds; }
    constexpr bool operator!=(const TimePoint& other) const { return nanoseconds != other.nanoseconds; }
    constexpr bool operator<(const TimePoint& other) const { return nanoseconds < other.nanoseconds; }
    constexpr bool operator<=(const TimePoint& other) const { return nanoseconds <= other.nanoseconds; }
    constexpr bool operator>(const TimePoint& other) const { return nanoseconds > other.nanoseconds; }
    constexpr bool operator>=(const TimePoint& other) const { return nanoseconds >= other.nanoseconds; }

private:
    int64_t nanoseconds = 0;
};

}  // namespace Orvik::TimePoints
