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
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::Testing::ArbitraryObjects;
using Orvik::Testing::FailEachAllocationInTurn;

namespace {

constexpr uint64_t kSeeds = 64;
using Any = ArbitraryObjects;

// The essences of an asset's loaded streams, its tracks' streams included, in order.
std::vector<const Essence*> Essences(const MediaAsset& asset)
{
    std::vector<const Essence*> essences;
    const auto add = [&essences](const Stream& stream) {
        for (const auto& essence : stream.Essences())
            essences.push_back(essence.get());
    };
    for (const auto& resource : asset.MediaResources())
        for (const auto& stream : resource.Pointer() ? resource->Streams() : std::vector<StreamReference>())
            if (stream.Pointer())
                add(*stream);
    for (const auto& track : asset.Tracks())
        for (const auto& channel : track->Channels())
            if (channel->Stream().Pointer())
                add(*channel->Stream());
    return essences;
}

// Essence::Clone empties the metadata dictionary that the source essence shares with its copy,
// even when a later step fails: a failed clone may leave any essence it reached so, and nothing
// else changed. This empties the matching dictionary of `expected` for every essence of `source`
// found empty, so that the whole objects can then be compared (equality compares the metadata).
void AcceptEmptiedEssenceMetadata(const MediaAsset& source, const MediaAsset& expected)
{
    const auto sourceEssences = Essences(source);
    const auto expectedEssences = Essences(expected);
    ASSERT_EQ(sourceEssences.size(), expectedEssences.size());
    for (size_t i = 0; i < sourceEssences.size(); ++i)
        if (sourceEssences[i]->Metadata().Empty())
            const_cast<Essence*>(expectedEssences[i])->Metadata().Clear();
}

void AcceptEmptiedEssenceMetadata(const MediaAssetGroup&, const MediaAssetGroup&) {}  // no essences

// Runs `operation` on an object made by `make` from each of kSeeds seeds, failing each
// allocation in turn; after every failure the object must equal a second one made from the same
// seed, but for the emptied essence metadata.
template <typename Make, typename Operation>
void ExpectFailuresLeaveTheSource(const char* what, Make make, Operation operation)
{
    SCOPED_TRACE(what);
    uint64_t failures = 0;
    for (uint64_t seed = 1; seed <= kSeeds; ++seed) {
        const auto source = make(Any(seed));
        const auto expected = make(Any(seed));
        failures += FailEachAllocationInTurn([&] { operation(source); },
                                             [&](uint64_t n) {
                                                 AcceptEmptiedEssenceMetadata(source, expected);
                                                 ASSERT_TRUE(source == expected) << "seed " << seed << ", allocation " << n;
                                             });
    }
    EXPECT_GT(failures, 0u);
}

}  // namespace

// An asset clone clones the asset's resources, their streams with their essences and locations,
// its tracks with their channels' streams, its annotations and every metadata profile of either
// kind: failing each of its allocations in turn fails each of theirs.
TEST(AllocationFailure, FailedClonesAndCopiesLeaveTheSourceAsDocumented)
{
    ExpectFailuresLeaveTheSource(
        "asset clone", [](Any any) { return any.MediaAsset(); }, [](const MediaAsset& a) { a.Clone(); });
    // An asset clone copies its layouts; a layout's items point at the tracks of the asset.
    ExpectFailuresLeaveTheSource(
        "layout clones", [](Any any) { return any.MediaAsset(); },
        [](const MediaAsset& a) {
            for (const auto& layout : a.TrackLayouts())
                layout->Clone();
        });
    ExpectFailuresLeaveTheSource(
        "group copy", [](Any any) { return *any.MediaAssetGroup(); },
        [](const MediaAssetGroup& g) { MediaAssetGroup copy(g); });
}

TEST(AllocationFailure, FailedDeepCopyLeavesTheSourceAndAnEmptyTarget)
{
    for (uint64_t seed = 1; seed <= kSeeds; ++seed) {
        const auto source = ArbitraryObjects(seed).MetadataDictionary();
        const auto expected = ArbitraryObjects(seed).MetadataDictionary();
        MetadataProfileDictionary target;
        target.Set(std::make_shared<PelkOperatorMetadataProfile>());  // emptied first
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
