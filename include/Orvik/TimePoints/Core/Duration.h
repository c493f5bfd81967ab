#pragma once

#include <Orvik/TimePoints/Core/WrappingArithmetic.h>

#include <cstdint>
#include <limits>
#include <string>

namespace Orvik::TimePoints {

class DurationFormatter;

/// A signed length of time in nanoseconds.
///
/// Arithmetic and the factories are plain 64-bit and unchecked: a result outside the 64-bit range
/// wraps around in two's complement (MaxValue() + 1 nanosecond is MinValue()), never clamps and
/// never throws.
class Duration {
public:
    constexpr Duration() = default;
    /// Explicit: a bare number has no unit; say FromNanoseconds, FromSeconds ... where it matters.
    constexpr explicit Duration(int64_t nanoseconds) : nanoseconds(nanoseconds) {}

    static constexpr Duration FromNanoseconds(int64_t value) { return Duration(value); }
    static constexpr Duration FromMilliseconds(int64_t value)
    {
        return Duration(WrappingArithmetic::Multiply(value, 1000000));
    }
    static constexpr Duration FromSeconds(int64_t value)
    {
        return Duration(WrappingArithmetic::Multiply(value, 1000000000));
    }
    static constexpr Duration FromMinutes(int64_t value)
    {
        return Duration(WrappingArithmetic::Multiply(value, 60000000000));
    }

    /// The zero length.
    static constexpr Duration Empty() { return Duration(0); }
    static constexpr Duration MinValue() { return Duration(std::numeric_limits<int64_t>::min()); }
    static constexpr Duration MaxValue() { return Duration(std::numeric_limits<int64_t>::max()); }

    constexpr int64_t ToNanoseconds() const { return nanoseconds; }

    /// The text that `formatter` makes of this duration.
    std::string ToString(const DurationFormatter& formatter) const;

    constexpr Duration operator+(const Duration& other) const
    {
        return Duration(WrappingArithmetic::Add(nanoseconds, other.nanoseconds));
    }
    constexpr Duration& operator+=(const Duration& other)
    {
        nanoseconds = WrappingArithmetic::Add(nanoseconds, other.nanoseconds);
        return *this;
    }
    constexpr Duration operator-(const Duration& other) const
    {
        return Duration(WrappingArithmetic::Subtract(nanoseconds, other.nanoseconds));
    }

    constexpr bool operator==(const Duration& other) const { return nanoseconds == other.nanoseconds; }
    constexpr bool operator!=(const Duration& other) const { return nanoseconds != other.nanoseconds; }
    constexpr bool operator<(const Duration& other) const { return nanoseconds < other.nanoseconds; }
    constexpr bool operator<=(const Duration& other) const { return nanoseconds <= other.nanoseconds; }
    constexpr bool operator>(const Duration& other) const { return nanoseconds > other.nanoseconds; }
    constexpr bool operator>=(const Duration& other) const { return nanoseconds >= other.nanoseconds; }

private:
    int64_t nanoseconds = 0;
};

}  // namespace Orvik::TimePoints
