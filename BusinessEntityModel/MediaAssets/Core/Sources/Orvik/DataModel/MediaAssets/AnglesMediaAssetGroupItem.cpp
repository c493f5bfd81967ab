#include <Orvik/DataModel/MediaAssets/AnglesMediaAssetGroupItem.h>

namespace Orvik::DataModel::MediaAssets {

bool AnglesMediaAssetGroupItem::operator==(const MediaAssetGroupItem& other) const
{
    const auto* angles = dynamic_cast<const AnglesMediaAssetGroupItem*>(&other);
    return angles != nullptr && *this == *angles;
}

}  // namespace Orvik::DataModel::MediaAssets
