#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Essence.h>

namespace Orvik::DataModel::MediaAssets {

/// The essences of a stream, owned and in insertion order.
using EssenceArray = Array<Essence>;

}  // namespace Orvik::DataModel::MediaAssets
