// Writes the OpenTimelineIO documents whose validity against docs/schema/otio-subset.schema.json
// is checked by validate_json_schema.py: the timeline of each asset document of tests/data,
// compact and indented, and of generated assets.
//   otio_schema_documents <tests/data> <output folder>

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

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: otio_schema_documents <tests/data> <output folder>\n";
        return 2;
    }
    const fs::path folder = argv[2];
    fs::remove_all(folder);
    fs::create_directories(folder);
    try {
        for (const auto& entry : fs::directory_iterator(argv[1])) {
            if (entry.path().extension() != ".json")
                continue;
            std::ifstream in(entry.path(), std::ios::binary);
            const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
            if (Json::SchemaName(text) != "MediaAsset")
                continue;
            const MediaAsset asset = Json::FromJson<MediaAsset>(text);
            const std::string stem = entry.path().stem().string();
            Save(folder / (stem + ".compact.json"), Json::ToOtio(asset, Json::Layout::Compact));
            Save(folder / (stem + ".indented.json"), Json::ToOtio(asset, Json::Layout::Indented));
        }
        for (uint64_t seed = 0; seed < 50; ++seed)
            Save(folder / ("generated-asset-" + std::to_string(seed) + ".json"),
                 Json::ToOtio(Orvik::Testing::ArbitraryObjects(seed).MediaAsset()));
    } catch (const std::exception& error) {
        std::cerr << "otio_schema_documents: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
