#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/TrackChannelToRemove.h>

#include <memory>
#include <vector>

namespace Orvik::DataModel::MediaAssets {

using TrackId = Identifier;

/// A named, identified group of channels of a media asset, each channel pointing into a stream.
///
/// Tracks are ordered by id and equal when id and name are; the channels are deliberately not
/// compared, nor is objectId. A plain copy shares the channel objects (and through them the
/// streams). Clone() makes a track with objectId -1, the same id and name, and a clone of each
/// channel, so that every channel of the clone owns its own copy of its stream.
///
/// Failure guarantee: Clone() and the copy constructor give the strong guarantee for the new object
/// (nothing is returned), and the source keeps everything except the metadata dictionaries of the
/// essences already cloned, which are left empty as Essence::Clone() documents. Setters and
/// collection inserts are strong; copy assignment is member-wise and basic (the members before the
/// failing one hold the new values).
class Track : public PersistentObject {
public:
    using ChannelVector = std::vector<std::shared_ptr<TrackChannelToRemove>>;

    Track() : Track(Identifier::Empty()) {}
    /// Explicit: an identifier is not a track; an implicit conversion would let `x == id` compile.
    explicit Track(const TrackId& id) : id(id) {}
    Track(const TrackId& id, const Utf8String& name) : id(id), name(name) {}

    bool operator<(const Track& other) const { return id < other.id; }
    bool operator==(const Track& other) const;
    bool operator!=(const Track& other) const { return !(*this == other); }

    const TrackId& Id() const { return id; }
    void Id(const TrackId& value) { id = value; }
    const Utf8String& Name() const { return name; }
    void Name(const Utf8String& value) { name = value; }
    ChannelVector& Channels() { return channels; }
    /// Read access for callers that hold a const track.
    const ChannelVector& Channels() const { return channels; }
    void Channels(ChannelVector& value) { channels = value; }

    Track Clone() const;

private:
    TrackId id;
    Utf8String name;
    ChannelVector channels;
};

}  // namespace Orvik::DataModel::MediaAssets
