// FirstDifference: examples of the paths and values it writes; then, against operator== over
// generated objects, that for every pair a difference is reported exactly when the objects are
// unequal, and that when a copy or a clone differs from its source in one field only, the
// difference names that very field. Last, the generator's own promises: that the same seed gives
// equal objects of every kind is checked by the properties.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/FirstDifference.h>

#include "ArbitraryObjects.h"
#include "Mutations.h"
#include "TestProfiles.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using Any = Orvik::Testing::ArbitraryObjects;
using Orvik::Testing::Change;
using Orvik::Testing::Mutation;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kExpired[] = "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

struct Expected {
    const char* path;
    const char* left;
    const char* right;
};

void ExpectDifference(const std::optional<Difference>& difference, const Expected& expected)
{
    ASSERT_TRUE(difference.has_value()) << expected.path;
    EXPECT_EQ(difference->Path(), expected.path);
    EXPECT_EQ(difference->Left(), expected.left);
    EXPECT_EQ(difference->Right(), expected.right);
}

constexpr uint64_t kSeeds = 400;
constexpr int kMutationsPerTarget = 3;

/// Checks one pair both ways: a difference exactly where `change` changed a compared field.
template <typename T>
void ExpectDifferenceAt(const T& source, const T& changed, const std::optional<Change>& change)
{
    const bool seen = change && change->compared;
    for (const bool forward : {true, false}) {
        const T& left = forward ? source : changed;
        const T& right = forward ? changed : source;
        const auto difference = FirstDifference(left, right);
        ASSERT_EQ(difference.has_value(), left != right);
        // A change that is not seen means that the target shares what it should own.
        ASSERT_EQ(difference.has_value(), seen) << (difference ? difference->Path() : change->path);
        if (!difference)
            continue;
        EXPECT_EQ(difference->Path(), change->path);
        EXPECT_NE(difference->Left(), difference->Right()) << difference->Path();
    }
}

/// For each seed: a generated object, copies and clones of it (`copy(source, clone)`), each
/// changed a few times in one field; every pair checked both ways. Returns the number of pairs.
template <typename T, typename Make, typename Copy>
int CheckMutatedCopies(Make make, Copy copy, const std::vector<Mutation<T>>& mutations)
{
    int pairs = 0;
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Any any(seed);
        const auto source = make(any);
        for (const bool clone : {false, true}) {
            for (int i = 0; i < kMutationsPerTarget; ++i) {
                auto target = copy(*source, clone);
                ExpectDifferenceAt<T>(*source, *target, Orvik::Testing::Mutate(*target, any, mutations));
                pairs += 2;
            }
        }
    }
    return pairs;
}

template <typename T>
std::shared_ptr<T> Held(T value)
{
    return std::make_shared<T>(std::move(value));
}

const auto kCopyOrClone = [](const auto& source, bool clone) { return Held(clone ? source.Clone() : source); };

}  // namespace

TEST(FirstDifference, ValuesAreWrittenByKind)
{
    AudioEssence audio;
    AudioEssence other;
    other.BitRateMode(BitRateMode::vbr);
    ExpectDifference(FirstDifference(audio, other), {"(AudioEssence).bitRateMode", "unknown", "vbr"});
    ExpectDifference(FirstDifference(Stream(StreamId("r2")), Stream(StreamId("r9"))), {"streamId", "\"r2\"", "\"r9\""});

    Annotation left(AnnotationType::CuePoint, "say \"go\"\\\n\x01");
    Annotation right(AnnotationType::CuePoint, "say \xE2\x82\xAC");
    ExpectDifference(FirstDifference(left, right), {"data", R"("say \"go\"\\\n\x01")", "\"say \xE2\x82\xAC\""});

    right = left;
    right.TimeBounds(TimeBounds(TimeBoundary(TimePoint(-40), true), TimeBoundary::Empty()));
    ExpectDifference(FirstDifference(left, right), {"timeBounds.inBoundary.timePoint", "-9223372036854775807", "-40"});

    PelkOperatorMetadataProfile profile;
    PelkOperatorMetadataProfile coloured;
    coloured.Color(Color::Red);
    ExpectDifference(FirstDifference(profile, coloured), {"color", "0x00000000", "0xFFFF0000"});
    coloured = profile;
    coloured.Camera('B');
    ExpectDifference(FirstDifference(profile, coloured), {"camera", R"("\x00")", "\"B\""});
}

