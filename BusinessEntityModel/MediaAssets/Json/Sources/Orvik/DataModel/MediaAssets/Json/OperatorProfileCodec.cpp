// The two operator profiles, built in: the clip they describe, and the full profile's own fields.

#include "Codecs.h"
#include "FieldTable.h"
#include "TableList.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

using namespace Members;

constexpr std::string_view kPelkKind = "PelkOperatorMetadataProfile";
constexpr std::string_view kAnglesKind = "AnglesPelkOperatorMetadataProfile";

// clang-format off
/// The clip that both profiles describe, first in both tables.
template <typename P>
constexpr auto kClipFields = Fields(
    Field(kObjectId,
     [](Writer& w, const P& profile) { w.Int(profile.ObjectId()); },
     [](Reader& r, value& v, P& profile) { profile.ObjectId(r.Int64(v)); }),
    Field(kServerId,
     [](Writer& w, const P& profile) { w.Int(profile.ServerId().SerialNumber()); },
     [](Reader& r, value& v, P& profile) { profile.ServerId(ZanServerId(r.Int32(v))); }),
    Field(kPage,
     [](Writer& w, const P& profile) { w.Int(profile.Page()); },
     [](Reader& r, value& v, P& profile) { profile.Page(r.Int32(v)); }),
    Field(kBank,
     [](Writer& w, const P& profile) { w.Int(profile.Bank()); },
     [](Reader& r, value& v, P& profile) { profile.Bank(r.Int32(v)); }),
    Field(kClip,
     [](Writer& w, const P& profile) { w.Int(profile.Clip()); },
     [](Reader& r, value& v, P& profile) { profile.Clip(r.Int32(v)); }));

using Pelk = PelkOperatorMetadataProfile;

constexpr auto kPelkTable = MakeTable(kClipFields<Pelk>, Fields(
    Field(kCamera,
     [](Writer& w, const Pelk& profile) { w.String(CameraText(profile.Camera())); },
     [](Reader& r, value& v, Pelk& profile) {
         const std::string_view text = r.String(v);
         char camera = '\0';
         if (!CameraFromText(text, camera))
             r.Fail("expected \"\" or one character from U+0001 to U+00FF, found \"" + std::string(text) + "\"");
         profile.Camera(camera);
     }),
    Field(kUmId,
     [](Writer& w, const Pelk& profile) { w.String(profile.UmId()); },
     [](Reader& r, value& v, Pelk& profile) { profile.UmId(r.Text(v)); }),
    Field(kVarId,
     [](Writer& w, const Pelk& profile) { w.String(profile.VarId()); },
     [](Reader& r, value& v, Pelk& profile) { profile.VarId(r.Text(v)); }),
    Field(kRating,
     [](Writer& w, const Pelk& profile) { w.Int(profile.Rating()); },
     [](Reader& r, value& v, Pelk& profile) { profile.Rating(r.Int32(v)); }),
    Field(kArchiveStatus,
     [](Writer& w, const Pelk& profile) { w.String(ToString(profile.ArchiveStatus())); },
     [](Reader& r, value& v, Pelk& profile) {
         profile.ArchiveStatus(r.Enumeration(v, &ToArchiveStatus, "ArchiveStatus"));
     }),
    Field(kUserTimecodeType,
     [](Writer& w, const Pelk& profile) { w.String(ToString(profile.UserTimecodeType())); },
     [](Reader& r, value& v, Pelk& profile) {
         profile.UserTimecodeType(r.Enumeration(v, &ToUserTimecodeType, "UserTimecodeType"));
     }),
    Field(kPrimaryTimecode,
     [](Writer& w, const Pelk& profile) { w.String(ToString(profile.PrimaryTimecode())); },
     [](Reader& r, value& v, Pelk& profile) {
         profile.PrimaryTimecode(r.Enumeration(v, &ToTimecodePrimary, "TimecodePrimary"));
     }),
    Field(kUserTimecode,
     [](Writer& w, const Pelk& profile) { Write(w, profile.UserTimecode()); },
     [](Reader& r, value& v, Pelk& profile) { profile.UserTimecode(ReadTimecode(r, v)); }),
    Field(kTodTimecode,
     [](Writer& w, const Pelk& profile) { Write(w, profile.TodTimecode()); },
     [](Reader& r, value& v, Pelk& profile) { profile.TodTimecode(ReadTimecode(r, v)); }),
    Field(kIcon,
     [](Writer& w, const Pelk& profile) { w.String(profile.Icon()); },
     [](Reader& r, value& v, Pelk& profile) { profile.Icon(r.Text(v)); }),
    Field(kColor,
     [](Writer& w, const Pelk& profile) { w.String(Color::ToString(profile.Color())); },
     [](Reader& r, value& v, Pelk& profile) {
         const std::string text = r.Text(v);
         uint32_t color = 0;
         if (!Color::TryParse(text, color))
             r.Fail("expected a colour \"#AARRGGBB\", found \"" + text + "\"");
         profile.Color(color);
     }),
    Field(kFillAndKeyType,
     [](Writer& w, const Pelk& profile) { w.String(ToString(profile.FillAndKeyType())); },
     [](Reader& r, value& v, Pelk& profile) {
         profile.FillAndKeyType(r.Enumeration(v, &ToFillAndKeyType, "FillAndKeyType"));
     }),
    Field(kFillAndKeyMediaAssetId,
     [](Writer& w, const Pelk& profile) { w.String(profile.FillAndKeyMediaAssetId().Value()); },
     [](Reader& r, value& v, Pelk& profile) { profile.FillAndKeyMediaAssetId(Identifier(r.Text(v))); }),
    Field(kKeywords,
     [](Writer& w, const Pelk& profile) {
         w.Array(profile.Keywords(), [&](const Utf8String& keyword) { w.String(keyword); });
     },
     [](Reader& r, value& v, Pelk& profile) {
         profile.ClearKeywords();
         size_t slot = 0;
         r.Array(v, [&](value& keyword) { profile.Keyword(slot++, r.Text(keyword)); });
     }),
    Field(kUserProtected,
     [](Writer& w, const Pelk& profile) { w.Bool(profile.IsUserProtected()); },
     [](Reader& r, value& v, Pelk& profile) { profile.UserProtected(r.Bool(v)); }),
    Field(kPelkUIProtected,
     [](Writer& w, const Pelk& profile) { w.Bool(profile.IsPelkUiProtected()); },
     [](Reader& r, value& v, Pelk& profile) { profile.PelkUIProtected(r.Bool(v)); })));

