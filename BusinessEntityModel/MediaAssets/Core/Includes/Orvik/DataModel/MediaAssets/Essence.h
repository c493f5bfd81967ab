#pragma once

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeTable.h>
#include <Orvik/DataModel/MediaAssets/TrackChannel.h>

#include <cstdint>
#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// One elementary stream (sound, picture or data) of a wrapped stream.
///
/// Owned by one EssenceArray and copied only through Clone(); copying is protected so an essence
/// cannot be sliced. Its kind is fixed by the concrete class. Equality compares the kind first,
/// so essences of different kinds are never equal, then channel count, number (a negative number
/// matches any number), metadata by value, track channels and timecode tables by value in order;
/// objectId is not compared. A new essence has no number (-1), no channels and its own empty
/// metadata dictionary.
///
/// Clone() makes a copy of the concrete class, objectId included, that owns new track channels
/// and keeps sharing the timecode tables. It also shares the metadata dictionary with this
/// essence after emptying it: cloning an essence clears its technical metadata, although Clone()
/// is const. A duplicate track channel met by the sorted insert makes Clone() throw
/// "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection".
///
/// The type converts to the texts "Audio", "Data" and "Video"; an unknown text or number gives
/// Audio (with `failed` set by the two-argument form).
///
/// Failure guarantee: Clone() is basic for the source: a failure after the metadata step leaves
/// this essence's (shared) dictionary empty, as a completed Clone() does; nothing else changes and
/// no copy is returned. Setters and track-channel inserts are strong.
class Essence : public PersistentObject {
public:
    enum Type : int32_t { Audio = 0, Data = 1, Video = 2 };

    static const std::string& ToString(Essence::Type type);
    static Essence::Type ToType(const std::string& text);
    static Essence::Type ToType(const std::string& text, bool& failed);

    virtual ~Essence() = default;

    Essence::Type GetType() const { return type; }
    TechnicalMetadata& Metadata() { return *metadata; }
    const TechnicalMetadata& Metadata() const { return *metadata; }
    /// The essence shares `value` from now on; it must not be null.
    void Metadata(const std::shared_ptr<MetadataProfileDictionary>& value) { metadata = value; }
    int32_t ChannelCount() const { return channelCount; }
    void ChannelCount(int32_t value) { channelCount = value; }
    int32_t Nr() const { return nr; }
    void Nr(int32_t value) { nr = value; }
    SortedVectorSharedPointer<TrackChannel>& TrackChannels() { return trackChannels; }
    const SortedVectorSharedPointer<TrackChannel>& TrackChannels() const { return trackChannels; }
    SortedVectorSharedPointer<TimeCodeTable>& Timecodes() { return timecodes; }
    const SortedVectorSharedPointer<TimeCodeTable>& Timecodes() const { return timecodes; }

    virtual bool operator==(const Essence& other) const;
    bool operator!=(const Essence& other) const { return !(*this == other); }

    virtual std::unique_ptr<Essence> Clone() const = 0;

protected:
    explicit Essence(Essence::Type type);
    /// Copies every field as it stands: the metadata dictionary, the track channels and the
    /// timecode tables are shared.
    Essence(const Essence& other) = default;
    Essence(Essence&& other) noexcept = default;
    Essence& operator=(const Essence& other) = default;
    Essence& operator=(Essence&& other) noexcept = default;

    /// The part of Clone() that every kind shares: empties the (shared) metadata dictionary by
    /// deep-copying it into itself and rebuilds the track channels as new objects.
    void CloneContentsFrom(const Essence& source);

private:
    Essence::Type type;
    std::shared_ptr<MetadataProfileDictionary> metadata;
    int32_t channelCount = 0;
    int32_t nr = -1;
    SortedVectorSharedPointer<TrackChannel> trackChannels;
    SortedVectorSharedPointer<TimeCodeTable> timecodes;
};

}  // namespace Orvik::DataModel::MediaAssets
