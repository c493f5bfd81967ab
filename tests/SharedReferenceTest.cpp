// References to loaded objects by id.

#include <Orvik/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SharedReference.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVector.h>

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

using namespace Orvik::BusinessEntityModel::BaseTypes;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kDuplicate[] = "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection";

struct Entity {
    Identifier id;
    const Identifier& Id() const { return id; }
};

std::shared_ptr<Entity> Loaded(const char* id) { return std::make_shared<Entity>(Entity{Identifier(id)}); }

}  // namespace

TEST(SharedReferenceById, DereferencingThrowsNullPointer)
{
    const SharedReference<Entity> reference(Identifier("e1"));
    EXPECT_EQ(reference.Pointer(), nullptr);
    EXPECT_THAT([&] { (void)reference->id; }, ThrowsMessage<std::runtime_error>(StrEq("null pointer")));
    EXPECT_THAT([&] { (void)reference.Value(); }, ThrowsMessage<std::runtime_error>(StrEq("null pointer")));
}

TEST(SharedReferenceId, SameIdKeepsThePointerAnotherDropsIt)
{
    auto entity = Loaded("e1");
    SharedReference<Entity> reference(entity);
    reference.Id(Identifier("e1"));
    EXPECT_EQ(reference.Pointer(), entity);
    reference.Id(Identifier("e2"));
    EXPECT_EQ(reference.Pointer(), nullptr);
    EXPECT_EQ(reference.Id(), Identifier("e2"));
}

TEST(SharedReferenceId, FollowsThePointeeOnlyWhenAPointerIsSet)
{
    auto entity = Loaded("old");
    SharedReference<Entity> reference(entity);
    entity->id = Identifier("new");
    EXPECT_EQ(reference.Id(), Identifier("old"));
    reference.Pointer(entity);
    EXPECT_EQ(reference.Id(), Identifier("new"));
    const std::weak_ptr<Entity> expired = Loaded("gone");
    reference.Pointer(expired);
    EXPECT_EQ(reference.Pointer(), nullptr);
    EXPECT_EQ(reference.Id(), Identifier("new")) << "a null pointer leaves the id as it was";
}

TEST(SharedReferenceInSortedVector, IsOrderedAndComparedByIdAlone)
{
    SortedVector<SharedReference<Entity>> references;
    references.Insert(SharedReference<Entity>(Loaded("b")));
    references.Insert(SharedReference<Entity>(Identifier("a")));
    EXPECT_EQ(references.Front().Id(), Identifier("a"));
    EXPECT_THAT([&] { references.Insert(SharedReference<Entity>(Loaded("b"))); },
                ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));
}
