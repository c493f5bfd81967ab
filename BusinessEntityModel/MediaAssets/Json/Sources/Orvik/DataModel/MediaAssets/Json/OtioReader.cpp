// FromOtio: the asset of a timeline that ToOtio wrote, with an editor's changes read back.

#include "MalformedJson.h"
#include "OtioClips.h"
#include "OtioNames.h"
#include "StreamText.h"

#include <Orvik/DataModel/MediaAssets/Annotation.h>
#include <Orvik/DataModel/MediaAssets/Json/FromJson.h>
#include <Orvik/DataModel/MediaAssets/Json/JsonError.h>
#include <Orvik/DataModel/MediaAssets/Json/JsonPointer.h>
#include <Orvik/DataModel/MediaAssets/Json/Otio.h>

#include <simdjson.h>

#include <charconv>
#include <cmath>
#include <iterator>

namespace Orvik::DataModel::MediaAssets::Json {

namespace {

using detail::OtioClip;
using detail::OtioClock;
using detail::OtioRange;
using simdjson::dom::element;
using simdjson::dom::element_type;

/// A value of the document and where it stands.
struct Place {
    element value;
    JsonPointer at;
};

std::string NumberText(double number)
{
    char text[32];
    const auto end = std::to_chars(std::begin(text), std::end(text), number).ptr;
    return std::string(text, end);
}

/// How a value is named in an error: its kind, or the number itself.
std::string Found(const element& value)
{
    switch (value.type()) {
    case element_type::ARRAY:
        return "an array";
    case element_type::OBJECT:
        return "an object";
    case element_type::STRING:
        return "a string";
    case element_type::BOOL:
        return "true or false";
    case element_type::NULL_VALUE:
        return "null";
    case element_type::INT64:
        return std::to_string(int64_t(value));
    case element_type::UINT64:
        return std::to_string(uint64_t(value));
    case element_type::DOUBLE:
        break;
    }
    return NumberText(double(value));
}

[[noreturn]] void Fail(const Place& place, const std::string& expected)
{
    throw JsonError(place.at.Text(), "expected " + expected + ", found " + Found(place.value));
}

Place Member(const Place& object, const char* key)
{
    if (!object.value.is_object())
        Fail(object, "an object");
    element value;
    if (object.value.get_object().at_key(key).get(value) != simdjson::SUCCESS)
        throw JsonError(object.at.Text(), std::string("expected member \"") + key + "\"");
    return Place{value, object.at / key};
}

std::optional<Place> OptionalMember(const Place& object, const char* key)
{
    if (!object.value.is_object())
        Fail(object, "an object");
    element value;
    if (object.value.get_object().at_key(key).get(value) != simdjson::SUCCESS)
        return std::nullopt;
    return Place{value, object.at / key};
}

std::string String(const Place& place)
{
    if (!place.value.is_string())
        Fail(place, "a string");
    return std::string(std::string_view(place.value));
}

double Number(const Place& place)
{
    if (!place.value.is_number())
        Fail(place, "a number");
    return place.value.get_double().value_unsafe();
}

/// The elements of an array, each with its place.
std::vector<Place> Elements(const Place& place)
{
    if (!place.value.is_array())
        Fail(place, "an array");
    std::vector<Place> elements;
    for (const element value : place.value.get_array())
        elements.push_back(Place{value, place.at / elements.size()});
    return elements;
}

/// A range as the document holds it (null for a missing one).
std::optional<OtioRange> DocumentRange(const Place& place)
{
    if (place.value.is_null())
        return std::nullopt;
    const Place start = Member(place, otio::kStartTime);
    const Place duration = Member(place, otio::kDuration);
    return OtioRange{Number(Member(start, otio::kValue)), Number(Member(duration, otio::kValue)),
                     Number(Member(start, otio::kRate))};
}

/// The frames of the RationalTime at `time`: a whole number at the clip's own rate, so that an
/// edit comes back exactly.
int64_t WholeFrames(const Place& time, const OtioClock& clock)
{
    const Place rate = Member(time, otio::kRate);
    if (Number(rate) != clock.Rate())
        Fail(rate, "the clip's rate " + NumberText(clock.Rate()));
    const Place value = Member(time, otio::kValue);
    const double frames = Number(value);
    // 2^63, the first double beyond the 64-bit range.
    if (frames != std::trunc(frames) || std::fabs(frames) >= 9223372036854775808.0)
        Fail(value, "a whole number of frames");
    return static_cast<int64_t>(frames);
}

/// The in and out points of the edited range at `place`.
std::pair<TimePoint, TimePoint> EditedPoints(const Place& place, const OtioClock& clock)
{
    const Place start = Member(place, otio::kStartTime);
    const int64_t first = WholeFrames(start, clock);
    const std::optional<TimePoint> in = clock.Point(first);
    if (!in)
        Fail(Member(start, otio::kValue), "a frame on the 64-bit nanosecond time line");
    const Place duration = Member(place, otio::kDuration);
    const int64_t length = WholeFrames(duration, clock);
    int64_t last = 0;
    const std::optional<TimePoint> out = __builtin_add_overflow(first, length, &last) ? std::nullopt : clock.Point(last);
    if (!out)
        Fail(Member(duration, otio::kValue), "a range on the 64-bit nanosecond time line");
    return {*in, *out};
}

class OtioReader {
public:
    explicit OtioReader(MediaAsset& asset) : asset(asset), clips(detail::OtioClips(asset)), original(asset.Annotations()) {}

