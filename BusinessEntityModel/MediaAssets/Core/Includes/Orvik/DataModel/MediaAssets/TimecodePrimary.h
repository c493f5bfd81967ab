#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// Which timecode of a clip is the primary one: time of day or user.
/// The text of each value is its enumerator name, letter for letter.
enum class TimecodePrimary : int32_t {
    NotSet = 0,
    Tod = 1,
    User = 2,
};

/// The text of `value`; a number that is no TimecodePrimary gives "NotSet". The reference stays valid
/// for the life of the process.
const std::string& ToString(TimecodePrimary value);
/// Exact and case-sensitive; a text that is no TimecodePrimary gives TimecodePrimary::NotSet.
TimecodePrimary ToTimecodePrimary(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real NotSet from an unknown text.
TimecodePrimary ToTimecodePrimary(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
