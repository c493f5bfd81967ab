#pragma once

#include <string>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json {

/// The version of the document form that ToJson writes and FromJson reads.
inline constexpr int kSchemaVersion = 1;

/// The name in the document's "schema" member: "MediaAsset", "MediaResource", "Stream",
/// "MediaAssetGroup", "PelkOperatorMetadataProfile" or "AnglesPelkOperatorMetadataProfile" for
/// the documents of this library, so that a tool can tell which FromJson to call. The rest of the
/// document is not checked. Throws JsonError when the document is not an object with a "schema"
/// object holding a string "name".
std::string SchemaName(std::string_view document);

}  // namespace Orvik::DataModel::MediaAssets::Json
