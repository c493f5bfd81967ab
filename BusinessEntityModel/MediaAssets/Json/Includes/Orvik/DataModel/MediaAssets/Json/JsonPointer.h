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
        text += '/';
        for (size_t at = 0;;) {
            const size_t special = name.find_first_of("~/", at);
            text.append(name.substr(at, special == std::string_view::npos ? special : special - at));
            if (special == std::string_view::npos)
                return;
            text += name[special] == '~' ? "~0" : "~1";
            at = special + 1;
        }
    }

private:
    std::string text;
};

}  // namespace Orvik::DataModel::MediaAssets::Json
