#include "JsonPointer.h"

namespace Orvik::AssetTool {

JsonPointer JsonPointer::operator/(std::string_view name) const
{
    JsonPointer result = *this;
    result.text += '/';
    for (const char c : name) {
        if (c == '~')
            result.text += "~0";
        else if (c == '/')
            result.text += "~1";
        else
            result.text += c;
    }
    return result;
}

JsonPointer JsonPointer::operator/(size_t index) const
{
    JsonPointer result = *this;
    result.text += '/' + std::to_string(index);
    return result;
}

}  // namespace Orvik::AssetTool
