#include "TimeCodeCounting.h"

#include "DecimalText.h"

#include <limits>
#include <stdexcept>

namespace Orvik::TimePoints::detail {
namespace {

constexpr char kInvalidRate[] = "Orvik::TimePoints::TimeCode: the rate must be positive";
constexpr char kRateTooHigh[] = "Orvik::TimePoints::TimeCode: the rate must be at most 2147483647 frames a second";

int64_t CheckedNominal(const Rate& rate)
{
    if (rate.Numerator() <= 0 || rate.Denominator() <= 0)
        throw std::invalid_argument(kInvalidRate);
    const int64_t nominal = rate.Numerator() / rate.Denominator() + (rate.Numerator() % rate.Denominator() != 0);
    if (nominal > std::numeric_limits<int32_t>::max())
        throw std::invalid_argument(kRateTooHigh);
    return nominal;
}

}  // namespace

const char* Describe(LabelFault fault)
{
    switch (fault) {
    case LabelFault::None:
        return "";
    case LabelFault::DropFrameRate:
        return "drop-frame counting needs 30000/1001 frames a second or a whole multiple of it";
    case LabelFault::Hours:
        return "hours must be 0 to 23";
    case LabelFault::Minutes:
        return "minutes must be 0 to 59";
    case LabelFault::Seconds:
        return "seconds must be 0 to 59";
    case LabelFault::Frames:
        return "frames must be below the rate";
    case LabelFault::Dropped:
        return "drop-frame counting skips this label";
    }
    return "";
}

TimeCodeCounting::TimeCodeCounting(const Rate& rate, bool isDrop)
    : rate(rate), isDrop(isDrop), nominal(CheckedNominal(rate)), dropped(isDrop ? nominal / 15 : 0),
      framesPerMinute(nominal * 60 - dropped), framesPerTenMinutes(nominal * 600 - dropped * 9)
{}

bool TimeCodeCounting::IsDropFrameRate(const Rate& rate)
{
    if (rate.Numerator() <= 0 || rate.Denominator() <= 0)
        return false;
    // numerator / denominator = k × 30000 / 1001 for a whole k >= 1.
    __extension__ using Wide = __int128;
    const Wide scaled = Wide(rate.Numerator()) * 1001;
    const Wide unit = Wide(rate.Denominator()) * 30000;
    return scaled % unit == 0;
}

int TimeCodeCounting::FrameDigits() const
{
    const int digits = DigitCount(static_cast<uint64_t>(nominal - 1));
    return digits < 2 ? 2 : digits;
}

Clock TimeCodeCounting::ToClock(int64_t totalSample) const
{
    // Floor division by remainder, so that the smallest sample counts do not overflow.
    const int64_t perDay = FramesPerDay();
    int64_t days = totalSample / perDay;
    int64_t frames = totalSample % perDay;
    if (frames < 0) {
        frames += perDay;
        --days;
    }
    if (dropped != 0) {
        const int64_t tens = frames / framesPerTenMinutes;
        const int64_t rest = frames % framesPerTenMinutes;
        frames += dropped * 9 * tens;
        if (rest > dropped)
            frames += dropped * ((rest - dropped) / framesPerMinute);
    }
    // One division per field: every clock read goes through here.
    const int64_t seconds = frames / nominal;
    const int64_t minutes = seconds / 60;
    const int64_t hours = minutes / 60;
    return Clock{days, static_cast<int32_t>(hours), static_cast<int32_t>(minutes - hours * 60),
                 static_cast<int32_t>(seconds - minutes * 60), static_cast<int32_t>(frames - seconds * nominal)};
}

bool TimeCodeCounting::ToSample(int64_t days, int64_t hour, int64_t minute, int64_t second, int64_t frame,
                                int64_t& sample) const
{
    const int64_t minutes = hour * 60 + minute;
    const int64_t displayed = (minutes * 60 + second) * nominal + frame;
    const int64_t inDay = displayed - dropped * (minutes - minutes / 10);
    return !__builtin_mul_overflow(days, FramesPerDay(), &sample) && !__builtin_add_overflow(sample, inDay, &sample);
}

LabelFault TimeCodeCounting::Check(int64_t hour, int64_t minute, int64_t second, int64_t frame) const
{
    if (!HasDropFrameRate())
        return LabelFault::DropFrameRate;
    if (hour < 0 || hour > 23)
        return LabelFault::Hours;
    if (minute < 0 || minute > 59)
        return LabelFault::Minutes;
    if (second < 0 || second > 59)
        return LabelFault::Seconds;
    if (frame < 0 || frame >= nominal)
        return LabelFault::Frames;
    if (second == 0 && minute % 10 != 0 && frame < dropped)
        return LabelFault::Dropped;
    return LabelFault::None;
}

}  // namespace Orvik::TimePoints::detail
