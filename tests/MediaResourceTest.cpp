#include <Orvik/DataModel/MediaAssets/MediaResource.h>

#include "TestProfiles.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <utility>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

MediaResource MakeResource()
{
    MediaResource resource(MediaResourceId("r1"));
    resource.Name("hires");
    auto stream = std::make_unique<Stream>(StreamId("s1"));
    stream->Format(WrapperFormat::MXFOP1a);
    resource.Adopt(std::move(stream));
    resource.Add(StreamId("s2"));
    resource.Metadata().Set(std::make_shared<TestProfile>(1));
    return resource;
}

}  // namespace

TEST(MediaResourceEquality, ComparesStreamIdsInOrderNotStreamsAndIgnoresObjectId)
{
    const auto equalAfter = [](void (*change)(MediaResource&)) {
        MediaResource resource = MakeResource();
        change(resource);
        return resource == MakeResource();
    };
    EXPECT_TRUE(equalAfter([](MediaResource& r) { r.Streams()[0]->Format(WrapperFormat::QuickTime); }));
    EXPECT_FALSE(equalAfter([](MediaResource& r) { std::swap(r.Streams()[0], r.Streams()[1]); }));
    EXPECT_FALSE(equalAfter([](MediaResource& r) { r.ModificationDate(1); }));
    EXPECT_TRUE(equalAfter([](MediaResource& r) { r.ObjectId(3); }));
}

TEST(MediaResourceClone, ClonesLoadedStreamsAndKeepsIdOnlyReferences)
{
    const MediaResource source = MakeResource();
    MediaResource clone = source.Clone();
    EXPECT_EQ(clone, source);
    EXPECT_EQ(clone.ObjectId(), -1);
    ASSERT_EQ(clone.Streams().size(), 2u);
    EXPECT_NE(clone.Streams()[0].Pointer(), source.Streams()[0].Pointer());
    EXPECT_EQ(clone.Streams()[0].Id(), StreamId("s1"));
    EXPECT_EQ(clone.Streams()[1].Pointer(), nullptr);
    EXPECT_THAT([&] { (void)clone.Streams()[1]->Id(); }, ThrowsMessage<std::runtime_error>(StrEq("null pointer")));

    clone.Streams()[0].Value().Format(WrapperFormat::QuickTime);
    EXPECT_EQ(source.Streams()[0]->Format(), WrapperFormat::MXFOP1a);
    EXPECT_NE(&clone.Metadata(), &source.Metadata());
}

TEST(MediaResourceCopy, SharesStreamsAndMetadata)
{
    const MediaResource source = MakeResource();
    const MediaResource copy = source;
    EXPECT_EQ(copy.Streams()[0].Pointer(), source.Streams()[0].Pointer());
    EXPECT_EQ(&copy.Metadata(), &source.Metadata());
}
