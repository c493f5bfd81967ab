#pragma once

#include <Orvik/TimePoints/Core/Parsers/TimeCodeParser.h>
#include <Orvik/TimePoints/Core/Rate.h>
#include <Orvik/TimePoints/Core/TimeCode.h>

#include <string>
#include <utility>

namespace Orvik::TimePoints {

/// Reads SMPTE ST 12-1 timecode labels at one rate, as recorders, editors and replay controllers
/// show them: "HH:MM:SS:FF" counts without drop-frame, "HH:MM:SS;FF" with it. The variants seen
/// in practice read as drop-frame too: ";" as every separator ("HH;MM;SS;FF") and "." before the
/// frames ("HH:MM:SS.FF"). Hours, minutes and seconds have two digits; frames have as many digits
/// as the largest frame number at the rate, at least two ("00:00:00:000" at 120 frames a second).
/// Nothing may stand before or after the label, but, when the parser allows a date, a date
/// "YYYY-MM-DD" and one blank in front of it; the timecode then has a date (days since
/// 1970-01-01), otherwise it has none and counts from 00:00:00:00.
///
/// Only labels that exist are read: hours 00 to 23 (the next day is written with a date), minutes
/// and seconds 00 to 59, frames below the rate rounded up (30 at 30000/1001), drop-frame only at
/// 30000/1001 or a whole multiple of it, and never a label that drop-frame counting skips
/// ("00:01:00;00" and "00:01:00;01" at 30000/1001). These are exactly the labels that
/// SmpteTimeCodeFormatter writes at the same rate.
///
/// Parse throws std::invalid_argument "Invalid timecode '" + text + "': " + the reason ("minutes
/// must be 0 to 59"); TryParse and IsStringFormatValid never throw. Stateless after
/// construction: one parser may be used from several threads at once.
class SmpteTimeCodeParser : public TimeCodeParser {
public:
    /// Throws std::invalid_argument for a rate that TimeCode cannot count (a member not positive,
    /// or more than 2147483647 frames a second).
    explicit SmpteTimeCodeParser(const TimePoints::Rate& rate, bool allowDate = false);

    TimeCode Parse(const std::string& text) const override;
    bool IsStringFormatValid(const std::string& text) const override;
    std::pair<bool, TimeCode> TryParse(const std::string& text) const override;

    const TimePoints::Rate& Rate() const { return rate; }
    bool AllowsDate() const { return allowDate; }

private:
    TimePoints::Rate rate;
    bool allowDate;
};

}  // namespace Orvik::TimePoints
