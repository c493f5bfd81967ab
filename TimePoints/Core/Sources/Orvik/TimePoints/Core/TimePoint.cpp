#include <Orvik/TimePoints/Core/TimePoint.h>

#include <Orvik/TimePoints/Core/Formatters/TimePointFormatter.h>
#include <Orvik/TimePoints/Core/Parsers/TimePointParser.h>

#include <limits>
#include <stdexcept>

namespace Orvik::TimePoints {
namespace {

// Products of nanoseconds and rate members need more than 64 bits.
__extension__ using Wide = __int128;

constexpr int64_t kNanosecondsPerSecond = 1000000000;
constexpr char kInvalidRate[] = "Orvik::TimePoints::TimePoint: the rate must be positive";
constexpr char kSampleOutOfRange[] = "Orvik::TimePoints::TimePoint: the sample number does not fit in 64 bits";
constexpr char kPointOutOfRange[] = "Orvik::TimePoints::TimePoint: the sample starts outside the 64-bit time line";

void CheckRate(const Rate& rate)
{
    if (rate.Numerator() <= 0 || rate.Denominator() <= 0)
        throw std::invalid_argument(kInvalidRate);
}

Wide FloorDivide(Wide dividend, Wide divisor)
{
    Wide quotient = dividend / divisor;
    if ((dividend % divisor != 0) && ((dividend < 0) != (divisor < 0)))
        --quotient;
    return quotient;
}

bool FitsIn64Bits(Wide value)
{
    return value >= std::numeric_limits<int64_t>::min() && value <= std::numeric_limits<int64_t>::max();
}

}  // namespace

int64_t TimePoint::GetSampleNumber(const Rate& rate) const
{
    CheckRate(rate);
    // |nanoseconds × numerator| < 2^126 and the divisor < 2^94: no step overflows.
    const Wide sample = FloorDivide(Wide(nanoseconds) * rate.Numerator(), Wide(rate.Denominator()) * kNanosecondsPerSecond);
    if (!FitsIn64Bits(sample))
        throw std::out_of_range(kSampleOutOfRange);
    return static_cast<int64_t>(sample);
}

TimePoint TimePoint::FromSampleNumber(int64_t sampleNumber, const Rate& rate)
{
    CheckRate(rate);
    // ceil(sampleNumber × denominator × 10^9 / numerator), where the full product may need 157
    // bits: divide sampleNumber × denominator first, then scale quotient and remainder apart.
    const Wide scaled = Wide(sampleNumber) * rate.Denominator();
    const Wide quotient = FloorDivide(scaled, rate.Numerator());
    const Wide remainder = scaled - quotient * rate.Numerator();
    constexpr Wide kLimit = Wide(std::numeric_limits<int64_t>::max()) / kNanosecondsPerSecond + 1;
    if (quotient > kLimit || quotient < -kLimit)
        throw std::out_of_range(kPointOutOfRange);
    const Wide fraction = -FloorDivide(-remainder * kNanosecondsPerSecond, rate.Numerator());
    const Wide point = quotient * kNanosecondsPerSecond + fraction;
    if (!FitsIn64Bits(point))
        throw std::out_of_range(kPointOutOfRange);
    return TimePoint(static_cast<int64_t>(point));
}

TimePoint TimePoint::Parse(const std::string& text, const TimePointParser& parser) { return parser.Parse(text); }

std::string TimePoint::ToString(const TimePointFormatter& formatter) const { return formatter.Format(*this); }

}  // namespace Orvik::TimePoints
