// The rate a timecode counts at, and its drop-frame flag, to the model's timecode standard.

#include "MappingTables.h"

namespace Orvik::DataModel::MediaAssets::Probe {
namespace {

struct Row {
    AVRational rate;
    bool drop;
    TimeCodeStandard standard;
};

// 50 and 59.94 frames per second count their timecode as 25 and 29.97 do, by frame pairs.
const Row kRows[] = {
    {{25, 1}, false, TimeCodeStandard::SmptePal25},
    {{50, 1}, false, TimeCodeStandard::SmptePal25},
    {{30000, 1001}, true, TimeCodeStandard::SmpteNtsc30Drop},
    {{60000, 1001}, true, TimeCodeStandard::SmpteNtsc30Drop},
    {{30000, 1001}, false, TimeCodeStandard::SmpteNtsc30NoDrop},
    {{60000, 1001}, false, TimeCodeStandard::SmpteNtsc30NoDrop},
};

}  // namespace

TimeCodeStandard MapTimeCodeStandard(const std::string& text, AVRational rate, bool drop, Warnings& warnings)
{
    for (const Row& row : kRows)
        if (av_cmp_q(row.rate, rate) == 0 && row.drop == drop)
            return row.standard;
    if (rate.num <= 0 || rate.den <= 0)
        warnings.Unmapped("timecode " + text + ": no timecode standard, as the file gives no frame rate");
    else
        warnings.Unmapped("timecode " + text + ": no timecode standard for " + (drop ? "drop-frame " : "") + "timecode at "
                          + std::to_string(rate.num) + "/" + std::to_string(rate.den) + " frames per second");
    return TimeCodeStandard::NotSet;
}

}  // namespace Orvik::DataModel::MediaAssets::Probe
