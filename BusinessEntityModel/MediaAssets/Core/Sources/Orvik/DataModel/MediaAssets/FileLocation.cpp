#include <Orvik/DataModel/MediaAssets/FileLocation.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool FileLocation::operator==(const Location& other) const { return detail::EqualInOrder(*this, other); }

}  // namespace Orvik::DataModel::MediaAssets
