#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>

#include "EqualityVisitor.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace Orvik::DataModel::MediaAssets {
namespace {

// Followed by the operation, kNoItemForAsset and the asset id.
constexpr char kGroupPrefix[] = "Orvik::DataModel::MediaAssets::MediaAssetGroup::";
constexpr char kNoItemForAsset[] = ": no item for asset ";

}  // namespace

MediaAssetGroupItemArray::const_iterator MediaAssetGroup::Find(const MediaAssetGroupId& assetId) const
{
    return std::find_if(items.begin(), items.end(), [&assetId](const std::shared_ptr<MediaAssetGroupItem>& item) {
        return item && item->MediaAsset().Id() == assetId;
    });
}

const MediaAssetReference& MediaAssetGroup::Asset(const MediaAssetGroupId& assetId) const
{
    return Found("Asset", assetId)->MediaAsset();
}

const std::shared_ptr<MediaAssetGroupItem>& MediaAssetGroup::ItemReference(const MediaAssetGroupId& assetId) const
{
    return Found("ItemReference", assetId);
}

MediaAssetGroupItem& MediaAssetGroup::Item(const MediaAssetGroupId& assetId) const { return *Found("Item", assetId); }

bool MediaAssetGroup::operator==(const MediaAssetGroup& other) const { return detail::EqualInOrder(*this, other); }

bool MediaAssetGroup::AreItemsEqual(const MediaAssetGroup& other) const
{
    detail::EqualityVisitor visitor;
    return detail::ComparisonOrder::CompareItems(visitor, *this, other);
}

const std::shared_ptr<MediaAssetGroupItem>& MediaAssetGroup::Found(const char* operation,
                                                                   const MediaAssetGroupId& assetId) const
{
    const auto found = Find(assetId);
    if (found == items.end())
        throw std::runtime_error(kGroupPrefix + std::string(operation) + kNoItemForAsset + assetId.Value());
    return *found;
}

}  // namespace Orvik::DataModel::MediaAssets
