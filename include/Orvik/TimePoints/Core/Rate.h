#pragma once

#include <cstdint>

namespace Orvik::TimePoints {

/// A rational rate, numerator / denominator per second (25/1, 30000/1001).
///
/// Compared as stored, member by member: 50/2 and 25/1 are different rates. Operations that
/// count samples require both members to be positive.
class Rate {
public:
    constexpr Rate() = default;
    constexpr Rate(int64_t numerator, int64_t denominator) : numerator(numerator), denominator(denominator) {}

    constexpr int64_t Numerator() const { return numerator; }
    constexpr void Numerator(int64_t value) { numerator = value; }
    constexpr int64_t Denominator() const { return denominator; }
    constexpr void Denominator(int64_t value) { denominator = value; }

    constexpr bool operator==(const Rate& other) const
    {
        return numerator == other.numerator && denominator == other.denominator;
    }
    constexpr bool operator!=(const Rate& other) const { return !(*this == other); }

private:
    int64_t numerator = 0;
    int64_t denominator = 1;
};

}  // namespace Orvik::TimePoints
