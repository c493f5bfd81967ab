#pragma once

#include <Orvik/TimePoints/Core/Rate.h>
#include <Orvik/TimePoints/Core/WrappingArithmetic.h>

#include <cstdint>
#include <string>

namespace Orvik::TimePoints {

class TimeCodeParser;

/// A timecode held as a count of samples (frames) from the timecode origin, with its rate and its
/// drop-frame and date flags.
///
/// Equal only when rate numerator, rate denominator, drop flag, date flag and sample count are
/// all equal (compared in that order); rates are compared as stored, so 50/2 is not 25/1.
///
/// The clock fields count the day in frames of the nominal rate (the rate rounded up: 30 for
/// 30000/1001). With the drop flag, the first frame numbers of every minute not divisible by
/// ten are skipped, rate / 15 of them (2 at 30, 4 at 60). With the date flag, whole days before
/// the sample count are days since 1970-01-01; Year(), Month() and Day() read them (1970-01-01
/// when there is no date). The clock and date fields and IsCompatible() require a positive
/// rate; they throw std::invalid_argument otherwise.
class TimeCode {
public:
    constexpr TimeCode() = default;
    constexpr TimeCode(const TimePoints::Rate& rate, int64_t totalSample, bool isDrop, bool hasDate)
        : rate(rate), totalSample(totalSample), isDrop(isDrop), hasDate(hasDate)
    {
    }

    constexpr const TimePoints::Rate& Rate() const { return rate; }
    constexpr void Rate(const TimePoints::Rate& value) { rate = value; }
    constexpr int64_t TotalSample() const { return totalSample; }
    constexpr void TotalSample(int64_t value) { totalSample = value; }
    constexpr bool IsDrop() const { return isDrop; }
    constexpr void IsDrop(bool value) { isDrop = value; }
    constexpr bool HasDate() const { return hasDate; }
    constexpr void HasDate(bool value) { hasDate = value; }

    /// Sample arithmetic is plain 64-bit: the count wraps around in two's complement.
    void AddSample(int64_t count) { totalSample = WrappingArithmetic::Add(totalSample, count); }
    void SubstractSample(int64_t count) { totalSample = WrappingArithmetic::Subtract(totalSample, count); }
    TimeCode operator+(int64_t count) const
    {
        return TimeCode(rate, WrappingArithmetic::Add(totalSample, count), isDrop, hasDate);
    }
    TimeCode operator-(int64_t count) const
    {
        return TimeCode(rate, WrappingArithmetic::Subtract(totalSample, count), isDrop, hasDate);
    }
    TimeCode& operator++()
    {
        AddSample(1);
        return *this;
    }
    TimeCode operator++(int)
    {
        TimeCode before = *this;
        AddSample(1);
        return before;
    }
    TimeCode& operator--()
    {
        SubstractSample(1);
        return *this;
    }
    TimeCode operator--(int)
    {
        TimeCode before = *this;
        SubstractSample(1);
        return before;
    }

    int32_t Year() const;
    int32_t Month() const;
    int32_t Day() const;
    int32_t Hour() const;
    int32_t Minute() const;
    int32_t Second() const;
    /// The frame number within the second, as a timecode display shows it.
    int32_t Sample() const;

    /// True when both timecodes count at the same rate with the same drop-frame rule.
    bool IsCompatible(const TimeCode& other) const;

    /// The timecode that `parser` reads from `text`; its errors pass through.
    static TimeCode Parse(const std::string& text, const TimeCodeParser& parser);

    constexpr bool operator==(const TimeCode& other) const
    {
        return rate.Numerator() == other.rate.Numerator() && rate.Denominator() == other.rate.Denominator()
            && isDrop == other.isDrop && hasDate == other.hasDate && totalSample == other.totalSample;
    }
    constexpr bool operator!=(const TimeCode& other) const { return !(*this == other); }

private:
    TimePoints::Rate rate;
    int64_t totalSample = 0;
    bool isDrop = false;
    bool hasDate = false;
};

}  // namespace Orvik::TimePoints
