#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/Track.h>

namespace Orvik::DataModel::MediaAssets {

/// An entry of a track layout that shows some of the asset's tracks, held by weak pointer so that
/// a layout never keeps a track alive.
///
/// The id is fixed at construction (there is no setter): it is the item's sort key inside its
/// layout. Items are ordered
/// by id and equal when id, name and the tracks (pairwise by id and name) are. Comparing items, or
/// inserting into Tracks(), once a referenced track has been destroyed throws std::runtime_error
/// "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired". A
/// copy, and Clone() too, refers to the very same track objects (Clone() gives objectId -1, a
/// copy keeps it).
class TrackLayoutItem : public PersistentObject {
public:
    /// Explicit: an identifier is not a layout item; an implicit conversion would let `x == id` compile.
    explicit TrackLayoutItem(const Identifier& id) : id(id) {}

    bool operator<(const TrackLayoutItem& other) const { return id < other.id; }
    bool operator==(const TrackLayoutItem& other) const;
    bool operator!=(const TrackLayoutItem& other) const { return !(*this == other); }

    const Identifier& Id() const { return id; }
    const Utf8String& Name() const { return name; }
    void Name(const Utf8String& value) { name = value; }
    SortedVectorWeakPointer<Track>& Tracks() { return tracks; }
    const SortedVectorWeakPointer<Track>& Tracks() const { return tracks; }
    void Tracks(const SortedVectorWeakPointer<Track>& value) { tracks = value; }

    TrackLayoutItem Clone() const;

private:
    Identifier id;
    Utf8String name;
    SortedVectorWeakPointer<Track> tracks;
};

}  // namespace Orvik::DataModel::MediaAssets
