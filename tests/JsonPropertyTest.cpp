// The round-trip properties over generated objects: for every object x, FromJson(ToJson(x)) == x
// and ToJson(FromJson(ToJson(x))) is byte-identical to ToJson(x).

#include <ArbitraryObjects.h>

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::Testing::ArbitraryObjects;

namespace {

constexpr uint64_t kSeeds = 500;

// A group is written through its base; read back, it must be of the same class again.
std::string Write(const std::shared_ptr<MediaAssetGroup>& group) { return Json::ToJson(*group); }
bool Equal(const std::shared_ptr<MediaAssetGroup>& a, const std::shared_ptr<MediaAssetGroup>& b)
{
    return *a == *b
        && (dynamic_cast<AnglesMediaAssetGroup*>(a.get()) == nullptr)
        == (dynamic_cast<AnglesMediaAssetGroup*>(b.get()) == nullptr);
}
bool Equal(const AnglesPelkOperatorMetadataProfile& a, const AnglesPelkOperatorMetadataProfile& b) { return a.Equals(b); }
template <typename T>
std::string Write(const T& value)
{
    return Json::ToJson(value);
}
template <typename T>
bool Equal(const T& a, const T& b)
{
    return a == b;
}

// Checks both properties for `value`, read back as T.
template <typename T>
void CheckRoundTrip(const T& value)
{
    const std::string document = Write(value);
    const T read = Json::FromJson<T>(document);
    EXPECT_TRUE(Equal(read, value));
    EXPECT_EQ(Write(read), document);
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
