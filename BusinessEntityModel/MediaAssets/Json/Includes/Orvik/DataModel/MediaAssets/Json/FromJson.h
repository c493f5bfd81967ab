#pragma once

#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>

#include <istream>
#include <memory>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json {

/// The object that a document written by ToJson describes, with the sharing the document records
/// restored. T is one of MediaAsset, MediaResource, Stream, PelkOperatorMetadataProfile,
/// AnglesPelkOperatorMetadataProfile, or std::shared_ptr<MediaAssetGroup> for a group, which
/// holds an AnglesMediaAssetGroup when the document says so. The document's schema name must be
/// the one of T and its version one that this library reads. Members may come in any order, but
/// the "type" or "kind" member of a polymorphic object must be its first member.
///
/// Throws JsonError naming the JSON pointer of the offending value and what was expected; no
/// object is returned then. Metadata profiles whose name has no codec are kept as
/// RawMetadataProfile and written back as they were read.
///
/// Failure guarantee: strong. A lack of memory is std::bad_alloc, never JsonError; nothing half
/// built escapes, and the thread keeps its grown parser and buffers for the next document.
template <typename T>
T FromJson(std::string_view document);

/// Reads the whole stream, then as above.
template <typename T>
T FromJson(std::istream& in);

extern template MediaAsset FromJson<MediaAsset>(std::string_view);
extern template MediaResource FromJson<MediaResource>(std::string_view);
extern template Stream FromJson<Stream>(std::string_view);
extern template std::shared_ptr<MediaAssetGroup> FromJson<std::shared_ptr<MediaAssetGroup>>(std::string_view);
extern template PelkOperatorMetadataProfile FromJson<PelkOperatorMetadataProfile>(std::string_view);
extern template AnglesPelkOperatorMetadataProfile FromJson<AnglesPelkOperatorMetadataProfile>(std::string_view);

extern template MediaAsset FromJson<MediaAsset>(std::istream&);
extern template MediaResource FromJson<MediaResource>(std::istream&);
extern template Stream FromJson<Stream>(std::istream&);
extern template std::shared_ptr<MediaAssetGroup> FromJson<std::shared_ptr<MediaAssetGroup>>(std::istream&);
extern template PelkOperatorMetadataProfile FromJson<PelkOperatorMetadataProfile>(std::istream&);
extern template AnglesPelkOperatorMetadataProfile FromJson<AnglesPelkOperatorMetadataProfile>(std::istream&);

}  // namespace Orvik::DataModel::MediaAssets::Json
