#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/EssenceArray.h>
#include <Orvik/DataModel/MediaAssets/LocationArray.h>
#include <Orvik/DataModel/MediaAssets/TimeBoundsArray.h>
#include <Orvik/DataModel/MediaAssets/WrapperFormat.h>

#include <memory>

namespace Orvik::DataModel::MediaAssets {

class Stream;

using StreamId = Identifier;
using StreamReference = SharedReference<Stream>;

/// One wrapped container of a media resource (an MXF file, a QuickTime movie, a storage content
/// track): its wrapper format, the time it covers, its technical metadata, the essences it carries
/// and the places where it is stored.
///
/// The stream owns its essences and locations; their order is meaningful. Clone() copies the
/// time bounds, deep-copies the metadata into a dictionary of the clone's own, and clones each
/// essence and location through its virtual Clone(); the clone keeps the stream id and has
/// objectId -1. Cloning the essences empties each source essence's metadata dictionary and
/// shares it with the clone, and shares their timecode tables (see Essence::Clone). The copy
/// constructor and copy assignment do the same as Clone() but keep the source's objectId; a
/// moved-from stream may only be assigned to or destroyed.
///
/// Two streams are equal when stream id, format, time bounds, metadata (by value), the essences
/// and the locations (position by position, through their virtual operator==) are; objectId is
/// not compared. If a Clone() or a copy throws, nothing is returned; the only lasting change to
/// the source is what the completed essence clones did to its essences' metadata.
///
/// Failure guarantee: Clone(), the copy constructor and copy assignment are strong for the target
/// (copy assignment builds the copy first); the source keeps everything except the metadata
/// dictionaries of the essences already cloned, which are left empty as Essence::Clone() documents.
/// Setters and the essence and location inserts are strong.
class Stream : public PersistentObject {
public:
    Stream();
    /// Explicit: an identifier is not a stream; an implicit conversion would let `x == id` compile.
    explicit Stream(const StreamId& id);
    Stream(const Stream& other);
    Stream& operator=(const Stream& other);
    Stream(Stream&& other) noexcept = default;
    Stream& operator=(Stream&& other) noexcept = default;
    ~Stream() = default;

    const StreamId& Id() const { return streamId; }
    void Id(const StreamId& value) { streamId = value; }
    const WrapperFormat& Format() const { return format; }
    void Format(const WrapperFormat& value) { format = value; }
    TimeBoundsArray& Timebounds() { return timebounds; }
    const TimeBoundsArray& Timebounds() const { return timebounds; }
    void Timebounds(const TimeBoundsArray& value) { timebounds = value; }
    void Timebounds(TimeBoundsArray&& value) { timebounds = std::move(value); }
    TechnicalMetadata& Metadata() { return *metadata; }
    const TechnicalMetadata& Metadata() const { return *metadata; }
    /// The stream shares `value` from now on; it must not be null.
    void Metadata(const std::shared_ptr<MetadataProfileDictionary>& value) { metadata = value; }
    EssenceArray& Essences() { return essences; }
    const EssenceArray& Essences() const { return essences; }
    LocationArray& Locations() { return locations; }
    const LocationArray& Locations() const { return locations; }

    bool operator==(const Stream& other) const;
    bool operator!=(const Stream& other) const { return !(*this == other); }

    Stream Clone() const;

private:
    WrapperFormat format = WrapperFormat::unknown;
    TimeBoundsArray timebounds;
    std::shared_ptr<MetadataProfileDictionary> metadata;
    EssenceArray essences;
    LocationArray locations;
    StreamId streamId;
};

}  // namespace Orvik::DataModel::MediaAssets
