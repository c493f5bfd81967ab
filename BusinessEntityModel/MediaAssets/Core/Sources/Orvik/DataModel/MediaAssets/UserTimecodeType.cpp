#include <Orvik/DataModel/MediaAssets/UserTimecodeType.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<UserTimecodeType>& GetConverter()
{
    static const StringAssociation<UserTimecodeType> converter(
        {
            {UserTimecodeType::HancVitc, "HancVitc"},
            {UserTimecodeType::HancLtc, "HancLtc"},
            {UserTimecodeType::AnalLtc, "AnalLtc"},
        },
        UserTimecodeType::HancVitc);
    return converter;
}

}  // namespace

const std::string& ToString(UserTimecodeType value) { return GetConverter().ToString(value); }
UserTimecodeType ToUserTimecodeType(const std::string& text) { return GetConverter().ToEnum(text); }
UserTimecodeType ToUserTimecodeType(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
