#pragma once

// Days since 1970-01-01 and civil (proleptic Gregorian) dates, both ways.

#include <cstdint>

namespace Orvik::TimePoints::detail {

struct CivilDate {
    int64_t year;
    int32_t month;  // 1 to 12
    int32_t day;    // 1 to 31
};

CivilDate ToCivilDate(int64_t daysSinceEpoch);
/// The day number of a date whose month and day are in range (see DaysInMonth).
int64_t ToDaysSinceEpoch(int64_t year, int32_t month, int32_t day);
int32_t DaysInMonth(int64_t year, int32_t month);

}  // namespace Orvik::TimePoints::detail
