#pragma once

#include <Orvik/DataModel/MediaAssets/AnglesMediaAssetGroupItem.h>
#include <Orvik/DataModel/MediaAssets/AnglesPelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/MediaAssetGroup.h>

namespace Orvik::DataModel::MediaAssets {

/// A multi-angle group: its type is "AnglesMediaAssetGroup", its items name their angles, and its
/// metadata may hold the AnglesPelkOperatorMetadataProfile of the clip the group stands for.
class AnglesMediaAssetGroup : public MediaAssetGroup {
public:
    /// "AnglesMediaAssetGroup", created once on first use (thread-safe).
    static const Utf8String& StaticType();

    AnglesMediaAssetGroup() : AnglesMediaAssetGroup(Identifier::Empty()) {}
    /// Explicit: an identifier is not a group; an implicit conversion would let `x == id` compile.
    explicit AnglesMediaAssetGroup(const MediaAssetGroupId& id) : MediaAssetGroup(id, StaticType()) {}

    /// True when the metadata holds an AnglesPelkOperatorMetadataProfile under its name (a full
    /// PelkOperatorMetadataProfile there does not count).
    bool HasPelkOperatorMetadata() const;
    /// That profile, shared with the metadata; nothing is ever added. Throws std::runtime_error
    /// "Orvik::DataModel::MediaAssets::AnglesPelkOperatorMetadataProfile: No orvik.pelkoperator
    /// metadata available" when there is none.
    AnglesPelkOperatorMetadataProfile& PelkOperatorMetadata();
    const AnglesPelkOperatorMetadataProfile& PelkOperatorMetadata() const;

    /// The angles item that refers to the asset `assetId`. Throws std::runtime_error
    /// "Orvik::DataModel::MediaAssets::MediaAssetGroup::Item: no item for asset " + id when there
    /// is none, and "Orvik::DataModel::MediaAssets::AnglesMediaAssetGroup::Item: not an angles item
    /// for asset " + id when that item is of another kind.
    AnglesMediaAssetGroupItem& Item(const MediaAssetGroupId& assetId) const;
};

}  // namespace Orvik::DataModel::MediaAssets