TEST(FirstDifference, KindComesBeforeFields)
{
    AudioEssence audio;
    VideoEssence video;
    ExpectDifference(FirstDifference(audio, video), {"type", "Audio", "Video"});

    // The same URI text: equality, too, compares the kind first.
    ZanLocation zan(ZanServerId(120), "A7F3");
    FileLocation file;
    file.Uri(URI("120/A7F3"));
    ASSERT_EQ(zan.Uri(), file.Uri());
    ExpectDifference(FirstDifference(zan, file), {"type", "ZanLocation", "FileLocation"});
    EXPECT_NE(zan, file);
    EXPECT_NE(file, zan);

    MetadataProfileDictionary operatorProfile;
    operatorProfile.Set(std::make_shared<PelkOperatorMetadataProfile>());
    MetadataProfileDictionary otherClass;
    otherClass.Set(std::make_shared<OtherProfile>());
    ExpectDifference(FirstDifference(operatorProfile, otherClass),
                     {"[\"orvik.pelkoperator\"]", "PelkOperatorMetadataProfile", "profile \"orvik.pelkoperator\""});
}

// A plain item compares the asset ids alone, an angles item first checks the other's class: the
// difference follows the left item, as operator== does.
TEST(FirstDifference, GroupItemsFollowTheLeftItemsClass)
{
    const MediaAssetReference asset(MediaAssetId("a1"));
    const MediaAssetGroupItem plain(asset);
    const AnglesMediaAssetGroupItem angles("cam 1", asset);
    const MediaAssetGroupItem& anglesAsBase = angles;
    EXPECT_FALSE(FirstDifference(plain, angles).has_value());
    EXPECT_TRUE(plain == anglesAsBase);
    ExpectDifference(FirstDifference(angles, plain),
                     {"", "AnglesMediaAssetGroupItem for \"a1\"", "MediaAssetGroupItem for \"a1\""});
    EXPECT_FALSE(anglesAsBase == plain);
    EXPECT_TRUE(anglesAsBase != plain);

    AnglesMediaAssetGroup left(MediaAssetGroupId("g"));
    left.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>(angles));
    AnglesMediaAssetGroup right(MediaAssetGroupId("g"));
    right.Items().push_back(std::make_shared<AnglesMediaAssetGroupItem>("cam 2", asset));
    ExpectDifference(FirstDifference(left, right), {"items[0].(AnglesMediaAssetGroupItem).name", "\"cam 1\"", "\"cam 2\""});
    right.Items()[0] = nullptr;
    ExpectDifference(FirstDifference(left, right), {"items[0]", "AnglesMediaAssetGroupItem for \"a1\"", "null"});
}

TEST(FirstDifference, CountsDifferAtTheFirstPositionOneSideLacks)
{
    Stream left(StreamId("s"));
    left.Essences().Add(DataEssence());
    Stream right(StreamId("s"));
    right.Essences().Add(DataEssence());
    right.Essences().Add(AudioEssence());
    ExpectDifference(FirstDifference(left, right), {"essences[1]", "missing", "AudioEssence"});

    MediaAsset withNull(MediaAssetId("a"));
    withNull.Annotations().push_back(nullptr);
    ExpectDifference(FirstDifference(withNull, withNull), {"annotations[0]", "null", "null"});

    MetadataProfileDictionary one;
    one.Set(std::make_shared<TestProfile>(1));
    MetadataProfileDictionary two;
    two.Set(std::make_shared<TestProfile>(2));
    two.Set(std::make_shared<PelkOperatorMetadataProfile>());
    ExpectDifference(FirstDifference(one, two), {"[\"orvik.pelkoperator\"]", "missing", "PelkOperatorMetadataProfile"});
    ExpectDifference(FirstDifference(one, MetadataProfileDictionary()),
                     {"[\"test.profile\"]", "profile \"test.profile\"", "missing"});
}

TEST(FirstDifference, ExpiredLayoutTrackThrowsWhereEqualityThrows)
{
    auto track = std::make_shared<Track>(TrackId("t"), "Program");
    TrackLayoutItem item(Identifier("i"));
    item.Tracks().Insert(track);
    TrackLayoutItem renamed = item;
    renamed.Name("other");
    track.reset();
    // The names differ before the tracks are reached; then the expired track throws.
    ExpectDifference(FirstDifference(item, renamed), {"name", "\"\"", "\"other\""});
    EXPECT_THAT([&] { return FirstDifference(item, item); }, ThrowsMessage<std::runtime_error>(StrEq(kExpired)));
}

