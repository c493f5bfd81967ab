// Bad input to FromJson and objects that ToJson cannot write: one exception type, JsonError,
// whose message names the JSON pointer and what was expected. And callers' own metadata profiles:
// written and read by the codec registered under their name, kept as raw JSON while none is.

#include "TestProfiles.h"

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <charconv>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

// The compact form of tests/data/stream.json, which each case below changes in one place.
const std::string& StreamDocument()
{
    static const std::string document = [] {
        std::ifstream in(std::string(ORVIK_TEST_DATA_DIR) + "/stream.json", std::ios::binary);
        return Json::ToJson(Json::FromJson<Stream>(std::string(std::istreambuf_iterator<char>(in), {})));
    }();
    return document;
}

std::string Changed(const std::string& from, const std::string& to)
{
    std::string document = StreamDocument();
    const size_t at = document.find(from);
    if (at == std::string::npos)
        throw std::logic_error("no " + from);
    return document.replace(at, from.size(), to);
}

std::string Nested(int depth)
{
    return Changed(R"("metadata":{},"essences")",
                   R"("metadata":{"vendor.deep":{"a":)" + std::string(depth, '[') + std::string(depth, ']')
                       + R"(}},"essences")");
}

// The message starts with the JSON pointer of the error, "(root)" for the empty one.
struct BadInput {
    const char* what;
    std::string document;
    std::string message;
};

}  // namespace

TEST(JsonBadInput, EachKindIsRefusedWithItsPathAndWhatWasExpected)
{
    const BadInput cases[] = {
        {"malformed", Changed(R"("nr":0,)", R"("nr":0,,)"),
         R"(/essences/0: expected a member, found malformed JSON (a missing or superfluous comma, colon, brace or bracket))"},
        {"truncated", StreamDocument().substr(0, 200),
         R"((root): expected a JSON document, found malformed JSON (a string without its closing quote))"},
        {"not an object", "[1,2]", R"((root): expected an object, found an array)"},
        {"empty object", "{}", R"((root): expected member "schema" first, found an empty object)"},
        {"trailing text", StreamDocument() + "{}", R"((root): expected the end of the document, found more text)"},
        {"wrong type", Changed(R"("bitDepth":24,"fourCC":"lpcm"},{)", R"("bitDepth":"24","fourCC":"lpcm"},{)"),
         R"(/essences/0/bitDepth: expected an integer, found a string)"},
        {"fraction", Changed(R"("channelCount":0)", R"("channelCount":0.5)"),
         R"(/essences/1/channelCount: expected an integer, found 0.5)"},
        {"missing member", Changed(R"(,"fourCC":"lpcm"}])", "}]"), R"(/essences/1: expected member "fourCC")"},
        {"unexpected member", Changed(R"("nr":1,)", R"("nr":1,"colour":2,)"),
         R"(/essences/1/colour: expected no member of this name)"},
        {"member name cut short", Changed(R"("objectId":5)", R"("objectI":5)"),
         R"(/objectI: expected no member of this name)"},
        {"member name run on", Changed(R"("objectId":5)", R"("objectIdX":5)"),
         R"(/objectIdX: expected no member of this name)"},
        {"profile name with pointer characters",
         Changed(R"("metadata":{},"essences")", R"("metadata":{"a/b~c":5},"essences")"),
         R"(/metadata/a~1b~0c: expected an object, found 5)"},
        {"duplicate member", Changed(R"("format":"QuickTime",)", R"("format":"QuickTime","format":"QuickTime",)"),
         R"(/format: expected one member of this name, found a second)"},
        {"duplicate member under an escaped name",
         Changed(R"("format":"QuickTime",)", R"("format":"QuickTime","\u0066ormat":"QuickTime",)"),
         R"(/format: expected one member of this name, found a second)"},
        {"unknown enumeration text",
         Changed(R"("bitRateMode":"cbr","sampleRate":{"numerator":48000,"denominator":1},"bitDepth":24,"fourCC":"lpcm"}])",
                 R"("bitRateMode":"CBR","sampleRate":{"numerator":48000,"denominator":1},"bitDepth":24,"fourCC":"lpcm"}])"),
         R"(/essences/1/bitRateMode: expected a BitRateMode text, found "CBR")"},
        {"unknown kind", Changed(R"("type":"ZanLocation")", R"("type":"TapeLocation")"),
         R"(/locations/0/type: expected "FileLocation", "ZanLocation", "DaxContentTrackLocation" or "DaxProtectLocation", found "TapeLocation")"},
        {"unknown essence type", Changed(R"("type":"Audio")", R"("type":"Sound")"),
         R"(/essences/0/type: expected "Audio", "Data" or "Video", found "Sound")"},
        {"kind not first", Changed(R"({"type":"ZanLocation","serverId":120,)", R"({"serverId":120,"type":"ZanLocation",)"),
         R"(/locations/0/type: expected member "type" first, found "serverId")"},
        {"integer out of 32 bits",
         Changed(R"("denominator":1},"bitDepth":24,"fourCC":"lpcm"}])",
                 R"("denominator":4294967296},"bitDepth":24,"fourCC":"lpcm"}])"),
         R"(/essences/1/sampleRate/denominator: expected an integer from -2147483648 to 2147483647, found 4294967296)"},
        {"integer out of 64 bits", Changed(R"("objectId":5)", R"("objectId":9223372036854775808)"),
         R"(/objectId: expected an integer, found 9223372036854775808)"},
        {"dangling reference", Changed(R"("/essences/0/timecodes/0")", R"("/essences/1/timecodes/0")"),
         R"(/essences/1/timecodes/0: expected a JSON pointer to a timecode table written earlier in the document, found "/essences/1/timecodes/0")"},
        {"bad timecode text", Changed(R"("01:00:00;00")", R"("25:00:00:00")"),
         R"(/essences/0/timecodes/0/timeCodeJumpItems/0/timeCode: expected a timecode text such as "10:00:00:00" or "23:59:59;29", or "", found "25:00:00:00")"},
        {"unsupported schema name", Changed(R"("name":"Stream")", R"("name":"MediaAsset")"),
         R"(/schema/name: expected "Stream", found "MediaAsset")"},
        {"unsupported version", Changed(R"("version":1)", R"("version":2)"),
         R"(/schema/version: expected version 1, found 2)"},
        {"no schema first", Changed(R"({"schema":{"name":"Stream","version":1},)", R"({)"),
         R"((root): expected member "schema" first, found "objectId")"},
        {"deep nesting", Nested(500), R"(/metadata/vendor.deep: expected a JSON object nested at most 100 levels deep)"},
        {"nesting past the parser", Nested(2000),
         R"(/metadata/vendor.deep: expected a JSON object nested at most 100 levels deep)"},
        {"invalid UTF-8", Changed(R"("A7F3")", "\"A7\xC3\x28\""),
         R"((root): expected a JSON document, found malformed JSON (text that is not UTF-8))"},
    };
    for (const BadInput& bad : cases) {
        SCOPED_TRACE(bad.what);
        try {
            Json::FromJson<Stream>(bad.document);
            ADD_FAILURE() << "accepted";
        } catch (const Json::JsonError& error) {
            EXPECT_EQ(error.what(), bad.message);
            const std::string path = bad.message.substr(0, bad.message.find(": "));
            EXPECT_EQ(error.Path(), path == "(root)" ? "" : path);
        }
    }
}

