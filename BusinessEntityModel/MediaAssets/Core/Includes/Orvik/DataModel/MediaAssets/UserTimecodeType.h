#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// Where the user timecode of a clip comes from.
/// The text of each value is its enumerator name, letter for letter.
enum class UserTimecodeType : int32_t {
    HancVitc = 0,
    HancLtc = 1,
    AnalLtc = 2,
};

/// The text of `value`; a number that is no UserTimecodeType gives "HancVitc". The reference stays valid
/// for the life of the process.
const std::string& ToString(UserTimecodeType value);
/// Exact and case-sensitive; a text that is no UserTimecodeType gives UserTimecodeType::HancVitc.
UserTimecodeType ToUserTimecodeType(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real HancVitc from an unknown text.
UserTimecodeType ToUserTimecodeType(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
