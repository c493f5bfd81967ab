#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The dominant field of interlaced pictures.
/// The text of each value is its enumerator name, letter for letter.
enum class FieldOrdering : int32_t {
    unknown = 0,
    top = 1,
    bottom = 2,
};

/// The text of `value`; a number that is no FieldOrdering gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(FieldOrdering value);
/// Exact and case-sensitive; a text that is no FieldOrdering gives FieldOrdering::unknown.
FieldOrdering ToFieldOrdering(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
FieldOrdering ToFieldOrdering(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
