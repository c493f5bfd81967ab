#pragma once

#include "InputError.h"

#include <istream>
#include <string>

namespace Orvik::AssetTool {

/// The whole content of the file `name`, or of `standardInput` when `name` is "-". Throws
/// InputError when the file cannot be opened or read.
std::string ReadInput(const std::string& name, std::istream& standardInput);

/// How output and messages name an input: "standard input" for "-", otherwise the name as given.
std::string InputName(const std::string& name);

}  // namespace Orvik::AssetTool
