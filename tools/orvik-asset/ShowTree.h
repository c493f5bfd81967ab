#pragma once

// What `orvik-asset show` says about an asset or a group, as a tree of lines.

#include "TreeNode.h"

#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>

namespace Orvik::AssetTool {

/// The asset with everything it holds: fields, operator and other metadata profiles, tracks,
/// layouts, media resources with their streams, essences, timecode tables and locations, and
/// annotations. Identifiers, names and enumerations appear as their texts, time points and
/// durations by DurationText(), timecodes by TimecodeText(), locations by their URIs.
///
/// Fields at their default are left out (empty texts, zero numbers and dates, unset boundaries,
/// enumerations at their value 0, empty collections), except the ones that say what an object
/// is: the type of an asset or group, the format of a stream and the codec of an essence.
/// References that hold only an id (a resource or stream not loaded) show the id and "not
/// loaded"; layout items show "expired" for a track that no longer exists. Nothing is compared
/// and nothing is thrown for odd content: showing a document that does not pass
/// `orvik-asset validate` shows what it holds.
TreeNode AssetTree(const DataModel::MediaAssets::MediaAsset& asset);

/// The group in the same way: its fields, metadata and items (the ids of their assets, with the
/// names of the angles).
TreeNode GroupTree(const DataModel::MediaAssets::MediaAssetGroup& group);

}  // namespace Orvik::AssetTool
