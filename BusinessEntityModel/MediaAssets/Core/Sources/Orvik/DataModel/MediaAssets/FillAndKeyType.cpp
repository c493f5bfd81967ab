#include <Orvik/DataModel/MediaAssets/FillAndKeyType.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<FillAndKeyType>& GetConverter()
{
    static const StringAssociation<FillAndKeyType> converter(
        {
            {FillAndKeyType::unknown, "unknown"},
            {FillAndKeyType::fill, "fill"},
            {FillAndKeyType::key, "key"},
        },
        FillAndKeyType::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(FillAndKeyType value) { return GetConverter().ToString(value); }
FillAndKeyType ToFillAndKeyType(const std::string& text) { return GetConverter().ToEnum(text); }
FillAndKeyType ToFillAndKeyType(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
