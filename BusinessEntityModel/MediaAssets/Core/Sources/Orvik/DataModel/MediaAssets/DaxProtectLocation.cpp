#include <Orvik/DataModel/MediaAssets/DaxProtectLocation.h>

namespace Orvik::DataModel::MediaAssets {

bool DaxProtectLocation::operator==(const Location& other) const
{
    if (!Location::operator==(other))  // false for every other kind
        return false;
    const auto& rhs = static_cast<const DaxProtectLocation&>(other);
    return daxServerId == rhs.daxServerId && daxUri == rhs.daxUri;
}

}  // namespace Orvik::DataModel::MediaAssets
