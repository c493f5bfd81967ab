#include <Orvik/DataModel/MediaAssets/Stream.h>

#include "EqualityVisitor.h"

#include <Orvik/DataModel/MediaAssets/Essence.h>
#include <Orvik/DataModel/MediaAssets/Location.h>

#include <utility>

namespace Orvik::DataModel::MediaAssets {

Stream::Stream() : Stream(Identifier::Empty()) {}

Stream::Stream(const StreamId& id) : metadata(std::make_shared<MetadataProfileDictionary>()), streamId(id) {}

Stream::Stream(const Stream& other) : Stream(other.Clone()) { ObjectId(other.ObjectId()); }

Stream& Stream::operator=(const Stream& other)
{
    if (this != &other)
        *this = Stream(other);
    return *this;
}

bool Stream::operator==(const Stream& other) const { return detail::EqualInOrder(*this, other); }

Stream Stream::Clone() const
{
    Stream copy;
    copy.streamId = streamId;
    copy.format = format;
    copy.timebounds = timebounds;
    copy.metadata->DeepCopy(*metadata);
    copy.essences.Copy(essences);
    copy.locations.Copy(locations);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
