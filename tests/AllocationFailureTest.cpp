// Every operation that allocates is run with its first allocation failing, then its second, and
// so on until it completes. Each failure must reach the caller as std::bad_alloc and leave the
// source objects as they were, except for what the operation documents; the suites run under
// AddressSanitizer with LeakSanitizer, so anything a failed attempt built and lost is reported.

#include <Orvik/DataModel/MediaAssets.h>

#include "AllocationControl.h"
#include "ArbitraryObjects.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::Testing::ArbitraryObjects;
using Orvik::Testing::FailEachAllocationInTurn;

namespace {

constexpr uint64_t kSeeds = 64;

// Essence::Clone empties the metadata dictionary that the source essence shares with its copy,
// even when a later step fails: a failed clone may leave any essence it reached so, and nothing
// else changed. Checks that rule for every essence that `source` reaches, then empties the
// matching dictionaries of `expected`, so that the whole objects can be compared afterwards.
void AcceptEmptiedEssenceMetadata(const Stream& source, const Stream& expected)
{
    ASSERT_EQ(source.Essences().Size(), expected.Essences().Size());
    for (int32_t i = 0; i < source.Essences().Size(); ++i) {
        const auto& metadata = source.Essences()[i].Metadata();
        auto& expectedMetadata = const_cast<Stream&>(expected).Essences()[i].Metadata();
        if (metadata.Empty())
            expectedMetadata.Clear();
        EXPECT_TRUE(metadata == expectedMetadata) << "essence " << i;
    }
}

void AcceptEmptiedEssenceMetadata(const MediaResource& source, const MediaResource& expected)
{
    ASSERT_EQ(source.Streams().size(), expected.Streams().size());
    for (size_t i = 0; i < source.Streams().size(); ++i)
        if (source.Streams()[i].Pointer())
            AcceptEmptiedEssenceMetadata(*source.Streams()[i], *expected.Streams()[i]);
}

void AcceptEmptiedEssenceMetadata(const MediaAsset& source, const MediaAsset& expected)
{
    ASSERT_EQ(source.MediaResources().Size(), expected.MediaResources().Size());
    for (size_t i = 0; i < source.MediaResources().Size(); ++i)
        if (source.MediaResources()[i].Pointer())
            AcceptEmptiedEssenceMetadata(*source.MediaResources()[i], *expected.MediaResources()[i]);
    ASSERT_EQ(source.Tracks().Size(), expected.Tracks().Size());
    for (size_t t = 0; t < source.Tracks().Size(); ++t) {
        const auto& channels = source.Tracks()[t]->Channels();
        const auto& expectedChannels = expected.Tracks()[t]->Channels();
        ASSERT_EQ(channels.size(), expectedChannels.size());
        for (size_t c = 0; c < channels.size(); ++c)
            if (channels[c]->Stream().Pointer())
                AcceptEmptiedEssenceMetadata(*channels[c]->Stream(), *expectedChannels[c]->Stream());
    }
}

// Runs `clone` on an object made by `make` from each seed, failing each allocation in turn; after
// every failure the object must equal a second one made from the same seed (allowing the emptied
// essence metadata where `Object` reaches essences).
template <typename Object, typename Make, typename Clone>
void ExpectFailedClonesLeaveTheSource(Make make, Clone clone)
{
    uint64_t failures = 0;
    for (uint64_t seed = 1; seed <= kSeeds; ++seed) {
        const Object source = make(ArbitraryObjects(seed));
        const Object expected = make(ArbitraryObjects(seed));
        failures += FailEachAllocationInTurn(
            [&] { clone(source); },
            [&](uint64_t n) {
                if constexpr (std::is_same_v<
                                  Object,
                                  MediaAsset> || std::is_same_v<Object, MediaResource> || std::is_same_v<Object, Stream>)
                    AcceptEmptiedEssenceMetadata(source, expected);
                ASSERT_TRUE(source == expected) << "seed " << seed << ", allocation " << n;
            });
    }
    EXPECT_GT(failures, 0u) << typeid(Object).name();
}

}  // namespace

