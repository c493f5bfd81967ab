// Streams, the references to them, and media resources.

#include "Codecs.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

constexpr auto kStreamMembers =
    MemberNames("objectId", "streamId", "format", "timebounds", "metadata", "essences", "locations");
constexpr uint64_t kPointerIsOptional = 1u << 1;
constexpr Members<2> kReferenceMembers{{"id", "pointer"}, kPointerIsOptional};
constexpr auto kResourceMembers = MemberNames("objectId", "id", "name", "generalFormat", "streams", "timebounds",
                                              "creationDate", "modificationDate", "metadata");

}  // namespace

void Write(Writer& w, const Stream& stream)
{
    w.StartObject();
    w.Int("objectId", stream.ObjectId());
    w.String("streamId", stream.Id().Value());
    w.String("format", ToString(stream.Format()));
    w.Member("timebounds", [&] { Write(w, stream.Timebounds()); });
    w.Member("metadata", [&] { Write(w, stream.Metadata()); });
    w.Array("essences", stream.Essences(), [&](const std::unique_ptr<Essence>& essence) { Write(w, *essence); });
    w.Array("locations", stream.Locations(), [&](const std::unique_ptr<Location>& location) { Write(w, *location); });
    w.EndObject();
}

void ReadMembers(Reader& r, Reader::Rest& rest, Stream& stream)
{
    r.ReadRest(rest, kStreamMembers, [&](size_t index, value v) {
        switch (index) {
        case 0:
            stream.ObjectId(r.Int64(v));
            break;
        case 1:
            stream.Id(StreamId(r.Text(v)));
            break;
        case 2:
            stream.Format(r.Enumeration(v, &ToWrapperFormat, "WrapperFormat"));
            break;
        case 3:
            Read(r, v, stream.Timebounds());
            break;
        case 4:
            Read(r, v, stream.Metadata());
            break;
        case 5:
            ReadAppending<std::unique_ptr<Essence>>(r, v, stream.Essences(),
                                                    [&](value element) { return ReadEssence(r, element); });
            break;
        default:
            ReadAppending<std::unique_ptr<Location>>(r, v, stream.Locations(),
                                                     [&](value element) { return ReadLocation(r, element); });
        }
    });
}

void Read(Reader& r, value v, Stream& stream)
{
    Reader::Rest rest = r.Open(v);
    ReadMembers(r, rest, stream);
}

void Write(Writer& w, const StreamReference& reference)
{
    w.StartObject();
    w.String("id", reference.Id().Value());
    const std::shared_ptr<const Stream> stream = reference.Pointer();
    if (stream)
        w.Member("pointer", [&] { w.Shared(stream.get(), [&] { Write(w, *stream); }); });
    w.EndObject();
}

StreamReference ReadStreamReference(Reader& r, value v)
{
    std::string id;
    std::shared_ptr<Stream> stream;
    r.Object(v, kReferenceMembers, [&](size_t index, value member) {
        if (index == 0) {
            id = r.Text(member);
        } else if (r.IsString(member)) {
            stream = r.Referenced<Stream>(member, "a stream");
        } else {
            stream = std::make_shared<Stream>();
            Read(r, member, *stream);
            r.Register(stream);
        }
    });
    return stream ? MakeReference(stream, StreamId(id)) : StreamReference(StreamId(id));
}

void Write(Writer& w, const MediaResource& resource)
{
    w.StartObject();
    w.Int("objectId", resource.ObjectId());
    w.String("id", resource.Id().Value());
    w.String("name", resource.Name());
    w.String("generalFormat", ToString(resource.GeneralFormat()));
    w.Array("streams", resource.Streams(), [&](const StreamReference& reference) { Write(w, reference); });
    w.Member("timebounds", [&] { Write(w, resource.Timebounds()); });
    w.Int("creationDate", resource.CreationDate());
    w.Int("modificationDate", resource.ModificationDate());
    w.Member("metadata", [&] { Write(w, resource.Metadata()); });
    w.EndObject();
}

void ReadMembers(Reader& r, Reader::Rest& rest, MediaResource& resource)
{
    r.ReadRest(rest, kResourceMembers, [&](size_t index, value v) {
        switch (index) {
        case 0:
            resource.ObjectId(r.Int64(v));
            break;
        case 1:
            resource.Id(MediaResourceId(r.Text(v)));
            break;
        case 2:
            resource.Name(r.Text(v));
            break;
        case 3:
            resource.GeneralFormat(r.Enumeration(v, &ToResourceFormat, "ResourceFormat"));
            break;
        case 4:
            ReadAppending<StreamReference>(r, v, resource.Streams(),
                                           [&](value element) { return ReadStreamReference(r, element); });
            break;
        case 5:
            Read(r, v, resource.Timebounds());
            break;
        case 6:
            resource.CreationDate(r.Int64(v));
            break;
        case 7:
            resource.ModificationDate(r.Int64(v));
            break;
        default:
            Read(r, v, resource.Metadata());
        }
    });
}

void Read(Reader& r, value v, MediaResource& resource)
{
    Reader::Rest rest = r.Open(v);
    ReadMembers(r, rest, resource);
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
