#include <Orvik/DataModel/MediaAssets/Annotation.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>
#include <Orvik/DataModel/MediaAssets/VideoEssence.h>

#include "TestProfiles.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <utility>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kNoOperatorMetadata[] =
    "Orvik::DataModel::MediaAssets::MediaAsset::PelkOperatorMetadata: No orvik.pelkoperator metadata available";

// A fully populated asset and its clone: lineage by pointer, a track whose channel refers to a
// loaded stream, a layout over that track, a loaded and an id-only resource, an annotation, an
// operator profile.
class PopulatedAsset : public ::testing::Test {
protected:
    PopulatedAsset() : source(MediaAssetId("asset"))
    {
        source.ObjectId(11);
        source.AssetType(AssetType::media);
        source.Ancestor(MediaAssetReference(std::make_shared<MediaAsset>(MediaAssetId("ancestor"))));
        source.Parent(MediaAssetReference(MediaAssetId("parent")));

        auto stream = std::make_unique<Stream>(StreamId("stream"));
        stream->Essences().Add(VideoEssence());
        resource = std::make_shared<MediaResource>(MediaResourceId("r1"));
        resource->Adopt(std::move(stream));
        source.MediaResources().Insert(MediaResourceReference(resource));
        source.MediaResources().Insert(MediaResourceReference(MediaResourceId("r0")));

        track = std::make_shared<Track>(TrackId("t1"), "Program");
        auto channel = std::make_shared<TrackChannelToRemove>();
        channel->Stream(StreamReference(resource->Streams()[0].Pointer()));
        track->Channels().push_back(channel);
        source.Tracks().Insert(track);

        TrackLayoutItem item(Identifier("i1"));
        item.Tracks().Insert(track);
        auto layout = std::make_shared<TrackLayout>(Identifier("l1"));
        layout->TrackLayoutItems().Insert(item);
        layout->ObjectId(6);
        source.TrackLayouts().Insert(layout);

        auto annotation = std::make_shared<Annotation>(AnnotationType::CuePoint, "goal");
        annotation->Metadata().Set(std::make_shared<TestProfile>(1));
        source.Annotations().push_back(annotation);
        source.Metadata().Set(std::make_shared<PelkOperatorMetadataProfile>());
        clone = source.Clone();
    }

    std::shared_ptr<MediaResource> resource;
    std::shared_ptr<Track> track;
    MediaAsset source;
    MediaAsset clone;
};

}  // namespace

TEST_F(PopulatedAsset, CloneIsEqualWithObjectIdUnset)
{
    EXPECT_EQ(clone, source);
    EXPECT_EQ(clone.ObjectId(), -1);
}

TEST_F(PopulatedAsset, CloneKeepsOnlyTheLineageIds)
{
    EXPECT_EQ(clone.Ancestor().Id(), MediaAssetId("ancestor"));
    EXPECT_EQ(clone.Ancestor().Pointer(), nullptr);
    EXPECT_THAT([&] { (void)clone.Ancestor()->Id(); }, ThrowsMessage<std::runtime_error>(StrEq("null pointer")));
    EXPECT_EQ(clone.Parent().Id(), MediaAssetId("parent"));
}

TEST_F(PopulatedAsset, CloneRebuildsTracksWithTheirOwnStreams)
{
    const auto& clonedTrack = clone.Tracks().Front();
    EXPECT_NE(clonedTrack, track);
    EXPECT_EQ(clonedTrack->ObjectId(), -1);
    const auto& channelStream = clonedTrack->Channels()[0]->Stream().Pointer();
    EXPECT_NE(channelStream, resource->Streams()[0].Pointer());
    const auto& clonedResource = clone.MediaResources()[1].Pointer();
    EXPECT_NE(channelStream, clonedResource->Streams()[0].Pointer()) << "not shared with the cloned resource";
}

