#include "Path.h"

#include <Orvik/DataModel/MediaAssets/Json/JsonPointer.h>

#include <charconv>

namespace Orvik::DataModel::MediaAssets::Json::detail {

std::string Path::ToString() const
{
    std::string text;
    AppendTo(text);
    return text;
}

void Path::AppendTo(std::string& text) const
{
    for (size_t at = 0; at < depth; ++at) {
        const Segment& segment = segments[at];
        if (!segment.isIndex) {
            JsonPointer::AppendName(text, segment.name);
            continue;
        }
        char digits[21] = {'/'};
        const char* const end = std::to_chars(digits + 1, digits + sizeof digits, segment.index).ptr;
        text.append(digits, static_cast<size_t>(end - digits));
    }
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
