#include <Orvik/DataModel/MediaAssets/DaxProtectLocation.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool DaxProtectLocation::operator==(const Location& other) const { return detail::EqualInOrder(*this, other); }

}  // namespace Orvik::DataModel::MediaAssets
