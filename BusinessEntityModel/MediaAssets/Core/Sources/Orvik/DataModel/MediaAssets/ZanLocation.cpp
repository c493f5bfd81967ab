#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

namespace Orvik::DataModel::MediaAssets {

bool ZanLocation::operator==(const Location& other) const
{
    if (!Location::operator==(other))  // false for every other kind
        return false;
    const auto& rhs = static_cast<const ZanLocation&>(other);
    return serverId.SerialNumber() == rhs.serverId.SerialNumber() && sequenceId == rhs.sequenceId;
}

}  // namespace Orvik::DataModel::MediaAssets
