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
#include <string>

using namespace Orvik::DataModel::MediaAssets;
namespace fs = std::filesystem;

namespace {

void Save(const fs::path& path, const std::string& document) { std::ofstream(path, std::ios::binary) << document; }

// Both forms of the object that `text` describes, as `<stem>.compact.json` and `<stem>.indented.json`.
template <typename T, typename Write>
void SaveBoth(const fs::path& folder, const std::string& stem, const std::string& text, Write&& write)
{
    const T value = Json::FromJson<T>(text);
    Save(folder / (stem + ".compact.json"), write(value, Json::Layout::Compact));
    Save(folder / (stem + ".indented.json"), write(value, Json::Layout::Indented));
}

void Rewrite(const fs::path& file, const fs::path& folder)
{
    std::ifstream in(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const std::string stem = file.stem().string();
    const std::string schema = Json::SchemaName(text);
    const auto plain = [](const auto& value, Json::Layout layout) { return Json::ToJson(value, layout); };
    if (schema == "MediaAsset")
        SaveBoth<MediaAsset>(folder, stem, text, plain);
    else if (schema == "MediaResource")
        SaveBoth<MediaResource>(folder, stem, text, plain);
    else if (schema == "Stream")
        SaveBoth<Stream>(folder, stem, text, plain);
    else if (schema == "PelkOperatorMetadataProfile")
        SaveBoth<PelkOperatorMetadataProfile>(folder, stem, text, plain);
    else if (schema == "AnglesPelkOperatorMetadataProfile")
        SaveBoth<AnglesPelkOperatorMetadataProfile>(folder, stem, text, plain);
    else
        SaveBoth<std::shared_ptr<MediaAssetGroup>>(
            folder, stem, text, [](const auto& group, Json::Layout layout) { return Json::ToJson(*group, layout); });
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
