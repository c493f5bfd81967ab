#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>

#include <cstdint>

namespace Orvik::DataModel::MediaAssets {

/// One channel of a track: the stream that carries it, the number of the essence within that
/// stream and the channel number within the essence.
///
/// A plain copy shares the stream. Clone() gives the copy a deep copy of the stream (a new stream
/// with the same id) when the reference holds one, and the stream id alone otherwise. Two
/// channels are equal when the stream ids, essence numbers and channel numbers are; the streams
/// themselves are not compared.
///
/// Failure guarantee: Clone() is strong for the new object; a failing stream clone leaves the
/// source stream's cloned essences with empty metadata, as Essence::Clone() documents. Setters are
/// strong.
class TrackChannelToRemove {
public:
    TrackChannelToRemove() = default;

    bool operator==(const TrackChannelToRemove& other) const
    {
        return stream.Id() == other.stream.Id() && essenceNr == other.essenceNr && channelNr == other.channelNr;
    }
    bool operator!=(const TrackChannelToRemove& other) const { return !(*this == other); }

    int32_t EssenceNr() const { return essenceNr; }
    void EssenceNr(int32_t value) { essenceNr = value; }
    int32_t ChannelNr() const { return channelNr; }
    void ChannelNr(int32_t value) { channelNr = value; }
    const StreamReference& Stream() const { return stream; }
    void Stream(const StreamReference& value) { stream = value; }

    TrackChannelToRemove Clone() const;

private:
    StreamReference stream;
    int32_t essenceNr = 0;
    int32_t channelNr = 0;
};

}  // namespace Orvik::DataModel::MediaAssets
