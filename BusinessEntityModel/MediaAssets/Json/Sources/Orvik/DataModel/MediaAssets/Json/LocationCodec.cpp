// Locations, tagged by their "type".

#include "Codecs.h"
#include "FieldTable.h"
#include "TableList.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

using namespace Members;

// clang-format off
constexpr auto kFileTable = MakeTable(Fields(
    Field(kName,
     [](Writer& w, const FileLocation& file) { w.String(file.Name()); },
     [](Reader& r, value& v, FileLocation& file) { file.Name(r.Text(v)); }),
    Field(kSize,
     [](Writer& w, const FileLocation& file) { w.Int(file.Size()); },
     [](Reader& r, value& v, FileLocation& file) { file.Size(r.Int64(v)); }),
    Field(kIsReadOnly,
     [](Writer& w, const FileLocation& file) { w.Bool(file.IsReadOnly()); },
     [](Reader& r, value& v, FileLocation& file) { file.IsReadOnly(r.Bool(v)); }),
    Field(kCreationDate,
     [](Writer& w, const FileLocation& file) { w.Int(file.CreationDate()); },
     [](Reader& r, value& v, FileLocation& file) { file.CreationDate(r.Int64(v)); }),
    Field(kModificationDate,
     [](Writer& w, const FileLocation& file) { w.Int(file.ModificationDate()); },
     [](Reader& r, value& v, FileLocation& file) { file.ModificationDate(r.Int64(v)); }),
    Field(kLastAccessDate,
     [](Writer& w, const FileLocation& file) { w.Int(file.LastAccessDate()); },
     [](Reader& r, value& v, FileLocation& file) { file.LastAccessDate(r.Int64(v)); }),
    Field(kUri,
     [](Writer& w, const FileLocation& file) { w.String(file.Uri().Value()); },
     [](Reader& r, value& v, FileLocation& file) { file.Uri(URI(r.Text(v))); })));

constexpr auto kZanTable = MakeTable(Fields(
    Field(kServerId,
     [](Writer& w, const ZanLocation& zan) { w.Int(zan.ServerId().SerialNumber()); },
     [](Reader& r, value& v, ZanLocation& zan) { zan.ServerId(ZanServerId(r.Int32(v))); }),
    Field(kSequenceId,
     [](Writer& w, const ZanLocation& zan) { w.String(zan.SequenceId()); },
     [](Reader& r, value& v, ZanLocation& zan) { zan.SequenceId(r.Text(v)); })));

/// The storage server, first in both storage locations' tables.
template <typename L>
constexpr auto kStorageFields = Fields(
    Field(kDaxServerId,
     [](Writer& w, const L& location) { w.String(location.ServerId().Value()); },
     [](Reader& r, value& v, L& location) { location.ServerId(Identifier(r.Text(v))); }));

constexpr auto kContentTrackTable = MakeTable(kStorageFields<DaxContentTrackLocation>, Fields(
    Field(kDaxPartitionId,
     [](Writer& w, const DaxContentTrackLocation& track) { w.String(track.PartitionId().Value()); },
     [](Reader& r, value& v, DaxContentTrackLocation& track) { track.PartitionId(Identifier(r.Text(v))); }),
    Field(kDaxContentTrackId,
     [](Writer& w, const DaxContentTrackLocation& track) { w.String(track.ContentTrackId().Value()); },
     [](Reader& r, value& v, DaxContentTrackLocation& track) { track.ContentTrackId(Identifier(r.Text(v))); })));

constexpr auto kProtectTable = MakeTable(kStorageFields<DaxProtectLocation>, Fields(
    Field(kDaxUri,
     [](Writer& w, const DaxProtectLocation& item) { w.String(item.Uri().Value()); },
     [](Reader& r, value& v, DaxProtectLocation& item) { item.Uri(URI(r.Text(v))); })));
// clang-format on

}  // namespace

void Write(Writer& w, const Location& location)
{
    if (const auto* file = dynamic_cast<const FileLocation*>(&location))
        WriteTagged(w, kType, Location::ToString(Location::FileLocation), kFileTable, *file);
    else if (const auto* zan = dynamic_cast<const ZanLocation*>(&location))
        WriteTagged(w, kType, Location::ToString(Location::ZanLocation), kZanTable, *zan);
    else if (const auto* track = dynamic_cast<const DaxContentTrackLocation*>(&location))
        WriteTagged(w, kType, Location::ToString(Location::DaxContentTrackLocation), kContentTrackTable, *track);
    else if (const auto* item = dynamic_cast<const DaxProtectLocation*>(&location))
        WriteTagged(w, kType, Location::ToString(Location::DaxProtectLocation), kProtectTable, *item);
    else
        w.Fail("expected a file, video-server or storage location, found another class");
}

std::unique_ptr<Location> ReadLocation(Reader& r, value& v)
{
    std::unique_ptr<Location> location;
    r.Polymorphic(v, kType, [&](std::string_view type, Reader::Rest& rest) {
        bool failed = false;
        const Location::Type kind = Location::ToType(std::string(type), failed);
        if (failed)
            r.FailTag(kType,
                      Alternatives({Location::ToString(Location::FileLocation), Location::ToString(Location::ZanLocation),
                                    Location::ToString(Location::DaxContentTrackLocation),
                                    Location::ToString(Location::DaxProtectLocation)}),
                      type);
        switch (kind) {
        case Location::FileLocation:
            location = ReadInto(r, rest, kFileTable, std::make_unique<FileLocation>());
            break;
        case Location::ZanLocation:
            location = ReadInto(r, rest, kZanTable, std::make_unique<ZanLocation>());
            break;
        case Location::DaxContentTrackLocation:
            location = ReadInto(r, rest, kContentTrackTable, std::make_unique<DaxContentTrackLocation>());
            break;
        case Location::DaxProtectLocation:
            location = ReadInto(r, rest, kProtectTable, std::make_unique<DaxProtectLocation>());
            break;
        }
    });
    return location;
}

void AddLocationTables(std::vector<TableMembers>& tables)
{
    tables.push_back({"fileLocation", NamesOf(kFileTable)});
    tables.push_back({"zanLocation", NamesOf(kZanTable)});
    tables.push_back({"daxContentTrackLocation", NamesOf(kContentTrackTable)});
    tables.push_back({"daxProtectLocation", NamesOf(kProtectTable)});
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
