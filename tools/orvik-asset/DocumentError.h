#pragma once

#include <stdexcept>

namespace Orvik::AssetTool {

/// A document that is not an asset or group document of this library. The message says why,
/// without the name of the file.
class DocumentError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace Orvik::AssetTool
