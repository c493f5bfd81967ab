#pragma once

#include <string>

namespace Orvik::DataModel::MediaAssets::Probe {

/// The file:// URI of an absolute path: every byte but the unreserved characters and "/" written
/// as %XX ("/media/Goal 81.mxf" gives "file:///media/Goal%2081.mxf").
std::string FileUri(const std::string& absolutePath);

}  // namespace Orvik::DataModel::MediaAssets::Probe
