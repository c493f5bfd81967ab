#pragma once

#include <cstdint>
#include <limits>
#include <string>

namespace Orvik::TimePoints {

class DurationFormatter;

/// A signed length of time in nanoseconds. Arithmetic is plain 64-bit, without overflow checks.
class Duration {
public:
    constexpr Duration() = default;
    constexpr explicit Duration(int64_t nanoseconds) : nanoseconds(nanoseconds) {}

    static constexpr Duration FromNanoseconds(int64_t value) { return Duration(value); }
    static constexpr Duration FromMilliseconds(int64_t value) { return Duration(value * 1000000); }
    static constexpr Duration FromSeconds(int64_t value) { return Duration(value * 1000000000); }
    static constexpr Duration FromMinutes(int64_t value) { return Duration(value * 60000000000); }

    /// The zero length.
    static constexpr Duration Empty() { return Duration(0); }
    static constexpr Duration MinValue() { return Duration(std::numeric_limits<int64_t>::min()); }
    static constexpr Duration MaxValue() { return Duration(std::numeric_limits<int64_t>::max()); }

    constexpr int64_t ToNanoseconds() const { return nanoseconds; }

    /// The text that `formatter` makes of this duration.
    std::string ToString(const DurationFormatter& formatter) const;

    constexpr Duration operator+(const Duration& other) const { return Duration(nanoseconds + other.nanoseconds); }
    constexpr Duration& operator+=(const Duration& other)
    {
        nanoseconds += other.nanoseconds;
        return *this;
    }
    constexpr Duration operator-(const Duration& other) const { return Duration(nanoseconds - other.nanoseconds); }

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
