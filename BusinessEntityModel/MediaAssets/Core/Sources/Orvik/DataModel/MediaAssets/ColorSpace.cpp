#include <Orvik/DataModel/MediaAssets/ColorSpace.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<ColorSpace>& GetConverter()
{
    static const StringAssociation<ColorSpace> converter(
        {
            {ColorSpace::unknown, "unknown"},
            {ColorSpace::BT709, "BT709"},
            {ColorSpace::BT601, "BT601"},
            {ColorSpace::BT601_JPEG, "BT601_JPEG"},
            {ColorSpace::BT2020, "BT2020"},
            {ColorSpace::FCC, "FCC"},
            {ColorSpace::SMPTE_170M, "SMPTE_170M"},
            {ColorSpace::SMPTE_240M, "SMPTE_240M"},
            {ColorSpace::SRGB, "SRGB"},
        },
        ColorSpace::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(ColorSpace value) { return GetConverter().ToString(value); }
ColorSpace ToColorSpace(const std::string& text) { return GetConverter().ToEnum(text); }
ColorSpace ToColorSpace(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
