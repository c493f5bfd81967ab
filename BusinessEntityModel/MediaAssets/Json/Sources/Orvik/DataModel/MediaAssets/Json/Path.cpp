#include "Path.h"

#include <algorithm>
#include <charconv>

namespace Orvik::DataModel::MediaAssets::Json::detail {

std::string Path::ToString() const
{
    std::string text;
    text.reserve(64);
    for (size_t at = 0; at < depth; ++at) {
        const Segment& segment = segments[at];
        text += '/';
        if (segment.isIndex) {
            char digits[20];
            const auto end = std::to_chars(digits, digits + sizeof digits, segment.index).ptr;
            text.append(digits, end);
            continue;
        }
        const auto escaped = [](char c) { return c == '~' || c == '/'; };
        auto run = segment.name.begin();
        for (auto special = std::find_if(run, segment.name.end(), escaped); special != segment.name.end();
             special = std::find_if(run, segment.name.end(), escaped)) {
            text.append(run, special).append(*special == '~' ? "~0" : "~1");
            run = special + 1;
        }
        text.append(run, segment.name.end());
    }
    return text;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
