// Writes the documents whose validity against docs/schema is checked by validate_json_schema.py:
// each hand-written document of tests/data read and written again, compact and indented, and
// the documents of generated objects of every kind.
//   json_schema_documents <tests/data> <output folder>

#include <ArbitraryObjects.h>

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <string>

using namespace Orvik::DataModel::MediaAssets;
namespace fs = std::filesystem;

namespace {

void Save(const fs::path& path, const std::string& document) { std::ofstream(path, std::ios::binary) << document; }

const MediaAssetGroup& Deref(const std::shared_ptr<MediaAssetGroup>& group) { return *group; }
template <typename T>
const T& Deref(const T& value)
{
    return value;
}

// Both forms of the object that `text` describes, as `<stem>.compact.json` and `<stem>.indented.json`.
template <typename T>
void SaveBoth(const fs::path& folder, const std::string& stem, const std::string& text)
{
    const T value = Json::FromJson<T>(text);
    Save(folder / (stem + ".compact.json"), Json::ToJson(Deref(value), Json::Layout::Compact));
    Save(folder / (stem + ".indented.json"), Json::ToJson(Deref(value), Json::Layout::Indented));
}

const std::map<std::string, void (*)(const fs::path&, const std::string&, const std::string&)> kSaveBySchema = {
    {"MediaAsset", SaveBoth<MediaAsset>},
    {"MediaResource", SaveBoth<MediaResource>},
    {"Stream", SaveBoth<Stream>},
    {"MediaAssetGroup", SaveBoth<std::shared_ptr<MediaAssetGroup>>},
    {"PelkOperatorMetadataProfile", SaveBoth<PelkOperatorMetadataProfile>},
    {"AnglesPelkOperatorMetadataProfile", SaveBoth<AnglesPelkOperatorMetadataProfile>},
};

void Rewrite(const fs::path& file, const fs::path& folder)
{
    std::ifstream in(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    kSaveBySchema.at(Json::SchemaName(text))(folder, file.stem().string(), text);
}

void WriteGenerated(const fs::path& folder, uint64_t seeds)
{
    for (uint64_t seed = 0; seed < seeds; ++seed) {
        Orvik::Testing::ArbitraryObjects objects(seed);
        const std::string suffix = "-" + std::to_string(seed) + ".json";
        Save(folder / ("generated-asset" + suffix), Json::ToJson(objects.MediaAsset()));
        Save(folder / ("generated-resource" + suffix), Json::ToJson(objects.MediaResource()));
        Save(folder / ("generated-stream" + suffix), Json::ToJson(objects.Stream()));
        Save(folder / ("generated-group" + suffix), Json::ToJson(*objects.MediaAssetGroup()));
        Save(folder / ("generated-angles-group" + suffix), Json::ToJson(*objects.AnglesMediaAssetGroup()));
        Save(folder / ("generated-profile" + suffix), Json::ToJson(objects.PelkOperatorProfile()));
        Save(folder / ("generated-angles-profile" + suffix), Json::ToJson(objects.AnglesPelkOperatorProfile()));
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: json_schema_documents <tests/data> <output folder>\n";
        return 2;
    }
    const fs::path folder = argv[2];
    fs::remove_all(folder);
    fs::create_directories(folder);
    try {
        for (const auto& entry : fs::directory_iterator(argv[1]))
            if (entry.path().extension() == ".json")
                Rewrite(entry.path(), folder);
        WriteGenerated(folder, 50);
    } catch (const std::exception& error) {
        std::cerr << "json_schema_documents: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
