#include "Path.h"

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
        std::string_view name = segment.name;
        for (size_t special = name.find_first_of("~/"); special != std::string_view::npos;
             special = name.find_first_of("~/")) {
            text.append(name, 0, special).append(name[special] == '~' ? "~0" : "~1");
            name.remove_prefix(special + 1);
        }
        text += name;
    }
    return text;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
