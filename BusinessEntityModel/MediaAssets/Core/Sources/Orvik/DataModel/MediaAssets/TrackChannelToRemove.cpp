#include <Orvik/DataModel/MediaAssets/TrackChannelToRemove.h>

#include <memory>

namespace Orvik::DataModel::MediaAssets {

TrackChannelToRemove TrackChannelToRemove::Clone() const
{
    TrackChannelToRemove copy;
    copy.essenceNr = essenceNr;
    copy.channelNr = channelNr;
    if (stream.Pointer())
        copy.stream.Pointer(std::make_shared<MediaAssets::Stream>(stream->Clone()));
    else
        copy.stream.Id(stream.Id());
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
