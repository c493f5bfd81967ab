// The top-level documents: the kinds of document, with their schema names, and ToJson, FromJson,
// FromAnyJson and SchemaName for each.

#include "Codecs.h"
#include "StreamText.h"

#include <Orvik/DataModel/MediaAssets/Json/AnyDocument.h>
#include <Orvik/DataModel/MediaAssets/Json/FromJson.h>
#include <Orvik/DataModel/MediaAssets/Json/JsonError.h>
#include <Orvik/DataModel/MediaAssets/Json/SchemaName.h>
#include <Orvik/DataModel/MediaAssets/Json/ToJson.h>

#include <iterator>

namespace Orvik::DataModel::MediaAssets::Json {

namespace {

using detail::Reader;
using detail::Writer;

// For each kind of document: its schema name, how its object is written after the "schema"
// member, and how the object's other members are read.
template <typename T>
struct DocumentOf;

template <>
struct DocumentOf<MediaAsset> {
    static constexpr std::string_view kName = "MediaAsset";
    static void Write(Writer& w, const MediaAsset& asset) { detail::Write(w, asset); }
    static void Read(Reader& r, Reader::Rest& rest, MediaAsset& asset) { detail::ReadMembers(r, rest, asset); }
};

template <>
struct DocumentOf<MediaResource> {
    static constexpr std::string_view kName = "MediaResource";
    static void Write(Writer& w, const MediaResource& resource) { detail::Write(w, resource); }
    static void Read(Reader& r, Reader::Rest& rest, MediaResource& resource) { detail::ReadMembers(r, rest, resource); }
};

template <>
struct DocumentOf<Stream> {
    static constexpr std::string_view kName = "Stream";
    static void Write(Writer& w, const Stream& stream) { detail::Write(w, stream); }
    static void Read(Reader& r, Reader::Rest& rest, Stream& stream) { detail::ReadMembers(r, rest, stream); }
};

template <>
struct DocumentOf<std::shared_ptr<MediaAssetGroup>> {
    static constexpr std::string_view kName = "MediaAssetGroup";
    static void Write(Writer& w, const MediaAssetGroup& group)
    {
        w.StartObject();
        detail::WriteMembers(w, group);
        w.EndObject();
    }
    static void Read(Reader& r, Reader::Rest& rest, std::shared_ptr<MediaAssetGroup>& group)
    {
        group = detail::ReadGroup(r, rest);
    }
};

template <>
struct DocumentOf<PelkOperatorMetadataProfile> {
    static constexpr std::string_view kName = "PelkOperatorMetadataProfile";
    static void Write(Writer& w, const PelkOperatorMetadataProfile& profile)
    {
        w.StartObject();
        detail::WriteMembers(w, profile);
        w.EndObject();
    }
    static void Read(Reader& r, Reader::Rest& rest, PelkOperatorMetadataProfile& profile)
    {
        detail::ReadMembers(r, rest, profile);
    }
};

template <>
struct DocumentOf<AnglesPelkOperatorMetadataProfile> {
    static constexpr std::string_view kName = "AnglesPelkOperatorMetadataProfile";
    static void Write(Writer& w, const AnglesPelkOperatorMetadataProfile& profile)
    {
        w.StartObject();
        detail::WriteMembers(w, profile);
        w.EndObject();
    }
    static void Read(Reader& r, Reader::Rest& rest, AnglesPelkOperatorMetadataProfile& profile)
    {
        detail::ReadMembers(r, rest, profile);
    }
};

/// The object a document of the kind T holds, as ToJson takes it.
template <typename T>
const T& Written(const T& value)
{
    return value;
}
const MediaAssetGroup& Written(const std::shared_ptr<MediaAssetGroup>& group)
{
    if (!group)
        throw JsonError("", "expected a group, found a null pointer");
    return *group;
}

template <typename T, typename Value>
std::string Document(const Value& value, Layout layout)
{
    Writer w(DocumentOf<T>::kName);
    DocumentOf<T>::Write(w, value);
    return w.Finish(layout);
}

void Put(std::ostream& out, const std::string& document)
{
    out.write(document.data(), static_cast<std::streamsize>(document.size()));
}

/// The schema names of the alternatives of AnyDocument, in their order.
template <size_t... Kinds>
constexpr std::array<std::string_view, sizeof...(Kinds)> KindNames(std::index_sequence<Kinds...>)
{
    return {DocumentOf<std::variant_alternative_t<Kinds, AnyDocument>>::kName...};
}
constexpr auto kKinds = KindNames(std::make_index_sequence<std::variant_size_v<AnyDocument>>());

/// Reads the members of the document of the kind `kind` into `result`.
template <size_t Kind = 0>
void ReadKind(size_t kind, Reader& r, Reader::Rest& rest, AnyDocument& result)
{
    if constexpr (Kind < std::variant_size_v<AnyDocument>) {
        if (kind != Kind)
            return ReadKind<Kind + 1>(kind, r, rest, result);
        using T = std::variant_alternative_t<Kind, AnyDocument>;
        DocumentOf<T>::Read(r, rest, result.emplace<T>());
    }
}

}  // namespace

std::string detail::ReadAll(std::istream& in)
{
    std::string document{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad())
        throw JsonError("", "expected a readable stream, found a read error");
    return document;
}

std::string ToJson(const MediaAsset& value, Layout layout) { return Document<MediaAsset>(value, layout); }
std::string ToJson(const MediaResource& value, Layout layout) { return Document<MediaResource>(value, layout); }
std::string ToJson(const Stream& value, Layout layout) { return Document<Stream>(value, layout); }
std::string ToJson(const MediaAssetGroup& value, Layout layout)
{
    return Document<std::shared_ptr<MediaAssetGroup>>(value, layout);
}
std::string ToJson(const PelkOperatorMetadataProfile& value, Layout layout)
{
    return Document<PelkOperatorMetadataProfile>(value, layout);
}
std::string ToJson(const AnglesPelkOperatorMetadataProfile& value, Layout layout)
{
    return Document<AnglesPelkOperatorMetadataProfile>(value, layout);
}

void ToJson(std::ostream& out, const MediaAsset& value, Layout layout) { Put(out, ToJson(value, layout)); }
void ToJson(std::ostream& out, const MediaResource& value, Layout layout) { Put(out, ToJson(value, layout)); }
void ToJson(std::ostream& out, const Stream& value, Layout layout) { Put(out, ToJson(value, layout)); }
void ToJson(std::ostream& out, const MediaAssetGroup& value, Layout layout) { Put(out, ToJson(value, layout)); }
void ToJson(std::ostream& out, const PelkOperatorMetadataProfile& value, Layout layout) { Put(out, ToJson(value, layout)); }
void ToJson(std::ostream& out, const AnglesPelkOperatorMetadataProfile& value, Layout layout)
{
    Put(out, ToJson(value, layout));
}

std::string ToJson(const AnyDocument& value, Layout layout)
{
    return std::visit(
        [&](const auto& held) {
            using T = std::decay_t<decltype(held)>;
            return Document<T>(Written(held), layout);
        },
        value);
}

template <typename T>
T FromJson(std::string_view document)
{
    Reader r(document);
    T result{};
    r.Document(std::array<std::string_view, 1>{DocumentOf<T>::kName},
               [&](size_t, Reader::Rest& rest) { DocumentOf<T>::Read(r, rest, result); });
    return result;
}

template <typename T>
T FromJson(std::istream& in)
{
    return FromJson<T>(std::string_view(detail::ReadAll(in)));
}

AnyDocument FromAnyJson(std::string_view document)
{
    Reader r(document);
    AnyDocument result;
    r.Document(kKinds, [&](size_t kind, Reader::Rest& rest) { ReadKind(kind, r, rest, result); });
    return result;
}

AnyDocument FromAnyJson(std::istream& in) { return FromAnyJson(std::string_view(detail::ReadAll(in))); }

std::string SchemaName(std::string_view document)
{
    Reader r(document);
    return r.SchemaName();
}

template <typename T>
std::string_view SchemaNameOf()
{
    return DocumentOf<T>::kName;
}

std::string_view SchemaNameOf(const AnyDocument& value) { return kKinds[value.index()]; }

template MediaAsset FromJson<MediaAsset>(std::string_view);
template MediaResource FromJson<MediaResource>(std::string_view);
template Stream FromJson<Stream>(std::string_view);
template std::shared_ptr<MediaAssetGroup> FromJson<std::shared_ptr<MediaAssetGroup>>(std::string_view);
template PelkOperatorMetadataProfile FromJson<PelkOperatorMetadataProfile>(std::string_view);
template AnglesPelkOperatorMetadataProfile FromJson<AnglesPelkOperatorMetadataProfile>(std::string_view);

template MediaAsset FromJson<MediaAsset>(std::istream&);
template MediaResource FromJson<MediaResource>(std::istream&);
template Stream FromJson<Stream>(std::istream&);
template std::shared_ptr<MediaAssetGroup> FromJson<std::shared_ptr<MediaAssetGroup>>(std::istream&);
template PelkOperatorMetadataProfile FromJson<PelkOperatorMetadataProfile>(std::istream&);
template AnglesPelkOperatorMetadataProfile FromJson<AnglesPelkOperatorMetadataProfile>(std::istream&);

template std::string_view SchemaNameOf<MediaAsset>();
template std::string_view SchemaNameOf<MediaResource>();
template std::string_view SchemaNameOf<Stream>();
template std::string_view SchemaNameOf<std::shared_ptr<MediaAssetGroup>>();
template std::string_view SchemaNameOf<PelkOperatorMetadataProfile>();
template std::string_view SchemaNameOf<AnglesPelkOperatorMetadataProfile>();

}  // namespace Orvik::DataModel::MediaAssets::Json
