#include <Orvik/DataModel/MediaAssets/AudioEssence.h>
#include <Orvik/DataModel/MediaAssets/FileLocation.h>
#include <Orvik/DataModel/MediaAssets/Stream.h>
#include <Orvik/DataModel/MediaAssets/VideoEssence.h>
#include <Orvik/DataModel/MediaAssets/ZanLocation.h>

#include "TestProfiles.h"

#include <gtest/gtest.h>

#include <memory>

using namespace Orvik::DataModel::MediaAssets;

namespace {

// A stream with profiles on the stream and its audio essence, a video essence and a clip.
Stream MakeStream(bool videoFirst = false)
{
    Stream stream(StreamId("s1"));
    stream.Format(WrapperFormat::MXFOP1a);
    stream.Metadata().Set(std::make_shared<TestProfile>(1));
    AudioEssence audio;
    audio.Nr(1);
    audio.Metadata().Set(std::make_shared<TestProfile>(2));
    stream.Essences().Add(std::move(audio));
    stream.Essences().Insert(videoFirst ? 0 : 1, VideoEssence());
    stream.Locations().Add(ZanLocation(ZanServerId(120), "A7F3"));
    stream.ObjectId(7);
    return stream;
}

}  // namespace

TEST(StreamEquality, IgnoresObjectIdAndComparesEssencesAndLocationsInPositionAndByKind)
{
    Stream renumbered = MakeStream();
    renumbered.ObjectId(8);
    EXPECT_EQ(MakeStream(), renumbered);
    EXPECT_NE(MakeStream(), MakeStream(true));
    Stream other = MakeStream();
    other.Locations().Replace(0, std::make_unique<FileLocation>());
    EXPECT_NE(MakeStream(), other);
}

TEST(StreamClone, CopiesOwnedPartsWithObjectIdUnset)
{
    const Stream source = MakeStream();
    const Stream clone = source.Clone();
    EXPECT_EQ(clone.ObjectId(), -1);
    EXPECT_EQ(clone, source);
    EXPECT_NE(clone.Metadata().Values()[0], source.Metadata().Values()[0]) << "profiles are deep-copied";
    EXPECT_NE(&clone.Essences()[0], &source.Essences()[0]);
    EXPECT_NE(&clone.Locations()[0], &source.Locations()[0]);
    EXPECT_NE(&Stream().Clone().Metadata(), &source.Metadata()) << "even a default stream's clone has its own";
}

TEST(StreamClone, EmptiesTheSourceEssenceMetadataItShares)
{
    const Stream source = MakeStream();
    const Stream clone = source.Clone();
    EXPECT_TRUE(source.Essences()[0].Metadata().Empty());
    EXPECT_EQ(&clone.Essences()[0].Metadata(), &source.Essences()[0].Metadata());
}

TEST(StreamCopy, BehavesAsCloneButKeepsTheObjectId)
{
    const Stream source = MakeStream();
    Stream copy(source);
    EXPECT_EQ(copy.ObjectId(), 7);
    EXPECT_EQ(copy, source);
    EXPECT_NE(&copy.Essences()[0], &source.Essences()[0]);
    copy.Metadata().Set(std::make_shared<TestProfile>(9));
    EXPECT_EQ(source.Metadata().Get<TestProfile>()->value, 1);
    Stream assigned;
    assigned = source;
    EXPECT_EQ(assigned.ObjectId(), 7);
    EXPECT_EQ(assigned, source);
}
