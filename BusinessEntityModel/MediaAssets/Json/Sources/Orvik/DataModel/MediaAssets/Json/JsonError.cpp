#include <Orvik/DataModel/MediaAssets/Json/JsonError.h>

namespace Orvik::DataModel::MediaAssets::Json {

JsonError::JsonError(const std::string& path, const std::string& expected)
    : std::runtime_error((path.empty() ? std::string("(root)") : path) + ": " + expected), path(path), expected(expected)
{}

}  // namespace Orvik::DataModel::MediaAssets::Json
