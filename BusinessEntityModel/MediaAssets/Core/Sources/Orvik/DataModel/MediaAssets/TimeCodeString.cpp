#include <Orvik/DataModel/MediaAssets/TimeCodeString.h>

#include <regex>
#include <stdexcept>

namespace Orvik::DataModel::MediaAssets {
namespace {

// Followed by the refused text.
constexpr char kInvalidTimeCodeString[] = "invalid timeCodeString ";

const std::regex& Pattern()
{
    static const std::regex pattern(R"(^(2[0-4]|1\d|0\d|\d):([0-5]\d):([0-5]\d)(:|;)(2\d|1\d|0\d)$)",
                                    std::regex::ECMAScript);
    return pattern;
}

}  // namespace

void TimeCodeString::Set(const std::string& text)
{
    if (!IsStringFormatValid(text))
        throw std::runtime_error(kInvalidTimeCodeString + text);
    value_ = text;
}

bool TimeCodeString::IsStringFormatValid(const std::string& text) const { return std::regex_search(text, Pattern()); }

}  // namespace Orvik::DataModel::MediaAssets