TEST(FirstDifferenceProperty, NamesTheOneChangedFieldOfCopiesAndClones)
{
    int pairs = CheckMutatedCopies([](Any& any) { return Held(any.MediaAsset()); }, kCopyOrClone,
                                   Orvik::Testing::kMediaAssetMutations);
    pairs += CheckMutatedCopies([](Any& any) { return Held(any.MediaResource()); }, kCopyOrClone,
                                Orvik::Testing::kMediaResourceMutations);
    pairs += CheckMutatedCopies([](Any& any) { return Held(any.Stream()); }, kCopyOrClone, Orvik::Testing::kStreamMutations);
    // Groups have no Clone(); a copy shares the items, which the changes replace.
    pairs +=
        CheckMutatedCopies([](Any& any) { return any.Flip() ? any.MediaAssetGroup() : any.AnglesMediaAssetGroup(); },
                           [](const MediaAssetGroup& source, bool) { return std::make_shared<MediaAssetGroup>(source); },
                           Orvik::Testing::kMediaAssetGroupMutations);
    RecordProperty("pairs", pairs);
    EXPECT_GT(pairs, 0);
}

// Independently generated objects of every comparable class: mostly unequal (other seeds give
// other assets), sometimes equal (few choices), and always equal from the same seed; a difference
// exactly when operator== says so.
TEST(FirstDifferenceProperty, ReportsADifferenceExactlyWhenUnequal)
{
    int unequal = 0;
    int unequalAssets = 0;
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const bool sameSeed = seed % 3 == 0;
        Any left(seed);
        Any right(sameSeed ? seed : seed + kSeeds);
        // `alike`: both drawn by the same call, so equal when drawn from the same seed.
        const auto check = [&unequal, sameSeed](const auto& a, const auto& b, bool alike = true) {
            const auto difference = FirstDifference(a, b);
            ASSERT_EQ(difference.has_value(), !(a == b));
            ASSERT_FALSE(alike && sameSeed && difference) << difference->Path();
            unequal += difference ? 1 : 0;
        };
        const int before = unequal;
        check(left.MediaAsset(), right.MediaAsset());
        unequalAssets += unequal - before;
        check(left.MediaResource(), right.MediaResource());
        check(left.Stream(), right.Stream());
        check(*left.Essence(), *right.Essence());
        check(*left.Location(), *right.Location());
        check(left.Track(), right.Track());
        check(left.TrackLayout(), right.TrackLayout());
        check(left.Annotation(), right.Annotation());
        check(left.TimeBoundsArray(), right.TimeBoundsArray());
        check(left.MetadataDictionary(), right.MetadataDictionary());
        check(left.PelkOperatorProfile(), right.PelkOperatorProfile());
        check(left.AnglesPelkOperatorProfile(), right.AnglesPelkOperatorProfile());
        check(left.TimeCodeTable(), right.TimeCodeTable());
        check(*left.MediaAssetGroup(), *right.AnglesMediaAssetGroup(), false);
        const auto leftGroup = left.AnglesMediaAssetGroup();
        const auto rightGroup = right.MediaAssetGroup();
        if (!leftGroup->Items().empty() && !rightGroup->Items().empty() && leftGroup->Items()[0] && rightGroup->Items()[0])
            check(*leftGroup->Items()[0], *rightGroup->Items()[0], false);
    }
    EXPECT_GT(unequal, 0);
    EXPECT_GE(unequalAssets, 240) << "nine in ten of the 266 pairs from other seeds";
}

TEST(ArbitraryObjects, SameBytesGiveEqualObjects)
{
    std::vector<uint8_t> bytes(4096);
    for (size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<uint8_t>(i * 131 + 7);
    Any left(bytes.data(), bytes.size());
    Any right(bytes.data(), bytes.size());
    EXPECT_TRUE(left.MediaAsset() == right.MediaAsset());
    EXPECT_TRUE(*left.AnglesMediaAssetGroup() == *right.AnglesMediaAssetGroup());
}
