// ToOtio: an asset as an OpenTimelineIO timeline, in the schema versions of OpenTimelineIO's
// released serialisation (Timeline.1, Stack.1, Track.1, Clip.2, ExternalReference.1,
// MissingReference.1, Marker.2, TimeRange.1, RationalTime.1), members in the order it writes them.

#include "OtioClips.h"
#include "OtioNames.h"

#include <Orvik/DataModel/MediaAssets/FileLocation.h>
#include <Orvik/DataModel/MediaAssets/Json/JsonError.h>
#include <Orvik/DataModel/MediaAssets/Json/Otio.h>
#include <Orvik/DataModel/MediaAssets/Json/ToJson.h>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace Orvik::DataModel::MediaAssets::Json {

namespace {

using detail::OtioClip;
using detail::OtioRange;

/// What the writer leaves where the asset's document goes: RapidJSON would copy the document
/// byte by byte, so it is put in afterwards in one piece.
constexpr char kAssetPlaceholder[] = "{}";

template <typename W>
class OtioWriter {
public:
    explicit OtioWriter(W& w) : w(w) {}

    void Timeline(const MediaAsset& asset)
    {
        const std::vector<OtioClip> clips = detail::OtioClips(asset);
        const size_t markerClip = detail::MarkerClip(clips);
        w.StartObject();
        Schema(otio::kTimeline);
        Key(otio::kMetadata);
        w.StartObject();
        Key(kOtioMetadataKey);
        w.StartObject();
        Key(otio::kAssetKey);
        w.RawValue(kAssetPlaceholder, sizeof kAssetPlaceholder - 1, rapidjson::kObjectType);
        w.EndObject();
        w.EndObject();
        String(otio::kName, asset.Name());
        Key("global_start_time");
        w.Null();
        Key(otio::kTracks);
        ItemStart(otio::kStack, otio::kTracks);
        Key(otio::kChildren);
        w.StartArray();
        for (size_t index = 0; index < clips.size(); ++index)
            Track(asset, clips[index], index == markerClip);
        w.EndArray();
        w.EndObject();
        w.EndObject();
    }

private:
    void Key(const char* key) { w.Key(key); }
    void Text(const std::string& text) { w.String(text.data(), static_cast<rapidjson::SizeType>(text.size())); }
    void String(const char* key, const std::string& text)
    {
        Key(key);
        Text(text);
    }
    void Schema(const char* schema) { String(otio::kSchemaMember, schema); }
    void EmptyObject(const char* key)
    {
        Key(key);
        w.StartObject();
        w.EndObject();
    }
    void EmptyArray(const char* key)
    {
        Key(key);
        w.StartArray();
        w.EndArray();
    }

    /// The members that every Item starts with, up to its children or media references.
    void ItemStart(const char* schema, const std::string& name)
    {
        w.StartObject();
        Schema(schema);
        EmptyObject(otio::kMetadata);
        String(otio::kName, name);
        Key(otio::kSourceRange);
        w.Null();
        EmptyArray("effects");
        EmptyArray(otio::kMarkers);
        Key("enabled");
        w.Bool(true);
    }

    void Time(const char* key, double value, double rate)
    {
        Key(key);
        w.StartObject();
        Schema(otio::kRationalTime);
        Key(otio::kRate);
        w.Double(rate);
        Key(otio::kValue);
        w.Double(value);
        w.EndObject();
    }

    void Range(const char* key, const std::optional<OtioRange>& range)
    {
        Key(key);
        if (!range) {
            w.Null();
            return;
        }
        w.StartObject();
        Schema(otio::kTimeRange);
        Time(otio::kDuration, range->duration, range->rate);
        Time(otio::kStartTime, range->start, range->rate);
        w.EndObject();
    }

    /// Our own metadata of a clip or marker: {"orvik": {key: ...}}, the value written by `value`.
    template <typename Value>
    void OwnMetadata(const char* key, Value&& value)
    {
        Key(otio::kMetadata);
        w.StartObject();
        Key(kOtioMetadataKey);
        w.StartObject();
        Key(key);
        value();
        w.EndObject();
        w.EndObject();
    }

    void Track(const MediaAsset& asset, const OtioClip& clip, bool markers)
    {
        ItemStart(otio::kTrack, clip.track->Name());
        Key(otio::kChildren);
        w.StartArray();
        Clip(asset, clip, markers);
        w.EndArray();
        String("kind", clip.video ? otio::kVideo : otio::kAudio);
        w.EndObject();
    }

