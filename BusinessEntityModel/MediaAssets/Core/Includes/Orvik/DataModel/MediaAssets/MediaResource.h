#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/ResourceFormat.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>
#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>

#include <memory>
#include <vector>

namespace Orvik::DataModel::MediaAssets {

namespace detail {
struct ComparisonOrder;
}  // namespace detail

class MediaResource;

using MediaResourceId = Identifier;
using StreamReferenceVector = std::vector<StreamReference>;
/// A media asset's references to its resources, ordered and told apart by id alone.
using MediaResourceReference = SharedReference<MediaResource>;
using MediaResourceReferenceVector = SortedVector<MediaResourceReference>;

/// One physical realisation of a media asset: a set of wrapped streams (for instance the
/// high-resolution files and the proxy of a clip) with a name, a general format, the time it
/// covers, dates and technical metadata.
///
/// The resource refers to its streams by StreamReference, in insertion order; a stream lives as
/// long as some reference holds its pointer. A plain copy is member-wise: it shares the loaded
/// streams and the metadata dictionary. Clone() deep-copies: loaded streams are cloned
/// (Stream::Clone, with its effect on the source essences' metadata) into new streams with the
/// same ids, streams referenced by id alone stay references by id, the metadata is deep-copied
/// into the clone's own dictionary, and the clone has objectId -1.
///
/// Two resources are equal when id, name, general format, the stream ids (in order; neither the
/// pointers nor the streams are looked at), time bounds, dates and metadata (by value) are;
/// objectId is not compared. Resources are ordered by id. Adopt() and Add() do not look for a
/// stream id that is already referenced.
///
/// Failure guarantee: Clone() and the copy constructor give the strong guarantee for the new object
/// (nothing is returned), and the source keeps everything except the metadata dictionaries of the
/// essences already cloned, which are left empty as Essence::Clone() documents. Setters and
/// collection inserts are strong; copy assignment is member-wise and basic (the members before the
/// failing one hold the new values).
class MediaResource : public PersistentObject {
public:
    MediaResource();
    /// Explicit: an identifier is not a resource; an implicit conversion would let `x == id` compile.
    explicit MediaResource(const MediaResourceId& id);

    bool operator==(const MediaResource& other) const;
    bool operator!=(const MediaResource& other) const { return !(*this == other); }
    bool operator<(const MediaResource& other) const { return id < other.id; }

    MediaResource Clone() const;

    const MediaResourceId& Id() const { return id; }
    void Id(const MediaResourceId& value) { id = value; }
    Utf8String Name() const { return name; }
    void Name(const Utf8String& value) { name = value; }
    ResourceFormat GeneralFormat() const { return generalFormat; }
    void GeneralFormat(const ResourceFormat& value) { generalFormat = value; }
    StreamReferenceVector& Streams() { return streams; }
    const StreamReferenceVector& Streams() const { return streams; }
    /// Takes over `stream` and appends a reference holding it (pointer and id).
    void Adopt(std::unique_ptr<Stream>&& stream);
    /// Appends a reference to the stream `streamId` by id alone.
    void Add(const MediaResourceId& streamId);
    TimeBoundsArray& Timebounds() { return timebounds; }
    const TimeBoundsArray& Timebounds() const { return timebounds; }
    void Timebounds(const TimeBoundsArray& value) { timebounds = value; }
    void Timebounds(TimeBoundsArray&& value) { timebounds = std::move(value); }
    DateTime CreationDate() const { return creationDate; }
    void CreationDate(const DateTime& value) { creationDate = value; }
    DateTime ModificationDate() const { return modificationDate; }
    void ModificationDate(const DateTime& value) { modificationDate = value; }
    TechnicalMetadata& Metadata() { return *metadata; }
    const TechnicalMetadata& Metadata() const { return *metadata; }
    /// The resource shares `value` from now on; it must not be null.
    void Metadata(const std::shared_ptr<MetadataProfileDictionary>& value) { metadata = value; }

private:
    friend struct detail::ComparisonOrder;  // the comparison reads the fields without copies

    MediaResourceId id;
    Utf8String name;
    ResourceFormat generalFormat = ResourceFormat::unknown;
    StreamReferenceVector streams;
    TimeBoundsArray timebounds;
    DateTime creationDate = 0;
    DateTime modificationDate = 0;
    std::shared_ptr<MetadataProfileDictionary> metadata;
};

}  // namespace Orvik::DataModel::MediaAssets
