#include <Orvik/DataModel/MediaAssets/DataEssence.h>

namespace Orvik::DataModel::MediaAssets {

std::unique_ptr<Essence> DataEssence::Clone() const
{
    std::unique_ptr<DataEssence> copy(new DataEssence(*this));
    copy->CloneContentsFrom(*this);
    return copy;
}

}  // namespace Orvik::DataModel::MediaAssets
