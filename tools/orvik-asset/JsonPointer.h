#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Orvik::AssetTool {

/// A JSON pointer into a document ("/mediaResources/2/streams/0"), built one step at a time.
/// A member name is escaped as the pointer syntax requires ("~" as "~0", "/" as "~1"), so that a
/// metadata profile named "a/b" is the one step "/a~1b". The empty pointer names the whole
/// document.
class JsonPointer {
public:
    JsonPointer() = default;

    /// This pointer followed by the member `name`.
    JsonPointer operator/(std::string_view name) const;
    /// This pointer followed by the array element `index`.
    JsonPointer operator/(size_t index) const;

    const std::string& Text() const { return text; }

private:
    std::string text;
};

}  // namespace Orvik::AssetTool
