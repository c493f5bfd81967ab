#include <Orvik/DataModel/MediaAssets/ResourceFormat.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<ResourceFormat>& GetConverter()
{
    static const StringAssociation<ResourceFormat> converter(
        {
            {ResourceFormat::unknown, "unknown"},
            {ResourceFormat::ToBeDefined, "ToBeDefined"},
        },
        ResourceFormat::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(ResourceFormat value) { return GetConverter().ToString(value); }
ResourceFormat ToResourceFormat(const std::string& text) { return GetConverter().ToEnum(text); }
ResourceFormat ToResourceFormat(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