    void Clip(const MediaAsset& asset, const OtioClip& clip, bool markers)
    {
        w.StartObject();
        Schema(otio::kClip);
        OwnMetadata(otio::kTrackKey, [&] { Text(clip.track->Id().Value()); });
        String(otio::kName, asset.Name());
        Range(otio::kSourceRange, detail::Range(clip.clock, asset.InBoundary(), asset.OutBoundary()));
        EmptyArray("effects");
        Key(otio::kMarkers);
        w.StartArray();
        if (markers)
            for (size_t index = 0; index < asset.Annotations().size(); ++index)
                Marker(*asset.Annotations()[index], index, clip);
        w.EndArray();
        Key("enabled");
        w.Bool(true);
        Key("media_references");
        w.StartObject();
        Key(otio::kDefaultMedia);
        Reference(clip);
        w.EndObject();
        String("active_media_reference_key", otio::kDefaultMedia);
        w.EndObject();
    }

    void Marker(const Annotation& annotation, size_t index, const OtioClip& clip)
    {
        w.StartObject();
        Schema(otio::kMarker);
        OwnMetadata(otio::kAnnotationKey, [&] { w.Uint64(index); });
        String(otio::kName, annotation.Data());
        String("color", otio::kMarkerColor);
        Range(otio::kMarkedRange, detail::MarkedRange(clip.clock, annotation.TimeBounds()));
        String("comment", "");
        w.EndObject();
    }

    /// An ExternalReference to the stream's first file location, or a MissingReference named
    /// after the stream's first location (a video-server or storage URI), or after the stream id
    /// when the stream has no location or is not loaded.
    void Reference(const OtioClip& clip)
    {
        const Location* place = nullptr;
        const FileLocation* file = nullptr;
        if (clip.stream != nullptr)
            for (const auto& location : clip.stream->Locations()) {
                if (place == nullptr)
                    place = location.get();
                if (location->GetType() == Location::FileLocation) {
                    file = static_cast<const FileLocation*>(location.get());
                    break;
                }
            }
        w.StartObject();
        Schema(file != nullptr ? otio::kExternalReference : otio::kMissingReference);
        EmptyObject(otio::kMetadata);
        String(otio::kName, file != nullptr ? file->Name() : place != nullptr ? place->Uri().Value() : clip.streamId);
        Range("available_range",
              clip.stream == nullptr ? std::nullopt
                                     : detail::Range(clip.clock, clip.stream->Timebounds().InBoundary(),
                                                     clip.stream->Timebounds().OutBoundary()));
        Key("available_image_bounds");
        w.Null();
        if (file != nullptr)
            String("target_url", file->Uri().Value());
        w.EndObject();
    }

    W& w;
};

/// The asset's own document, with the path of a failure inside the .otio document.
/// The asset's own document, with the path of a failure inside the timeline.
std::string AssetDocument(const MediaAsset& asset, Layout layout)
{
    try {
        return ToJson(asset, layout);
    } catch (const JsonError& error) {
        throw JsonError(otio::kAssetPointer + error.Path(), error.Expected());
    }
}

/// Appends the indented `document` moved right to the depth where it stands in the timeline
/// (blanks after line breaks only change what lies between its tokens).
void AppendMovedRight(std::string& text, const std::string& document)
{
    size_t at = 0;
    for (size_t end = document.find('\n'); end != std::string::npos; end = document.find('\n', at)) {
        text.append(document, at, end + 1 - at).append(otio::kEmbeddedIndent, ' ');
        at = end + 1;
    }
    text.append(document, at, std::string::npos);
}

}  // namespace

std::string ToOtio(const MediaAsset& asset, Layout layout)
{
    const std::string document = AssetDocument(asset, layout);
    rapidjson::StringBuffer buffer;
    if (layout == Layout::Compact) {
        rapidjson::Writer<rapidjson::StringBuffer> w(buffer);
        OtioWriter(w).Timeline(asset);
    } else {
        rapidjson::PrettyWriter<rapidjson::StringBuffer> w(buffer);
        OtioWriter(w).Timeline(asset);
    }
    // The asset's document goes where the writer left its place, in one piece.
    const std::string_view timeline(buffer.GetString(), buffer.GetSize());
    const size_t at = timeline.find(kAssetPlaceholder, timeline.find('"' + std::string(otio::kAssetKey) + '"'));
    std::string text;
    text.reserve(timeline.size() + document.size() + document.size() / 2 + 1);
    text.append(timeline.substr(0, at));
    if (layout == Layout::Compact) {
        text.append(document);
    } else {
        AppendMovedRight(text, document);
    }
    text.append(timeline.substr(at + sizeof kAssetPlaceholder - 1));
    if (layout == Layout::Indented)
        text += '\n';
    return text;
}

void ToOtio(std::ostream& out, const MediaAsset& asset, Layout layout)
{
    const std::string text = ToOtio(asset, layout);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
}

}  // namespace Orvik::DataModel::MediaAssets::Json
