#pragma once

// How a timecode counts its samples: the displayed clock of a sample count and back, the
// drop-frame rule, and which labels exist. Shared by TimeCode and the timecode texts.

#include <Orvik/TimePoints/Core/Rate.h>

#include <cstdint>

namespace Orvik::TimePoints::detail {

/// A displayed clock: whole days before it, then hours, minutes, seconds and frame.
struct Clock {
    int64_t days;
    int32_t hour;
    int32_t minute;
    int32_t second;
    int32_t frame;
};

/// Why a label cannot exist; None when it can.
enum class LabelFault { None, DropFrameRate, Hours, Minutes, Seconds, Frames, Dropped };

/// The fixed text of a fault ("minutes must be 0 to 59"); the empty text for None.
const char* Describe(LabelFault fault);

class TimeCodeCounting {
public:
    /// Throws std::invalid_argument unless both rate members are positive and the rate rounds up
    /// to at most 2147483647 frames a second.
    TimeCodeCounting(const Rate& rate, bool isDrop);

    /// Whether drop-frame counting is defined at `rate`: 30000/1001 or a whole multiple of it.
    static bool IsDropFrameRate(const Rate& rate);

    /// Frames of a displayed second: the rate rounded up (30 for 30000/1001).
    int64_t Nominal() const { return nominal; }
    int64_t FramesPerDay() const { return framesPerTenMinutes * 144; }
    /// Digits of the largest frame number, at least two.
    int FrameDigits() const;
    /// False when drop-frame counting was asked for at a rate that has none.
    bool HasDropFrameRate() const { return !isDrop || IsDropFrameRate(rate); }

    /// The clock of `totalSample`; days are floored, so the clock of a negative count is that of
    /// the day before.
    Clock ToClock(int64_t totalSample) const;
    /// The sample count of a label that exists, on day `days` (0 is the first day); false when
    /// the count does not fit in 64 bits.
    bool ToSample(int64_t days, int64_t hour, int64_t minute, int64_t second, int64_t frame, int64_t& sample) const;
    /// Why the label cannot be written at this rate and counting, None when it can. Labels with
    /// drop-frame counting exist only at a drop-frame rate (IsDropFrameRate).
    LabelFault Check(int64_t hour, int64_t minute, int64_t second, int64_t frame) const;

private:
    Rate rate;
    bool isDrop;
    int64_t nominal;
    int64_t dropped;  // frame numbers skipped at the start of each minute not divisible by ten
    int64_t framesPerMinute;
    int64_t framesPerTenMinutes;
};

}  // namespace Orvik::TimePoints::detail
