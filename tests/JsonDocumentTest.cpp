// The JSON form of the hand-written documents in tests/data: lossless, canonical, and the
// sharing the documents record restored on reading.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>

using namespace Orvik::DataModel::MediaAssets;

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

TEST(JsonDocuments, CompactFormHasNoWhitespaceOutsideStrings)
{
    const std::string compact = Json::ToJson(Json::FromJson<Stream>(ReadFile("stream.json")));
    EXPECT_EQ(compact.find('\n'), std::string::npos);
    EXPECT_EQ(compact.rfind("{\"schema\":{\"name\":\"Stream\",\"version\":1},\"objectId\":5,", 0), 0u);
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
// share their resource's streams again is a property of every generated asset; see JsonPropertyTest.)
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

TEST_F(JsonSharing, UnknownProfileIsKeptAsItsTextAndWrittenBackByteIdentical)
{
    const Stream& stream = *asset.MediaResources().Front().Value().Streams().front().Pointer();
    const auto* raw =
        dynamic_cast<const Json::RawMetadataProfile*>(&stream.Metadata().At(FullyQualifiedName("vendor.technical")));
    ASSERT_NE(raw, nullptr);
    const std::string compact = "{\"probe\":{\"tool\":\"x\",\"passes\":[1,2,3]},\"ok\":true}";
    Stream copy = stream.Clone();
    copy.Metadata().Clear();
    copy.Metadata().Set(std::make_shared<Json::RawMetadataProfile>(FullyQualifiedName("vendor.technical"), compact));
    const std::string written = Json::ToJson(copy);
    EXPECT_NE(written.find("\"vendor.technical\":" + compact), std::string::npos);
    const Stream read = Json::FromJson<Stream>(written);
    EXPECT_EQ(read.Metadata().At(FullyQualifiedName("vendor.technical")).ToString(), compact);
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
