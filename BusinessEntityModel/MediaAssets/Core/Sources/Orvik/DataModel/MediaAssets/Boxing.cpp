#include <Orvik/DataModel/MediaAssets/Boxing.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<Boxing>& GetConverter()
{
    static const StringAssociation<Boxing> converter(
        {
            {Boxing::unknown, "unknown"},
            {Boxing::topaligned, "topaligned"},
            {Boxing::wide, "wide"},
            {Boxing::fullframe, "fullframe"},
            {Boxing::pillarbox, "pillarbox"},
            {Boxing::letterbox, "letterbox"},
            {Boxing::window, "window"},
            {Boxing::protect14x9, "protect14x9"},
            {Boxing::protect4x3, "protect4x3"},
        },
        Boxing::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(Boxing value) { return GetConverter().ToString(value); }
Boxing ToBoxing(const std::string& text) { return GetConverter().ToEnum(text); }
Boxing ToBoxing(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
