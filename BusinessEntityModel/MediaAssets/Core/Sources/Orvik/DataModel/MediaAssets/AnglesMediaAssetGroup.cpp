#include <Orvik/DataModel/MediaAssets/AnglesMediaAssetGroup.h>

#include "ProfileOfClassOrThrow.h"

#include <stdexcept>

namespace Orvik::DataModel::MediaAssets {
namespace {

constexpr char kNoOperatorMetadata[] =
    "Orvik::DataModel::MediaAssets::AnglesPelkOperatorMetadataProfile: No orvik.pelkoperator metadata available";
// Followed by the asset id.
constexpr char kNotAnAnglesItem[] =
    "Orvik::DataModel::MediaAssets::AnglesMediaAssetGroup::Item: not an angles item for asset ";

}  // namespace

const Utf8String& AnglesMediaAssetGroup::StaticType()
{
    static const Utf8String type("AnglesMediaAssetGroup");
    return type;
}

bool AnglesMediaAssetGroup::HasPelkOperatorMetadata() const
{
    return Metadata().Contains<AnglesPelkOperatorMetadataProfile>();
}

AnglesPelkOperatorMetadataProfile& AnglesMediaAssetGroup::PelkOperatorMetadata()
{
    return detail::ProfileOfClassOrThrow<AnglesPelkOperatorMetadataProfile>(Metadata(), kNoOperatorMetadata);
}

const AnglesPelkOperatorMetadataProfile& AnglesMediaAssetGroup::PelkOperatorMetadata() const
{
    return detail::ProfileOfClassOrThrow<AnglesPelkOperatorMetadataProfile>(Metadata(), kNoOperatorMetadata);
}

AnglesMediaAssetGroupItem& AnglesMediaAssetGroup::Item(const MediaAssetGroupId& assetId) const
{
    auto* item = dynamic_cast<AnglesMediaAssetGroupItem*>(&MediaAssetGroup::Item(assetId));
    if (item == nullptr)
        throw std::runtime_error(kNotAnAnglesItem + assetId.Value());
    return *item;
}

}  // namespace Orvik::DataModel::MediaAssets
