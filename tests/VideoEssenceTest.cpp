#include <Orvik/DataModel/MediaAssets/VideoEssence.h>

#include <gtest/gtest.h>

using namespace Orvik::DataModel::MediaAssets;

TEST(VideoEssenceEquality, ComparesFramingAndAspectAfterTheBaseFields)
{
    VideoEssence left;
    VideoEssence right;
    left.Nr(-1);
    right.Nr(3);
    left.FrameRate(Rate(30000, 1001));
    right.FrameRate(Rate(30000, 1001));
    EXPECT_EQ(left, right);
    left.Boxing(Boxing::letterbox);
    EXPECT_NE(left, right);
    right.Boxing(Boxing::letterbox);
    right.ChannelCount(1);
    EXPECT_NE(left, right);
}
