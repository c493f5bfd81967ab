// The JSON writer and reader run with each of their allocations failing in turn, as the model's
// operations do in AllocationFailureTest: the failure reaches the caller as std::bad_alloc, the
// written object is unchanged, no text is returned, and nothing leaks. (The stream overloads
// report a failure of the stream itself through its state, as every stream output does.)

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include "AllocationControl.h"
#include "ArbitraryObjects.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

using namespace Orvik::DataModel::MediaAssets;
using Orvik::Testing::ArbitraryObjects;
using Orvik::Testing::FailEachAllocationInTurn;

TEST(JsonAllocationFailure, FailedWritesAndReadsReachTheCallerAndChangeNothing)
{
    for (uint64_t seed = 1; seed <= 16; ++seed) {
        const MediaAsset asset = ArbitraryObjects(seed).MediaAsset();
        const MediaAsset expected = ArbitraryObjects(seed).MediaAsset();
        const std::string text = Json::ToJson(asset);
        ASSERT_TRUE(Json::FromJson<MediaAsset>(text) == asset);
        std::string written;
        FailEachAllocationInTurn([&] { written = Json::ToJson(asset, Json::Layout::Indented); },
                                 [&](uint64_t n) {
                                     ASSERT_TRUE(asset == expected) << "seed " << seed << ", allocation " << n;
                                     ASSERT_TRUE(written.empty()) << "seed " << seed << ", allocation " << n;
                                 });
        EXPECT_EQ(written, Json::ToJson(asset, Json::Layout::Indented));
        // The reader's first document has grown the thread's parser to this size; see the JSON
        // section of docs/reliability.md for the one allocation of the parser that is not failed.
        FailEachAllocationInTurn([&] { Json::FromJson<MediaAsset>(text); }, [](uint64_t) {});
    }
}
