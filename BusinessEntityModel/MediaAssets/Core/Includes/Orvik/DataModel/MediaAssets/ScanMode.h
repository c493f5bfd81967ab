#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// How a picture is scanned.
/// The text of each value is its enumerator name, letter for letter.
enum class ScanMode : int32_t {
    unknown = 0,
    progressive = 1,
    interlaced = 2,
};

/// The text of `value`; a number that is no ScanMode gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(ScanMode value);
/// Exact and case-sensitive; a text that is no ScanMode gives ScanMode::unknown.
ScanMode ToScanMode(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
ScanMode ToScanMode(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
