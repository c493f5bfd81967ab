#include <Orvik/DataModel/MediaAssets/TimeCodeStandard.h>

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

namespace Orvik::DataModel::MediaAssets {
namespace {

using BusinessEntityModel::BaseTypes::StringAssociation;

const StringAssociation<TimeCodeStandard>& GetConverter()
{
    static const StringAssociation<TimeCodeStandard> converter(
        {
            {TimeCodeStandard::NotSet, "NotSet"},
            {TimeCodeStandard::SmptePal25, "smpte.pal.25"},
            {TimeCodeStandard::SmpteNtsc30Drop, "smpte.ntsc.30.drop"},
            {TimeCodeStandard::SmpteNtsc30NoDrop, "smpte.ntsc.30.nodrop"},
        },
        TimeCodeStandard::NotSet);
    return converter;
}

}  // namespace

const std::string& ToString(TimeCodeStandard value) { return GetConverter().ToString(value); }
TimeCodeStandard ToTimeCodeStandard(const std::string& text) { return GetConverter().ToEnum(text); }
TimeCodeStandard ToTimeCodeStandard(const std::string& text, bool& failed) { return GetConverter().ToEnum(text, failed); }

}  // namespace Orvik::DataModel::MediaAssets
