#include <Orvik/DataModel/MediaAssets/TimeCodeString.h>

#include <stdexcept>
#include <string_view>

namespace Orvik::DataModel::MediaAssets {
namespace {

// Followed by the refused text.
constexpr char kInvalidTimeCodeString[] = "invalid timeCodeString ";

bool IsDigitUpTo(char c, char last) { return c >= '0' && c <= last; }

// The two digits at `at` from "00" to the given first digit and "9".
bool IsPairUpTo(std::string_view text, size_t at, char lastFirstDigit)
{
    return IsDigitUpTo(text[at], lastFirstDigit) && IsDigitUpTo(text[at + 1], '9');
}

// Checked by hand rather than by a regular expression: readers check every timecode text they
// meet, and std::regex took 25 times as long and allocated. The hours are one digit, or two from
// "00" to "24".
bool IsTimeCodeText(std::string_view text)
{
    if (text.empty() || !IsDigitUpTo(text[0], '9'))
        return false;
    size_t at = 1;
    if (text.size() > 1 && IsDigitUpTo(text[1], '9')) {
        if (text[0] > '2' || (text[0] == '2' && text[1] > '4'))
            return false;
        at = 2;
    }
    // ":MM:SS:FF" or ":MM:SS;FF"
    return text.size() == at + 9 && text[at] == ':' && IsPairUpTo(text, at + 1, '5') && text[at + 3] == ':'
        && IsPairUpTo(text, at + 4, '5') && (text[at + 6] == ':' || text[at + 6] == ';') && IsPairUpTo(text, at + 7, '2');
}

}  // namespace

void TimeCodeString::Set(const std::string& text)
{
    if (!IsStringFormatValid(text))
        throw std::runtime_error(kInvalidTimeCodeString + text);
    value_ = text;
}

bool TimeCodeString::IsStringFormatValid(const std::string& text) const { return IsTimeCodeText(text); }

}  // namespace Orvik::DataModel::MediaAssets
