#include <Orvik/DataModel/MediaAssets/DaxContentTrackLocation.h>

#include "EqualityVisitor.h"

#include <algorithm>
#include <string_view>

namespace Orvik::DataModel::MediaAssets {
namespace {

constexpr std::string_view kScheme = "storage://";

}  // namespace

// Read by hand: std::regex recursed once per character and overflowed the stack on a URI of
// some tens of kilobytes.
bool DaxContentTrackLocation::InitFromUri(const std::string& uri)
{
    const std::string_view text(uri);
    if (text.substr(0, kScheme.size()) != kScheme)
        return false;
    // Three fields, none holding a "/", each of them possibly empty.
    const std::string_view fields = text.substr(kScheme.size());
    if (std::count(fields.begin(), fields.end(), '/') != 2)
        return false;
    const size_t first = fields.find('/');
    const size_t second = fields.find('/', first + 1);
    Identifier server(std::string(fields.substr(0, first)));
    Identifier partition(std::string(fields.substr(first + 1, second - first - 1)));
    Identifier contentTrack(std::string(fields.substr(second + 1)));
    daxServerId = std::move(server);
    daxPartitionId = std::move(partition);
    daxContentTrackId = std::move(contentTrack);
    return true;
}

URI DaxContentTrackLocation::Uri() const
{
    return URI(std::string(kScheme) + daxServerId.Value() + "/" + daxPartitionId.Value() + "/" + daxContentTrackId.Value());
}

bool DaxContentTrackLocation::operator==(const Location& other) const { return detail::EqualInOrder(*this, other); }

}  // namespace Orvik::DataModel::MediaAssets