TEST_F(PopulatedAsset, CloneLayoutsStillPointAtTheSourceTracks)
{
    const auto& layout = clone.TrackLayouts().Front();
    EXPECT_NE(layout, source.TrackLayouts().Front());
    EXPECT_EQ(layout->ObjectId(), 6);
    EXPECT_EQ(layout->TrackLayoutItems().Front().Tracks().Front().lock(), track);

    const MediaAsset other = clone;
    track.reset();
    source = MediaAsset();
    EXPECT_THAT([&] { (void)(clone == other); },
                ThrowsMessage<std::runtime_error>(
                    StrEq("Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired")));
}

TEST_F(PopulatedAsset, CloneDeepCopiesResourcesAnnotationsAndProfiles)
{
    EXPECT_EQ(clone.MediaResources()[0].Pointer(), nullptr) << "id-only stays id-only";
    EXPECT_NE(clone.MediaResources()[1].Pointer(), resource);
    EXPECT_NE(clone.Annotations()[0], source.Annotations()[0]);
    EXPECT_EQ(clone.Annotations()[0]->ObjectId(), -1);
    EXPECT_NE(&std::as_const(clone).PelkOperatorMetadata(), &source.PelkOperatorMetadata());
}

TEST(MediaAssetEquality, LooksAtIdsOfReferencesAndNotAtObjectId)
{
    MediaAsset left(MediaAssetId("a"));
    MediaAsset right(MediaAssetId("a"));
    left.Ancestor(MediaAssetReference(std::make_shared<MediaAsset>(MediaAssetId("x"))));
    right.Ancestor(MediaAssetReference(MediaAssetId("x")));
    right.ObjectId(4);
    EXPECT_EQ(left, right);
}

TEST(MediaAssetEquality, NullAnnotationsAreNeverEqual)
{
    MediaAsset left;
    left.Annotations().push_back(nullptr);
    MediaAsset right = left;
    EXPECT_NE(left, right);
    const Orvik::DataModel::MediaAssets::equal_to equal;
    EXPECT_FALSE(equal(nullptr, nullptr));
    EXPECT_FALSE(equal(std::make_shared<Annotation>(AnnotationType::CuePoint), nullptr));
}

TEST(MediaAssetOperatorMetadata, IsFoundByClassUnderItsName)
{
    MediaAsset asset;
    EXPECT_FALSE(asset.HasPelkOperatorMetadata());
    EXPECT_THAT([&] { asset.PelkOperatorMetadata(); }, ThrowsMessage<std::runtime_error>(StrEq(kNoOperatorMetadata)));
    asset.Metadata().Set(std::make_shared<OtherProfile>());
    EXPECT_FALSE(asset.HasPelkOperatorMetadata());
    EXPECT_THROW(asset.PelkOperatorMetadata(), std::runtime_error);
    auto profile = std::make_shared<PelkOperatorMetadataProfile>();
    asset.Metadata().Set(profile);
    EXPECT_TRUE(asset.HasPelkOperatorMetadata());
    EXPECT_EQ(&asset.PelkOperatorMetadata(), profile.get());
}

TEST(AnnotationEquality, ComparesThePointeesButNotTheirObjectIds)
{
    auto left = std::make_shared<Annotation>(AnnotationType::CuePoint, "goal");
    auto right = std::make_shared<Annotation>(AnnotationType::CuePoint, "goal");
    right->ObjectId(3);
    const Orvik::DataModel::MediaAssets::equal_to equal;
    EXPECT_TRUE(equal(left, right));
    right->TimeBounds(TimeBounds(TimeBoundary(TimePoint(1), true), TimeBoundary::Empty()));
    EXPECT_FALSE(equal(left, right));
}

TEST(AnnotationClone, OwnsEqualCopiesOfTheProfilesWithObjectIdUnset)
{
    Annotation source(AnnotationType::CuePoint, "goal");
    source.ObjectId(3);
    source.Metadata().Set(std::make_shared<TestProfile>(1));
    const Annotation clone = source.Clone();
    EXPECT_EQ(clone, source);
    EXPECT_EQ(clone.ObjectId(), -1);
    EXPECT_NE(clone.Metadata().Values()[0], source.Metadata().Values()[0]);
    const Annotation copy = source;
    EXPECT_EQ(copy.Metadata().Values()[0], source.Metadata().Values()[0]) << "a plain copy shares profiles";
}
