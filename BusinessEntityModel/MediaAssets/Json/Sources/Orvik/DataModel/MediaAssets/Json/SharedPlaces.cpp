#include "SharedPlaces.h"

#include <functional>

namespace Orvik::DataModel::MediaAssets::Json::detail {

template <typename Matches>
size_t SharedPlaces::Probe(size_t hash, Matches matches) const
{
    const size_t mask = index.size() - 1;
    size_t slot = hash & mask;
    while (index[slot] != 0 && !matches(places[index[slot] - 1]))
        slot = (slot + 1) & mask;
    return slot;
}

void SharedPlaces::Add(const Path& path, const std::type_info& type, std::shared_ptr<void> object)
{
    Grow();
    const size_t start = texts.size();
    try {
        path.AppendTo(texts);
        const size_t hash = std::hash<std::string_view>()(std::string_view(texts).substr(start));
        places.push_back({{&type, std::move(object)}, hash, start, texts.size() - start, FreeSlot(hash)});
    } catch (...) {
        texts.resize(start);
        throw;
    }
    index[places.back().slot] = places.size();
}

const SharedPlaces::Entry* SharedPlaces::Find(std::string_view pointer)
{
    if (found == 0 || Pointer(places[found - 1]) != pointer) {
        if (index.empty())
            return nullptr;
        const size_t number = index[Slot(std::hash<std::string_view>()(pointer), pointer)];
        if (number == 0)
            return nullptr;
        found = number;
    }
    return &places[found - 1].entry;
}

void SharedPlaces::Clear() noexcept
{
    for (const Place& place : places)
        index[place.slot] = 0;
    places.clear();
    texts.clear();
    found = 0;
}

size_t SharedPlaces::Slot(size_t hash, std::string_view pointer) const
{
    return Probe(hash, [&](const Place& place) { return place.hash == hash && Pointer(place) == pointer; });
}

size_t SharedPlaces::FreeSlot(size_t hash) const
{
    return Probe(hash, [](const Place&) { return false; });
}

void SharedPlaces::Grow()
{
    if (2 * (places.size() + 1) <= index.size())
        return;
    std::vector<size_t> grown(index.empty() ? 256 : 2 * index.size());
    index.swap(grown);
    for (size_t number = 1; number <= places.size(); ++number) {
        Place& place = places[number - 1];
        place.slot = FreeSlot(place.hash);
        index[place.slot] = number;
    }
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
