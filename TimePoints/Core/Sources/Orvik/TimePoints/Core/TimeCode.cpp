#include <Orvik/TimePoints/Core/TimeCode.h>

#include <Orvik/TimePoints/Core/Parsers/TimeCodeParser.h>

#include <stdexcept>

namespace Orvik::TimePoints {
namespace {

constexpr char kInvalidRate[] = "Orvik::TimePoints::TimeCode: the rate must be positive";
constexpr int64_t kSecondsPerDay = 86400;

struct Clock {
    int64_t days;  // whole days before the sample, since 1970-01-01 when the timecode has a date
    int32_t hour;
    int32_t minute;
    int32_t second;
    int32_t frame;
};

int64_t FloorDivide(int64_t dividend, int64_t divisor)
{
    const int64_t quotient = dividend / divisor;
    return (dividend % divisor != 0 && (dividend < 0) != (divisor < 0)) ? quotient - 1 : quotient;
}

/// Splits a sample count into days and a displayed clock, applying the drop-frame rule.
Clock ToClock(const Rate& rate, int64_t totalSample, bool isDrop)
{
    if (rate.Numerator() <= 0 || rate.Denominator() <= 0)
        throw std::invalid_argument(kInvalidRate);
    const int64_t nominal = (rate.Numerator() + rate.Denominator() - 1) / rate.Denominator();
    const int64_t dropped = isDrop ? nominal / 15 : 0;
    const int64_t perTenMinutes = nominal * 600 - dropped * 9;
    const int64_t perDay = perTenMinutes * (kSecondsPerDay / 600);

    // Floor division by remainder, so that the smallest sample counts do not overflow.
    int64_t days = totalSample / perDay;
    int64_t frames = totalSample % perDay;
    if (frames < 0) {
        frames += perDay;
        --days;
    }
    if (dropped != 0) {
        const int64_t tens = frames / perTenMinutes;
        const int64_t rest = frames % perTenMinutes;
        const int64_t perMinute = nominal * 60 - dropped;
        frames += dropped * 9 * tens;
        if (rest > dropped)
            frames += dropped * ((rest - dropped) / perMinute);
    }
    return Clock{days, static_cast<int32_t>(frames / (nominal * 3600)),
                 static_cast<int32_t>(frames / (nominal * 60) % 60), static_cast<int32_t>(frames / nominal % 60),
                 static_cast<int32_t>(frames % nominal)};
}

struct Date {
    int32_t year;
    int32_t month;
    int32_t day;
};

/// The civil (proleptic Gregorian) date `days` days after 1970-01-01.
Date ToDate(int64_t days)
{
    const int64_t shifted = days + 719468;
    const int64_t era = FloorDivide(shifted, 146097);
    const int64_t dayOfEra = shifted - era * 146097;
    const int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int64_t monthIndex = (5 * dayOfYear + 2) / 153;
    const int64_t day = dayOfYear - (153 * monthIndex + 2) / 5 + 1;
    const int64_t month = monthIndex < 10 ? monthIndex + 3 : monthIndex - 9;
    const int64_t year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    return Date{static_cast<int32_t>(year), static_cast<int32_t>(month), static_cast<int32_t>(day)};
}

Date DateOf(const TimeCode& timeCode)
{
    const Clock clock = ToClock(timeCode.Rate(), timeCode.TotalSample(), timeCode.IsDrop());
    return ToDate(timeCode.HasDate() ? clock.days : 0);
}

}  // namespace

int32_t TimeCode::Year() const { return DateOf(*this).year; }
int32_t TimeCode::Month() const { return DateOf(*this).month; }
int32_t TimeCode::Day() const { return DateOf(*this).day; }
int32_t TimeCode::Hour() const { return ToClock(rate, totalSample, isDrop).hour; }
int32_t TimeCode::Minute() const { return ToClock(rate, totalSample, isDrop).minute; }
int32_t TimeCode::Second() const { return ToClock(rate, totalSample, isDrop).second; }
int32_t TimeCode::Sample() const { return ToClock(rate, totalSample, isDrop).frame; }

bool TimeCode::IsCompatible(const TimeCode& other) const
{
    if (rate.Numerator() <= 0 || rate.Denominator() <= 0)
        throw std::invalid_argument(kInvalidRate);
    return rate == other.rate && isDrop == other.isDrop;
}

TimeCode TimeCode::Parse(const std::string& text, const TimeCodeParser& parser)
{
    return parser.Parse(text);
}

}  // namespace Orvik::TimePoints
