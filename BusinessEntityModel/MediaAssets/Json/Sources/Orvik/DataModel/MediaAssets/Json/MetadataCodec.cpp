// Metadata dictionaries: each profile written by the codec filed under its name, the operator
// profiles by their built-in codec, profiles without codec kept as raw JSON.

#include "Codecs.h"
#include "ProfileCodecRegistry.h"
#include "ProfileObjectCheck.h"

#include <Orvik/DataModel/MediaAssets/Json/RawMetadataProfile.h>

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

void WriteProfile(Writer& w, const std::string& name, const std::shared_ptr<MetadataProfile>& profile)
{
    if (!profile)
        w.Fail("expected a metadata profile, found a null pointer");
    if (const auto* raw = dynamic_cast<const RawMetadataProfile*>(profile.get())) {
        w.Raw(raw->Json());
        return;
    }
    if (IsOperatorProfileName(name))
        return WriteOperatorProfile(w, *profile);
    const auto codec = FindCodec(name);
    if (!codec)
        w.Fail("expected a metadata profile whose name has a registered JSON codec, found none for \"" + name + "\"");
    const std::string json = codec->Write(*profile);
    const std::string problem = CheckProfileObject(json);
    if (!problem.empty())
        w.Fail("the codec for \"" + name + "\" wrote no profile: " + problem);
    w.Raw(json);
}

std::shared_ptr<MetadataProfile> ReadProfile(Reader& r, const std::string& name, value& v)
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

void Read(Reader& r, value& v, MetadataProfileDictionary& dictionary)
{
    r.Dictionary(v, [&](const std::string& name, value& member) {
        if (dictionary.Contains(FullyQualifiedName(name)))
            r.Fail("expected one member of this name, found a second");
        dictionary.Set(ReadProfile(r, name, member));
    });
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
