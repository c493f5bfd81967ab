#include <Orvik/DataModel/MediaAssets/Location.h>

#include "EqualityVisitor.h"

namespace Orvik::DataModel::MediaAssets {

const Location::LocationTypeEnumConverter& Location::TypeConverter()
{
    static const LocationTypeEnumConverter converter(
        {
            {Location::FileLocation, "FileLocation"},
            {Location::DaxContentTrackLocation, "DaxContentTrackLocation"},
            {Location::DaxProtectLocation, "DaxProtectLocation"},
            {Location::ZanLocation, "ZanLocation"},
        },
        Location::FileLocation);
    return converter;
}

std::string Location::ToString(Location::Type type) { return TypeConverter().ToString(type); }
Location::Type Location::ToType(const std::string& text) { return TypeConverter().ToEnum(text); }
Location::Type Location::ToType(const std::string& text, bool& failed) { return TypeConverter().ToEnum(text, failed); }

bool Location::operator==(const Location& other) const
{
    detail::EqualityVisitor visitor;
    return detail::ComparisonOrder::CompareLocationFields(visitor, *this, other);
}

}  // namespace Orvik::DataModel::MediaAssets
