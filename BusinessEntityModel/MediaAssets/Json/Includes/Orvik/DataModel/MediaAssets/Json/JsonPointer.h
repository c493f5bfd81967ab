#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json {

/// A JSON pointer into a document ("/mediaResources/2/pointer/streams/0"), built one step at a
/// time; the empty pointer names the whole document. A member name is escaped as the pointer
/// syntax requires ("~" as "~0", "/" as "~1"), so that a metadata profile named "a/b" is the one
/// step "/a~1b". JsonError::Path() and the places of shared objects in a document are pointers
/// of this form.
class JsonPointer {
public:
    JsonPointer() = default;

    /// This pointer followed by the member `name`.
    JsonPointer operator/(std::string_view name) const
    {
        JsonPointer result = *this;
        AppendName(result.text, name);
        return result;
    }
    /// This pointer followed by the array element `index`.
    JsonPointer operator/(size_t index) const
    {
        JsonPointer result = *this;
        result.text += '/';
        result.text += std::to_string(index);
        return result;
    }

    const std::string& Text() const { return text; }

    /// Appends the step to the member `name` ("/" and the escaped name) to the pointer `text`.
    static void AppendName(std::string& text, std::string_view name)
    {
        const size_t start = text.size();
        text.resize(start + 1 + 2 * name.size());
        text.resize(static_cast<size_t>(WriteName(name, text.data() + start) - text.data()));
    }

    /// Writes the step to the member `name` at `out`, which has room for 1 + 2 * name.size()
    /// characters, and returns the end of what it wrote.
    static char* WriteName(std::string_view name, char* out)
    {
        *out++ = '/';
        for (const char c : name) {
            if (c == '~' || c == '/') {
                *out++ = '~';
                *out++ = c == '~' ? '0' : '1';
            } else {
                *out++ = c;
            }
        }
        return out;
    }

private:
    std::string text;
};

}  // namespace Orvik::DataModel::MediaAssets::Json
