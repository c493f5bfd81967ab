#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The colour space of a picture.
/// The text of each value is its enumerator name, letter for letter.
enum class ColorSpace : int32_t {
    unknown = 0,
    BT709 = 1,
    BT601 = 2,
    BT601_JPEG = 3,
    BT2020 = 4,
    FCC = 5,
    SMPTE_170M = 6,
    SMPTE_240M = 7,
    SRGB = 8,
};

/// The text of `value`; a number that is no ColorSpace gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(ColorSpace value);
/// Exact and case-sensitive; a text that is no ColorSpace gives ColorSpace::unknown.
ColorSpace ToColorSpace(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
ColorSpace ToColorSpace(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
