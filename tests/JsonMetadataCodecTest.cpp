// Callers' own metadata profiles: written and read by the codec registered under their name,
// kept as raw JSON while no codec is registered.

#include "TestProfiles.h"

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <charconv>
#include <string>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

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

TEST_F(JsonMetadataCodec, WithoutCodecTheProfileIsKeptRawAndWrittenBackByteIdentical)
{
    const std::string document = Json::ToJson(asset);
    Json::UnregisterMetadataProfileCodec(TestProfile::StaticFullyQualifiedName());
    const MediaAsset read = Json::FromJson<MediaAsset>(document);
    const auto& profile = read.Metadata().At(TestProfile::StaticFullyQualifiedName());
    ASSERT_NE(dynamic_cast<const Json::RawMetadataProfile*>(&profile), nullptr);
    EXPECT_EQ(profile.ToString(), R"({"value":42})");
    EXPECT_EQ(Json::ToJson(read), document);
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
