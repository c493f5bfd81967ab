#pragma once

#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Json/Layout.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>

#include <ostream>
#include <string>

namespace Orvik::DataModel::MediaAssets::Json {

/// The document of `value`: a "schema" member naming the kind of document and its version, then
/// every field of the object in the model's field names (docs/guide.md describes the form).
/// Objects that the model shares are written once and referred to by JSON pointer elsewhere.
///
/// Throws JsonError, naming the path of the value, for a metadata profile whose name has no codec
/// (see MetadataProfileCodec.h), for text that is not valid UTF-8, and for a layout item showing
/// a track that is not one of the asset's tracks. The stream overloads write nothing then.
///
/// Failure guarantee: strong; the object written is never changed. A lack of memory is
/// std::bad_alloc, and the stream overloads write nothing then either; a failure of the stream
/// itself is reported through the stream's state, as for any output to it.
/// A MediaAssetGroup is written with its class (MediaAssetGroup or AnglesMediaAssetGroup).
std::string ToJson(const MediaAsset& value, Layout layout = Layout::Compact);
std::string ToJson(const MediaResource& value, Layout layout = Layout::Compact);
std::string ToJson(const Stream& value, Layout layout = Layout::Compact);
std::string ToJson(const MediaAssetGroup& value, Layout layout = Layout::Compact);
std::string ToJson(const PelkOperatorMetadataProfile& value, Layout layout = Layout::Compact);
std::string ToJson(const AnglesPelkOperatorMetadataProfile& value, Layout layout = Layout::Compact);

void ToJson(std::ostream& out, const MediaAsset& value, Layout layout = Layout::Compact);
void ToJson(std::ostream& out, const MediaResource& value, Layout layout = Layout::Compact);
void ToJson(std::ostream& out, const Stream& value, Layout layout = Layout::Compact);
void ToJson(std::ostream& out, const MediaAssetGroup& value, Layout layout = Layout::Compact);
void ToJson(std::ostream& out, const PelkOperatorMetadataProfile& value, Layout layout = Layout::Compact);
void ToJson(std::ostream& out, const AnglesPelkOperatorMetadataProfile& value, Layout layout = Layout::Compact);

}  // namespace Orvik::DataModel::MediaAssets::Json
