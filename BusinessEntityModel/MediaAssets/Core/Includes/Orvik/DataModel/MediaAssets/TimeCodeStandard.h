#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The standard of a timecode track.
/// Texts: "NotSet", "smpte.pal.25", "smpte.ntsc.30.drop", "smpte.ntsc.30.nodrop" (the standards in dotted lower case).
enum class TimeCodeStandard : int32_t {
    NotSet = 0,
    SmptePal25 = 1,
    SmpteNtsc30Drop = 2,
    SmpteNtsc30NoDrop = 3,
};

/// The text of `value`; a number that is no TimeCodeStandard gives "NotSet". The reference stays valid
/// for the life of the process.
const std::string& ToString(TimeCodeStandard value);
/// Exact and case-sensitive; a text that is no TimeCodeStandard gives TimeCodeStandard::NotSet.
TimeCodeStandard ToTimeCodeStandard(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real NotSet from an unknown text.
TimeCodeStandard ToTimeCodeStandard(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
