#pragma once

#include "Opening.h"

#include <Orvik/DataModel/MediaAssets/Location.h>
#include <Orvik/DataModel/MediaAssets/Probe/ProbeResult.h>

#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets::Probe {

/// The asset, resource and stream that describe `media`, with ids made from `name`; the stream
/// gets `location` when there is one.
ProbeResult Describe(OpenedMedia& media, const std::string& name, std::unique_ptr<Location> location);

}  // namespace Orvik::DataModel::MediaAssets::Probe
