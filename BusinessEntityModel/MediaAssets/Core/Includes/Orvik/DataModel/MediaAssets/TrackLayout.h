#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/TrackLayoutItem.h>

namespace Orvik::DataModel::MediaAssets {

/// An arrangement of an asset's tracks for presentation: items sorted by id, each showing some
/// tracks by weak pointer.
///
/// Layouts are ordered by id and equal when id, name and the items are (see TrackLayoutItem,
/// including the expiry error). A copy, and Clone() too, keeps referring to the same track
/// objects; a copy keeps objectId, Clone() gives the layout and its items objectId -1.
///
/// Failure guarantee: Clone(), the copy constructor and item inserts are strong; copy assignment is
/// member-wise and basic.
class TrackLayout : public PersistentObject {
public:
    TrackLayout() : TrackLayout(Identifier::Empty()) {}
    /// Explicit: an identifier is not a layout; an implicit conversion would let `x == id` compile.
    explicit TrackLayout(const Identifier& id) : id(id) {}
    TrackLayout(const Identifier& id, const Utf8String& name) : id(id), name(name) {}

    bool operator<(const TrackLayout& other) const { return id < other.id; }
    bool operator==(const TrackLayout& other) const;
    bool operator!=(const TrackLayout& other) const { return !(*this == other); }

    const Identifier& Id() const { return id; }
    void Id(const Identifier& value) { id = value; }
    const Utf8String& Name() const { return name; }
    void Name(const Utf8String& value) { name = value; }
    SortedVector<TrackLayoutItem>& TrackLayoutItems() { return trackLayoutItems; }
    const SortedVector<TrackLayoutItem>& TrackLayoutItems() const { return trackLayoutItems; }
    void TrackLayoutItems(SortedVector<TrackLayoutItem>&& value) { trackLayoutItems = std::move(value); }

    TrackLayout Clone() const;

private:
    Identifier id;
    Utf8String name;
    SortedVector<TrackLayoutItem> trackLayoutItems;
};

}  // namespace Orvik::DataModel::MediaAssets
