#include <Orvik/DataModel/MediaAssets/DaxProtectLocation.h>

#include "ExactClass.h"

namespace Orvik::DataModel::MediaAssets {

bool DaxProtectLocation::operator==(const Location& other) const
{
    // Uri() is made of fields compared below: the base comparison (false for every other kind)
    // decides nothing between two objects of exactly this class.
    if (!detail::BothExactly<DaxProtectLocation, Location>(*this, other) && !Location::operator==(other))
        return false;
    const auto& rhs = static_cast<const DaxProtectLocation&>(other);
    return daxServerId == rhs.daxServerId && daxUri == rhs.daxUri;
}

}  // namespace Orvik::DataModel::MediaAssets
