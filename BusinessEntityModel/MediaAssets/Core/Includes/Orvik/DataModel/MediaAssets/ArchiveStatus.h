#pragma once

#include <cstdint>
#include <string>

namespace Orvik::DataModel::MediaAssets {

/// The archive state of a clip.
/// The text of each value is its enumerator name, letter for letter.
enum class ArchiveStatus : int32_t {
    None = 0,
    ToArchive = 1,
    Archived = 2,
};

/// The text of `value`; a number that is no ArchiveStatus gives "None". The reference stays valid
/// for the life of the process.
const std::string& ToString(ArchiveStatus value);
/// Exact and case-sensitive; a text that is no ArchiveStatus gives ArchiveStatus::None.
ArchiveStatus ToArchiveStatus(const std::string& text);
/// As above; `failed` is true when the text was not found, telling a real None from an unknown text.
ArchiveStatus ToArchiveStatus(const std::string& text, bool& failed);

}  // namespace Orvik::DataModel::MediaAssets
