#include <Orvik/DataModel/MediaAssets/VideoEssence.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool VideoEssence::operator==(const Essence& other) const { return detail::EqualInOrder(*this, other); }

std::unique_ptr<Essence> VideoEssence::Clone() const
{
    std::unique_ptr<VideoEssence> copy(new VideoEssence(*this));
    copy->CloneContentsFrom(*this);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
