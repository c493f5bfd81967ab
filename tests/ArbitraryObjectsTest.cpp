// The generator's own promises; that the same seed gives equal objects of every kind is checked
// by the first-difference property test, which compares such pairs.

#include "ArbitraryObjects.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

using Orvik::Testing::ArbitraryObjects;

TEST(ArbitraryObjects, SameBytesGiveEqualObjects)
{
    std::vector<uint8_t> bytes(4096);
    for (size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<uint8_t>(i * 131 + 7);
    ArbitraryObjects left(bytes.data(), bytes.size());
    ArbitraryObjects right(bytes.data(), bytes.size());
    EXPECT_TRUE(left.MediaAsset() == right.MediaAsset());
    EXPECT_TRUE(*left.AnglesMediaAssetGroup() == *right.AnglesMediaAssetGroup());
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
