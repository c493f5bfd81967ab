// The OpenTimelineIO form: what an asset becomes, that it comes back whole, and what an editor's
// changes to the timeline make of it.

#include <ArbitraryObjects.h>

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>
#include <Orvik/DataModel/MediaAssets/Json/Otio.h>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

using namespace Orvik::DataModel::MediaAssets;

namespace {

constexpr int64_t kSecond = 1000000000;

std::string ReadFile(const std::string& name)
{
    std::ifstream in(std::string(ORVIK_TEST_DATA_DIR) + "/" + name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

TimeBoundary At(int64_t nanoseconds) { return TimeBoundary(TimePoint(nanoseconds), false); }

// An asset with one video track at `rate`, on a stream in a file (or on a video server) whose
// timecode starts at `timecode` (none when empty), trimmed to [in, out), with one cue point.
MediaAsset Clip(Rate rate, int64_t in, int64_t out, const std::string& timecode = "", bool inFile = true)
{
    auto stream = std::make_shared<Stream>(StreamId("stream-0"));
    VideoEssence video;
    video.Nr(0);
    video.FrameRate(rate);
    if (!timecode.empty()) {
        auto table = std::make_shared<TimeCodeTable>();
        table->Standard(TimeCodeStandard::SmptePal25);
        table->TimeCodeJumpItems().Insert(std::make_shared<TimeCodeJump>(TimePoint(0), TimeCodeString(timecode), 0));
        video.Timecodes().Insert(table);
    }
    stream->Essences().Add(std::move(video));
    FileLocation file;
    file.Name("goal.mxf");
    file.Uri(URI("file:///media/goal.mxf"));
    if (inFile)
        stream->Locations().Add(std::move(file));
    else
        stream->Locations().Add(ZanLocation(ZanServerId(120), "A7F1"));
    stream->Timebounds().InBoundary(At(0));
    stream->Timebounds().OutBoundary(At(10 * kSecond));
    MediaAsset asset(MediaAssetId("asset-1"));
    asset.Name("Goal");
    auto track = std::make_shared<Track>(TrackId("track-video"), "Program");
    auto channel = std::make_shared<TrackChannelToRemove>();
    channel->Stream(StreamReference(stream));
    track->Channels().push_back(channel);
    asset.Tracks().Insert(track);
    asset.InBoundary(At(in));
    asset.OutBoundary(At(out));
    auto cue = std::make_shared<Annotation>(AnnotationType::CuePoint, "kick-off");
    cue->TimeBounds(TimeBounds(At(in), At(in + kSecond)));
    asset.Annotations().push_back(cue);
    return asset;
}

// The value that follows `"key":` from `from` on, as written (compact form, no brackets in texts).
std::string Member(const std::string& document, const std::string& key, size_t from = 0)
{
    const size_t start = document.find("\"" + key + "\":", from) + key.size() + 3;
    if (document[start] != '{' && document[start] != '[')
        return document.substr(start, document.find_first_of(",}", start) - start);
    int depth = 0;
    size_t end = start;
    do
        depth += document[end] == '{' || document[end] == '[' ? 1 : document[end] == '}' || document[end] == ']' ? -1 : 0;
    while (depth != 0 && ++end < document.size());
    return document.substr(start, end + 1 - start);
}

std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    const size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

std::string Range(const std::string& rate, const std::string& start, const std::string& duration)
{
    const auto time = [&](const std::string& value) {
        return R"({"OTIO_SCHEMA":"RationalTime.1","rate":)" + rate + R"(,"value":)" + value + "}";
    };
    return R"({"OTIO_SCHEMA":"TimeRange.1","duration":)" + time(duration) + R"(,"start_time":)" + time(start) + "}";
}

void ExpectSameAsset(const MediaAsset& expected, const MediaAsset& actual)
{
    const std::optional<Difference> difference = FirstDifference(expected, actual);
    EXPECT_FALSE(difference) << difference->Path();
    EXPECT_EQ(Json::ToJson(expected), Json::ToJson(actual));  // objectIds and sharing too
}

}  // namespace

TEST(JsonOtio, ClipIsTheTimelineOfTheDocumentedStructure)
{
    const std::string document = Json::ToOtio(Clip(Rate(25, 1), 2 * kSecond, 12 * kSecond), Json::Layout::Compact);
    const std::string asset = Json::ToJson(Clip(Rate(25, 1), 2 * kSecond, 12 * kSecond));
    const std::string range = Range("25.0", "50.0", "250.0");
    const std::string marker = Range("25.0", "50.0", "25.0");
    const std::string available = Range("25.0", "0.0", "250.0");
    EXPECT_EQ(document,
              R"({"OTIO_SCHEMA":"Timeline.1","metadata":{"orvik":{"asset":)" + asset
                  + R"(}},"name":"Goal","global_start_time":null,"tracks":{"OTIO_SCHEMA":"Stack.1","metadata":{},)"
                    R"("name":"tracks","source_range":null,"effects":[],"markers":[],"enabled":true,"children":[)"
                    R"({"OTIO_SCHEMA":"Track.1","metadata":{},"name":"Program","source_range":null,"effects":[],)"
                    R"("markers":[],"enabled":true,"children":[{"OTIO_SCHEMA":"Clip.2","metadata":{"orvik":)"
                    R"({"track":"track-video"}},"name":"Goal","source_range":)"
                  + range
                  + R"(,"effects":[],"markers":[{"OTIO_SCHEMA":"Marker.2","metadata":{"orvik":)"
                    R"({"annotation":0}},"name":"kick-off","color":"RED","marked_range":)"
                  + marker
                  + R"(,"comment":""}],"enabled":true,"media_references":{"DEFAULT_MEDIA":)"
                    R"({"OTIO_SCHEMA":"ExternalReference.1","metadata":{},"name":"goal.mxf","available_range":)"
                  + available
                  + R"(,"available_image_bounds":null,"target_url":"file:///media/goal.mxf"}},)"
                    R"("active_media_reference_key":"DEFAULT_MEDIA"}],"kind":"Video"}]}})");
}

TEST(JsonOtio, TracksReferencesAndTimecodeOfTheFullAsset)
{
    const std::string document =
        Json::ToOtio(Json::FromJson<MediaAsset>(ReadFile("asset-full.json")), Json::Layout::Compact);
    // Tracks in id order: the audio track at the asset's video rate, then the first video track
    // (the proxy, carrying the markers), then the main video track.
    const size_t tracks = document.find("Stack.1");
    const size_t audio = document.find("Clip.2", document.find(R"("name":"Audio")", tracks));
    const size_t proxy = document.find("Clip.2", document.find(R"("name":"Proxy")", tracks));
    const size_t video = document.find("Clip.2", document.find(R"("name":"Video")", tracks));
    ASSERT_LT(audio, proxy);
    ASSERT_LT(proxy, video);
    EXPECT_EQ(Member(document, "kind", audio), R"("Audio")");
    EXPECT_EQ(Member(document, "kind", proxy), R"("Video")");
    EXPECT_EQ(Member(document, "kind", video), R"("Video")");
    // 50 frames a second from the timecode 10:00:00:00 (of 25 a second) at point 0.
    EXPECT_EQ(Member(document, "source_range", audio), Range("50.0", "1800000.0", "200.0"));
    EXPECT_EQ(Member(document, "available_range", audio), Range("50.0", "1800000.0", "200.0"));
    EXPECT_EQ(Member(document, "markers", audio), "[]");
    EXPECT_NE(Member(document, "markers", proxy).find(R"("name":"kick-off")"), std::string::npos);
    EXPECT_EQ(Member(document, "available_range", proxy), "null");
    EXPECT_NE(Member(document, "DEFAULT_MEDIA", proxy).find(R"("target_url":"file:///media/clip2.mxf")"), std::string::npos);
}

TEST(JsonOtio, StreamsWithoutFileAreMissingReferencesNamedAfterTheirPlace)
{
    MediaAsset asset = Clip(Rate(25, 1), 0, kSecond, "", false);
    EXPECT_EQ(Member(Json::ToOtio(asset, Json::Layout::Compact), "DEFAULT_MEDIA"),
              R"({"OTIO_SCHEMA":"MissingReference.1","metadata":{},"name":"120/A7F1","available_range":)"
                  + Range("25.0", "0.0", "250.0") + R"(,"available_image_bounds":null})");
    asset.Tracks()[0]->Channels()[0]->Stream(StreamReference(StreamId("stream-remote")));
    EXPECT_EQ(Member(Json::ToOtio(asset, Json::Layout::Compact), "DEFAULT_MEDIA"),
              R"({"OTIO_SCHEMA":"MissingReference.1","metadata":{},"name":"stream-remote",)"
              R"("available_range":null,"available_image_bounds":null})");
}

TEST(JsonOtio, TimesAreWholeFramesRoundedToTheNearest)
{
    // clang-format off
    struct Row { Rate rate; int64_t in; int64_t out; const char* written; const char* start; const char* duration; };
    const Row rows[] = {
        {Rate(25, 1),        0,                 3600 * kSecond,     "25.0",              "0.0",     "90000.0"},
        {Rate(25, 1),        20000000,          40000000,           "25.0",              "1.0",     "0.0"},     // halfway: later frame
        {Rate(25, 1),        19999999,          60000001,           "25.0",              "0.0",     "2.0"},
        {Rate(25, 1),        -20000000,         -19999999,          "25.0",              "0.0",     "0.0"},
        {Rate(50, 1),        kSecond,           61 * kSecond,       "50.0",              "50.0",    "3000.0"},
        {Rate(30000, 1001),  0,                 3600 * kSecond,     "29.97002997002997", "0.0",     "107892.0"},
        {Rate(30000, 1001),  1001000000,        2002000000,         "29.97002997002997", "30.0",    "30.0"},
        {Rate(30000, 1001),  16683333,          16683334,           "29.97002997002997", "0.0",     "1.0"},
        {Rate(24000, 1001),  0,                 3600 * kSecond,     "23.976023976023979","0.0",     "86314.0"},
        {Rate(24000, 1001),  1001000000,        11011000000,        "23.976023976023979","24.0",    "240.0"},
    };
    // clang-format on
    for (const Row& row : rows) {
        const MediaAsset asset = Clip(row.rate, row.in, row.out);
        const std::string document = Json::ToOtio(asset, Json::Layout::Compact);
        EXPECT_EQ(Member(document, "source_range", document.find("Clip.2")), Range(row.written, row.start, row.duration))
            << row.rate.Numerator() << "/" << row.rate.Denominator() << " " << row.in;
        ExpectSameAsset(asset, Json::FromOtio(document));
    }
}

TEST(JsonOtio, EveryHandWrittenAndGeneratedAssetComesBackWhole)
{
    for (const char* file :
         {"asset-full.json", "asset-every-enumeration-value.json", "asset-train.json", "asset-media.json"}) {
        const MediaAsset asset = Json::FromJson<MediaAsset>(ReadFile(file));
        for (const Json::Layout layout : {Json::Layout::Compact, Json::Layout::Indented})
            ExpectSameAsset(asset, Json::FromOtio(Json::ToOtio(asset, layout)));
    }
    for (uint64_t seed = 0; seed < 100; ++seed) {
        const MediaAsset asset = Orvik::Testing::ArbitraryObjects(seed).MediaAsset();
        ExpectSameAsset(asset, Json::FromOtio(Json::ToOtio(asset, Json::Layout::Compact)));
    }
    std::stringstream stream;
    const MediaAsset sample = Json::FromJson<MediaAsset>(ReadFile("asset-full.json"));
    Json::ToOtio(stream, sample);
    EXPECT_EQ(stream.str(), Json::ToOtio(sample));
    ExpectSameAsset(sample, Json::FromOtio(stream));
}

TEST(JsonOtio, EditorsChangesComeBack)
{
    const MediaAsset asset = Clip(Rate(30000, 1001), 0, 10 * kSecond, "10:00:00:00");
    const std::string document = Json::ToOtio(asset, Json::Layout::Compact);
    // 10:00:00:00 of 25 a second is frame 1078921 at 30000/1001 (rounded from 1078920.92).
    const std::string written = Range("29.97002997002997", "1078921.0", "300.0");
    ASSERT_EQ(Member(document, "source_range", document.find("Clip.2")), written);

    MediaAsset expected = asset;
    expected.Name("Goal, trimmed");
    expected.InBoundary(At(1001000000));   // 30 frames later
    expected.OutBoundary(At(9009000000));  // 240 frames long
    auto moved = std::make_shared<Annotation>(*asset.Annotations()[0]);
    moved->Data("kick-off (late)");
    moved->TimeBounds(TimeBounds(At(2002000000), At(2002000000)));
    auto added = std::make_shared<Annotation>(AnnotationType::CuePoint, "save");
    added->TimeBounds(TimeBounds(At(0), At(33366667)));
    expected.Annotations() = {moved, added};

    std::string edited = Replaced(document, R"("name":"Goal","global)", R"("name":"Goal, trimmed","global)");
    edited = Replaced(edited, written, Range("29.97002997002997", "1078951.0", "240.0"));
    const std::string marker = Member(edited, "markers", edited.find("Clip.2"));
    const std::string markers =
        R"x([{"OTIO_SCHEMA":"Marker.2","metadata":{"orvik":{"annotation":0}},"name":"kick-off (late)",)x"
        R"("color":"RED","marked_range":)"
        + Range("29.97002997002997", "1078981.0", "0.0")
        + R"(,"comment":""},{"OTIO_SCHEMA":"Marker.2","metadata":{},"name":"save","color":"GREEN","marked_range":)"
        + Range("29.97002997002997", "1078921.0", "1.0") + R"(,"comment":"new"}])";
    edited = Replaced(edited, marker, markers);
    ExpectSameAsset(expected, Json::FromOtio(edited));

    // Markers deleted: no annotations. Left as written: the asset as it was.
    ExpectSameAsset(asset, Json::FromOtio(document));
    MediaAsset none = asset;
    none.Annotations().clear();
    ExpectSameAsset(none, Json::FromOtio(Replaced(document, marker, "[]")));
}

TEST(JsonOtio, BadDocumentsAreRefusedAtTheirPointer)
{
    const std::string document = Json::ToOtio(Clip(Rate(25, 1), 0, kSecond), Json::Layout::Compact);
    const std::string range = Range("25.0", "0.0", "25.0");
    const std::string clip = R"({"OTIO_SCHEMA":"Clip.2","metadata":{"orvik":{"track":"track-video"}})";
    // clang-format off
    struct Row { std::string text; const char* message; };
    const Row rows[] = {
        {"{", "(root): expected an OpenTimelineIO document, found malformed JSON (a missing or superfluous comma, colon, brace or bracket)"},
        {"[]", "(root): expected an object, found an array"},
        {R"({"OTIO_SCHEMA":"Clip.2"})", R"(/OTIO_SCHEMA: expected "Timeline.1" or "Timeline.2", found "Clip.2")"},
        {R"({"OTIO_SCHEMA":"Timeline.1","metadata":{},"name":"x"})",
         R"(/metadata: expected member "orvik" with the asset the timeline was written from)"},
        {Replaced(document, R"({"orvik":{"asset":)", R"({"orvik":{"other":)"), R"(/metadata/orvik: expected member "asset")"},
        {Replaced(document, R"("name":"Goal","description")", R"("name":7,"description")"),
         "/metadata/orvik/asset/name: expected a string, found 7"},
        {Replaced(document, R"("global_start_time":null,"tracks":{)", R"("tracks":{"children":{},)"),
         "/tracks/children: expected an array, found an object"},
        {Replaced(document, clip, R"({"OTIO_SCHEMA":"Clip.2","metadata":{"orvik":{"track":"track-x"}})"),
         R"(/tracks/children/0/children/0/metadata/orvik/track: expected the id of one of the asset's tracks, found a string)"},
        {Replaced(document, range, Range("24.0", "0.0", "24.0")),
         "/tracks/children/0/children/0/source_range/start_time/rate: expected the clip's rate 25, found 24"},
        {Replaced(document, range, Range("25.0", "0.5", "25.0")),
         "/tracks/children/0/children/0/source_range/start_time/value: expected a whole number of frames, found 0.5"},
        {Replaced(document, range, Range("25.0", "0.0", "1e300")),
         "/tracks/children/0/children/0/source_range/duration/value: expected a whole number of frames, found 1e+300"},
        {Replaced(document, range, Range("25.0", "0.0", "3e11")),
         "/tracks/children/0/children/0/source_range/duration/value: expected a range on the 64-bit nanosecond time line, found 3e+11"},
        {Replaced(document, R"({"annotation":0})", R"({"annotation":1})"),
         "/tracks/children/0/children/0/markers/0/metadata/orvik/annotation: expected the index of one of the asset's 1 annotations, found 1"},
    };
    // clang-format on
    for (const Row& row : rows) {
        try {
            Json::FromOtio(row.text);
            ADD_FAILURE() << "accepted: " << row.text;
        } catch (const Json::JsonError& error) {
            EXPECT_STREQ(error.what(), row.message);
        }
    }
}

TEST(JsonOtio, TwoClipsEditedDifferentlyAreRefused)
{
    MediaAsset asset = Clip(Rate(25, 1), 0, 2 * kSecond);
    auto second = std::make_shared<Track>(TrackId("track-z"), "Second");
    second->Channels() = asset.Tracks()[0]->Channels();
    asset.Tracks().Insert(second);
    const std::string document = Json::ToOtio(asset, Json::Layout::Compact);
    const std::string range = Range("25.0", "0.0", "50.0");
    std::string edited = Replaced(document, range, Range("25.0", "1.0", "49.0"));
    EXPECT_EQ(Json::FromOtio(edited).InBoundary(), At(40000000));
    edited = Replaced(edited, range, Range("25.0", "2.0", "48.0"));
    try {
        Json::FromOtio(edited);
        ADD_FAILURE() << "accepted";
    } catch (const Json::JsonError& error) {
        EXPECT_STREQ(error.what(),
                     "/tracks/children/1/children/0/source_range: expected the in and out points of "
                     "/tracks/children/0/children/0/source_range, found others");
    }
}

TEST(JsonOtio, AssetThatCannotBeWrittenFailsAtItsPathInTheTimeline)
{
    MediaAsset asset = Clip(Rate(25, 1), 0, kSecond);
    asset.Name("\xff");
    try {
        Json::ToOtio(asset);
        ADD_FAILURE() << "written";
    } catch (const Json::JsonError& error) {
        EXPECT_EQ(error.Path(), "/metadata/orvik/asset/name");
    }
}
