#include <Orvik/DataModel/MediaAssets/Annotation.h>

namespace Orvik::DataModel::MediaAssets {

bool Annotation::operator==(const Annotation& other) const
{
    return type == other.type && data == other.data
        && timeBounds.InBoundary().TimePoint() == other.timeBounds.InBoundary().TimePoint()
        && timeBounds.InBoundary().IsMoving() == other.timeBounds.InBoundary().IsMoving()
        && timeBounds.OutBoundary().TimePoint() == other.timeBounds.OutBoundary().TimePoint()
        && timeBounds.OutBoundary().IsMoving() == other.timeBounds.OutBoundary().IsMoving()
        && metadata == other.metadata;
}

Annotation Annotation::Clone() const
{
    Annotation copy(type, data);
    copy.timeBounds = timeBounds;
    copy.metadata.DeepCopy(metadata);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
