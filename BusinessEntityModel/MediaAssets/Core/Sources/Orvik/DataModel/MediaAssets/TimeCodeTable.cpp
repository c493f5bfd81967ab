#include <Orvik/DataModel/MediaAssets/TimeCodeTable.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool TimeCodeTable::operator==(const TimeCodeTable& other) const
{
    return detail::EqualInOrder(*this, other);
}

}  // namespace Orvik::DataModel::MediaAssets
