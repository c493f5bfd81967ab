#pragma once

// The shared objects of a document being read, each found again by the JSON pointer of the place
// where it was read in full. A thread's reader workspace keeps one between documents, so that once
// it has grown to a document's size, adding and finding objects allocates nothing.

#include "Path.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Json::detail {

class SharedPlaces {
public:
    struct Entry {
        const std::type_info* type;
        std::shared_ptr<void> object;
    };

    /// Adds `object`, of class `type`, at the place `path`, which no object holds yet. After a
    /// throw the object is not added; the others stay.
    void Add(const Path& path, const std::type_info& type, std::shared_ptr<void> object);
    /// The entry at the place whose JSON pointer is `pointer`, or null. The place found last is
    /// tried first: references to one object tend to follow each other (the essences of a stream
    /// naming the stream's timecode table).
    const Entry* Find(std::string_view pointer);
    /// Drops every entry and the objects' references, keeping the memory.
    void Clear() noexcept;

private:
    struct Place {
        Entry entry;
        size_t hash;
        size_t start;
        size_t size;
        size_t slot;
    };
    std::string_view Pointer(const Place& place) const { return {texts.data() + place.start, place.size}; }
    /// The first slot from where `hash` starts that is free or holds a place that `matches`.
    template <typename Matches>
    size_t Probe(size_t hash, Matches matches) const;
    /// The slot of the index that holds the place with `hash` and `pointer`, or the free slot
    /// where the search for it ends.
    size_t Slot(size_t hash, std::string_view pointer) const;
    /// The first free slot from where `hash` starts.
    size_t FreeSlot(size_t hash) const;
    /// Makes the index room for one more place, keeping it at most half full.
    void Grow();

    // The pointers' texts, one after another.
    std::string texts;
    std::vector<Place> places;
    // Open addressing with linear probing: a place's number plus one, or 0 for a free slot. Its
    // size is a power of two.
    std::vector<size_t> index;
    // The number of the place found last, or 0.
    size_t found = 0;
};

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
