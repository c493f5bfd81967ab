#include <Orvik/DataModel/MediaAssets/FileLocation.h>

namespace Orvik::DataModel::MediaAssets {

bool FileLocation::operator==(const Location& other) const
{
    if (!Location::operator==(other))  // false for every other kind
        return false;
    const auto& rhs = static_cast<const FileLocation&>(other);
    return name == rhs.name && size == rhs.size && isReadOnly == rhs.isReadOnly && uri == rhs.uri
        && creationDate == rhs.creationDate && modificationDate == rhs.modificationDate
        && lastAccessDate == rhs.lastAccessDate;
}

}  // namespace Orvik::DataModel::MediaAssets
