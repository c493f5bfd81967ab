#pragma once

// The check of the JSON text of a metadata profile that a codec wrote or a document holds.

#include <string>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// Empty when `json` is one JSON object, nested at most 100 levels deep, with nothing after it;
/// otherwise what was expected.
std::string CheckProfileObject(std::string_view json);

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
