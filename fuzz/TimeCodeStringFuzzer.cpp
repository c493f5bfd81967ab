// Only std::runtime_error escapes; an accepted text is kept as it is, and a refused one leaves the
// stored value unchanged.

#include <Orvik/DataModel/MediaAssets/TimeCodeString.h>

#include "FuzzText.h"

#include <stdexcept>

using Orvik::DataModel::MediaAssets::TimeCodeString;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text = Text(data, size);
    TimeCodeString timeCode("00:00:00:00");
    try {
        timeCode.Set(text);
        Check(timeCode.Value() == text, "an accepted text keeps its value");
    } catch (const std::runtime_error& error) {
        // what() is a C string: a text with a zero byte shows up to that byte.
        const std::string expected = "invalid timeCodeString " + text;
        Check(std::string(error.what()) == expected.c_str(), "the message names the text");
        Check(timeCode.Value() == "00:00:00:00", "a refused text changes nothing");
    }
    return 0;
}