TEST(JsonMemberNames, AnEscapedNameIsThePlainName)
{
    EXPECT_EQ(Json::FromJson<Stream>(Changed(R"("format")", R"("\u0066ormat")")), Json::FromJson<Stream>(StreamDocument()));
}

TEST(JsonBadInput, SchemaNameNeedsTheSchemaMemberFirst)
{
    EXPECT_THAT([] { Json::SchemaName(R"({"objectId":1})"); },
                ThrowsMessage<Json::JsonError>(StrEq(R"((root): expected member "schema" first, found "objectId")")));
}

TEST(JsonWriteErrors, OperatorProfileOfAnotherClassIsRefused)
{
    MediaAsset asset(MediaAssetId("a"));
    asset.Metadata().Set(std::make_shared<OtherProfile>());
    EXPECT_THAT([&] { Json::ToJson(asset); },
                ThrowsMessage<Json::JsonError>(StrEq("/metadata/orvik.pelkoperator: expected an operator profile of a "
                                                     "class with a JSON form, found another class")));
}

TEST(JsonWriteErrors, TextThatIsNotUtf8IsRefusedAtItsPath)
{
    MediaResource resource(MediaResourceId("r"));
    auto stream = std::make_unique<Stream>(StreamId("s"));
    stream->Locations().Add(std::make_unique<ZanLocation>(ZanServerId(120), "A\n\xC3\xA9\xFF"));
    resource.Adopt(std::move(stream));
    EXPECT_THAT([&] { Json::ToJson(resource); },
                ThrowsMessage<Json::JsonError>(StrEq("/streams/0/pointer/locations/0/sequenceId: expected text in UTF-8, "
                                                     "found invalid bytes")));
}

TEST(JsonWriteErrors, LayoutItemShowingATrackTheAssetDoesNotHoldIsRefused)
{
    MediaAsset asset(MediaAssetId("a"));
    const auto foreign = std::make_shared<Track>(TrackId("t"), "elsewhere");
    TrackLayoutItem item(Identifier("item"));
    item.Tracks().Insert(foreign);
    auto layout = std::make_shared<TrackLayout>(Identifier("layout"));
    layout->TrackLayoutItems().Insert(item);
    asset.TrackLayouts().Insert(layout);
    EXPECT_THAT([&] { Json::ToJson(asset); },
                ThrowsMessage<Json::JsonError>(StrEq("/trackLayouts/0/trackLayoutItems/0/tracks/0: expected one of the "
                                                     "asset's tracks, found a track that the asset does not hold")));
}

