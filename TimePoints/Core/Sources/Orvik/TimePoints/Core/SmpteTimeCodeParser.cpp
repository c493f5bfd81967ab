#include <Orvik/TimePoints/Core/Parsers/SmpteTimeCodeParser.h>

#include "Calendar.h"
#include "DecimalText.h"
#include "TimeCodeCounting.h"

#include <stdexcept>
#include <string_view>

namespace Orvik::TimePoints {
namespace {

// Followed by the text, "': " and the reason.
constexpr char kInvalidTimeCode[] = "Invalid timecode '";
constexpr char kSyntax[] = "expected HH:MM:SS:FF, HH:MM:SS;FF, HH;MM;SS;FF or HH:MM:SS.FF";
constexpr char kTooLarge[] = "the sample count does not fit in 64 bits";
constexpr char kNoSuchDay[] = "no such day";
constexpr size_t kDateLength = 11;  // "YYYY-MM-DD "

struct Separators {
    char first;
    char second;
    char third;
};

/// Whether the separators say drop-frame; false in `known` when they are no form at all.
bool IsDropFrame(const Separators& separators, bool& known)
{
    if (separators.first == ':' && separators.second == ':')
        known = separators.third == ':' || separators.third == ';' || separators.third == '.';
    else
        known = separators.first == ';' && separators.second == ';' && separators.third == ';';
    return separators.third != ':';
}

/// Reads the date in front of a label into days since 1970-01-01; the reason when it fails.
const char* ReadDate(std::string_view text, int64_t& days)
{
    int64_t year = 0;
    int64_t month = 0;
    int64_t day = 0;
    if (!detail::ReadDigits(text, 0, 4, year) || text[4] != '-' || !detail::ReadDigits(text, 5, 2, month) || text[7] != '-'
        || !detail::ReadDigits(text, 8, 2, day) || text[10] != ' ')
        return kSyntax;
    if (month < 1 || month > 12 || day < 1 || day > detail::DaysInMonth(year, static_cast<int32_t>(month)))
        return kNoSuchDay;
    days = detail::ToDaysSinceEpoch(year, static_cast<int32_t>(month), static_cast<int32_t>(day));
    return nullptr;
}

/// Reads a whole label; the reason when it is refused, nullptr when `timeCode` holds it.
const char* Read(std::string_view text, const Rate& rate, bool allowDate, TimeCode& timeCode)
{
    int64_t days = 0;
    const bool hasDate = allowDate && text.size() >= kDateLength && text[4] == '-';
    if (hasDate) {
        if (const char* reason = ReadDate(text, days))
            return reason;
        text.remove_prefix(kDateLength);
    }
    // The separators stand at the same places whatever the rate, the frames' width depends on it.
    bool known = false;
    const bool isDrop = text.size() > 8 && IsDropFrame(Separators{text[2], text[5], text[8]}, known);
    if (!known)
        return kSyntax;
    const detail::TimeCodeCounting counting(rate, isDrop);
    const size_t frameDigits = static_cast<size_t>(counting.FrameDigits());
    int64_t hour = 0;
    int64_t minute = 0;
    int64_t second = 0;
    int64_t frame = 0;
    if (text.size() != 9 + frameDigits || !detail::ReadDigits(text, 0, 2, hour) || !detail::ReadDigits(text, 3, 2, minute)
        || !detail::ReadDigits(text, 6, 2, second) || !detail::ReadDigits(text, 9, frameDigits, frame))
        return kSyntax;
    const detail::LabelFault fault = counting.Check(hour, minute, second, frame);
    if (fault != detail::LabelFault::None)
        return detail::Describe(fault);
    int64_t sample = 0;
    if (!counting.ToSample(days, hour, minute, second, frame, sample))
        return kTooLarge;
    timeCode = TimeCode(rate, sample, isDrop, hasDate);
    return nullptr;
}

}  // namespace

SmpteTimeCodeParser::SmpteTimeCodeParser(const TimePoints::Rate& rate, bool allowDate) : rate(rate), allowDate(allowDate)
{
    static_cast<void>(detail::TimeCodeCounting(rate, false));  // throws for a rate without a clock
}

TimeCode SmpteTimeCodeParser::Parse(const std::string& text) const
{
    TimeCode timeCode;
    if (const char* reason = Read(text, rate, allowDate, timeCode))
        throw std::invalid_argument(kInvalidTimeCode + text + "': " + reason);
    return timeCode;
}

bool SmpteTimeCodeParser::IsStringFormatValid(const std::string& text) const { return TryParse(text).first; }

std::pair<bool, TimeCode> SmpteTimeCodeParser::TryParse(const std::string& text) const
{
    TimeCode timeCode;
    const bool valid = Read(text, rate, allowDate, timeCode) == nullptr;
    return {valid, timeCode};
}

}  // namespace Orvik::TimePoints
