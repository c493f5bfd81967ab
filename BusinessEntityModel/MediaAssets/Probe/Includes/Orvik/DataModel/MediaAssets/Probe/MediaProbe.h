#pragma once

#include <Orvik/DataModel/MediaAssets/Probe/ProbeResult.h>

#include <string>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Probe {

/// Describes the media file at `path` from its headers (and the first packets that the headers
/// leave open, at most a few megabytes and never the whole file).
///
/// The file is untrusted. The probe reads that one file and nothing else: no other file, no
/// network, no demuxer that follows names inside the file (playlists, concat lists, image
/// sequences, references); a format that would is refused with a ProbeError.
///
/// Ids come from the file's name: the asset is the name itself ("clip.mxf"), its resource
/// "clip.mxf/resource", the stream "clip.mxf/stream", the tracks "V1", "V2", ... and "A1", "A2",
/// ... in the order of the file's streams. The stream's location is a FileLocation with the
/// absolute, percent-encoded file:// URI of the file, its size and its dates.
///
/// Throws ProbeError when the file cannot be described, also when FFmpeg cannot get the memory
/// that the file's headers ask for (a corrupt size and a lack of memory look alike there);
/// std::bad_alloc when memory runs out anywhere else.
/// Safe to call from several threads at once, on different files.
ProbeResult ProbeFile(const std::string& path);

/// As ProbeFile, for the bytes of a media file held in memory; `name` stands for the file's name
/// in the ids and in errors, and the stream has no location.
ProbeResult ProbeBytes(std::string_view bytes, const std::string& name);

}  // namespace Orvik::DataModel::MediaAssets::Probe