TEST(AllocationFailure, FailedEntityClonesLeaveTheSourceAsDocumented)
{
    ExpectFailedClonesLeaveTheSource<MediaAsset>([](ArbitraryObjects objects) { return objects.MediaAsset(); },
                                                 [](const MediaAsset& asset) { asset.Clone(); });
    ExpectFailedClonesLeaveTheSource<MediaResource>([](ArbitraryObjects objects) { return objects.MediaResource(); },
                                                    [](const MediaResource& resource) { resource.Clone(); });
    ExpectFailedClonesLeaveTheSource<Stream>([](ArbitraryObjects objects) { return objects.Stream(); },
                                             [](const Stream& stream) { stream.Clone(); });
    ExpectFailedClonesLeaveTheSource<Track>([](ArbitraryObjects objects) { return objects.Track(); },
                                            [](const Track& track) { track.Clone(); });
    // A layout's items point at the tracks of the asset that holds it.
    ExpectFailedClonesLeaveTheSource<MediaAsset>([](ArbitraryObjects objects) { return objects.MediaAsset(); },
                                                 [](const MediaAsset& asset) {
                                                     for (const auto& layout : asset.TrackLayouts())
                                                         layout->Clone();
                                                 });
    ExpectFailedClonesLeaveTheSource<Stream>([](ArbitraryObjects objects) { return objects.Stream(); },
                                             [](const Stream& stream) { Stream copy(stream); });
    ExpectFailedClonesLeaveTheSource<Annotation>([](ArbitraryObjects objects) { return objects.Annotation(); },
                                                 [](const Annotation& annotation) { annotation.Clone(); });
}

TEST(AllocationFailure, FailedEssenceClonesEmptyTheMetadataAtMost)
{
    for (uint64_t seed = 1; seed <= 3 * kSeeds; ++seed) {
        const auto source = ArbitraryObjects(seed).Essence();
        const auto expected = ArbitraryObjects(seed).Essence();
        FailEachAllocationInTurn([&] { source->Clone(); },
                                 [&](uint64_t n) {
                                     if (source->Metadata().Empty())
                                         expected->Metadata().Clear();
                                     ASSERT_TRUE(*source == *expected) << "seed " << seed << ", allocation " << n;
                                 });
    }
}

TEST(AllocationFailure, FailedLocationAndProfileClonesLeaveTheSource)
{
    for (uint64_t seed = 1; seed <= 3 * kSeeds; ++seed) {
        const auto location = ArbitraryObjects(seed).Location();
        const auto expectedLocation = ArbitraryObjects(seed).Location();
        FailEachAllocationInTurn([&] { location->Clone(); },
                                 [&](uint64_t) { ASSERT_TRUE(*location == *expectedLocation) << "seed " << seed; });
    }
    ExpectFailedClonesLeaveTheSource<PelkOperatorMetadataProfile>(
        [](ArbitraryObjects objects) { return objects.PelkOperatorProfile(); },
        [](const PelkOperatorMetadataProfile& profile) { profile.Clone(); });
    ExpectFailedClonesLeaveTheSource<AnglesPelkOperatorMetadataProfile>(
        [](ArbitraryObjects objects) { return objects.AnglesPelkOperatorProfile(); },
        [](const AnglesPelkOperatorMetadataProfile& profile) { profile.Clone(); });
}

TEST(AllocationFailure, FailedGroupCopiesLeaveTheSource)
{
    for (uint64_t seed = 1; seed <= kSeeds; ++seed) {
        for (const bool angles : {false, true}) {
            ArbitraryObjects objects(seed), same(seed);
            const auto group = angles ? objects.AnglesMediaAssetGroup() : objects.MediaAssetGroup();
            const auto expected = angles ? same.AnglesMediaAssetGroup() : same.MediaAssetGroup();
            FailEachAllocationInTurn([&] { MediaAssetGroup copy(*group); },
                                     [&](uint64_t) { ASSERT_TRUE(*group == *expected) << "seed " << seed; });
        }
    }
}

TEST(AllocationFailure, FailedDeepCopyLeavesTheSourceAndAnEmptyTarget)
{
    for (uint64_t seed = 1; seed <= kSeeds; ++seed) {
        const auto source = ArbitraryObjects(seed).MetadataDictionary();
        const auto expected = ArbitraryObjects(seed).MetadataDictionary();
        MetadataProfileDictionary target;
        FailEachAllocationInTurn([&] { target.DeepCopy(source); },
                                 [&](uint64_t) {
                                     ASSERT_TRUE(source == expected);
                                     ASSERT_TRUE(target.Empty());
                                 });
        EXPECT_TRUE(target == source);
    }
}

