#pragma once

// The codec of each part of the model, one pair per class: Write puts the object's JSON value at
// the writer's place, Read builds the object from a value. Each source of this folder holds the
// codecs of one area, writer and reader side by side with the member order of the document.

#include "Reader.h"
#include "Writer.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <cstddef>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Json::detail {

// Time values and timecode (TimeCodec.cpp).
void Write(Writer& w, const TimeBoundary& boundary);
TimeBoundary ReadTimeBoundary(Reader& r, value v);
void Write(Writer& w, const TimeBounds& bounds);
TimeBounds ReadTimeBounds(Reader& r, value v);
void Write(Writer& w, const TimeBoundsArray& array);
void Read(Reader& r, value v, TimeBoundsArray& array);
void Write(Writer& w, const Timecode& timecode);
Timecode ReadTimecode(Reader& r, value v);
void Write(Writer& w, const Rate& rate);
Rate ReadRate(Reader& r, value v);
/// A table in full the first time, a JSON pointer to it afterwards.
void Write(Writer& w, const std::shared_ptr<TimeCodeTable>& table);
std::shared_ptr<TimeCodeTable> ReadTimeCodeTable(Reader& r, value v);

// Metadata dictionaries and profiles (MetadataCodec.cpp).
void Write(Writer& w, const MetadataProfileDictionary& dictionary);
void Read(Reader& r, value v, MetadataProfileDictionary& dictionary);
void WriteMembers(Writer& w, const PelkOperatorMetadataProfile& profile);
void ReadMembers(Reader& r, Reader::Rest& rest, PelkOperatorMetadataProfile& profile);
void WriteMembers(Writer& w, const AnglesPelkOperatorMetadataProfile& profile);
void ReadMembers(Reader& r, Reader::Rest& rest, AnglesPelkOperatorMetadataProfile& profile);

// Essences and locations (EssenceCodec.cpp, LocationCodec.cpp).
void Write(Writer& w, const Essence& essence);
std::unique_ptr<Essence> ReadEssence(Reader& r, value v);
void Write(Writer& w, const Location& location);
std::unique_ptr<Location> ReadLocation(Reader& r, value v);

// Streams and media resources (StreamCodec.cpp).
void Write(Writer& w, const Stream& stream);
void Read(Reader& r, value v, Stream& stream);
void ReadMembers(Reader& r, Reader::Rest& rest, Stream& stream);
void Write(Writer& w, const StreamReference& reference);
StreamReference ReadStreamReference(Reader& r, value v);
void Write(Writer& w, const MediaResource& resource);
void Read(Reader& r, value v, MediaResource& resource);
void ReadMembers(Reader& r, Reader::Rest& rest, MediaResource& resource);

// Media assets (AssetCodec.cpp) and asset groups (GroupCodec.cpp).
void Write(Writer& w, const MediaAsset& asset);
void ReadMembers(Reader& r, Reader::Rest& rest, MediaAsset& asset);
/// The group's "kind" (its class) and then its members, as WriteMembers writes them.
void WriteMembers(Writer& w, const MediaAssetGroup& group);
std::shared_ptr<MediaAssetGroup> ReadGroup(Reader& r, Reader::Rest& rest);

/// A reference holding `object` whose id is `id`, even when the object's own id differs (as it
/// does when the object's id was changed after the reference was made).
template <typename T>
SharedReference<T> MakeReference(const std::shared_ptr<T>& object, const Identifier& id)
{
    if (object->Id() == id)
        return SharedReference<T>(object);
    const Identifier own = object->Id();
    object->Id(id);
    SharedReference<T> reference(object);
    object->Id(own);
    return reference;
}

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
void ReadBuffered(Reader& r, value v, Read&& read, Take&& take)
{
    std::vector<T>& pending = ThreadOwn<std::vector<T>>();
    struct Release {
        std::vector<T>& pending;
        const size_t start;
        ~Release() { pending.erase(pending.begin() + static_cast<std::ptrdiff_t>(start), pending.end()); }
    } const release{pending, pending.size()};
    r.Array(v, [&](value element) { pending.push_back(read(element)); });
    take(pending.data() + release.start, pending.size() - release.start);
}

/// Reads the array `v` into the sorted `vector` in document order (see ReadBuffered).
template <typename T, typename Vector, typename Read>
void ReadInDocumentOrder(Reader& r, value v, Vector& vector, Read&& read)
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
void ReadAppending(Reader& r, value v, Collection& collection, Read&& read)
{
    ReadBuffered<T>(r, v, read, [&](T* items, size_t count) { Append(collection, items, count); });
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
