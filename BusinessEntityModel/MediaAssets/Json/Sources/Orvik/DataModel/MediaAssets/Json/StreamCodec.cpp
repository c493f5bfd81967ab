// Streams and media resources.

#include "Codecs.h"
#include "Collections.h"
#include "FieldTable.h"
#include "References.h"
#include "TableList.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

using namespace Members;

// clang-format off
constexpr auto kStreamTable = MakeTable(Fields(
    Field(kObjectId,
     [](Writer& w, const Stream& stream) { w.Int(stream.ObjectId()); },
     [](Reader& r, value& v, Stream& stream) { stream.ObjectId(r.Int64(v)); }),
    Field(kStreamId,
     [](Writer& w, const Stream& stream) { w.String(stream.Id().Value()); },
     [](Reader& r, value& v, Stream& stream) { stream.Id(StreamId(r.Text(v))); }),
    Field(kFormat,
     [](Writer& w, const Stream& stream) { w.String(ToString(stream.Format())); },
     [](Reader& r, value& v, Stream& stream) { stream.Format(r.Enumeration(v, &ToWrapperFormat, "WrapperFormat")); }),
    Field(kTimebounds,
     [](Writer& w, const Stream& stream) { Write(w, stream.Timebounds()); },
     [](Reader& r, value& v, Stream& stream) { Read(r, v, stream.Timebounds()); }),
    Field(kMetadata,
     [](Writer& w, const Stream& stream) { Write(w, stream.Metadata()); },
     [](Reader& r, value& v, Stream& stream) { Read(r, v, stream.Metadata()); }),
    Field(kEssences,
     [](Writer& w, const Stream& stream) {
         w.Array(stream.Essences(), [&](const std::unique_ptr<Essence>& essence) { Write(w, *essence); });
     },
     [](Reader& r, value& v, Stream& stream) {
         ReadAppending<std::unique_ptr<Essence>>(r, v, stream.Essences(),
                                                 [&](value& element) { return ReadEssence(r, element); });
     }),
    Field(kLocations,
     [](Writer& w, const Stream& stream) {
         w.Array(stream.Locations(), [&](const std::unique_ptr<Location>& location) { Write(w, *location); });
     },
     [](Reader& r, value& v, Stream& stream) {
         ReadAppending<std::unique_ptr<Location>>(r, v, stream.Locations(),
                                                  [&](value& element) { return ReadLocation(r, element); });
     })));

constexpr auto kResourceTable = MakeTable(Fields(
    Field(kObjectId,
     [](Writer& w, const MediaResource& resource) { w.Int(resource.ObjectId()); },
     [](Reader& r, value& v, MediaResource& resource) { resource.ObjectId(r.Int64(v)); }),
    Field(kId,
     [](Writer& w, const MediaResource& resource) { w.String(resource.Id().Value()); },
     [](Reader& r, value& v, MediaResource& resource) { resource.Id(MediaResourceId(r.Text(v))); }),
    Field(kName,
     [](Writer& w, const MediaResource& resource) { w.String(resource.Name()); },
     [](Reader& r, value& v, MediaResource& resource) { resource.Name(r.Text(v)); }),
    Field(kGeneralFormat,
     [](Writer& w, const MediaResource& resource) { w.String(ToString(resource.GeneralFormat())); },
     [](Reader& r, value& v, MediaResource& resource) {
         resource.GeneralFormat(r.Enumeration(v, &ToResourceFormat, "ResourceFormat"));
     }),
    Field(kStreams,
     [](Writer& w, const MediaResource& resource) {
         w.Array(resource.Streams(), [&](const StreamReference& reference) { WriteReference(w, reference); });
     },
     [](Reader& r, value& v, MediaResource& resource) {
         ReadAppending<StreamReference>(r, v, resource.Streams(),
                                        [&](value& element) { return ReadReference<Stream>(r, element); });
     }),
    Field(kTimebounds,
     [](Writer& w, const MediaResource& resource) { Write(w, resource.Timebounds()); },
     [](Reader& r, value& v, MediaResource& resource) { Read(r, v, resource.Timebounds()); }),
    Field(kCreationDate,
     [](Writer& w, const MediaResource& resource) { w.Int(resource.CreationDate()); },
     [](Reader& r, value& v, MediaResource& resource) { resource.CreationDate(r.Int64(v)); }),
    Field(kModificationDate,
     [](Writer& w, const MediaResource& resource) { w.Int(resource.ModificationDate()); },
     [](Reader& r, value& v, MediaResource& resource) { resource.ModificationDate(r.Int64(v)); }),
    Field(kMetadata,
     [](Writer& w, const MediaResource& resource) { Write(w, resource.Metadata()); },
     [](Reader& r, value& v, MediaResource& resource) { Read(r, v, resource.Metadata()); })));
// clang-format on

}  // namespace

void Write(Writer& w, const Stream& stream) { WriteObject(w, kStreamTable, stream); }

void ReadMembers(Reader& r, Reader::Rest& rest, Stream& stream) { ReadFields(r, rest, kStreamTable, stream); }

void Read(Reader& r, value& v, Stream& stream) { ReadObject(r, v, kStreamTable, stream); }

void Write(Writer& w, const MediaResource& resource) { WriteObject(w, kResourceTable, resource); }

void ReadMembers(Reader& r, Reader::Rest& rest, MediaResource& resource) { ReadFields(r, rest, kResourceTable, resource); }

void Read(Reader& r, value& v, MediaResource& resource) { ReadObject(r, v, kResourceTable, resource); }

void AddStreamTables(std::vector<TableMembers>& tables)
{
    tables.push_back({"stream", NamesOf(kStreamTable)});
    tables.push_back({"mediaResource", NamesOf(kResourceTable)});
    tables.push_back({"streamReference", NamesOf(kReferenceTable<Stream>)});
    tables.push_back({"mediaResourceReference", NamesOf(kReferenceTable<MediaResource>)});
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
