#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include "ExactClass.h"

namespace Orvik::DataModel::MediaAssets {

bool ZanLocation::operator==(const Location& other) const
{
    // Uri() is made of fields compared below: the base comparison (false for every other kind)
    // decides nothing between two objects of exactly this class.
    if (!detail::BothExactly<ZanLocation, Location>(*this, other) && !Location::operator==(other))
        return false;
    const auto& rhs = static_cast<const ZanLocation&>(other);
    return serverId.SerialNumber() == rhs.serverId.SerialNumber() && sequenceId == rhs.sequenceId;
}

}  // namespace Orvik::DataModel::MediaAssets
