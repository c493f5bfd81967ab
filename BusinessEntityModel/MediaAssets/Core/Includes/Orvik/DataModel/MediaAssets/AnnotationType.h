#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The kind of an annotation.
/// The text of each value is its enumerator name, letter for letter.
enum class AnnotationType : int32_t {
    unknown = 0,
    CuePoint = 1,
};

/// The text of `value`; a number that is no AnnotationType gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(AnnotationType value);
/// Exact and case-sensitive; a text that is no AnnotationType gives AnnotationType::unknown.
AnnotationType ToAnnotationType(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
AnnotationType ToAnnotationType(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
