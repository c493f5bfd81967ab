#include <Orvik/DataModel/MediaAssets/Track.h>

#include "EqualityVisitor.h"

#include <memory>

namespace Orvik::DataModel::MediaAssets {

bool Track::operator==(const Track& other) const { return detail::EqualInOrder(*this, other); }

Track Track::Clone() const
{
    Track copy(id, name);
    copy.channels.reserve(channels.size());
    for (const auto& channel : channels)
        copy.channels.push_back(std::make_shared<TrackChannelToRemove>(channel->Clone()));
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
