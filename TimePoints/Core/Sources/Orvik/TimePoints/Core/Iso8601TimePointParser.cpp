#include <Orvik/TimePoints/Core/Parsers/Iso8601TimePointParser.h>

#include "Calendar.h"
#include "DecimalText.h"
#include "NamedTimePoints.h"

#include <limits>
#include <stdexcept>
#include <string_view>

namespace Orvik::TimePoints {
namespace {

__extension__ using Wide = __int128;

// Followed by the text, "': " and the reason.
constexpr char kInvalidTimePoint[] = "Invalid time point '";
constexpr char kSyntax[] = "expected YYYY-MM-DDTHH:MM:SS, up to nine fraction digits, and Z or +HH:MM";
constexpr char kNoSuchDay[] = "no such day";
constexpr char kTimeOfDay[] = "the time of day must be 00:00:00 to 23:59:59";
constexpr char kOffset[] = "the offset must be 00:00 to 23:59";
constexpr char kOutOfRange[] =
    "outside the 64-bit time line, 1677-09-21T00:12:43.145224192Z to 2262-04-11T23:47:16.854775807Z";
constexpr size_t kDateTimeLength = 19;  // "YYYY-MM-DDTHH:MM:SS"
constexpr size_t kMaxFractionDigits = 9;

bool IsAt(std::string_view text, size_t position, char expected)
{
    return position < text.size() && text[position] == expected;
}

/// The offset from UTC in seconds, east positive, of the zone designator that ends `text`.
const char* ReadZone(std::string_view zone, int64_t& offsetSeconds)
{
    offsetSeconds = 0;
    if (zone == "Z" || zone == "z")
        return nullptr;
    int64_t hours = 0;
    int64_t minutes = 0;
    if (zone.size() != 6 || (zone[0] != '+' && zone[0] != '-') || !detail::ReadDigits(zone, 1, 2, hours) || zone[3] != ':'
        || !detail::ReadDigits(zone, 4, 2, minutes))
        return kSyntax;
    if (hours > 23 || minutes > 59)
        return kOffset;
    offsetSeconds = (zone[0] == '-' ? -1 : 1) * (hours * 3600 + minutes * 60);
    return nullptr;
}

/// Reads a whole text; the reason when it is refused, nullptr when `point` holds it.
const char* Read(std::string_view text, TimePoint& point)
{
    for (const detail::NamedTimePoint& named : detail::kNamedTimePoints) {
        if (text == named.text) {
            point = named.point;
            return nullptr;
        }
    }
    int64_t year = 0;
    int64_t month = 0;
    int64_t day = 0;
    int64_t hour = 0;
    int64_t minute = 0;
    int64_t second = 0;
    if (!detail::ReadDigits(text, 0, 4, year) || !IsAt(text, 4, '-') || !detail::ReadDigits(text, 5, 2, month)
        || !IsAt(text, 7, '-') || !detail::ReadDigits(text, 8, 2, day)
        || !(IsAt(text, 10, 'T') || IsAt(text, 10, 't') || IsAt(text, 10, ' ')) || !detail::ReadDigits(text, 11, 2, hour)
        || !IsAt(text, 13, ':') || !detail::ReadDigits(text, 14, 2, minute) || !IsAt(text, 16, ':')
        || !detail::ReadDigits(text, 17, 2, second))
        return kSyntax;

    size_t position = kDateTimeLength;
    int64_t fraction = 0;
    if (IsAt(text, position, '.')) {
        size_t digits = 0;
        while (position + 1 + digits < text.size() && text[position + 1 + digits] >= '0'
               && text[position + 1 + digits] <= '9')
            ++digits;
        if (digits == 0 || digits > kMaxFractionDigits)
            return kSyntax;
        detail::ReadDigits(text, position + 1, digits, fraction);
        for (size_t scale = digits; scale < kMaxFractionDigits; ++scale)
            fraction *= 10;
        position += 1 + digits;
    }
    int64_t offsetSeconds = 0;
    if (const char* reason = ReadZone(text.substr(position), offsetSeconds))
        return reason;

    if (month < 1 || month > 12 || day < 1 || day > detail::DaysInMonth(year, static_cast<int32_t>(month)))
        return kNoSuchDay;
    if (hour > 23 || minute > 59 || second > 59)
        return kTimeOfDay;
    const int64_t days = detail::ToDaysSinceEpoch(year, static_cast<int32_t>(month), static_cast<int32_t>(day));
    const Wide seconds = Wide(days) * 86400 + hour * 3600 + minute * 60 + second - offsetSeconds;
    const Wide nanoseconds = seconds * 1000000000 + fraction;
    if (nanoseconds < std::numeric_limits<int64_t>::min() || nanoseconds > std::numeric_limits<int64_t>::max())
        return kOutOfRange;
    point = TimePoint(static_cast<int64_t>(nanoseconds));
    return nullptr;
}

}  // namespace

TimePoint Iso8601TimePointParser::Parse(const std::string& text) const
{
    TimePoint point;
    if (const char* reason = Read(text, point))
        throw std::invalid_argument(kInvalidTimePoint + text + "': " + reason);
    return point;
}

bool Iso8601TimePointParser::IsStringFormatValid(const std::string& text) const { return TryParse(text).first; }

std::pair<bool, TimePoint> Iso8601TimePointParser::TryParse(const std::string& text) const
{
    TimePoint point;
    const bool valid = Read(text, point) == nullptr;
    return {valid, point};
}

}  // namespace Orvik::TimePoints
