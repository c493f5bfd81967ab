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
    // Written in place, after making room for the longest text the segments can give: a name
    // with every character escaped, an index of 20 digits.
    size_t room = 0;
    for (size_t at = 0; at < depth; ++at)
        room += 1 + (segments[at].isIndex ? 20 : 2 * segments[at].name.size());
    const size_t start = text.size();
    text.resize(start + room);
    char* out = text.data() + start;
    for (size_t at = 0; at < depth; ++at) {
        const Segment& segment = segments[at];
        if (segment.isIndex) {
            *out++ = '/';
            out = std::to_chars(out, out + 20, segment.index).ptr;
        } else {
            out = JsonPointer::WriteName(segment.name, out);
        }
    }
    text.resize(static_cast<size_t>(out - text.data()));
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
