#include <Orvik/DataModel/MediaAssets/TrackLayout.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool TrackLayout::operator==(const TrackLayout& other) const { return detail::EqualInOrder(*this, other); }

TrackLayout TrackLayout::Clone() const
{
    TrackLayout copy(id, name);
    copy.trackLayoutItems = trackLayoutItems;
    for (auto& item : copy.trackLayoutItems)
        item.ObjectId(-1);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
