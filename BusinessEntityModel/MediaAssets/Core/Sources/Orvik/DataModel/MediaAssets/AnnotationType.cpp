#include <Orvik/DataModel/MediaAssets/AnnotationType.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<AnnotationType>& GetConverter()
{
    static const StringAssociation<AnnotationType> converter(
        {
            {AnnotationType::unknown, "unknown"},
            {AnnotationType::CuePoint, "CuePoint"},
        },
        AnnotationType::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(AnnotationType value) { return GetConverter().ToString(value); }
AnnotationType ToAnnotationType(const std::string& text) { return GetConverter().ToEnum(text); }
AnnotationType ToAnnotationType(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
