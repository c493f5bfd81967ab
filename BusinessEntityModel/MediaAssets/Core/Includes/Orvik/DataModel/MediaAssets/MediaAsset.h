#pragma once

#include <Orvik/DataModel/MediaAssets/Annotation.h>
#include <Orvik/DataModel/MediaAssets/AssetType.h>
#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/MediaResource.h>
#include <Orvik/DataModel/MediaAssets/PelkOperatorMetadataProfile.h>
#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>
#include <Orvik/DataModel/MediaAssets/Track.h>
#include <Orvik/DataModel/MediaAssets/TrackLayout.h>

namespace Orvik::DataModel::MediaAssets {

class MediaAsset;

using MediaAssetId = Identifier;
using MediaAssetReference = SharedReference<MediaAsset>;

/// One media item of kind train or media: its name, its lineage (ancestor and parent assets), the
/// time it covers, its tracks and track layouts, its physical media resources, its annotations
/// and its editorial metadata.
///
/// Ownership: tracks, layouts, resources and annotations are held by shared pointer, and a plain
/// copy shares them. Clone() is the deep copy, with deliberate exceptions:
/// - the clone has objectId -1;
/// - ancestor and parent keep only their ids: the clone never holds the lineage assets;
/// - each track is cloned (objectId -1) and every channel gets its own deep copy of its stream,
///   not shared with the streams of the cloned resources;
/// - layouts are copied (objectId kept) and their items keep pointing at this asset's tracks,
///   not at the clone's: comparing the clone's layouts throws once this asset's tracks are gone;
/// - resources held by pointer are cloned, resources referenced by id stay references by id;
/// - annotations are cloned (objectId -1) and the metadata is deep-copied.
/// Cloning the streams empties the metadata dictionaries of the source essences (Essence::Clone).
/// A duplicate refused by a sorted insert, or a null annotation (std::invalid_argument), makes
/// Clone() throw; nothing is returned then.
///
/// Two assets are equal when id, asset type, the ancestor and parent ids, name, description,
/// physical time bounds, dates, metadata (by value), tracks (id and name), layouts, resource ids
/// and annotations (by value; a null annotation is never equal) are, compared in that order;
/// objectId is not compared. Comparing layouts whose tracks are gone throws std::runtime_error
/// "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired".
/// Assets are ordered by id.
///
/// Failure guarantee: Clone() and the copy constructor give the strong guarantee for the new object
/// (nothing is returned), and the source keeps everything except the metadata dictionaries of the
/// essences already cloned, which are left empty as Essence::Clone() documents. Setters and
/// collection inserts are strong; copy assignment is member-wise and basic (the members before the
/// failing one hold the new values).
class MediaAsset : public PersistentObject {
public:
    MediaAsset() : MediaAsset(Identifier::Empty()) {}
    /// Explicit: an identifier is not an asset; an implicit conversion would let `x == id` compile.
    explicit MediaAsset(const MediaAssetId& id) : id(id) {}

    bool operator==(const MediaAsset& other) const;
    bool operator!=(const MediaAsset& other) const { return !(*this == other); }
    bool operator<(const MediaAsset& other) const { return id < other.id; }

    const MediaAssetId& Id() const { return id; }
    void Id(const MediaAssetId& value) { id = value; }
    MediaAssets::AssetType AssetType() const { return assetType; }
    void AssetType(MediaAssets::AssetType value) { assetType = value; }
    const MediaAssetReference& Ancestor() const { return ancestor; }
    void Ancestor(const MediaAssetReference& value) { ancestor = value; }
    const MediaAssetReference& Parent() const { return parent; }
    void Parent(const MediaAssetReference& value) { parent = value; }
    const Utf8String& Name() const { return name; }
    void Name(const Utf8String& value) { name = value; }
    const Utf8String& Description() const { return description; }
    void Description(const Utf8String& value) { description = value; }
    const TimeBoundary& InBoundary() const { return physicalTimebounds.InBoundary(); }
    void InBoundary(const TimeBoundary& value) { physicalTimebounds.InBoundary(value); }
    const TimeBoundary& OutBoundary() const { return physicalTimebounds.OutBoundary(); }
    void OutBoundary(const TimeBoundary& value) { physicalTimebounds.OutBoundary(value); }
    TimeBoundsArray& PhysicalTimebounds() { return physicalTimebounds; }
    const TimeBoundsArray& PhysicalTimebounds() const { return physicalTimebounds; }
    void PhysicalTimebounds(const TimeBoundsArray& value) { physicalTimebounds = value; }
    void PhysicalTimebounds(TimeBoundsArray&& value) { physicalTimebounds = std::move(value); }
    DateTime CreationDate() const { return creationDate; }
    void CreationDate(DateTime value) { creationDate = value; }
    DateTime ModificationDate() const { return modificationDate; }
    void ModificationDate(DateTime value) { modificationDate = value; }
    EditorialMetadata& Metadata() { return metadata; }
    const EditorialMetadata& Metadata() const { return metadata; }
    void Metadata(EditorialMetadata&& value) { metadata = std::move(value); }
    SortedVectorSharedPointer<Track>& Tracks() { return tracks; }
    const SortedVectorSharedPointer<Track>& Tracks() const { return tracks; }
    void Tracks(const SortedVectorSharedPointer<Track>& value) { tracks = value; }
    SortedVectorSharedPointer<TrackLayout>& TrackLayouts() { return trackLayouts; }
    const SortedVectorSharedPointer<TrackLayout>& TrackLayouts() const { return trackLayouts; }
    void TrackLayouts(SortedVectorSharedPointer<TrackLayout>&& value) { trackLayouts = std::move(value); }
    MediaResourceReferenceVector& MediaResources() { return mediaResources; }
    const MediaResourceReferenceVector& MediaResources() const { return mediaResources; }
    void MediaResources(const MediaResourceReferenceVector& value) { mediaResources = value; }
    AnnotationArray& Annotations() { return annotations; }
    const AnnotationArray& Annotations() const { return annotations; }

    /// True when the metadata holds a PelkOperatorMetadataProfile under its name.
    bool HasPelkOperatorMetadata() const;
    /// That profile, shared with the metadata. Throws std::runtime_error
    /// "Orvik::DataModel::MediaAssets::MediaAsset::PelkOperatorMetadata: No orvik.pelkoperator
    /// metadata available" when there is none (or a profile of another class under its name).
    PelkOperatorMetadataProfile& PelkOperatorMetadata();
    const PelkOperatorMetadataProfile& PelkOperatorMetadata() const;

    /// The in/out duration: zero while the out boundary is unset, otherwise out minus in, even
    /// when the in boundary is unset. The subtraction is plain 64-bit and wraps around: an out
    /// boundary at 250 ns against an unset in boundary gives -9223372036854775559 ns.
    MediaAssets::Duration GetDuration() const { return GetInOutDuration(); }

    MediaAsset Clone() const;

private:
    MediaAssets::Duration GetInOutDuration() const;

    MediaAssetId id;
    MediaAssets::AssetType assetType = MediaAssets::AssetType::unknown;
    MediaAssetReference ancestor;
    MediaAssetReference parent;
    Utf8String name;
    Utf8String description;
    TimeBoundsArray physicalTimebounds;
    DateTime creationDate = 0;
    DateTime modificationDate = 0;
    EditorialMetadata metadata;
    SortedVectorSharedPointer<Track> tracks;
    SortedVectorSharedPointer<TrackLayout> trackLayouts;
    MediaResourceReferenceVector mediaResources;
    AnnotationArray annotations;
};

}  // namespace Orvik::DataModel::MediaAssets
