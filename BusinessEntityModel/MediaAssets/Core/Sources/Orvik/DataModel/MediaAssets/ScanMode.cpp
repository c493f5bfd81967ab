#include <Orvik/DataModel/MediaAssets/ScanMode.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<ScanMode>& GetConverter()
{
    static const StringAssociation<ScanMode> converter(
        {
            {ScanMode::unknown, "unknown"},
            {ScanMode::progressive, "progressive"},
            {ScanMode::interlaced, "interlaced"},
        },
        ScanMode::unknown);
    return converter;
}

}  // namespace

const std::string& ToString(ScanMode value) { return GetConverter().ToString(value); }
ScanMode ToScanMode(const std::string& text) { return GetConverter().ToEnum(text); }
ScanMode ToScanMode(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
