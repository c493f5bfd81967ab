#include <Orvik/DataModel/MediaAssets/TimecodePrimary.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<TimecodePrimary>& GetConverter()
{
    static const StringAssociation<TimecodePrimary> converter(
        {
            {TimecodePrimary::NotSet, "NotSet"},
            {TimecodePrimary::Tod, "Tod"},
            {TimecodePrimary::User, "User"},
        },
        TimecodePrimary::NotSet);
    return converter;
}

}  // namespace

const std::string& ToString(TimecodePrimary value) { return GetConverter().ToString(value); }
TimecodePrimary ToTimecodePrimary(const std::string& text) { return GetConverter().ToEnum(text); }
TimecodePrimary ToTimecodePrimary(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
