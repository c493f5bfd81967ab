#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The general format of a media resource.
/// The text of each value is its enumerator name, letter for letter.
enum class ResourceFormat : int32_t {
    unknown = 0,
    ToBeDefined = 1,
};

/// The text of `value`; a number that is no ResourceFormat gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(ResourceFormat value);
/// Exact and case-sensitive; a text that is no ResourceFormat gives ResourceFormat::unknown.
ResourceFormat ToResourceFormat(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
ResourceFormat ToResourceFormat(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
