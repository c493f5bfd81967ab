// Locations, tagged by their "type".

#include "Codecs.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

constexpr auto kFileMembers =
    MemberNames("name", "size", "isReadOnly", "creationDate", "modificationDate", "lastAccessDate", "uri");
constexpr auto kZanMembers = MemberNames("serverId", "sequenceId");
constexpr auto kContentTrackMembers = MemberNames("daxServerId", "daxPartitionId", "daxContentTrackId");
constexpr auto kProtectMembers = MemberNames("daxServerId", "daxUri");

std::unique_ptr<Location> ReadFile(Reader& r, Reader::Rest& rest)
{
    auto file = std::make_unique<FileLocation>();
    r.ReadRest(rest, kFileMembers, [&](size_t index, value v) {
        switch (index) {
        case 0:
            file->Name(r.Text(v));
            break;
        case 1:
            file->Size(r.Int64(v));
            break;
        case 2:
            file->IsReadOnly(r.Bool(v));
            break;
        case 3:
            file->CreationDate(r.Int64(v));
            break;
        case 4:
            file->ModificationDate(r.Int64(v));
            break;
        case 5:
            file->LastAccessDate(r.Int64(v));
            break;
        default:
            file->Uri(URI(r.Text(v)));
        }
    });
    return file;
}

std::unique_ptr<Location> ReadZan(Reader& r, Reader::Rest& rest)
{
    auto zan = std::make_unique<ZanLocation>();
    r.ReadRest(rest, kZanMembers, [&](size_t index, value v) {
        if (index == 0)
            zan->ServerId(ZanServerId(r.Int32(v)));
        else
            zan->SequenceId(r.Text(v));
    });
    return zan;
}

std::unique_ptr<Location> ReadContentTrack(Reader& r, Reader::Rest& rest)
{
    auto track = std::make_unique<DaxContentTrackLocation>();
    r.ReadRest(rest, kContentTrackMembers, [&](size_t index, value v) {
        switch (index) {
        case 0:
            track->ServerId(Identifier(r.Text(v)));
            break;
        case 1:
            track->PartitionId(Identifier(r.Text(v)));
            break;
        default:
            track->ContentTrackId(Identifier(r.Text(v)));
        }
    });
    return track;
}

std::unique_ptr<Location> ReadProtect(Reader& r, Reader::Rest& rest)
{
    auto item = std::make_unique<DaxProtectLocation>();
    r.ReadRest(rest, kProtectMembers, [&](size_t index, value v) {
        if (index == 0)
            item->ServerId(Identifier(r.Text(v)));
        else
            item->Uri(URI(r.Text(v)));
    });
    return item;
}

}  // namespace

void Write(Writer& w, const Location& location)
{
    w.StartObject();
    if (const auto* file = dynamic_cast<const FileLocation*>(&location)) {
        w.String("type", Location::ToString(Location::FileLocation));
        w.String("name", file->Name());
        w.Int("size", file->Size());
        w.Bool("isReadOnly", file->IsReadOnly());
        w.Int("creationDate", file->CreationDate());
        w.Int("modificationDate", file->ModificationDate());
        w.Int("lastAccessDate", file->LastAccessDate());
        w.String("uri", file->Uri().Value());
    } else if (const auto* zan = dynamic_cast<const ZanLocation*>(&location)) {
        w.String("type", Location::ToString(Location::ZanLocation));
        w.Int("serverId", zan->ServerId().SerialNumber());
        w.String("sequenceId", zan->SequenceId());
    } else if (const auto* track = dynamic_cast<const DaxContentTrackLocation*>(&location)) {
        w.String("type", Location::ToString(Location::DaxContentTrackLocation));
        w.String("daxServerId", track->ServerId().Value());
        w.String("daxPartitionId", track->PartitionId().Value());
        w.String("daxContentTrackId", track->ContentTrackId().Value());
    } else if (const auto* item = dynamic_cast<const DaxProtectLocation*>(&location)) {
        w.String("type", Location::ToString(Location::DaxProtectLocation));
        w.String("daxServerId", item->ServerId().Value());
        w.String("daxUri", item->Uri().Value());
    } else {
        w.Fail("expected a file, video-server or storage location, found another class");
    }
    w.EndObject();
}

std::unique_ptr<Location> ReadLocation(Reader& r, value v)
{
    std::unique_ptr<Location> location;
    r.Polymorphic(v, "type", [&](std::string_view type, Reader::Rest& rest) {
        bool failed = false;
        switch (Location::ToType(std::string(type), failed)) {
        case Location::FileLocation:
            location = failed ? nullptr : ReadFile(r, rest);
            break;
        case Location::ZanLocation:
            location = ReadZan(r, rest);
            break;
        case Location::DaxContentTrackLocation:
            location = ReadContentTrack(r, rest);
            break;
        case Location::DaxProtectLocation:
            location = ReadProtect(r, rest);
            break;
        }
        if (!location) {
            const PathSegment segment(r.CurrentPath(), "type");
            r.Fail("expected \"FileLocation\", \"ZanLocation\", \"DaxContentTrackLocation\" or \"DaxProtectLocation\", "
                   "found \""
                   + std::string(type) + "\"");
        }
    });
    return location;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
