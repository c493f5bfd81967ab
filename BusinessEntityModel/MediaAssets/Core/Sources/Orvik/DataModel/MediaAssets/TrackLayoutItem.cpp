#include <Orvik/DataModel/MediaAssets/TrackLayoutItem.h>

namespace Orvik::DataModel::MediaAssets {

TrackLayoutItem TrackLayoutItem::Clone() const
{
    TrackLayoutItem copy(*this);
    copy.ObjectId(-1);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
