#include <Orvik/DataModel/MediaAssets/AudioEssence.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

bool AudioEssence::operator==(const Essence& other) const { return detail::EqualInOrder(*this, other); }

std::unique_ptr<Essence> AudioEssence::Clone() const
{
    // Owned at once, so a throw below frees it; the copy constructor is protected, hence `new`.
    std::unique_ptr<AudioEssence> copy(new AudioEssence(*this));
    copy->CloneContentsFrom(*this);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
