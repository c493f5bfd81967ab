#include <Orvik/TimePoints/Core/TimePoint.h>

#include <Orvik/TimePoints/Core/Parsers/TimePointParser.h>

#include <stdexcept>

namespace Orvik::TimePoints {
namespace {

// Products of nanoseconds and rate members need more than 64 bits.
__extension__ using Wide = __int128;

constexpr int64_t kNanosecondsPerSecond = 1000000000;
constexpr char kInvalidRate[] = "Orvik::TimePoints::TimePoint: the rate must be positive";

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

}  // namespace

int64_t TimePoint::GetSampleNumber(const Rate& rate) const
{
    CheckRate(rate);
    return static_cast<int64_t>(FloorDivide(Wide(nanoseconds) * rate.Numerator(),
                                            Wide(rate.Denominator()) * kNanosecondsPerSecond));
}

TimePoint TimePoint::FromSampleNumber(int64_t sampleNumber, const Rate& rate)
{
    CheckRate(rate);
    return TimePoint(static_cast<int64_t>(FloorDivide(Wide(sampleNumber) * rate.Denominator() * kNanosecondsPerSecond,
                                                      Wide(rate.Numerator()))));
}

TimePoint TimePoint::Parse(const std::string& text, const TimePointParser& parser)
{
    return parser.Parse(text);
}

}  // namespace Orvik::TimePoints
