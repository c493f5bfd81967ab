#pragma once

#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Annotation.h>
#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Difference.h>
#include <Orvik/DataModel/MediaAssets/Essence.h>
#include <Orvik/DataModel/MediaAssets/Location.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroupItem.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>
#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeTable.h>
#include <Orvik/DataModel/MediaAssets/Track.h>
#include <Orvik/DataModel/MediaAssets/TrackLayout.h>
#include <Orvik/DataModel/MediaAssets/TrackLayoutItem.h>

#include <optional>

namespace Orvik::DataModel::MediaAssets {

/// Why `left == right` is false: the first field, in the order in which operator== compares, at
/// which the two differ (see Difference), or nothing when they are equal. So
/// FirstDifference(a, b).has_value() is exactly a != b, and it honours the same rules: objectId
/// and the profiles' protection flags are ignored, a negative essence number matches any number,
/// references compare by id only, a polymorphic child is compared by its kind before its fields
/// and in the direction of the left one's class, a count that differs is reported at the first
/// position that one side lacks, and a layout item's expired track throws
/// "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired"
/// exactly where operator== throws it.
///
/// Walking the two objects up to the first difference costs about what operator== costs, plus
/// the texts of that difference; in a metadata dictionary, the profile names are copied.
std::optional<Difference> FirstDifference(const MediaAsset& left, const MediaAsset& right);
std::optional<Difference> FirstDifference(const MediaResource& left, const MediaResource& right);
std::optional<Difference> FirstDifference(const Stream& left, const Stream& right);
/// Any kinds of essence, compared as left's virtual operator== does.
std::optional<Difference> FirstDifference(const Essence& left, const Essence& right);
/// Any kinds of location, compared as left's virtual operator== does.
std::optional<Difference> FirstDifference(const Location& left, const Location& right);
std::optional<Difference> FirstDifference(const Track& left, const Track& right);
std::optional<Difference> FirstDifference(const TrackLayout& left, const TrackLayout& right);
std::optional<Difference> FirstDifference(const TrackLayoutItem& left, const TrackLayoutItem& right);
std::optional<Difference> FirstDifference(const Annotation& left, const Annotation& right);
std::optional<Difference> FirstDifference(const TimeBoundsArray& left, const TimeBoundsArray& right);
/// Paths start with the profile's name in brackets: ["orvik.pelkoperator"].keywords[4].
std::optional<Difference> FirstDifference(const MetadataProfileDictionary& left, const MetadataProfileDictionary& right);
/// Any profiles, compared as left's virtual Equals() does.
std::optional<Difference> FirstDifference(const MetadataProfile& left, const MetadataProfile& right);
std::optional<Difference> FirstDifference(const PelkOperatorMetadataProfile& left,
                                          const PelkOperatorMetadataProfile& right);
std::optional<Difference> FirstDifference(const AnglesPelkOperatorMetadataProfile& left,
                                          const AnglesPelkOperatorMetadataProfile& right);
std::optional<Difference> FirstDifference(const TimeCodeTable& left, const TimeCodeTable& right);
/// Any groups; the items as their own virtual operator== compares them.
std::optional<Difference> FirstDifference(const MediaAssetGroup& left, const MediaAssetGroup& right);
/// Any kinds of item, compared as left's virtual operator== does: a plain item on the left
/// compares the asset ids alone.
std::optional<Difference> FirstDifference(const MediaAssetGroupItem& left, const MediaAssetGroupItem& right);

}  // namespace Orvik::DataModel::MediaAssets
