// TryParse and Parse agree, only std::invalid_argument naming the text escapes, a text read is
// written back as a text that reads as the same point, and the first eight bytes taken as a point
// are written and read back as that point.

#include <Orvik/TimePoints/Core/Formatters/Iso8601TimePointFormatter.h>
#include <Orvik/TimePoints/Core/Parsers/Iso8601TimePointParser.h>

#include "FuzzText.h"

#include <cstring>
#include <stdexcept>

using namespace Orvik::TimePoints;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const Iso8601TimePointParser parser;
    const Iso8601TimePointFormatter formatter;
    const std::string text = Text(data, size);

    const auto [read, point] = parser.TryParse(text);
    Check(parser.IsStringFormatValid(text) == read, "IsStringFormatValid agrees with TryParse");
    try {
        // Parse runs whatever TryParse answered: it must throw exactly when TryParse refused.
        const TimePoint parsed = parser.Parse(text);
        Check(read && parsed == point, "Parse reads what TryParse reads");
    } catch (const std::invalid_argument& error) {
        Check(!read, "Parse refuses only what TryParse refuses");
        // what() is a C string: a text with a zero byte shows up to that byte.
        const std::string prefix = "Invalid time point '" + text + "': ";
        Check(std::strncmp(error.what(), prefix.c_str(), std::strlen(prefix.c_str())) == 0, "the message names the text");
    }
    if (read) {
        const auto [again, back] = parser.TryParse(formatter.Format(point));
        Check(again && back == point, "the text written reads back as the same point");
    }
    if (size >= sizeof(int64_t)) {
        int64_t nanoseconds = 0;
        std::memcpy(&nanoseconds, data, sizeof nanoseconds);
        const auto [again, back] = parser.TryParse(formatter.Format(TimePoint(nanoseconds)));
        Check(again && back == TimePoint(nanoseconds), "every point reads back as itself");
    }
    return 0;
}
