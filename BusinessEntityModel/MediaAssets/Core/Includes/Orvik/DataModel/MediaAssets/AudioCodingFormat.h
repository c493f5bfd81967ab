#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// How an audio essence is coded.
/// The text of each value is its enumerator name, letter for letter.
enum class AudioCodingFormat : int32_t {
    unknown = 0,
    AAC = 1,
    Alaw = 2,
    DolbyE = 3,
    MP1 = 4,
    MP2 = 5,
    MP3 = 6,
    PCM = 7,
    WMA = 8,
};

/// The text of `value`; a number that is no AudioCodingFormat gives "unknown". The reference stays valid
/// for the life of the process.
const std::string& ToString(AudioCodingFormat value);
/// Exact and case-sensitive; a text that is no AudioCodingFormat gives AudioCodingFormat::unknown.
AudioCodingFormat ToAudioCodingFormat(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real unknown from an unknown text.
AudioCodingFormat ToAudioCodingFormat(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
