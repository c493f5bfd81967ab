#include <Orvik/DataModel/MediaAssets/MediaAssetGroupItem.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool MediaAssetGroupItem::operator==(const MediaAssetGroupItem& other) const
{
    detail::EqualityVisitor visitor;
    return detail::ComparisonOrder::CompareItemFields(visitor, *this, other);
}

}  // namespace Orvik::DataModel::MediaAssets
