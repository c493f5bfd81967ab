#pragma once

// The sample objects that the example program works on and that `orvik-asset example` prints: a
// goal clip recorded on a video server, and the multi-angle group it belongs to.

#include <Orvik/DataModel/MediaAssets/AnglesMediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>

namespace Orvik::Samples {

/// A media asset with one video track over the one stream of its one resource: an MXF stream
/// holding a 1920x1080 progressive video essence at 50/1, stored on video server 120 as
/// sequence A7F3; 20 s physically present, in at 2 s and out at 12 s. Every call builds new
/// objects.
DataModel::MediaAssets::MediaAsset MakeSampleAsset();

/// A multi-angle group of the sample asset and a reverse angle, both referenced by id alone,
/// with the operator's clip identifier 123 on server 120.
DataModel::MediaAssets::AnglesMediaAssetGroup MakeSampleGroup();

}  // namespace Orvik::Samples
