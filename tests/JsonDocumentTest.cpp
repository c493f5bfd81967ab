// The JSON form of the hand-written documents in tests/data and of generated objects: lossless,
// canonical, and the sharing the documents record restored on reading.

#include <ArbitraryObjects.h>

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::Testing::ArbitraryObjects;

namespace {

std::string ReadFile(const std::string& name)
{
    std::ifstream in(std::string(ORVIK_TEST_DATA_DIR) + "/" + name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

template <typename T>
const T& Deref(const T& value)
{
    return value;
}
const MediaAssetGroup& Deref(const std::shared_ptr<MediaAssetGroup>& group) { return *group; }

struct Forms {
    std::string indented;
    std::string compact;
    std::string compactReadAndWrittenAgain;
};

// The forms of what `text` describes, read as T.
template <typename T>
Forms Write(const std::string& text)
{
    const T read = Json::FromJson<T>(text);
    const std::string compact = Json::ToJson(Deref(read));
    return {Json::ToJson(Deref(read), Json::Layout::Indented), compact, Json::ToJson(Deref(Json::FromJson<T>(compact)))};
}

struct Fixture {
    const char* file;
    const char* schema;
    Forms (*write)(const std::string& text);
};
const Fixture kFixtures[] = {
    {"asset-full.json", "MediaAsset", Write<MediaAsset>},
    {"asset-every-enumeration-value.json", "MediaAsset", Write<MediaAsset>},
    {"asset-train.json", "MediaAsset", Write<MediaAsset>},
    {"asset-media.json", "MediaAsset", Write<MediaAsset>},
    {"resource.json", "MediaResource", Write<MediaResource>},
    {"stream.json", "Stream", Write<Stream>},
    {"group.json", "MediaAssetGroup", Write<std::shared_ptr<MediaAssetGroup>>},
    {"group-angles.json", "MediaAssetGroup", Write<std::shared_ptr<MediaAssetGroup>>},
    {"profile-pelk.json", "PelkOperatorMetadataProfile", Write<PelkOperatorMetadataProfile>},
    {"profile-angles.json", "AnglesPelkOperatorMetadataProfile", Write<AnglesPelkOperatorMetadataProfile>},
};

}  // namespace

// The documents are written in the canonical member order with two-space indentation, so the
// indented form of what they describe is their own text: a member written out of place, or a
// field that is lost, shows here as a difference. The compact form reads back to the same bytes.
TEST(JsonDocuments, EveryHandWrittenDocumentIsItsIndentedFormAndItsCompactFormIsStable)
{
    for (const Fixture& fixture : kFixtures) {
        SCOPED_TRACE(fixture.file);
        const std::string text = ReadFile(fixture.file);
        EXPECT_EQ(Json::SchemaName(text), fixture.schema);
        const Forms forms = fixture.write(text);
        EXPECT_EQ(forms.indented + "\n", text);
        EXPECT_EQ(forms.compactReadAndWrittenAgain, forms.compact);
    }
}

TEST(JsonDocuments, TextsEscapeQuotesBackslashesAndControlCharactersAndKeepTheRest)
{
    const std::string text = std::string("a\"b\\c/\0\x01\b\t\n\f\r\x1F\x7F", 15) + "\xC3\xA9\xE2\x82\xAC";
    const std::string compact = Json::ToJson(Stream(StreamId(text)));
    EXPECT_NE(compact.find(R"("streamId":"a\"b\\c/\u0000\u0001\b\t\n\f\r\u001F)"
                           "\x7F\xC3\xA9\xE2\x82\xAC\","),
              std::string::npos)
        << compact;
    EXPECT_EQ(Json::FromJson<Stream>(compact).Id(), StreamId(text));
}

TEST(JsonDocuments, StreamOverloadsWriteAndReadTheSameDocument)
{
    const std::string text = ReadFile("group-angles.json");
    const auto group = Json::FromJson<std::shared_ptr<MediaAssetGroup>>(text);
    std::ostringstream out;
    Json::ToJson(out, *group);
    EXPECT_EQ(out.str(), Json::ToJson(*group));
    std::istringstream in(out.str());
    EXPECT_EQ(*Json::FromJson<std::shared_ptr<MediaAssetGroup>>(in), *group);
}

// What is written once and referred to by JSON pointer comes back as one object. (That channels
// share their resource's streams again is a property of every generated asset; see JsonRoundTrip.)
class JsonSharing : public ::testing::Test {
protected:
    JsonSharing() : asset(Json::FromJson<MediaAsset>(ReadFile("asset-full.json"))) {}
    const Track& TrackNamed(const char* id) const
    {
        for (const auto& track : asset.Tracks())
            if (track->Id() == TrackId(id))
                return *track;
        throw std::logic_error("no track");
    }
    MediaAsset asset;
};

TEST_F(JsonSharing, StreamWrittenInAChannelIsSharedByTheNextChannelAndIdOnlyStaysIdOnly)
{
    const Track& proxy = TrackNamed("track-proxy");
    ASSERT_TRUE(proxy.Channels()[0]->Stream().Pointer());
    EXPECT_EQ(proxy.Channels()[1]->Stream().Pointer(), proxy.Channels()[0]->Stream().Pointer());
    EXPECT_FALSE(proxy.Channels()[2]->Stream().Pointer());
    EXPECT_EQ(proxy.Channels()[2]->Stream().Id(), StreamId("stream-remote"));
}

TEST_F(JsonSharing, EssencesShareTimecodeTablesAcrossStreams)
{
    const Stream& stream = *asset.MediaResources().Front().Value().Streams().front().Pointer();
    const auto& table = stream.Essences()[0].Timecodes()[0];
    EXPECT_EQ(stream.Essences()[1].Timecodes()[0], table);
    const Stream& proxy = *TrackNamed("track-proxy").Channels()[0]->Stream().Pointer();
    EXPECT_EQ(proxy.Essences()[0].Timecodes()[0], table);
}

TEST_F(JsonSharing, LayoutItemsPointAtTheAssetsOwnTracks)
{
    const TrackLayoutItem& sound = asset.TrackLayouts().Front()->TrackLayoutItems()[1];
    ASSERT_EQ(sound.Tracks().Size(), 2u);
    EXPECT_EQ(sound.Tracks()[0].lock().get(), &TrackNamed("track-audio"));
    EXPECT_EQ(sound.Tracks()[1].lock().get(), &TrackNamed("track-proxy"));
}

// A profile of no registered codec, whatever JSON it holds, is written as its text (reading one
// is in JsonErrorTest's codec tests).
TEST(JsonDocuments, RawProfileIsWrittenAsItsTextAndReadBackByteIdentical)
{
    Stream stream(StreamId("s"));
    const std::string compact = "{\"probe\":{\"tool\":\"x\",\"passes\":[1,2,3]},\"ok\":true}";
    stream.Metadata().Set(std::make_shared<Json::RawMetadataProfile>(FullyQualifiedName("vendor.technical"), compact));
    const std::string written = Json::ToJson(stream);
    EXPECT_NE(written.find("\"vendor.technical\":" + compact), std::string::npos);
    EXPECT_EQ(Json::FromJson<Stream>(written).Metadata().At(FullyQualifiedName("vendor.technical")).ToString(), compact);
}

// Hundreds of tracks, each written once and named by a layout item: every pointer finds its own
// track among them.
TEST(JsonSharedObjects, HundredsOfLayoutItemTracksAreEachTheAssetsOwnTrack)
{
    MediaAsset asset;
    TrackLayoutItem item(Identifier("all"));
    for (int n = 0; n < 600; ++n) {
        const auto track = std::make_shared<Track>(TrackId("track-" + std::to_string(n)), "");
        asset.Tracks().Insert(track);
        item.Tracks().Insert(track);
    }
    const auto layout = std::make_shared<TrackLayout>(Identifier("layout"));
    layout->TrackLayoutItems().Insert(item);
    asset.TrackLayouts().Insert(layout);
    const MediaAsset read = Json::FromJson<MediaAsset>(Json::ToJson(asset));
    EXPECT_EQ(read, asset);
    const auto& tracks = read.TrackLayouts().Front()->TrackLayoutItems().Front().Tracks();
    ASSERT_EQ(tracks.Size(), read.Tracks().Size());
    for (size_t i = 0; i < tracks.Size(); ++i)
        EXPECT_EQ(tracks[i].lock(), read.Tracks()[i]);
}

// The reader holds none of the objects it shared once the document is read.
TEST(JsonSharedObjects, LiveOnlyAsLongAsTheModelHoldsThem)
{
    std::weak_ptr<TimeCodeTable> table;
    {
        const auto asset = Json::FromJson<MediaAsset>(ReadFile("asset-full.json"));
        table = asset.MediaResources().Front().Value().Streams().front().Pointer()->Essences()[0].Timecodes()[0];
        ASSERT_FALSE(table.expired());
    }
    EXPECT_TRUE(table.expired());
}

// The round-trip properties over generated objects: for every object x, FromJson(ToJson(x)) == x
// and ToJson(FromJson(ToJson(x))) is byte-identical to ToJson(x).

namespace {

constexpr uint64_t kSeeds = 500;

// A group is written through its base; read back, it must be of the same class again.
bool Equal(const std::shared_ptr<MediaAssetGroup>& a, const std::shared_ptr<MediaAssetGroup>& b)
{
    return *a == *b
        && (dynamic_cast<AnglesMediaAssetGroup*>(a.get()) == nullptr)
        == (dynamic_cast<AnglesMediaAssetGroup*>(b.get()) == nullptr);
}
bool Equal(const AnglesPelkOperatorMetadataProfile& a, const AnglesPelkOperatorMetadataProfile& b) { return a.Equals(b); }
template <typename T>
bool Equal(const T& a, const T& b)
{
    return a == b;
}

// Checks both properties for `value`, read back as T.
template <typename T>
void CheckRoundTrip(const T& value)
{
    const std::string document = Json::ToJson(Deref(value));
    const T read = Json::FromJson<T>(document);
    EXPECT_TRUE(Equal(read, value));
    EXPECT_EQ(Json::ToJson(Deref(read)), document);
}

}  // namespace

TEST(JsonRoundTrip, GeneratedObjectsComeBackEqualAndWriteTheSameBytes)
{
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE(seed);
        ArbitraryObjects objects(seed);
        CheckRoundTrip(objects.MediaAsset());
        CheckRoundTrip(objects.MediaResource());
        CheckRoundTrip(objects.Stream());
        CheckRoundTrip(objects.MediaAssetGroup());
        CheckRoundTrip(objects.AnglesMediaAssetGroup());
        CheckRoundTrip(objects.PelkOperatorProfile());
        CheckRoundTrip(objects.AnglesPelkOperatorProfile());
    }
}

namespace {

// How many track channels hold a stream that is also one of the resources' streams.
size_t ChannelsOnResourceStreams(const MediaAsset& asset)
{
    std::vector<const Stream*> resourceStreams;
    for (const auto& resource : asset.MediaResources())
        if (resource.Pointer())
            for (const auto& stream : resource.Pointer()->Streams())
                resourceStreams.push_back(stream.Pointer().get());
    size_t count = 0;
    for (const auto& track : asset.Tracks())
        for (const auto& channel : track->Channels())
            if (channel->Stream().Pointer()
                && std::find(resourceStreams.begin(), resourceStreams.end(), channel->Stream().Pointer().get())
                    != resourceStreams.end())
                ++count;
    return count;
}

}  // namespace

// Reading gives back the sharing that the generated asset has: each track channel that holds
// one of the resources' streams holds that very stream again after reading.
TEST(JsonRoundTrip, ChannelStreamsOfGeneratedAssetsAreTheResourcesStreamsAgain)
{
    size_t shared = 0;
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE(seed);
        ArbitraryObjects objects(seed);
        const MediaAsset asset = objects.MediaAsset();
        const size_t expected = ChannelsOnResourceStreams(asset);
        EXPECT_EQ(ChannelsOnResourceStreams(Json::FromJson<MediaAsset>(Json::ToJson(asset))), expected);
        shared += expected;
    }
    EXPECT_GT(shared, 0u);
}
