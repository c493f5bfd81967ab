#pragma once

// The model's collections read from JSON arrays: sorted vectors filled in document order, arrays
// and vectors appended to, each array's elements waiting in a buffer of the thread's.

#include "Reader.h"
#include "ThreadOwn.h"

#include <Orvik/DataModel/MediaAssets/BaseTypes.h>

#include <cstddef>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// Inserts the `count` elements at `items`, read in document order, into the sorted `vector` so
/// that it ends in that same order: from the last to the first, as an insert goes in front of the
/// elements that sort equal. An element that the vector refuses is reported at its index.
template <typename Vector, typename T>
void InsertInDocumentOrder(Reader& r, Vector& vector, const T* items, size_t count)
{
    vector.Reserve(vector.Size() + count);
    for (size_t index = count; index-- > 0;) {
        try {
            vector.Insert(items[index]);
        } catch (const std::runtime_error&) {
            const PathSegment segment(r.CurrentPath(), index);
            r.Fail("expected an element that no other element of the collection equals");
        }
    }
}

/// Reads the array `v`, each element as `read(element)` gives it, and hands the elements in
/// document order to `take(items, count)`, which may move them. The elements wait in a buffer of
/// the thread's for their type, kept between arrays (an array read while another one waits goes
/// above it), so that an array needs no allocation of its own and its collection can be given
/// room for all of them at once.
template <typename T, typename Read, typename Take>
void ReadBuffered(Reader& r, value& v, Read&& read, Take&& take)
{
    std::vector<T>& pending = ThreadOwn<std::vector<T>>();
    struct Release {
        std::vector<T>& pending;
        const size_t start;
        ~Release() { pending.erase(pending.begin() + static_cast<std::ptrdiff_t>(start), pending.end()); }
    } const release{pending, pending.size()};
    r.Array(v, [&](value& element) { pending.push_back(read(element)); });
    take(pending.data() + release.start, pending.size() - release.start);
}

/// Reads the array `v` into the sorted `vector` in document order (see ReadBuffered).
template <typename T, typename Vector, typename Read>
void ReadInDocumentOrder(Reader& r, value& v, Vector& vector, Read&& read)
{
    ReadBuffered<T>(r, v, read, [&](const T* items, size_t count) { InsertInDocumentOrder(r, vector, items, count); });
}

/// Appends the `count` elements at `items` to the model's `array` or a `std::vector`.
template <typename T>
void Append(Array<T>& array, std::unique_ptr<T>* items, size_t count)
{
    array.Reserve(static_cast<size_t>(array.Size()) + count);
    for (size_t index = 0; index < count; ++index)
        array.Add(std::move(items[index]));
}
template <typename T>
void Append(std::vector<T>& vector, T* items, size_t count)
{
    vector.reserve(vector.size() + count);
    vector.insert(vector.end(), std::make_move_iterator(items), std::make_move_iterator(items + count));
}

/// Reads the array `v` onto the end of `collection` in document order (see ReadBuffered).
template <typename T, typename Collection, typename Read>
void ReadAppending(Reader& r, value& v, Collection& collection, Read&& read)
{
    ReadBuffered<T>(r, v, read, [&](T* items, size_t count) { Append(collection, items, count); });
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
