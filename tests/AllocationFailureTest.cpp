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

// Essence::Clone empties the metadata dictionary that the source essence shares with its copy,
// even when a later step fails: a failed clone may leave any essence it reached so, and nothing
// else changed. These empty the matching dictionaries of `expected` for every essence of `source`
// found empty, so that the whole objects can then be compared (equality compares the metadata).
template <typename T>
void AcceptEmptiedEssenceMetadata(const T&, const T&)
{}

void AcceptEmptiedEssenceMetadata(const Essence& source, const Essence& expected)
{
    if (source.Metadata().Empty())
        const_cast<Essence&>(expected).Metadata().Clear();
}

void AcceptEmptiedEssenceMetadata(const Stream& source, const Stream& expected)
{
    ASSERT_EQ(source.Essences().Size(), expected.Essences().Size());
    for (int32_t i = 0; i < source.Essences().Size(); ++i)
        AcceptEmptiedEssenceMetadata(source.Essences()[i], expected.Essences()[i]);
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

template <typename T>
const T& Deref(const T& value)
{
    return value;
}
template <typename T>
T& Deref(const std::unique_ptr<T>& pointer)
{
    return *pointer;
}
template <typename T>
T& Deref(const std::shared_ptr<T>& pointer)
{
    return *pointer;
}

// Runs `operation` on an object made by `make` from each of `seeds` seeds, failing each
// allocation in turn; after every failure the object must equal a second one made from the same
// seed, but for the emptied essence metadata.
template <typename Make, typename Operation>
void ExpectFailuresLeaveTheSource(const char* what, Make make, Operation operation, uint64_t seeds = kSeeds)
{
    SCOPED_TRACE(what);
    uint64_t failures = 0;
    for (uint64_t seed = 1; seed <= seeds; ++seed) {
        const auto source = make(Any(seed));
        const auto expected = make(Any(seed));
        failures += FailEachAllocationInTurn([&] { operation(Deref(source)); },
                                             [&](uint64_t n) {
                                                 AcceptEmptiedEssenceMetadata(Deref(source), Deref(expected));
                                                 ASSERT_TRUE(Deref(source) == Deref(expected))
                                                     << "seed " << seed << ", allocation " << n;
                                             });
    }
    EXPECT_GT(failures, 0u);
}

}  // namespace

TEST(AllocationFailure, FailedClonesAndCopiesLeaveTheSourceAsDocumented)
{
    ExpectFailuresLeaveTheSource(
        "asset clone", [](Any any) { return any.MediaAsset(); }, [](const MediaAsset& a) { a.Clone(); });
    // A layout's items point at the tracks of the asset that holds it.
    ExpectFailuresLeaveTheSource(
        "layout clones", [](Any any) { return any.MediaAsset(); },
        [](const MediaAsset& a) {
            for (const auto& layout : a.TrackLayouts())
                layout->Clone();
        });
    ExpectFailuresLeaveTheSource(
        "resource clone", [](Any any) { return any.MediaResource(); }, [](const MediaResource& r) { r.Clone(); });
    ExpectFailuresLeaveTheSource(
        "stream clone", [](Any any) { return any.Stream(); }, [](const Stream& s) { s.Clone(); });
    ExpectFailuresLeaveTheSource(
        "stream copy", [](Any any) { return any.Stream(); }, [](const Stream& s) { Stream copy(s); });
    ExpectFailuresLeaveTheSource(
        "essence clone", [](Any any) { return any.Essence(); }, [](const Essence& e) { e.Clone(); }, 3 * kSeeds);
    ExpectFailuresLeaveTheSource(
        "location clone", [](Any any) { return any.Location(); }, [](const Location& l) { l.Clone(); }, 3 * kSeeds);
    ExpectFailuresLeaveTheSource(
        "track clone", [](Any any) { return any.Track(); }, [](const Track& t) { t.Clone(); });
    ExpectFailuresLeaveTheSource(
        "annotation clone", [](Any any) { return any.Annotation(); }, [](const Annotation& a) { a.Clone(); });
    ExpectFailuresLeaveTheSource(
        "profile clone", [](Any any) { return any.PelkOperatorProfile(); }, [](const MetadataProfile& p) { p.Clone(); });
    ExpectFailuresLeaveTheSource(
        "angles profile clone", [](Any any) { return any.AnglesPelkOperatorProfile(); },
        [](const MetadataProfile& p) { p.Clone(); });
    ExpectFailuresLeaveTheSource(
        "group copy", [](Any any) { return any.MediaAssetGroup(); },
        [](const MediaAssetGroup& g) { MediaAssetGroup copy(g); });
    ExpectFailuresLeaveTheSource(
        "angles group copy", [](Any any) { return any.AnglesMediaAssetGroup(); },
        [](const MediaAssetGroup& g) { MediaAssetGroup copy(g); });
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
