#include "ArbitraryObjects.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

using Orvik::Testing::ArbitraryObjects;

namespace {

// Draws one object of every kind from each generator, in the same order, and checks each pair.
template <typename Check>
void DrawEveryKind(ArbitraryObjects& left, ArbitraryObjects& right, Check check)
{
    check(left.MediaAsset() == right.MediaAsset(), "MediaAsset");
    check(left.MediaResource() == right.MediaResource(), "MediaResource");
    check(left.Stream() == right.Stream(), "Stream");
    check(*left.Essence() == *right.Essence(), "Essence");
    check(*left.Location() == *right.Location(), "Location");
    check(left.Track() == right.Track(), "Track");
    check(left.TrackLayout() == right.TrackLayout(), "TrackLayout");
    check(left.Annotation() == right.Annotation(), "Annotation");
    check(left.TimeBoundsArray() == right.TimeBoundsArray(), "TimeBoundsArray");
    check(left.MetadataDictionary() == right.MetadataDictionary(), "MetadataDictionary");
    check(left.PelkOperatorProfile() == right.PelkOperatorProfile(), "PelkOperatorProfile");
    check(left.AnglesPelkOperatorProfile().Equals(right.AnglesPelkOperatorProfile()), "AnglesPelkOperatorProfile");
    check(left.TimeCodeTable() == right.TimeCodeTable(), "TimeCodeTable");
    check(*left.MediaAssetGroup() == *right.MediaAssetGroup(), "MediaAssetGroup");
    check(*left.AnglesMediaAssetGroup() == *right.AnglesMediaAssetGroup(), "AnglesMediaAssetGroup");
}

}  // namespace

TEST(ArbitraryObjects, SameSeedOrSameBytesGiveEqualObjects)
{
    for (uint64_t seed = 0; seed < 50; ++seed) {
        SCOPED_TRACE(seed);
        ArbitraryObjects left(seed);
        ArbitraryObjects right(seed);
        DrawEveryKind(left, right, [](bool equal, const char* kind) { EXPECT_TRUE(equal) << kind; });
    }
    std::vector<uint8_t> bytes(4096);
    for (size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<uint8_t>(i * 131 + 7);
    ArbitraryObjects left(bytes.data(), bytes.size());
    ArbitraryObjects right(bytes.data(), bytes.size());
    DrawEveryKind(left, right, [](bool equal, const char* kind) { EXPECT_TRUE(equal) << kind; });
}

TEST(ArbitraryObjects, OtherSeedsGiveOtherAssets)
{
    int differing = 0;
    for (uint64_t seed = 0; seed < 20; ++seed) {
        ArbitraryObjects left(seed);
        ArbitraryObjects right(seed + 1000);
        differing += left.MediaAsset() != right.MediaAsset() ? 1 : 0;
    }
    EXPECT_GE(differing, 18);
}
