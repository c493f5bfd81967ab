#pragma once

// The model's own rules that a document can break although it reads as an asset or a group.

#include "Problem.h"

#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>

#include <vector>

namespace Orvik::AssetTool {

/// The problems of `asset`, in document order, each with the JSON pointer of the offending
/// member in the asset's JSON document (a stream or timecode table that several places share is
/// checked where the document writes it, its first place):
/// - time bounds (of the asset, its resources and their streams) that are not valid: stretches
///   that overlap, an in boundary not before the out boundary, an in or out boundary outside
///   every stretch;
/// - timecode jumps without a timecode text, and operator timecodes whose rate is not positive
///   (they cannot be read as a clock);
/// - clip identifiers out of range in operator profiles (page 0 to 9, bank 1 to 9, clip 0 to 9,
///   camera 'A' to 'L' or none), and video-server serial numbers that are not a positive
///   multiple of 10 (in profiles, where 0 means no server, and in video-server locations);
/// - ids that occur twice among the tracks, the layouts, the items of a layout, or the timecode
///   tables of an essence;
/// - dangling references: a track channel naming a stream that none of the asset's resources
///   holds (checked only when every resource is loaded), an essence's track channel naming a
///   track the asset does not have, a layout item showing a track that no longer exists or that
///   is not one of the asset's tracks.
std::vector<Problem> Validate(const DataModel::MediaAssets::MediaAsset& asset);

/// The problems of `group`: those of its operator profiles, and items that refer to no asset.
std::vector<Problem> Validate(const DataModel::MediaAssets::MediaAssetGroup& group);

}  // namespace Orvik::AssetTool
