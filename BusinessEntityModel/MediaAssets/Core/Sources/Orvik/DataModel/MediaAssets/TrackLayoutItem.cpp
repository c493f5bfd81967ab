#include <Orvik/DataModel/MediaAssets/TrackLayoutItem.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool TrackLayoutItem::operator==(const TrackLayoutItem& other) const { return detail::EqualInOrder(*this, other); }

TrackLayoutItem TrackLayoutItem::Clone() const
{
    TrackLayoutItem copy(*this);
    copy.ObjectId(-1);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
