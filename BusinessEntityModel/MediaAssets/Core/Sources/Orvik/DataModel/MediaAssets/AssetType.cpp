#include <Orvik/DataModel/MediaAssets/AssetType.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<AssetType>& GetConverter()
{
    static const StringAssociation<AssetType> converter(
        {
            {AssetType::unknown, "unknown"},
            {AssetType::train, "train"},
            {AssetType::media, "media"},
        },
        AssetType::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(AssetType value) { return GetConverter().ToString(value); }
AssetType ToAssetType(const std::string& text) { return GetConverter().ToEnum(text); }
AssetType ToAssetType(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
