#include <Orvik/DataModel/MediaAssets/DaxContentTrackLocation.h>

#include "EqualityVisitor.h"

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

bool DaxContentTrackLocation::operator==(const Location& other) const { return detail::EqualInOrder(*this, other); }

}  // namespace Orvik::DataModel::MediaAssets
