#include "Path.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

std::string Path::ToString() const
{
    std::string text;
    for (const Segment& segment : segments) {
        text += '/';
        if (segment.isIndex) {
            text += std::to_string(segment.index);
            continue;
        }
        for (const char c : segment.name) {
            if (c == '~')
                text += "~0";
            else if (c == '/')
                text += "~1";
            else
                text += c;
        }
    }
    return text;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
