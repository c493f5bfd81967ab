#pragma once

#include <stdexcept>

namespace Orvik::AssetTool {

/// A file that cannot be read. The message names the file and the reason
/// ("missing.json: cannot open: No such file or directory").
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace Orvik::AssetTool
