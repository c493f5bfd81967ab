// Assets: what a clone owns, keeps or shares, their annotations and their operator metadata.

#include <Orvik/DataModel/MediaAssets/Annotation.h>
#include <Orvik/DataModel/MediaAssets/MediaAsset.h>

#include "ArbitraryObjects.h"
#include "TestProfiles.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kNoOperatorMetadata[] =
    "Orvik::DataModel::MediaAssets::MediaAsset::PelkOperatorMetadata: No orvik.pelkoperator metadata available";

// A deep copy: a dictionary of its own with the same names, each profile a copy.
void ExpectOwnProfiles(const MetadataProfileDictionary& copy, const MetadataProfileDictionary& original)
{
    EXPECT_NE(&copy, &original);
    ASSERT_EQ(copy.Size(), original.Size());
    for (size_t i = 0; i < copy.Size(); ++i)
        EXPECT_NE(copy.Values()[i], original.Values()[i]);
}

// A stream clone: a new stream, its object id unset, its profiles its own. Its essences keep their
// object ids, share their metadata dictionary with the source's (which the clone empties, by
// design) and the timecode tables, and own new track channels.
void ExpectStreamClone(const Stream& clone, const Stream& source)
{
    EXPECT_NE(&clone, &source);
    EXPECT_EQ(clone.ObjectId(), -1);
    ExpectOwnProfiles(clone.Metadata(), source.Metadata());
    ASSERT_EQ(clone.Essences().Size(), source.Essences().Size());
    for (int32_t e = 0; e < source.Essences().Size(); ++e) {
        const Essence& essence = clone.Essences()[e];
        const Essence& original = source.Essences()[e];
        EXPECT_EQ(essence.ObjectId(), original.ObjectId());
        EXPECT_EQ(&essence.Metadata(), &original.Metadata());
        EXPECT_TRUE(original.Metadata().Empty());
        for (size_t c = 0; c < original.TrackChannels().Size(); ++c)
            EXPECT_NE(essence.TrackChannels()[c], original.TrackChannels()[c]);
        for (size_t t = 0; t < original.Timecodes().Size(); ++t)
            EXPECT_EQ(essence.Timecodes()[t], original.Timecodes()[t]);
    }
}

}  // namespace

// Over generated assets, which have every shape: what a clone of the asset, and so of its
// resources, streams, essences, tracks and annotations, owns anew, keeps or shares. That it equals its source
// is checked by the first-difference property test.
TEST(MediaAssetClone, OwnsNewPartsButItsLayoutsPointAtTheSourceTracks)
{
    for (uint64_t seed = 0; seed < 50; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const MediaAsset source = Orvik::Testing::ArbitraryObjects(seed).MediaAsset();
        const MediaAsset clone = source.Clone();
        ASSERT_EQ(clone, source);
        EXPECT_EQ(clone.ObjectId(), -1);
        EXPECT_EQ(clone.Ancestor().Pointer(), nullptr) << "only the lineage ids are kept";
        EXPECT_EQ(clone.Parent().Pointer(), nullptr);
        ExpectOwnProfiles(clone.Metadata(), source.Metadata());
        std::set<const Stream*> resourceStreams;  // those of the clone's resources
        for (size_t r = 0; r < source.MediaResources().Size(); ++r) {
            const auto& original = source.MediaResources()[r].Pointer();
            const auto& resource = clone.MediaResources()[r].Pointer();
            EXPECT_EQ(resource == nullptr, original == nullptr) << "id-only stays id-only";
            if (resource == nullptr)
                continue;
            EXPECT_NE(resource, original);
            EXPECT_EQ(resource->ObjectId(), -1);
            ExpectOwnProfiles(resource->Metadata(), original->Metadata());
            for (size_t s = 0; s < original->Streams().size(); ++s) {
                const auto& stream = resource->Streams()[s].Pointer();
                const auto& originalStream = original->Streams()[s].Pointer();
                EXPECT_EQ(stream == nullptr, originalStream == nullptr) << "id-only stays id-only";
                if (stream == nullptr)
                    continue;
                ExpectStreamClone(*stream, *originalStream);
                resourceStreams.insert(stream.get());
            }
        }
        for (size_t t = 0; t < source.Tracks().Size(); ++t) {
            const Track& track = *clone.Tracks()[t];
            EXPECT_NE(&track, source.Tracks()[t].get());
            EXPECT_EQ(track.ObjectId(), -1);
            for (size_t c = 0; c < track.Channels().size(); ++c) {
                const TrackChannelToRemove& original = *source.Tracks()[t]->Channels()[c];
                EXPECT_EQ(*track.Channels()[c], original);
                const Stream* stream = track.Channels()[c]->Stream().Pointer().get();
                EXPECT_EQ(stream == nullptr, original.Stream().Pointer() == nullptr) << "id-only stays id-only";
                if (stream == nullptr)
                    continue;
                ExpectStreamClone(*stream, *original.Stream());
                EXPECT_EQ(resourceStreams.count(stream), 0u) << "not shared with the cloned resources";
            }
        }
        for (size_t l = 0; l < source.TrackLayouts().Size(); ++l) {
            const TrackLayout& layout = *clone.TrackLayouts()[l];
            EXPECT_NE(&layout, source.TrackLayouts()[l].get());
            EXPECT_EQ(layout.ObjectId(), source.TrackLayouts()[l]->ObjectId());
            for (size_t i = 0; i < layout.TrackLayoutItems().Size(); ++i)
                for (size_t k = 0; k < layout.TrackLayoutItems()[i].Tracks().Size(); ++k)
                    EXPECT_EQ(layout.TrackLayoutItems()[i].Tracks()[k].lock(),
                              source.TrackLayouts()[l]->TrackLayoutItems()[i].Tracks()[k].lock());
        }
        for (size_t a = 0; a < source.Annotations().size(); ++a) {
            EXPECT_NE(clone.Annotations()[a], source.Annotations()[a]);
            EXPECT_EQ(clone.Annotations()[a]->ObjectId(), -1);
            ExpectOwnProfiles(clone.Annotations()[a]->Metadata(), source.Annotations()[a]->Metadata());
        }
    }
}

TEST(MediaAssetAnnotations, NullOnesAreNeverEqualAndStopAClone)
{
    MediaAsset left;
    left.Annotations().push_back(nullptr);
    MediaAsset right = left;
    EXPECT_NE(left, right);
    const Orvik::DataModel::MediaAssets::equal_to equal;
    EXPECT_FALSE(equal(nullptr, nullptr));
    EXPECT_FALSE(equal(std::make_shared<Annotation>(AnnotationType::CuePoint), nullptr));
    EXPECT_THAT(
        [&] { left.Clone(); },
        ThrowsMessage<std::invalid_argument>(StrEq("Orvik::DataModel::MediaAssets::MediaAsset::Clone: null annotation")));
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
    EXPECT_EQ(&std::as_const(asset).PelkOperatorMetadata(), profile.get());
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

// What an annotation clone owns is checked with the asset clone above.
TEST(AnnotationCopy, SharesTheProfiles)
{
    Annotation source(AnnotationType::CuePoint, "goal");
    source.Metadata().Set(std::make_shared<TestProfile>(1));
    const Annotation copy = source;
    EXPECT_EQ(copy.Metadata().Values()[0], source.Metadata().Values()[0]);
}
