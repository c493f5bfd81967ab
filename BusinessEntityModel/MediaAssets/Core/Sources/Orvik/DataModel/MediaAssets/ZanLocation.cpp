#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool ZanLocation::operator==(const Location& other) const { return detail::EqualInOrder(*this, other); }

}  // namespace Orvik::DataModel::MediaAssets
