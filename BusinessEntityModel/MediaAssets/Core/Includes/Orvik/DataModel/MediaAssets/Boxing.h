#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// How a picture is framed in its raster.
/// The text of each value is its enumerator name, letter for letter.
enum class Boxing : int32_t {
    unknown = 0,
    topaligned = 1,
    wide = 2,
    fullframe = 3,
    pillarbox = 4,
    letterbox = 5,
    window = 6,
    protect14x9 = 7,
    protect4x3 = 8,
};

/// The text of `value`; a number that is no Boxing gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(Boxing value);
/// Exact and case-sensitive; a text that is no Boxing gives Boxing::unknown.
Boxing ToBoxing(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
Boxing ToBoxing(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
