#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The kind of a media asset.
/// The text of each value is its enumerator name, letter for letter.
enum class AssetType : int32_t {
    unknown = 0,
    train = 1,
    media = 2,
};

/// The text of `value`; a number that is no AssetType gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(AssetType value);
/// Exact and case-sensitive; a text that is no AssetType gives AssetType::unknown.
AssetType ToAssetType(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
AssetType ToAssetType(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
