// Only std::runtime_error escapes; a text is accepted exactly when it matches the documented
// pattern, written here as a regular expression; an accepted text is kept as it is, and a
// refused one leaves the stored value unchanged.

#include <Orvik/DataModel/MediaAssets/TimeCodeString.h>

#include "FuzzText.h"

#include <regex>
#include <stdexcept>

using Orvik::DataModel::MediaAssets::TimeCodeString;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::regex documented(R"(^(2[0-4]|1\d|0\d|\d):[0-5]\d:[0-5]\d[:;][0-2]\d$)");
    const std::string text = Text(data, size);
    TimeCodeString timeCode("00:00:00:00");
    const bool matches = std::regex_search(text, documented);
    try {
        timeCode.Set(text);
        Check(matches, "only a text of the documented pattern is accepted");
        Check(timeCode.Value() == text, "an accepted text keeps its value");
    } catch (const std::runtime_error& error) {
        Check(!matches, "every text of the documented pattern is accepted");
        // what() is a C string: a text with a zero byte shows up to that byte.
        const std::string expected = "invalid timeCodeString " + text;
        Check(std::string(error.what()) == expected.c_str(), "the message names the text");
        Check(timeCode.Value() == "00:00:00:00", "a refused text changes nothing");
    }
    return 0;
}
