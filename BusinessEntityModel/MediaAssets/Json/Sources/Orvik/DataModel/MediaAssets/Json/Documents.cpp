// The top-level documents: ToJson, FromJson and SchemaName for each kind of document.

#include "Codecs.h"

#include <Orvik/DataModel/MediaAssets/Json/FromJson.h>
#include <Orvik/DataModel/MediaAssets/Json/JsonError.h>
#include <Orvik/DataModel/MediaAssets/Json/SchemaName.h>
#include <Orvik/DataModel/MediaAssets/Json/ToJson.h>

#include <iterator>

namespace Orvik::DataModel::MediaAssets::Json {

namespace {

using detail::Reader;
using detail::Writer;

// The schema name of each kind of document and how its top-level members are read.
template <typename T>
struct DocumentOf;

template <>
struct DocumentOf<MediaAsset> {
    static constexpr char kName[] = "MediaAsset";
    static void Read(Reader& r, Reader::Rest& rest, MediaAsset& asset) { detail::ReadMembers(r, rest, asset); }
};

template <>
struct DocumentOf<MediaResource> {
    static constexpr char kName[] = "MediaResource";
    static void Read(Reader& r, Reader::Rest& rest, MediaResource& resource) { detail::ReadMembers(r, rest, resource); }
};

template <>
struct DocumentOf<Stream> {
    static constexpr char kName[] = "Stream";
    static void Read(Reader& r, Reader::Rest& rest, Stream& stream) { detail::ReadMembers(r, rest, stream); }
};

template <>
struct DocumentOf<std::shared_ptr<MediaAssetGroup>> {
    static constexpr char kName[] = "MediaAssetGroup";
    static void Read(Reader& r, Reader::Rest& rest, std::shared_ptr<MediaAssetGroup>& group)
    {
        group = detail::ReadGroup(r, rest);
    }
};

template <>
struct DocumentOf<PelkOperatorMetadataProfile> {
    static constexpr char kName[] = "PelkOperatorMetadataProfile";
    static void Read(Reader& r, Reader::Rest& rest, PelkOperatorMetadataProfile& profile)
    {
        detail::ReadMembers(r, rest, profile);
    }
};

template <>
struct DocumentOf<AnglesPelkOperatorMetadataProfile> {
    static constexpr char kName[] = "AnglesPelkOperatorMetadataProfile";
    static void Read(Reader& r, Reader::Rest& rest, AnglesPelkOperatorMetadataProfile& profile)
    {
        detail::ReadMembers(r, rest, profile);
    }
};

template <typename T, typename Write>
std::string Document(Layout layout, Write&& write)
{
    Writer w(DocumentOf<T>::kName);
    write(w);
    return w.Finish(layout);
}

void Put(std::ostream& out, const std::string& document)
{
    out.write(document.data(), static_cast<std::streamsize>(document.size()));
}

}  // namespace

std::string ToJson(const MediaAsset& value, Layout layout)
{
    return Document<MediaAsset>(layout, [&](Writer& w) { detail::Write(w, value); });
}

std::string ToJson(const MediaResource& value, Layout layout)
{
    return Document<MediaResource>(layout, [&](Writer& w) { detail::Write(w, value); });
}

std::string ToJson(const Stream& value, Layout layout)
{
    return Document<Stream>(layout, [&](Writer& w) { detail::Write(w, value); });
}

std::string ToJson(const MediaAssetGroup& value, Layout layout)
{
    return Document<std::shared_ptr<MediaAssetGroup>>(layout, [&](Writer& w) {
        w.StartObject();
        detail::WriteMembers(w, value);
        w.EndObject();
    });
}

std::string ToJson(const PelkOperatorMetadataProfile& value, Layout layout)
{
    return Document<PelkOperatorMetadataProfile>(layout, [&](Writer& w) {
        w.StartObject();
        detail::WriteMembers(w, value);
        w.EndObject();
    });
}

std::string ToJson(const AnglesPelkOperatorMetadataProfile& value, Layout layout)
{
    return Document<AnglesPelkOperatorMetadataProfile>(layout, [&](Writer& w) {
        w.StartObject();
        detail::WriteMembers(w, value);
        w.EndObject();
    });
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

template <typename T>
T FromJson(std::string_view document)
{
    Reader r(document, DocumentOf<T>::kName);
    T result{};
    r.Document([&](Reader::Rest& rest) { DocumentOf<T>::Read(r, rest, result); });
    return result;
}

template <typename T>
T FromJson(std::istream& in)
{
    const std::string document{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad())
        throw JsonError("", "expected a readable stream, found a read error");
    return FromJson<T>(std::string_view(document));
}

std::string SchemaName(std::string_view document)
{
    Reader r(document, "");
    return r.SchemaName();
}

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

}  // namespace Orvik::DataModel::MediaAssets::Json
