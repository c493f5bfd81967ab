#pragma once

#include <istream>
#include <stdexcept>
#include <string>

namespace Orvik::AssetTool {

/// A file that cannot be read. The message names the file and the reason
/// ("missing.json: cannot open: No such file or directory").
class InputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The whole content of the file `name`, or of `standardInput` when `name` is "-". Throws
/// InputError when the file cannot be opened or read.
std::string ReadInput(const std::string& name, std::istream& standardInput);

/// How output and messages name an input: "standard input" for "-", otherwise the name as given.
std::string InputName(const std::string& name);

}  // namespace Orvik::AssetTool
