#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Location.h>

namespace Orvik::DataModel::MediaAssets {

/// The locations of a stream, owned and in insertion order.
using LocationArray = Array<Location>;

}  // namespace Orvik::DataModel::MediaAssets
