#include <Orvik/DataModel/MediaAssets/BitRateMode.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<BitRateMode>& GetConverter()
{
    static const StringAssociation<BitRateMode> converter(
        {
            {BitRateMode::unknown, "unknown"},
            {BitRateMode::cbr, "cbr"},
            {BitRateMode::vbr, "vbr"},
        },
        BitRateMode::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(BitRateMode value) { return GetConverter().ToString(value); }
BitRateMode ToBitRateMode(const std::string& text) { return GetConverter().ToEnum(text); }
BitRateMode ToBitRateMode(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
