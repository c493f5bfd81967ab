// Metadata dictionaries: each profile written by the codec filed under its name, the two
// operator profiles built in, profiles without codec kept as raw JSON.

#include "Codecs.h"

#include <Orvik/DataModel/MediaAssets/Json/MetadataProfileCodec.h>
#include <Orvik/DataModel/MediaAssets/Json/RawMetadataProfile.h>

#include <rapidjson/reader.h>

#include <map>
#include <mutex>
#include <shared_mutex>

namespace Orvik::DataModel::MediaAssets::Json {

namespace {

constexpr char kNullCodec[] = "Orvik::DataModel::MediaAssets::Json::RegisterMetadataProfileCodec: null codec";
constexpr char kBuiltInName[] =
    "Orvik::DataModel::MediaAssets::Json::RegisterMetadataProfileCodec: the operator profiles' codec is built in";

struct Registry {
    std::shared_mutex mutex;
    std::map<std::string, std::shared_ptr<const MetadataProfileCodec>, std::less<>> codecs;
};

Registry& GetRegistry()
{
    static Registry registry;
    return registry;
}

std::shared_ptr<const MetadataProfileCodec> FindCodec(const std::string& name)
{
    Registry& registry = GetRegistry();
    const std::shared_lock lock(registry.mutex);
    const auto found = registry.codecs.find(name);
    return found == registry.codecs.end() ? nullptr : found->second;
}

bool IsOperatorProfileName(const std::string& name)
{
    return name == PelkOperatorMetadataProfile::StaticFullyQualifiedName().Value();
}

}  // namespace

void RegisterMetadataProfileCodec(const FullyQualifiedName& name, std::shared_ptr<const MetadataProfileCodec> codec)
{
    if (!codec)
        throw std::invalid_argument(kNullCodec);
    if (IsOperatorProfileName(name.Value()))
        throw std::invalid_argument(kBuiltInName);
    Registry& registry = GetRegistry();
    const std::unique_lock lock(registry.mutex);
    registry.codecs.insert_or_assign(name.Value(), std::move(codec));
}

bool UnregisterMetadataProfileCodec(const FullyQualifiedName& name)
{
    Registry& registry = GetRegistry();
    const std::unique_lock lock(registry.mutex);
    return registry.codecs.erase(name.Value()) != 0;
}

namespace detail {

namespace {

constexpr int kMaxProfileDepth = 100;
constexpr char kPelkKind[] = "PelkOperatorMetadataProfile";
constexpr char kAnglesKind[] = "AnglesPelkOperatorMetadataProfile";

constexpr auto kPelkMembers =
    MemberNames("objectId", "serverId", "page", "bank", "clip", "camera", "umId", "varId", "rating", "archiveStatus",
                "userTimecodeType", "primaryTimecode", "userTimecode", "todTimecode", "icon", "color", "fillAndKeyType",
                "fillAndKeyMediaAssetId", "keywords", "userProtected", "pelkUIProtected");
constexpr auto kAnglesMembers = MemberNames("objectId", "serverId", "page", "bank", "clip");

// Accepts one JSON object nested at most kMaxProfileDepth deep, with nothing after it.
class ObjectCheck : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, ObjectCheck> {
public:
    bool StartObject() { return Enter(); }
    bool EndObject(rapidjson::SizeType) { return Leave(); }
    bool StartArray() { return Enter(); }
    bool EndArray(rapidjson::SizeType) { return Leave(); }
    bool Default() { return depth > 0; }
    bool tooDeep = false;

private:
    bool Enter()
    {
        tooDeep = ++depth > kMaxProfileDepth;
        return !tooDeep;
    }
    bool Leave()
    {
        --depth;
        return true;
    }
    int depth = 0;
};

/// Empty when `json` is one object; otherwise what was expected.
std::string CheckProfileObject(std::string_view json)
{
    ObjectCheck check;
    rapidjson::MemoryStream stream(json.data(), json.size());
    rapidjson::Reader reader;
    if (!json.empty() && json.front() != '{')
        return "expected a JSON object";
    if (reader.Parse<rapidjson::kParseIterativeFlag | rapidjson::kParseStopWhenDoneFlag>(stream, check).IsError()) {
        if (check.tooDeep)
            return "expected a JSON object nested at most " + std::to_string(kMaxProfileDepth) + " levels deep";
        return "expected a JSON object, found malformed JSON";
    }
    if (stream.Tell() != json.size())
        return "expected one JSON object, found more text";
    return {};
}

// The camera letter as one code point from U+0001 to U+00FF, or "" for no camera, so that every
// char value is written as valid UTF-8.
std::string CameraText(char camera)
{
    const auto byte = static_cast<unsigned char>(camera);
    if (byte == 0)
        return {};
    if (byte < 0x80)
        return std::string(1, camera);
    return {static_cast<char>(0xC0 | (byte >> 6)), static_cast<char>(0x80 | (byte & 0x3F))};
}

char ReadCamera(Reader& r, value v)
{
    const std::string_view text = r.String(v);
    if (text.empty())
        return '\0';
    const auto first = static_cast<unsigned char>(text[0]);
    if (text.size() == 1 && first < 0x80)
        return text[0];
    if (text.size() == 2 && (first == 0xC2 || first == 0xC3))
        return static_cast<char>(((first & 0x03) << 6) | (static_cast<unsigned char>(text[1]) & 0x3F));
    r.Fail("expected \"\" or one character from U+0001 to U+00FF, found \"" + std::string(text) + "\"");
}

void WriteProfile(Writer& w, const std::string& name, const std::shared_ptr<MetadataProfile>& profile)
{
    if (!profile)
        w.Fail("expected a metadata profile, found a null pointer");
    if (const auto* raw = dynamic_cast<const RawMetadataProfile*>(profile.get())) {
        w.Raw(raw->Json());
        return;
    }
    if (IsOperatorProfileName(name)) {
        if (const auto* pelk = dynamic_cast<const PelkOperatorMetadataProfile*>(profile.get())) {
            w.StartObject();
            w.String("kind", kPelkKind);
            WriteMembers(w, *pelk);
            w.EndObject();
            return;
        }
        if (const auto* angles = dynamic_cast<const AnglesPelkOperatorMetadataProfile*>(profile.get())) {
            w.StartObject();
            w.String("kind", kAnglesKind);
            WriteMembers(w, *angles);
            w.EndObject();
            return;
        }
        w.Fail("expected an operator profile of a class with a JSON form, found another class");
    }
    const auto codec = FindCodec(name);
    if (!codec)
        w.Fail("expected a metadata profile whose name has a registered JSON codec, found none for \"" + name + "\"");
    const std::string json = codec->Write(*profile);
    const std::string problem = CheckProfileObject(json);
    if (!problem.empty())
        w.Fail("the codec for \"" + name + "\" wrote no profile: " + problem);
    w.Raw(json);
}

std::shared_ptr<MetadataProfile> ReadOperatorProfile(Reader& r, value v)
{
    std::shared_ptr<MetadataProfile> result;
    r.Polymorphic(v, "kind", [&](std::string_view kind, Reader::Rest& rest) {
        if (kind == kPelkKind) {
            auto profile = std::make_shared<PelkOperatorMetadataProfile>();
            ReadMembers(r, rest, *profile);
            result = std::move(profile);
        } else if (kind == kAnglesKind) {
            auto profile = std::make_shared<AnglesPelkOperatorMetadataProfile>();
            ReadMembers(r, rest, *profile);
            result = std::move(profile);
        } else {
            const PathSegment segment(r.CurrentPath(), "kind");
            r.Fail(std::string("expected \"") + kPelkKind + "\" or \"" + kAnglesKind + "\", found \"" + std::string(kind)
                   + "\"");
        }
    });
    return result;
}

std::shared_ptr<MetadataProfile> ReadProfile(Reader& r, const std::string& name, value v)
{
    if (IsOperatorProfileName(name))
        return ReadOperatorProfile(r, v);
    const std::string_view json = r.RawObject(v);
    const std::string problem = CheckProfileObject(json);
    if (!problem.empty())
        r.Fail(problem);
    const auto codec = FindCodec(name);
    if (!codec)
        return std::make_shared<RawMetadataProfile>(FullyQualifiedName(name), std::string(json));
    std::shared_ptr<MetadataProfile> profile;
    try {
        profile = codec->Read(json);
    } catch (const std::exception& error) {
        r.Fail("expected a profile that the codec for \"" + name + "\" reads, found one it refused: " + error.what());
    }
    if (!profile || profile->FullyQualifiedName().Value() != name)
        r.Fail("expected the codec for \"" + name + "\" to read a profile of that name");
    return profile;
}

}  // namespace

void Write(Writer& w, const MetadataProfileDictionary& dictionary)
{
    w.StartObject();
    // Keys() copies the names; the walk over the profiles below keeps them in the same order.
    const auto names = dictionary.Keys();
    const auto profiles = dictionary.Values();
    for (size_t index = 0; index < names.size(); ++index) {
        const std::string& name = names[index].Value();
        w.CheckedKey(name);
        const PathSegment segment(w.CurrentPath(), name);
        WriteProfile(w, name, profiles[index]);
    }
    w.EndObject();
}

void Read(Reader& r, value v, MetadataProfileDictionary& dictionary)
{
    r.Dictionary(v, [&](const std::string& name, value member) {
        if (dictionary.Contains(FullyQualifiedName(name)))
            r.Fail("expected one member of this name, found a second");
        dictionary.Set(ReadProfile(r, name, member));
    });
}

// The members that both operator profiles begin with: the clip they describe, kClipMembers of them.
constexpr size_t kClipMembers = 5;

template <typename Profile>
void WriteClipMembers(Writer& w, const Profile& profile)
{
    w.Int("objectId", profile.ObjectId());
    w.Int("serverId", profile.ServerId().SerialNumber());
    w.Int("page", profile.Page());
    w.Int("bank", profile.Bank());
    w.Int("clip", profile.Clip());
}

template <typename Profile>
void ReadClipMember(Reader& r, size_t index, value member, Profile& profile)
{
    switch (index) {
    case 0:
        profile.ObjectId(r.Int64(member));
        break;
    case 1:
        profile.ServerId(ZanServerId(r.Int32(member)));
        break;
    case 2:
        profile.Page(r.Int32(member));
        break;
    case 3:
        profile.Bank(r.Int32(member));
        break;
    default:
        profile.Clip(r.Int32(member));
    }
}

void WriteMembers(Writer& w, const PelkOperatorMetadataProfile& profile)
{
    WriteClipMembers(w, profile);
    w.String("camera", CameraText(profile.Camera()));
    w.String("umId", profile.UmId());
    w.String("varId", profile.VarId());
    w.Int("rating", profile.Rating());
    w.String("archiveStatus", ToString(profile.ArchiveStatus()));
    w.String("userTimecodeType", ToString(profile.UserTimecodeType()));
    w.String("primaryTimecode", ToString(profile.PrimaryTimecode()));
    w.Member("userTimecode", [&] { Write(w, profile.UserTimecode()); });
    w.Member("todTimecode", [&] { Write(w, profile.TodTimecode()); });
    w.String("icon", profile.Icon());
    w.String("color", Color::ToString(profile.Color()));
    w.String("fillAndKeyType", ToString(profile.FillAndKeyType()));
    w.String("fillAndKeyMediaAssetId", profile.FillAndKeyMediaAssetId().Value());
    w.Array("keywords", profile.Keywords(), [&](const Utf8String& keyword) { w.String(keyword); });
    w.Bool("userProtected", profile.IsUserProtected());
    w.Bool("pelkUIProtected", profile.IsPelkUiProtected());
}

void ReadMembers(Reader& r, Reader::Rest& rest, PelkOperatorMetadataProfile& profile)
{
    r.ReadRest(rest, kPelkMembers, [&](size_t index, value member) {
        if (index < kClipMembers)
            return ReadClipMember(r, index, member, profile);
        switch (index) {
        case 5:
            profile.Camera(ReadCamera(r, member));
            break;
        case 6:
            profile.UmId(r.Text(member));
            break;
        case 7:
            profile.VarId(r.Text(member));
            break;
        case 8:
            profile.Rating(r.Int32(member));
            break;
        case 9:
            profile.ArchiveStatus(r.Enumeration(member, &ToArchiveStatus, "ArchiveStatus"));
            break;
        case 10:
            profile.UserTimecodeType(r.Enumeration(member, &ToUserTimecodeType, "UserTimecodeType"));
            break;
        case 11:
            profile.PrimaryTimecode(r.Enumeration(member, &ToTimecodePrimary, "TimecodePrimary"));
            break;
        case 12:
            profile.UserTimecode(ReadTimecode(r, member));
            break;
        case 13:
            profile.TodTimecode(ReadTimecode(r, member));
            break;
        case 14:
            profile.Icon(r.Text(member));
            break;
        case 15: {
            const std::string text = r.Text(member);
            uint32_t color = 0;
            if (!Color::TryParse(text, color))
                r.Fail("expected a colour \"#AARRGGBB\", found \"" + text + "\"");
            profile.Color(color);
            break;
        }
        case 16:
            profile.FillAndKeyType(r.Enumeration(member, &ToFillAndKeyType, "FillAndKeyType"));
            break;
        case 17:
            profile.FillAndKeyMediaAssetId(Identifier(r.Text(member)));
            break;
        case 18: {
            profile.ClearKeywords();
            size_t slot = 0;
            r.Array(member, [&](value keyword) { profile.Keyword(slot++, r.Text(keyword)); });
            break;
        }
        case 19:
            profile.UserProtected(r.Bool(member));
            break;
        default:
            profile.PelkUIProtected(r.Bool(member));
        }
    });
}

void WriteMembers(Writer& w, const AnglesPelkOperatorMetadataProfile& profile) { WriteClipMembers(w, profile); }

void ReadMembers(Reader& r, Reader::Rest& rest, AnglesPelkOperatorMetadataProfile& profile)
{
    r.ReadRest(rest, kAnglesMembers, [&](size_t index, value member) { ReadClipMember(r, index, member, profile); });
}

}  // namespace detail

}  // namespace Orvik::DataModel::MediaAssets::Json
