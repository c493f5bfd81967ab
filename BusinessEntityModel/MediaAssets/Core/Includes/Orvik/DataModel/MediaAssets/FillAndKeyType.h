#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The role of a clip in a fill-and-key pair.
/// The text of each value is its enumerator name, letter for letter.
enum class FillAndKeyType : int32_t {
    unknown = 0,
    fill = 1,
    key = 2,
};

/// The text of `value`; a number that is no FillAndKeyType gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(FillAndKeyType value);
/// Exact and case-sensitive; a text that is no FillAndKeyType gives FillAndKeyType::unknown.
FillAndKeyType ToFillAndKeyType(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
FillAndKeyType ToFillAndKeyType(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