    void Clip(const Place& clip)
    {
        const std::optional<Place> metadata = OptionalMember(clip, otio::kMetadata);
        const std::optional<Place> own = metadata ? OptionalMember(*metadata, kOtioMetadataKey) : std::nullopt;
        if (!own)
            return;  // a clip that an editor added: nothing of the asset
        const Place trackId = Member(*own, otio::kTrackKey);
        const std::string id = String(trackId);
        size_t index = 0;
        while (index < clips.size() && clips[index].track->Id().Value() != id)
            ++index;
        if (index == clips.size())
            Fail(trackId, "the id of one of the asset's tracks");
        const OtioClip& written = clips[index];
        SourceRange(Member(clip, otio::kSourceRange), written.clock);
        if (index == detail::MarkerClip(clips))
            Markers(Member(clip, otio::kMarkers), written.clock);
    }

    void Finish()
    {
        if (edit) {
            asset.InBoundary(TimeBoundary(edit->in, asset.InBoundary().IsMoving()));
            asset.OutBoundary(TimeBoundary(edit->out, asset.OutBoundary().IsMoving()));
        }
    }

private:
    struct Edit {
        TimePoint in;
        TimePoint out;
        std::string at;
    };

    void SourceRange(const Place& place, const OtioClock& clock)
    {
        const std::optional<OtioRange> range = DocumentRange(place);
        if (!range || range == detail::Range(clock, asset.InBoundary(), asset.OutBoundary()))
            return;
        const auto [in, out] = EditedPoints(place, clock);
        if (!edit)
            edit = Edit{in, out, place.at.Text()};
        else if (edit->in != in || edit->out != out)
            throw JsonError(place.at.Text(), "expected the in and out points of " + edit->at + ", found others");
    }

    void Markers(const Place& place, const OtioClock& clock)
    {
        AnnotationArray annotations;
        for (const Place& marker : Elements(place))
            annotations.push_back(Annotation(marker, clock));
        asset.Annotations() = std::move(annotations);
    }

    std::shared_ptr<MediaAssets::Annotation> Annotation(const Place& marker, const OtioClock& clock)
    {
        const std::string name = String(Member(marker, otio::kName));
        const std::optional<Place> metadata = OptionalMember(marker, otio::kMetadata);
        const std::optional<Place> own = metadata ? OptionalMember(*metadata, kOtioMetadataKey) : std::nullopt;
        std::shared_ptr<MediaAssets::Annotation> annotation;
        if (own) {
            const Place index = Member(*own, otio::kAnnotationKey);
            if (!index.value.is_uint64() || uint64_t(index.value) >= original.size())
                Fail(index, "the index of one of the asset's " + std::to_string(original.size()) + " annotations");
            annotation = std::make_shared<MediaAssets::Annotation>(*original[uint64_t(index.value)]);
        } else {
            annotation = std::make_shared<MediaAssets::Annotation>(AnnotationType::CuePoint);
        }
        annotation->Data(name);
        const Place markedRange = Member(marker, otio::kMarkedRange);
        const std::optional<OtioRange> range = DocumentRange(markedRange);
        if (!range)
            Fail(markedRange, "a TimeRange");
        if (!own || *range != detail::MarkedRange(clock, annotation->TimeBounds())) {
            const auto [in, out] = EditedPoints(markedRange, clock);
            const TimeBounds& was = annotation->TimeBounds();
            annotation->TimeBounds(
                TimeBounds(TimeBoundary(in, was.InBoundary().IsMoving()), TimeBoundary(out, was.OutBoundary().IsMoving())));
        }
        return annotation;
    }