constexpr auto kAnglesTable = MakeTable(kClipFields<AnglesPelkOperatorMetadataProfile>);
// clang-format on

}  // namespace

void WriteMembers(Writer& w, const PelkOperatorMetadataProfile& profile) { WriteFields(w, kPelkTable, profile); }

void ReadMembers(Reader& r, Reader::Rest& rest, PelkOperatorMetadataProfile& profile)
{
    ReadFields(r, rest, kPelkTable, profile);
}

void WriteMembers(Writer& w, const AnglesPelkOperatorMetadataProfile& profile) { WriteFields(w, kAnglesTable, profile); }

void ReadMembers(Reader& r, Reader::Rest& rest, AnglesPelkOperatorMetadataProfile& profile)
{
    ReadFields(r, rest, kAnglesTable, profile);
}

void WriteOperatorProfile(Writer& w, const MetadataProfile& profile)
{
    if (const auto* pelk = dynamic_cast<const PelkOperatorMetadataProfile*>(&profile))
        WriteTagged(w, kKind, kPelkKind, kPelkTable, *pelk);
    else if (const auto* angles = dynamic_cast<const AnglesPelkOperatorMetadataProfile*>(&profile))
        WriteTagged(w, kKind, kAnglesKind, kAnglesTable, *angles);
    else
        w.Fail("expected an operator profile of a class with a JSON form, found another class");
}

std::shared_ptr<MetadataProfile> ReadOperatorProfile(Reader& r, value& v)
{
    std::shared_ptr<MetadataProfile> result;
    r.Polymorphic(v, kKind, [&](std::string_view kind, Reader::Rest& rest) {
        if (kind == kPelkKind)
            result = ReadInto(r, rest, kPelkTable, std::make_shared<PelkOperatorMetadataProfile>());
        else if (kind == kAnglesKind)
            result = ReadInto(r, rest, kAnglesTable, std::make_shared<AnglesPelkOperatorMetadataProfile>());
        else
            r.FailTag(kKind, Alternatives({kPelkKind, kAnglesKind}), kind);
    });
    return result;
}

void AddOperatorProfileTables(std::vector<TableMembers>& tables)
{
    tables.push_back({"pelkOperatorProfile", NamesOf(kPelkTable)});
    tables.push_back({"anglesPelkOperatorProfile", NamesOf(kAnglesTable)});
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
