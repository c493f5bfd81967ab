#include <Orvik/DataModel/MediaAssets/Annotation.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool Annotation::operator==(const Annotation& other) const { return detail::EqualInOrder(*this, other); }

Annotation Annotation::Clone() const
{
    Annotation copy(type, data);
    copy.timeBounds = timeBounds;
    copy.metadata.DeepCopy(metadata);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
