#pragma once

// The names of the OpenTimelineIO form, shared by its writer and its reader.

#include <cstddef>

namespace Orvik::DataModel::MediaAssets::Json::otio {

inline constexpr char kTimeline[] = "Timeline.1";
/// What OpenTimelineIO's development version writes; read as well, for an editor that saved with it.
inline constexpr char kNextTimeline[] = "Timeline.2";
inline constexpr char kStack[] = "Stack.1";
inline constexpr char kTrack[] = "Track.1";
inline constexpr char kClip[] = "Clip.2";
inline constexpr char kExternalReference[] = "ExternalReference.1";
inline constexpr char kMissingReference[] = "MissingReference.1";
inline constexpr char kMarker[] = "Marker.2";
inline constexpr char kTimeRange[] = "TimeRange.1";
inline constexpr char kRationalTime[] = "RationalTime.1";

inline constexpr char kVideo[] = "Video";
inline constexpr char kAudio[] = "Audio";
inline constexpr char kDefaultMedia[] = "DEFAULT_MEDIA";
inline constexpr char kMarkerColor[] = "RED";

/// The members that both the writer and the reader name.
inline constexpr char kSchemaMember[] = "OTIO_SCHEMA";
inline constexpr char kChildren[] = "children";
inline constexpr char kDuration[] = "duration";
inline constexpr char kMarkedRange[] = "marked_range";
inline constexpr char kMarkers[] = "markers";
inline constexpr char kMetadata[] = "metadata";
inline constexpr char kName[] = "name";
inline constexpr char kRate[] = "rate";
inline constexpr char kSourceRange[] = "source_range";
inline constexpr char kStartTime[] = "start_time";
inline constexpr char kTracks[] = "tracks";
inline constexpr char kValue[] = "value";

/// The members of our metadata ("orvik"): the asset's document in the timeline's, the track id
/// in a clip's, the annotation's index in a marker's.
inline constexpr char kAssetKey[] = "asset";
inline constexpr char kTrackKey[] = "track";
inline constexpr char kAnnotationKey[] = "annotation";
inline constexpr char kAssetPointer[] = "/metadata/orvik/asset";

/// The indented asset document sits three levels deep in an indented timeline: each of its lines
/// after the first is moved right by this many blanks, and moved back on reading.
inline constexpr size_t kEmbeddedIndent = 12;

}  // namespace Orvik::DataModel::MediaAssets::Json::otio
