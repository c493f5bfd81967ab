// The first byte picks the rate and whether a date is allowed; the rest is the text. TryParse and
// Parse agree, only std::invalid_argument naming the text escapes, and a label read is written
// back as a label that reads as the same timecode.

#include <Orvik/TimePoints/Core/Formatters/SmpteTimeCodeFormatter.h>
#include <Orvik/TimePoints/Core/Parsers/SmpteTimeCodeParser.h>

#include "FuzzText.h"

#include <cstring>
#include <stdexcept>

using namespace Orvik::TimePoints;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    static const Rate rates[] = {Rate(24, 1),       Rate(25, 1),  Rate(30, 1),        Rate(48, 1),
                                 Rate(50, 1),       Rate(60, 1),  Rate(24000, 1001),  Rate(30000, 1001),
                                 Rate(60000, 1001), Rate(120, 1), Rate(120000, 1001), Rate(15, 2)};
    const SmpteTimeCodeParser parser(rates[(data[0] & 0x7F) % 12], (data[0] & 0x80) != 0);
    const std::string text = Text(data + 1, size - 1);

    const auto [read, timeCode] = parser.TryParse(text);
    Check(parser.IsStringFormatValid(text) == read, "IsStringFormatValid agrees with TryParse");
    try {
        // Parse runs whatever TryParse answered: it must throw exactly when TryParse refused.
        const TimeCode parsed = parser.Parse(text);
        Check(read && parsed == timeCode, "Parse reads what TryParse reads");
    } catch (const std::invalid_argument& error) {
        Check(!read, "Parse refuses only what TryParse refuses");
        // what() is a C string: a text with a zero byte shows up to that byte.
        const std::string prefix = "Invalid timecode '" + text + "': ";
        Check(std::strncmp(error.what(), prefix.c_str(), std::strlen(prefix.c_str())) == 0, "the message names the text");
    }
    if (read) {
        const std::string label = SmpteTimeCodeFormatter().Format(timeCode);
        const auto [again, back] = parser.TryParse(label);
        Check(again && back == timeCode, "the label written reads back as the same timecode");
        Check(SmpteTimeCodeFormatter().Format(back) == label, "the label written is canonical");
    }
    return 0;
}
