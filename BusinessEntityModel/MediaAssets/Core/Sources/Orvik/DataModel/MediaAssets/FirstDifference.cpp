#include <Orvik/DataModel/MediaAssets/FirstDifference.h>

#include "DifferenceVisitor.h"

namespace Orvik::DataModel::MediaAssets {
namespace {

/// Walks `left` and `right` in the order of the class of `left`, up to the first difference.
template <typename Left, typename Right>
std::optional<Difference> Walk(const Left& left, const Right& right)
{
    detail::DifferenceVisitor visitor;
    visitor.Object(left, right);
    return visitor.Result();
}

}  // namespace

std::optional<Difference> FirstDifference(const MediaAsset& left, const MediaAsset& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const MediaResource& left, const MediaResource& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const Stream& left, const Stream& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const Essence& left, const Essence& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const Location& left, const Location& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const Track& left, const Track& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const TrackLayout& left, const TrackLayout& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const TrackLayoutItem& left, const TrackLayoutItem& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const Annotation& left, const Annotation& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const TimeBoundsArray& left, const TimeBoundsArray& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const MetadataProfile& left, const MetadataProfile& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const TimeCodeTable& left, const TimeCodeTable& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const MediaAssetGroup& left, const MediaAssetGroup& right) { return Walk(left, right); }
std::optional<Difference> FirstDifference(const MediaAssetGroupItem& left, const MediaAssetGroupItem& right) { return Walk(left, right); }

std::optional<Difference> FirstDifference(const PelkOperatorMetadataProfile& left, const PelkOperatorMetadataProfile& right)
{
    return Walk(static_cast<const MetadataProfile&>(left), static_cast<const MetadataProfile&>(right));
}

std::optional<Difference> FirstDifference(const AnglesPelkOperatorMetadataProfile& left,
                                          const AnglesPelkOperatorMetadataProfile& right)
{
    return Walk(static_cast<const MetadataProfile&>(left), static_cast<const MetadataProfile&>(right));
}

std::optional<Difference> FirstDifference(const MetadataProfileDictionary& left, const MetadataProfileDictionary& right)
{
    detail::DifferenceVisitor visitor;
    visitor.Value(left, right);
    return visitor.Result();
}

}  // namespace Orvik::DataModel::MediaAssets
