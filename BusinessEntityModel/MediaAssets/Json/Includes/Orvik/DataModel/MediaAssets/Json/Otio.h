#pragma once

#include <Orvik/DataModel/MediaAssets/Json/Layout.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>

#include <istream>
#include <ostream>
#include <string>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json {

/// The member of a timeline's metadata that holds what this library writes there: an object
/// whose member "asset" is the asset's own document (ToJson), as a JSON object.
inline constexpr char kOtioMetadataKey[] = "orvik";

/// The asset as an OpenTimelineIO document (.otio): a Timeline named after the asset whose Stack
/// holds one Track per asset track, each with one Clip trimmed to the asset's in and out points,
/// its media reference, and, on the first video clip, the annotations as markers. Times are
/// whole frames; docs/otio.md gives the mapping and the rounding. The asset's document rides in
/// the timeline's metadata, so FromOtio loses nothing. Indented, as OpenTimelineIO writes its
/// files, unless asked for Compact.
///
/// Throws JsonError where ToJson would, with the path inside the .otio document
/// ("/metadata/orvik/asset/name"). The stream overload writes nothing then.
std::string ToOtio(const MediaAsset& asset, Layout layout = Layout::Indented);
void ToOtio(std::ostream& out, const MediaAsset& asset, Layout layout = Layout::Indented);

/// The asset of an OpenTimelineIO document that ToOtio wrote, with what an editor may have changed
/// taken from the timeline: its name, the in and out points from an edited clip's source_range,
/// and the annotations from the markers of the clip that carried them. Everything else comes
/// from the asset document in the metadata.
///
/// Throws JsonError naming the JSON pointer of the offending value: for malformed JSON, a
/// document that is no Timeline, one without this library's metadata (a timeline that was not
/// written from an asset), a bad asset document there (the path goes on inside it), and an edit
/// that cannot be read back (a time at another rate than the clip's, or not a whole frame).
MediaAsset FromOtio(std::string_view document);
/// Reads the whole stream, then as above.
MediaAsset FromOtio(std::istream& in);

}  // namespace Orvik::DataModel::MediaAssets::Json
