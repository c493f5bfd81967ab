#include <Orvik/DataModel/MediaAssets/TrackChannelToRemove.h>

#include "CloneTargetOrKeepId.h"

namespace Orvik::DataModel::MediaAssets {

TrackChannelToRemove TrackChannelToRemove::Clone() const
{
    TrackChannelToRemove copy;
    copy.essenceNr = essenceNr;
    copy.channelNr = channelNr;
    copy.stream = detail::CloneTargetOrKeepId(stream);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
