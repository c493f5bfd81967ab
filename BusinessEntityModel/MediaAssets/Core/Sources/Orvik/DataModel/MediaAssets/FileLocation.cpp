#include <Orvik/DataModel/MediaAssets/FileLocation.h>

#include "ExactClass.h"

namespace Orvik::DataModel::MediaAssets {

bool FileLocation::operator==(const Location& other) const
{
    // Uri() is made of fields compared below: the base comparison (false for every other kind)
    // decides nothing between two objects of exactly this class.
    if (!detail::BothExactly<FileLocation, Location>(*this, other) && !Location::operator==(other))
        return false;
    const auto& rhs = static_cast<const FileLocation&>(other);
    return name == rhs.name && size == rhs.size && isReadOnly == rhs.isReadOnly && uri == rhs.uri
        && creationDate == rhs.creationDate && modificationDate == rhs.modificationDate
        && lastAccessDate == rhs.lastAccessDate;
}

}  // namespace Orvik::DataModel::MediaAssets
