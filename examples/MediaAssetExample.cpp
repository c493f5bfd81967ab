// Builds a few values of the model's foundation and prints what they do.

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>

#include <iostream>
#include <memory>
#include <stdexcept>

using namespace Orvik::DataModel::MediaAssets;

namespace {

struct Clip {
    Identifier id;
    Utf8String name;
    const Identifier& Id() const { return id; }
    bool operator<(const Clip& other) const { return id < other.id; }
    bool operator==(const Clip& other) const { return id == other.id && name == other.name; }
};

}  // namespace

int main()
{
    SortedVectorSharedPointer<Clip> clips;
    clips.Insert(std::make_shared<Clip>(Clip{Identifier("clip-b"), "Goal, camera B"}));
    clips.Insert(std::make_shared<Clip>(Clip{Identifier("clip-a"), "Goal, camera A"}));
    std::cout << "Clips in identifier order:";
    for (const auto& clip : clips)
        std::cout << ' ' << clip->id.Value();
    std::cout << '\n';

    try {
        clips.Insert(std::make_shared<Clip>(Clip{Identifier("clip-a"), "Goal, camera A"}));
    } catch (const std::runtime_error& error) {
        std::cout << "A second clip-a is refused: " << error.what() << '\n';
    }

    const SharedReference<Clip> byId(Identifier("clip-c"));
    std::cout << "A reference by id alone names " << byId.Id().Value() << " and holds no clip: ";
    try {
        std::cout << byId->name << '\n';
    } catch (const std::runtime_error& error) {
        std::cout << error.what() << '\n';
    }

    const TimeBounds bounds(TimeBoundary(TimePoint(1000000000), false), TimeBoundary(TimePoint(3500000000), true));
    std::cout << "Bounds from 1 s to 3.5 s (out still moving) last " << bounds.Duration().ToNanoseconds() << " ns\n";
    std::cout << "An unset boundary is " << (TimeBoundary() == TimeBoundary::Empty() ? "" : "not ")
              << "the empty boundary\n";
    return 0;
}
