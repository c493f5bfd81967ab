#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The chroma subsampling of a picture.
/// The text of each value is its enumerator name, letter for letter.
enum class ChromaSubSampling : int32_t {
    unknown = 0,
    CS_444 = 1,
    CS_422 = 2,
    CS_421 = 3,
    CS_411 = 4,
    CS_420 = 5,
    CS_410 = 6,
    CS_311 = 7,
};

/// The text of `value`; a number that is no ChromaSubSampling gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(ChromaSubSampling value);
/// Exact and case-sensitive; a text that is no ChromaSubSampling gives ChromaSubSampling::unknown.
ChromaSubSampling ToChromaSubSampling(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
ChromaSubSampling ToChromaSubSampling(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
