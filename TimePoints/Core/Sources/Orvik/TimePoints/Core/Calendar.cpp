#include "Calendar.h"

namespace Orvik::TimePoints::detail {
namespace {

// The calendar repeats every 400 years (146097 days); eras start on 1 March so that the leap
// day is the last day of a year.
constexpr int64_t kDaysPerEra = 146097;
constexpr int64_t kEpochFromEraStart = 719468;  // 0000-03-01 to 1970-01-01

int64_t FloorDivide(int64_t dividend, int64_t divisor)
{
    const int64_t quotient = dividend / divisor;
    return (dividend % divisor != 0 && (dividend < 0) != (divisor < 0)) ? quotient - 1 : quotient;
}

}  // namespace

CivilDate ToCivilDate(int64_t daysSinceEpoch)
{
    const int64_t shifted = daysSinceEpoch + kEpochFromEraStart;
    const int64_t era = FloorDivide(shifted, kDaysPerEra);
    const int64_t dayOfEra = shifted - era * kDaysPerEra;
    const int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int64_t monthIndex = (5 * dayOfYear + 2) / 153;
    const int64_t day = dayOfYear - (153 * monthIndex + 2) / 5 + 1;
    const int64_t month = monthIndex < 10 ? monthIndex + 3 : monthIndex - 9;
    return CivilDate{yearOfEra + era * 400 + (month <= 2 ? 1 : 0), static_cast<int32_t>(month), static_cast<int32_t>(day)};
}

int64_t ToDaysSinceEpoch(int64_t year, int32_t month, int32_t day)
{
    const int64_t shiftedYear = month <= 2 ? year - 1 : year;
    const int64_t era = FloorDivide(shiftedYear, 400);
    const int64_t yearOfEra = shiftedYear - era * 400;
    const int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * kDaysPerEra + dayOfEra - kEpochFromEraStart;
}

int32_t DaysInMonth(int64_t year, int32_t month)
{
    constexpr int32_t kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && leap ? 29 : kDays[month - 1];
}

}  // namespace Orvik::TimePoints::detail
