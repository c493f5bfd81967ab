#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>

#include <cstdint>

namespace Orvik::DataModel::MediaAssets {

/// The channel of a track that an essence feeds.
///
/// Ordered by channel number alone, so channels of different tracks with the same number are
/// equivalent for sorting; equal only when track and number both match. A sorted vector of
/// channels therefore takes "track b, 3" in front of an existing "track a, 3".
class TrackChannel {
public:
    TrackChannel() = default;
    TrackChannel(const Identifier& trackId, int32_t channelNr) : trackId(trackId), channelNr(channelNr) {}

    const Identifier& TrackId() const { return trackId; }
    void TrackId(const Identifier& value) { trackId = value; }
    int32_t ChannelNr() const { return channelNr; }
    void ChannelNr(int32_t value) { channelNr = value; }

    /// A new channel with the same track and number.
    TrackChannel Clone() const { return TrackChannel(trackId, channelNr); }

    bool operator==(const TrackChannel& other) const { return trackId == other.trackId && channelNr == other.channelNr; }
    bool operator!=(const TrackChannel& other) const { return !(*this == other); }
    bool operator<(const TrackChannel& other) const { return channelNr < other.channelNr; }

private:
    Identifier trackId;
    int32_t channelNr = 0;
};

}  // namespace Orvik::DataModel::MediaAssets
