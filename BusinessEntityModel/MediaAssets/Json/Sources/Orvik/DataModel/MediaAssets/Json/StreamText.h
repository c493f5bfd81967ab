#pragma once

// The text of a document given as a stream.

#include <istream>
#include <string>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// The whole text of `in`; JsonError at the root when reading the stream fails.
std::string ReadAll(std::istream& in);

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