    MediaAsset& asset;
    const std::vector<OtioClip> clips;
    const AnnotationArray original;
    std::optional<Edit> edit;
};

/// The asset's document as ToJson wrote it: an indented one (it starts with a line break) moved
/// back left by the blanks that ToOtio put after each line break, when every line has them.
std::string Unindented(std::string_view text)
{
    text = text.substr(0, text.find_last_not_of(" \t\n\r") + 1);  // the object ends at its brace
    if (text.substr(0, 2) != "{\n")
        return std::string(text);
    static const std::string kBlanks(otio::kEmbeddedIndent, ' ');
    const std::string_view blanks = kBlanks;
    std::string document;
    document.reserve(text.size());
    size_t at = 0;
    for (size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n', at)) {
        if (text.substr(end + 1, blanks.size()) != blanks)
            return std::string(text);
        document.append(text.substr(at, end + 1 - at));
        at = end + 1 + blanks.size();
    }
    document.append(text.substr(at));
    return document;
}

/// The asset document in our metadata, as its exact text (metadata profiles kept as read compare
/// their texts), with the path of a failure inside the .otio document.
MediaAsset EmbeddedAsset(const Place& place, const simdjson::padded_string& document)
{
    if (!place.value.is_object())
        Fail(place, "the asset's document as an object");
    // The tree above holds no text positions: an on-demand pass finds the object's bytes, at the
    // same first members that the tree's look-ups took.
    thread_local simdjson::ondemand::parser parser;
    simdjson::ondemand::document onDemand = parser.iterate(document);
    simdjson::ondemand::object object;
    std::string_view text;
    if (onDemand[otio::kMetadata][kOtioMetadataKey][otio::kAssetKey].get_object().get(object) != simdjson::SUCCESS
        || object.raw_json().get(text) != simdjson::SUCCESS)
        Fail(place, "the asset's document as an object");
    try {
        return FromJson<MediaAsset>(Unindented(text));
    } catch (const JsonError& error) {
        throw JsonError(place.at.Text() + error.Path(), error.Expected());
    }
}

}  // namespace

MediaAsset FromOtio(std::string_view document)
{
    thread_local simdjson::dom::parser parser;
    const simdjson::padded_string padded(document);
    element root;
    if (const auto error = parser.parse(padded).get(root); error != simdjson::SUCCESS) {
        if (error == simdjson::MEMALLOC)
            throw std::bad_alloc();
        throw JsonError("", "expected an OpenTimelineIO document, found " + detail::Malformed(error));
    }
    const Place timeline{root, JsonPointer()};
    const Place schema = Member(timeline, otio::kSchemaMember);
    const std::string schemaName = String(schema);
    if (schemaName != otio::kTimeline && schemaName != otio::kNextTimeline)
        throw JsonError(schema.at.Text(),
                        std::string("expected \"") + otio::kTimeline + "\" or \"" + otio::kNextTimeline + "\", found \""
                            + schemaName + "\"");
    const Place metadata = Member(timeline, otio::kMetadata);
    const std::optional<Place> own = OptionalMember(metadata, kOtioMetadataKey);
    if (!own)
        throw JsonError(metadata.at.Text(),
                        std::string("expected member \"") + kOtioMetadataKey
                            + "\" with the asset the timeline was written from");
    MediaAsset asset = EmbeddedAsset(Member(*own, otio::kAssetKey), padded);
    const std::string name = String(Member(timeline, otio::kName));
    OtioReader reader(asset);
    for (const Place& track : Elements(Member(Member(timeline, otio::kTracks), otio::kChildren)))
        for (const Place& item : Elements(Member(track, otio::kChildren)))
            if (String(Member(item, otio::kSchemaMember)).rfind("Clip.", 0) == 0)
                reader.Clip(item);
    reader.Finish();
    asset.Name(name);
    return asset;
}

MediaAsset FromOtio(std::istream& in) { return FromOtio(detail::ReadAll(in)); }

}  // namespace Orvik::DataModel::MediaAssets::Json
