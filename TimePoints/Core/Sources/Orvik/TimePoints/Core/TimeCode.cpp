#include <Orvik/TimePoints/Core/TimeCode.h>

#include <Orvik/TimePoints/Core/Formatters/TimeCodeFormatter.h>
#include <Orvik/TimePoints/Core/Parsers/TimeCodeParser.h>

#include "Calendar.h"
#include "TimeCodeCounting.h"

#include <stdexcept>
#include <string>

namespace Orvik::TimePoints {
namespace {

constexpr char kInvalidLabel[] = "Orvik::TimePoints::TimeCode: ";  // followed by the reason

detail::Clock ClockOf(const TimeCode& timeCode)
{
    return detail::TimeCodeCounting(timeCode.Rate(), timeCode.IsDrop()).ToClock(timeCode.TotalSample());
}

detail::CivilDate DateOf(const TimeCode& timeCode)
{
    return detail::ToCivilDate(timeCode.HasDate() ? ClockOf(timeCode).days : 0);
}

int64_t SampleOfLabel(const Rate& rate, int32_t hours, int32_t minutes, int32_t seconds, int32_t frames, bool isDrop)
{
    const detail::TimeCodeCounting counting(rate, isDrop);
    const detail::LabelFault fault = counting.Check(hours, minutes, seconds, frames);
    if (fault != detail::LabelFault::None)
        throw std::invalid_argument(kInvalidLabel + std::string(detail::Describe(fault)));
    int64_t sample = 0;
    counting.ToSample(0, hours, minutes, seconds, frames, sample);  // within one day: always fits
    return sample;
}

}  // namespace

TimeCode::TimeCode(const TimePoints::Rate& rate, int32_t hours, int32_t minutes, int32_t seconds, int32_t frames,
                   bool isDrop)
    : rate(rate), totalSample(SampleOfLabel(rate, hours, minutes, seconds, frames, isDrop)), isDrop(isDrop)
{}

int32_t TimeCode::Year() const { return static_cast<int32_t>(DateOf(*this).year); }
int32_t TimeCode::Month() const { return DateOf(*this).month; }
int32_t TimeCode::Day() const { return DateOf(*this).day; }
int32_t TimeCode::Hour() const { return ClockOf(*this).hour; }
int32_t TimeCode::Minute() const { return ClockOf(*this).minute; }
int32_t TimeCode::Second() const { return ClockOf(*this).second; }
int32_t TimeCode::Sample() const { return ClockOf(*this).frame; }

bool TimeCode::IsCompatible(const TimeCode& other) const
{
    static_cast<void>(detail::TimeCodeCounting(rate, isDrop));  // throws for a rate without a clock
    return rate == other.rate && isDrop == other.isDrop;
}

TimeCode TimeCode::Parse(const std::string& text, const TimeCodeParser& parser) { return parser.Parse(text); }

std::string TimeCode::ToString(const TimeCodeFormatter& formatter) const { return formatter.Format(*this); }

}  // namespace Orvik::TimePoints
