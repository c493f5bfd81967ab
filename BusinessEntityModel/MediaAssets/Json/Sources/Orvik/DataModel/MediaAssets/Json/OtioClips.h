#pragma once

#include "OtioClock.h"

#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>
#include <Orvik/DataModel/MediaAssets/Track.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// What the OpenTimelineIO form writes for one track of an asset, decided once here so that the
/// writer and the reader (which compares what an editor left with what was written) agree.
struct OtioClip {
    const Track* track;
    bool video;            // every channel that names a loaded essence names a video essence
    OtioClock clock;       // the clip's rate and its start timecode
    const Stream* stream;  // the loaded stream of the track's first channel, or null
    std::string streamId;  // that channel's stream id, empty without channels
};

/// A range as OpenTimelineIO writes it: start and duration in frames of the clock's rate.
struct OtioRange {
    double start;
    double duration;
    double rate;

    bool operator==(const OtioRange& other) const
    {
        return start == other.start && duration == other.duration && rate == other.rate;
    }
    bool operator!=(const OtioRange& other) const { return !(*this == other); }
};

/// One clip per track of `asset`, in the order of its tracks. The clips point into the asset.
std::vector<OtioClip> OtioClips(const MediaAsset& asset);

/// The clip that carries the asset's annotations as markers: the first video clip, else the
/// first clip; clips.size() when there is none.
size_t MarkerClip(const std::vector<OtioClip>& clips);

/// The range from `in` to `out` on `clock`; empty when either boundary is unset.
std::optional<OtioRange> Range(const OtioClock& clock, const TimeBoundary& in, const TimeBoundary& out);

/// The marked range of an annotation: its range, or the empty range at frame 0 when a boundary
/// is unset (a marker always has a range).
OtioRange MarkedRange(const OtioClock& clock, const TimeBounds& bounds);

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
