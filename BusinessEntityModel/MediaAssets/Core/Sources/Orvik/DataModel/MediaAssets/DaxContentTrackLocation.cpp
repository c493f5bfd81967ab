#include <Orvik/DataModel/MediaAssets/DaxContentTrackLocation.h>

#include "ExactClass.h"

#include <regex>

namespace Orvik::DataModel::MediaAssets {
namespace {

constexpr char kScheme[] = "storage://";

const std::regex& Pattern()
{
    static const std::regex pattern("^(?:storage:(?:[/]){2})([^/]*)[/]([^/]*)[/]([^/]*)$", std::regex::ECMAScript);
    return pattern;
}

}  // namespace

bool DaxContentTrackLocation::InitFromUri(const std::string& uri)
{
    std::smatch fields;
    if (!std::regex_search(uri, fields, Pattern()))
        return false;
    Identifier server(fields[1].str());
    Identifier partition(fields[2].str());
    Identifier contentTrack(fields[3].str());
    daxServerId = std::move(server);
    daxPartitionId = std::move(partition);
    daxContentTrackId = std::move(contentTrack);
    return true;
}

URI DaxContentTrackLocation::Uri() const
{
    return URI(kScheme + daxServerId.Value() + "/" + daxPartitionId.Value() + "/" + daxContentTrackId.Value());
}

bool DaxContentTrackLocation::operator==(const Location& other) const
{
    // Uri() is made of fields compared below: the base comparison (false for every other kind)
    // decides nothing between two objects of exactly this class.
    if (!detail::BothExactly<DaxContentTrackLocation, Location>(*this, other) && !Location::operator==(other))
        return false;
    const auto& rhs = static_cast<const DaxContentTrackLocation&>(other);
    return daxServerId == rhs.daxServerId && daxPartitionId == rhs.daxPartitionId
        && daxContentTrackId == rhs.daxContentTrackId;
}

}  // namespace Orvik::DataModel::MediaAssets