TEST(AllocationFailure, FailedSortedInsertsLeaveTheVectorAsItWas)
{
    for (uint64_t seed = 1; seed <= kSeeds; ++seed) {
        ArbitraryObjects objects(seed);
        MediaAsset asset = objects.MediaAsset();
        const MediaAsset expected = ArbitraryObjects(seed).MediaAsset();
        auto track = std::make_shared<Track>(TrackId("inserted track"));
        FailEachAllocationInTurn([&] { asset.Tracks().Insert(track); }, [&](uint64_t) { ASSERT_TRUE(asset == expected); });
        EXPECT_EQ(asset.Tracks().Size(), expected.Tracks().Size() + 1);
        auto renamed = std::make_shared<Track>(TrackId("replacing track"));
        FailEachAllocationInTurn([&] { asset.Tracks().Replace(track, renamed); },
                                 [&](uint64_t) { ASSERT_NE(asset.Tracks().ConstFind(track), asset.Tracks().end()); });
        EXPECT_EQ(asset.Tracks().ConstFind(track), asset.Tracks().end());

        Stream stream = ArbitraryObjects(seed).Stream();
        const Stream expectedStream = ArbitraryObjects(seed).Stream();
        FailEachAllocationInTurn([&] { stream.Locations().Add(FileLocation()); },
                                 [&](uint64_t) { ASSERT_TRUE(stream == expectedStream); });

        std::vector<std::shared_ptr<Track>> tracks(asset.Tracks().begin(), asset.Tracks().end());
        tracks.push_back(std::make_shared<Track>(TrackId("another track")));
        const auto before = asset.Tracks().Values();
        FailEachAllocationInTurn([&] { asset.Tracks().Values(tracks); },
                                 [&](uint64_t) { ASSERT_EQ(asset.Tracks().Values(), before); });

        TimeBoundsArray bounds = objects.TimeBoundsArray();
        const TimeBoundsArray expectedBounds = bounds;
        const TimeBounds added(TimeBoundary(TimePoint(-5), false), TimeBoundary(TimePoint(-1), false));
        FailEachAllocationInTurn([&] { bounds.Insert(added); }, [&](uint64_t) { ASSERT_TRUE(bounds == expectedBounds); });
    }
}

TEST(AllocationFailure, FailedParsesReachTheCallerAndChangeNothing)
{
    const std::vector<std::pair<const char*, std::function<void()>>> parses = {
        {"PelkId::FromUri", [] { PelkId::FromUri("123B/120"); }},
        {"PelkId::TryParse",
         [] {
             PelkId id;
             PelkId::TryParse("456C/340", id);
         }},
        {"ZanServerId::Parse", [] { ZanServerId::Parse("120"); }},
        {"Color::Parse", [] { Color::Parse("#FF102030"); }},
        {"TimeCodeString::Set", [] { TimeCodeString("10:11:12;13"); }},
        {"VideoCodingFormat", [] { ToVideoCodingFormat(ToString(static_cast<VideoCodingFormat>(3))); }},
        {"Essence::ToType", [] { Essence::ToType("Video"); }},
        {"Location::ToString", [] { Location::ToString(Location::DaxContentTrackLocation); }},
    };
    // Each runs once first, so that the tables it builds on first use are there: a failure while
    // building one is retried by the next call.
    for (const auto& [name, parse] : parses) {
        parse();
        EXPECT_NO_THROW(FailEachAllocationInTurn(parse, [](uint64_t) {})) << name;
    }

    DaxContentTrackLocation location;
    location.InitFromUri("storage://S1/P2/T3");
    const DaxContentTrackLocation expected = location;
    // Fields too long for the short-string buffer, so that each allocates.
    const std::string uri = "storage://server-number-four/partition-number-five/content-track-six";
    EXPECT_GT(
        FailEachAllocationInTurn([&] { location.InitFromUri(uri); }, [&](uint64_t) { ASSERT_TRUE(location == expected); }),
        0u);
    EXPECT_EQ(location.Uri(), URI(uri));
}
