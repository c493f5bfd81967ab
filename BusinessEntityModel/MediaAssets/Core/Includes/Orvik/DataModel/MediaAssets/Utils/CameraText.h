#pragma once

#include <string>
#include <string_view>

namespace Orvik::DataModel::MediaAssets {

/// A camera letter as text, the one form that the JSON documents, the bindings and the tool use:
/// "" for no camera (NUL), otherwise the one character whose code point is the char's byte value
/// (U+0001 to U+00FF) in UTF-8. A valid camera (PelkId::MinCamera to PelkId::MaxCamera) is its
/// letter; an invalid one stays readable text, so that every char a profile may hold is written.
std::string CameraText(char camera);

/// The camera that `text` gives in the form above. False for any other text (two characters, a
/// code point above U+00FF, bytes that are not UTF-8), leaving `camera` as it was.
bool CameraFromText(std::string_view text, char& camera);

/// The valid cameras for messages: "'A' to 'L'".
std::string ValidCamerasText();

}  // namespace Orvik::DataModel::MediaAssets
