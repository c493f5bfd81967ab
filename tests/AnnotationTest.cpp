#include <Orvik/DataModel/MediaAssets/Annotation.h>

#include "TestProfiles.h"

#include <gtest/gtest.h>

#include <memory>

using namespace Orvik::DataModel::MediaAssets;

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

TEST(AnnotationEquality, NullPointersAreNeverEqual)
{
    const Orvik::DataModel::MediaAssets::equal_to equal;
    EXPECT_FALSE(equal(nullptr, nullptr));
    EXPECT_FALSE(equal(std::make_shared<Annotation>(AnnotationType::CuePoint), nullptr));
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
