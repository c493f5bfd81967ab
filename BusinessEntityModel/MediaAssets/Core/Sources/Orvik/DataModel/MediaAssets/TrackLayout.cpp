#include <Orvik/DataModel/MediaAssets/TrackLayout.h>

namespace Orvik::DataModel::MediaAssets {

TrackLayout TrackLayout::Clone() const
{
    TrackLayout copy(id, name);
    copy.trackLayoutItems = trackLayoutItems;
    for (auto& item : copy.trackLayoutItems)
        item.ObjectId(-1);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
