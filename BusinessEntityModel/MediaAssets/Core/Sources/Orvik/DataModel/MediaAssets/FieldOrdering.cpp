#include <Orvik/DataModel/MediaAssets/FieldOrdering.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<FieldOrdering>& GetConverter()
{
    static const StringAssociation<FieldOrdering> converter(
        {
            {FieldOrdering::unknown, "unknown"},
            {FieldOrdering::top, "top"},
            {FieldOrdering::bottom, "bottom"},
        },
        FieldOrdering::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(FieldOrdering value) { return GetConverter().ToString(value); }
FieldOrdering ToFieldOrdering(const std::string& text) { return GetConverter().ToEnum(text); }
FieldOrdering ToFieldOrdering(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
