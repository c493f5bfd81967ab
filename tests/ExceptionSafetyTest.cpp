#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>

#include "TestProfiles.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

// A profile that cannot be copied.
class ThrowingProfile : public TestProfile {
public:
    ThrowingProfile() : TestProfile(0) {}
    std::shared_ptr<MetadataProfile> Clone() const override { throw std::runtime_error("clone refused"); }
};

}  // namespace

TEST(ExceptionSafety, DeepCopyPassesTheProfilesErrorOnAndLeavesTheTargetEmpty)
{
    MetadataProfileDictionary source;
    source.Set(std::make_shared<ThrowingProfile>());
    MetadataProfileDictionary target;
    target.Set(std::make_shared<TestProfile>(1));
    EXPECT_THAT([&] { target.DeepCopy(source); }, ThrowsMessage<std::runtime_error>(StrEq("clone refused")));
    EXPECT_TRUE(target.Empty());
    EXPECT_EQ(source.Size(), 1u);
}

TEST(ExceptionSafety, DuplicateChannelInAnEssenceStopsTheStreamClone)
{
    Stream stream(StreamId("s"));
    AudioEssence first;
    first.Metadata().Set(std::make_shared<TestProfile>(1));
    stream.Essences().Add(std::move(first));
    AudioEssence second;
    // Values() does not look for duplicates, so two equal channels can stand side by side.
    second.TrackChannels().Values(
        {std::make_shared<TrackChannel>(Identifier("a"), 1), std::make_shared<TrackChannel>(Identifier("a"), 1)});
    stream.Essences().Add(std::move(second));

    EXPECT_THAT([&] { stream.Clone(); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection")));
    EXPECT_EQ(stream.Essences().Size(), 2);
    EXPECT_EQ(stream.Essences()[1].TrackChannels().Size(), 2u);
    EXPECT_TRUE(stream.Essences()[0].Metadata().Empty()) << "the completed essence clone emptied it, by design";
}

TEST(ExceptionSafety, FailedAssetCloneLeavesTheSourceAsItWas)
{
    MediaAsset asset(MediaAssetId("a"));
    asset.Tracks().Insert(std::make_shared<Track>(TrackId("t")));
    auto annotation = std::make_shared<Annotation>(AnnotationType::CuePoint);
    annotation->Metadata().Set(std::make_shared<ThrowingProfile>());
    asset.Annotations().push_back(annotation);
    const MediaAsset before = asset;
    EXPECT_THAT([&] { asset.Clone(); }, ThrowsMessage<std::runtime_error>(StrEq("clone refused")));
    EXPECT_EQ(asset, before);
}

TEST(ExceptionSafety, NullAnnotationStopsTheAssetClone)
{
    MediaAsset asset(MediaAssetId("a"));
    asset.Annotations().push_back(nullptr);
    EXPECT_THAT(
        [&] { asset.Clone(); },
        ThrowsMessage<std::invalid_argument>(StrEq("Orvik::DataModel::MediaAssets::MediaAsset::Clone: null annotation")));
}
