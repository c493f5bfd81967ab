#pragma once

#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Json/Layout.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>

#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

namespace Orvik::DataModel::MediaAssets::Json {

/// The object of a document of any kind this library reads, for a caller (a tool, a binding)
/// that learns the kind from the document itself. A group is held as for FromJson.
using AnyDocument = std::variant<MediaAsset, MediaResource, Stream, std::shared_ptr<MediaAssetGroup>,
                                 PelkOperatorMetadataProfile, AnglesPelkOperatorMetadataProfile>;

/// The object that `document` describes, read as its schema name says, in one pass. Throws
/// JsonError as FromJson does; a schema name of no kind above is refused at "/schema/name".
AnyDocument FromAnyJson(std::string_view document);

/// Reads the whole stream, then as above.
AnyDocument FromAnyJson(std::istream& in);

/// The document of the object held, as ToJson writes it.
std::string ToJson(const AnyDocument& value, Layout layout = Layout::Compact);

/// The schema name of the documents of T, one of AnyDocument's alternatives ("MediaAsset",
/// "MediaAssetGroup" for std::shared_ptr<MediaAssetGroup>, ...).
template <typename T>
std::string_view SchemaNameOf();

/// The schema name of the document of the object held.
std::string_view SchemaNameOf(const AnyDocument& value);

extern template std::string_view SchemaNameOf<MediaAsset>();
extern template std::string_view SchemaNameOf<MediaResource>();
extern template std::string_view SchemaNameOf<Stream>();
extern template std::string_view SchemaNameOf<std::shared_ptr<MediaAssetGroup>>();
extern template std::string_view SchemaNameOf<PelkOperatorMetadataProfile>();
extern template std::string_view SchemaNameOf<AnglesPelkOperatorMetadataProfile>();

}  // namespace Orvik::DataModel::MediaAssets::Json
