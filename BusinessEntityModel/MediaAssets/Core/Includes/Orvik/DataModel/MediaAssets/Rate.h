#pragma once

#include <cstdint>

namespace Orvik::DataModel::MediaAssets {

/// The sample rate of an audio essence or the frame rate of a video essence, as numerator and
/// denominator (48000/1, 30000/1001). Compared member by member: 1/2 and 2/4 differ. Replaced
/// whole; Rate() and Empty() are 0/1, "not known".
class Rate {
public:
    Rate() = default;
    Rate(int32_t numerator, int32_t denominator) : numerator(numerator), denominator(denominator) {}

    static Rate Empty() { return Rate(); }

    int32_t Numerator() const { return numerator; }
    int32_t Denominator() const { return denominator; }

    bool operator==(const Rate& other) const { return numerator == other.numerator && denominator == other.denominator; }
    bool operator!=(const Rate& other) const { return !(*this == other); }

private:
    int32_t numerator = 0;
    int32_t denominator = 1;
};

}  // namespace Orvik::DataModel::MediaAssets
