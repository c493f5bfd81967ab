#pragma once

#include <cstdint>
#include <limits>

namespace Orvik::TimePoints {

/// Plain signed 64-bit arithmetic of the time values: the result wraps around in two's
/// complement (MaxValue + 1 is the smallest 64-bit value) and never overflows into undefined
/// behaviour. No clamping and no exception; callers that need a checked result test the
/// operands themselves.
///
/// The operations work on the unsigned bit patterns, where wrapping is defined, and convert back.
class WrappingArithmetic {
public:
    static constexpr int64_t Add(int64_t a, int64_t b) { return ToSigned(ToUnsigned(a) + ToUnsigned(b)); }
    static constexpr int64_t Subtract(int64_t a, int64_t b) { return ToSigned(ToUnsigned(a) - ToUnsigned(b)); }
    static constexpr int64_t Multiply(int64_t a, int64_t b) { return ToSigned(ToUnsigned(a) * ToUnsigned(b)); }

private:
    static constexpr uint64_t ToUnsigned(int64_t value) { return static_cast<uint64_t>(value); }
    /// The signed value with the same bit pattern, without relying on an out-of-range conversion.
    static constexpr int64_t ToSigned(uint64_t bits)
    {
        constexpr uint64_t largest = static_cast<uint64_t>(std::numeric_limits<int64_t>::max());
        return bits <= largest ? static_cast<int64_t>(bits) : -static_cast<int64_t>(~bits) - 1;
    }
};

}  // namespace Orvik::TimePoints
