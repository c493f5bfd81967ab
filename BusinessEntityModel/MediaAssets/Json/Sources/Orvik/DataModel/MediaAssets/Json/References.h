#pragma once

// References to streams and media resources: the referred object's id, and, when the reference
// holds the object, the object under "pointer".

#include "Codecs.h"
#include "FieldTable.h"

#include <memory>
#include <string>

namespace Orvik::DataModel::MediaAssets::Json::detail {

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

/// How the object that a reference holds is written and read.
template <typename T>
struct HeldObject;

/// A stream is shared: written in full at the first reference, as a JSON pointer to that place
/// at every other.
template <>
struct HeldObject<Stream> {
    static void Write(Writer& w, const std::shared_ptr<const Stream>& stream)
    {
        w.Shared(stream.get(), [&] { detail::Write(w, *stream); });
    }
    static std::shared_ptr<Stream> Read(Reader& r, value& v)
    {
        if (r.IsString(v))
            return r.Referenced<Stream>(v, "a stream");
        auto stream = std::make_shared<Stream>();
        detail::Read(r, v, *stream);
        r.Register(stream);
        return stream;
    }
};

/// A media resource is written in full where its asset refers to it.
template <>
struct HeldObject<MediaResource> {
    static void Write(Writer& w, const std::shared_ptr<const MediaResource>& resource) { detail::Write(w, *resource); }
    static std::shared_ptr<MediaResource> Read(Reader& r, value& v)
    {
        auto resource = std::make_shared<MediaResource>();
        detail::Read(r, v, *resource);
        return resource;
    }
};

/// What a reference is built from once its members are read.
template <typename T>
struct ReferenceParts {
    std::string id;
    std::shared_ptr<T> object;
};

// clang-format off
template <typename T>
constexpr auto kReferenceTable = MakeTable(Fields(
    Field(Members::kId,
     [](Writer& w, const SharedReference<T>& reference) { w.String(reference.Id().Value()); },
     [](Reader& r, value& v, ReferenceParts<T>& parts) { parts.id = r.Text(v); }),
    Field(Members::kPointer,
     [](Writer& w, const SharedReference<T>& reference) { HeldObject<T>::Write(w, reference.Pointer()); },
     [](Reader& r, value& v, ReferenceParts<T>& parts) { parts.object = HeldObject<T>::Read(r, v); },
     [](const SharedReference<T>& reference) { return reference.Pointer() != nullptr; })));
// clang-format on

template <typename T>
void WriteReference(Writer& w, const SharedReference<T>& reference)
{
    WriteObject(w, kReferenceTable<T>, reference);
}

template <typename T>
SharedReference<T> ReadReference(Reader& r, value& v)
{
    ReferenceParts<T> parts;
    ReadObject(r, v, kReferenceTable<T>, parts);
    return parts.object ? MakeReference(parts.object, Identifier(parts.id)) : SharedReference<T>(Identifier(parts.id));
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