namespace {

// {"value":N}; refuses anything else.
class TestProfileCodec : public Json::MetadataProfileCodec {
public:
    std::string Write(const MetadataProfile& profile) const override
    {
        return "{\"value\":" + std::to_string(dynamic_cast<const TestProfile&>(profile).value) + "}";
    }
    std::shared_ptr<MetadataProfile> Read(std::string_view json) const override
    {
        constexpr std::string_view prefix = "{\"value\":";
        int value = 0;
        if (json.substr(0, prefix.size()) != prefix
            || std::from_chars(json.data() + prefix.size(), json.data() + json.size() - 1, value).ec != std::errc())
            throw std::invalid_argument("not a test profile");
        return std::make_shared<TestProfile>(value);
    }
};

class JsonMetadataCodec : public ::testing::Test {
protected:
    JsonMetadataCodec()
    {
        Json::RegisterMetadataProfileCodec(TestProfile::StaticFullyQualifiedName(), std::make_shared<TestProfileCodec>());
        asset.Metadata().Set(std::make_shared<TestProfile>(42));
    }
    ~JsonMetadataCodec() override { Json::UnregisterMetadataProfileCodec(TestProfile::StaticFullyQualifiedName()); }
    MediaAsset asset{MediaAssetId("a")};
};

}  // namespace

TEST_F(JsonMetadataCodec, RegisteredCodecWritesAndReadsTheProfile)
{
    const std::string document = Json::ToJson(asset);
    EXPECT_NE(document.find(R"("metadata":{"test.profile":{"value":42}})"), std::string::npos);
    const MediaAsset read = Json::FromJson<MediaAsset>(document);
    EXPECT_EQ(read, asset);
    EXPECT_NE(dynamic_cast<const TestProfile*>(&read.Metadata().At(TestProfile::StaticFullyQualifiedName())), nullptr);
}

TEST_F(JsonMetadataCodec, ProfileTheCodecRefusesIsReportedAtItsPathWithTheCodecsMessage)
{
    std::string document = Json::ToJson(asset);
    document.replace(document.find("42"), 2, "\"x\"");
    EXPECT_THAT([&] { Json::FromJson<MediaAsset>(document); },
                ThrowsMessage<Json::JsonError>(StrEq("/metadata/test.profile: expected a profile that the codec for "
                                                     "\"test.profile\" reads, found one it refused: not a test profile")));
}

TEST_F(JsonMetadataCodec, WithoutCodecTheProfileIsKeptRawAndWrittenBackByteIdenticalButAnObjectIsRefused)
{
    const std::string document = Json::ToJson(asset);
    Json::UnregisterMetadataProfileCodec(TestProfile::StaticFullyQualifiedName());
    const MediaAsset read = Json::FromJson<MediaAsset>(document);
    const auto& profile = read.Metadata().At(TestProfile::StaticFullyQualifiedName());
    ASSERT_NE(dynamic_cast<const Json::RawMetadataProfile*>(&profile), nullptr);
    EXPECT_EQ(profile.ToString(), R"({"value":42})");
    EXPECT_EQ(Json::ToJson(read), document);

    // The profile object itself has no codec left to write it: refused, and nothing written.
    std::ostringstream out;
    EXPECT_THAT([&] { Json::ToJson(out, asset); },
                ThrowsMessage<Json::JsonError>(StrEq("/metadata/test.profile: expected a metadata profile whose name has a "
                                                     "registered JSON codec, found none for \"test.profile\"")));
    EXPECT_TRUE(out.str().empty());
}

TEST(JsonMetadataCodecRegistry, RefusesNullCodecAndTheBuiltInName)
{
    EXPECT_THAT([] { Json::RegisterMetadataProfileCodec(FullyQualifiedName("x.y"), nullptr); },
                ThrowsMessage<std::invalid_argument>(
                    StrEq("Orvik::DataModel::MediaAssets::Json::RegisterMetadataProfileCodec: null codec")));
    EXPECT_THAT(
        [] {
            Json::RegisterMetadataProfileCodec(PelkOperatorMetadataProfile::StaticFullyQualifiedName(),
                                               std::make_shared<TestProfileCodec>());
        },
        ThrowsMessage<std::invalid_argument>(StrEq("Orvik::DataModel::MediaAssets::Json::RegisterMetadataProfileCodec: "
                                                   "the operator profiles' codec is built in")));
}
