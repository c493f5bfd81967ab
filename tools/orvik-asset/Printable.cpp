#include "Printable.h"

#include <cstddef>
#include <cstdio>

namespace Orvik::AssetTool {

std::string Printable(const std::string& text)
{
    std::string result;
    result.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0;
        char escaped[8];
        if (byte == '\n') {
            result += "\\n";
        } else if (byte == '\t') {
            result += "\\t";
        } else if (byte < 0x20 || byte == 0x7f) {
            std::snprintf(escaped, sizeof escaped, "\\x%02x", byte);
            result += escaped;
        } else if (byte == 0xc2 && next >= 0x80 && next <= 0x9f) {
            // U+0080 to U+009F: C1 control codes, which a terminal may obey as well.
            std::snprintf(escaped, sizeof escaped, "\\u%04x", next);
            result += escaped;
            ++i;
        } else {
            result += text[i];
        }
    }
    return result;
}

}  // namespace Orvik::AssetTool
