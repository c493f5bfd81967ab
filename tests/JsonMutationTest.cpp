// The JSON form against the one-field mutations of generated objects: a mutated field changes the
// written document, which reads back equal to the mutated object and unlike the unchanged object's
// read-back exactly at the mutated field (a field that equality ignores: in the document written
// again). A field that the writer forgets, or that the reader forgets or puts elsewhere, fails
// under the mutated field's path; a field lost from every document is named where the read-back
// differs from the mutated object.

#include <ArbitraryObjects.h>
#include <Mutations.h>

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/FirstDifference.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;
using Any = Orvik::Testing::ArbitraryObjects;
using Orvik::Testing::Change;
using Orvik::Testing::Mutation;

namespace {

constexpr uint64_t kSeeds = 300;
constexpr int kMutationsPerObject = 4;

// Groups are held by pointer to their base, as FromJson gives them.
template <typename T>
auto& Deref(T& value)
{
    if constexpr (std::is_same_v<std::remove_const_t<T>, std::shared_ptr<MediaAssetGroup>>)
        return *value;
    else
        return value;
}

// The JSON pointer of a model path ("annotations[3]" is "/annotations/3").
std::string Pointer(const std::string& path)
{
    std::string pointer = "/";
    for (const char c : path) {
        if (c == '[' || c == '.')
            pointer += '/';
        else if (c != ']')
            pointer += c;
    }
    return pointer;
}

// The asset's lineage is written as ids: another object of the same id behind a reference writes
// the same document.
bool Written(const Change& change) { return change.path != "parent.pointer"; }

// The generated object before any change: its document, and what reading that gives.
template <typename T>
struct Source {
    std::string document;
    T read;
};

// Writes `target`, which `change` made from an object equal to `source`'s, and reads it back. A
// document has no null child: a mutation that leaves one (`nullChild`, "an annotation") fails to
// write at its place.
template <typename T>
void ExpectWrittenAndRead(const T& target, const Change& change, const Source<T>& source, const char* nullChild)
{
    SCOPED_TRACE(change.path);
    std::string mutated;
    try {
        mutated = Json::ToJson(Deref(target));
    } catch (const Json::JsonError& error) {
        ASSERT_NE(nullChild, nullptr) << error.what();
        EXPECT_STREQ(error.what(), (Pointer(change.path) + ": expected " + nullChild + ", found a null pointer").c_str());
        return;
    }
    EXPECT_EQ(mutated != source.document, Written(change)) << "the writer left the document as it was";
    EXPECT_NO_THROW({
        const T read = Json::FromJson<T>(mutated);
        const auto lost = FirstDifference(Deref(read), Deref(target));
        EXPECT_FALSE(lost) << "read back unlike the mutated object at " << (lost ? lost->Path() : "");
        // The reader keeps the mutated field in its place (one that equality ignores shows in the
        // document written again), whatever else it may lose.
        if (change.compared) {
            const auto seen = FirstDifference(Deref(source.read), Deref(read));
            EXPECT_EQ(seen ? seen->Path() : "no difference", change.path);
        } else {
            EXPECT_EQ(Json::ToJson(Deref(read)) != Json::ToJson(Deref(source.read)), Written(change));
        }
    });
}

// For each seed, the generated object and a few mutations of an equal object, made again from the
// same seed. Returns the number of mutations that changed the object.
template <typename T, typename Model>
int CheckMutations(T (Any::*make)(), const std::vector<Mutation<Model>>& mutations, const char* nullChild = nullptr)
{
    int changed = 0;
    for (uint64_t seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Any any(seed);
        const T generated = (any.*make)();
        const std::string document = Json::ToJson(Deref(generated));
        const Source<T> source{document, Json::FromJson<T>(document)};
        for (int i = 0; i < kMutationsPerObject; ++i) {
            Any again(seed);
            T target = (again.*make)();
            if (const auto change = Orvik::Testing::Mutate(Deref(target), any, mutations)) {
                ExpectWrittenAndRead(target, *change, source, nullChild);
                ++changed;
            }
        }
    }
    return changed;
}

}  // namespace

TEST(JsonMutation, AssetsResourcesAndStreamsWriteAndReadEveryMutatedField)
{
    const int changed = CheckMutations(&Any::MediaAsset, Orvik::Testing::kMediaAssetMutations, "an annotation")
        + CheckMutations(&Any::MediaResource, Orvik::Testing::kMediaResourceMutations)
        + CheckMutations(&Any::Stream, Orvik::Testing::kStreamMutations);
    RecordProperty("mutations", changed);
    EXPECT_GT(changed, 0);
}

TEST(JsonMutation, GroupsAndOperatorProfilesWriteAndReadEveryMutatedField)
{
    const auto& groupMutations = Orvik::Testing::kMediaAssetGroupMutations;
    const int changed = CheckMutations(&Any::MediaAssetGroup, groupMutations, "a group item")
        + CheckMutations(&Any::AnglesMediaAssetGroup, groupMutations, "a group item")
        + CheckMutations(&Any::PelkOperatorProfile, Orvik::Testing::kPelkOperatorProfileMutations)
        + CheckMutations(&Any::AnglesPelkOperatorProfile, Orvik::Testing::kAnglesPelkOperatorProfileMutations);
    RecordProperty("mutations", changed);
    EXPECT_GT(changed, 0);
}
