#include <Orvik/DataModel/MediaAssets/AnglesMediaAssetGroupItem.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool AnglesMediaAssetGroupItem::operator==(const MediaAssetGroupItem& other) const
{
    return detail::EqualInOrder(*this, other);
}

bool AnglesMediaAssetGroupItem::operator==(const AnglesMediaAssetGroupItem& other) const
{
    return detail::EqualInOrder(*this, other);
}

}  // namespace Orvik::DataModel::MediaAssets
