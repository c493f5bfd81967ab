// FromJson either throws JsonError or returns an object whose document reads back to an equal
// object and writes the same bytes again. The document kind is taken from its schema name.

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Json.h>

#include "FuzzText.h"

#include <string>

using namespace Orvik::DataModel::MediaAssets;

namespace {

bool Equal(const std::shared_ptr<MediaAssetGroup>& a, const std::shared_ptr<MediaAssetGroup>& b) { return *a == *b; }
bool Equal(const AnglesPelkOperatorMetadataProfile& a, const AnglesPelkOperatorMetadataProfile& b) { return a.Equals(b); }
template <typename T>
bool Equal(const T& a, const T& b)
{
    return a == b;
}

std::string Write(const std::shared_ptr<MediaAssetGroup>& group) { return Json::ToJson(*group); }
template <typename T>
std::string Write(const T& value)
{
    return Json::ToJson(value);
}

template <typename T>
void CheckAccepted(const std::string& text)
{
    T first;
    try {
        first = Json::FromJson<T>(text);
    } catch (const Json::JsonError&) {
        return;
    }
    const std::string document = Write(first);
    const T second = Json::FromJson<T>(document);
    Check(Equal(first, second), "what FromJson accepts reads back equal from its document");
    Check(Write(second) == document, "the document of what FromJson accepts is written again byte for byte");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text = Text(data, size);
    std::string schema;
    try {
        schema = Json::SchemaName(text);
    } catch (const Json::JsonError&) {
        return 0;
    }
    if (schema == "MediaAsset")
        CheckAccepted<MediaAsset>(text);
    else if (schema == "MediaResource")
        CheckAccepted<MediaResource>(text);
    else if (schema == "Stream")
        CheckAccepted<Stream>(text);
    else if (schema == "MediaAssetGroup")
        CheckAccepted<std::shared_ptr<MediaAssetGroup>>(text);
    else if (schema == "PelkOperatorMetadataProfile")
        CheckAccepted<PelkOperatorMetadataProfile>(text);
    else
        CheckAccepted<AnglesPelkOperatorMetadataProfile>(text);
    return 0;
}
