#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// Whether a coding keeps a constant (cbr) or a variable (vbr) bit rate.
/// The text of each value is its enumerator name, letter for letter.
enum class BitRateMode : int32_t {
    unknown = 0,
    cbr = 1,
    vbr = 2,
};

/// The text of `value`; a number that is no BitRateMode gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(BitRateMode value);
/// Exact and case-sensitive; a text that is no BitRateMode gives BitRateMode::unknown.
BitRateMode ToBitRateMode(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
BitRateMode ToBitRateMode(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
