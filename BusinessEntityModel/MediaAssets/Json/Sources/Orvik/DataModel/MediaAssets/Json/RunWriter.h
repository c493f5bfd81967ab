#pragma once

// RapidJSON's compact writer with two additions that copy texts in runs where the base copies one
// character at a time: member names known to need no escape, and texts checked for UTF-8 and
// escaped in the same pass. The separators, numbers and nesting stay the base's; the output is
// byte for byte what the base writes.

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cstring>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json::detail {

class RunWriter : public rapidjson::Writer<rapidjson::StringBuffer> {
public:
    explicit RunWriter(rapidjson::StringBuffer& buffer) : Writer(buffer) {}

    /// A member name or string holding no quote, backslash, control character or non-ASCII byte.
    /// Inline, so that a member name known while compiling is copied without a call.
    void Plain(std::string_view text)
    {
        Prefix(rapidjson::kStringType);
        char* p = os_->Push(text.size() + 2);
        p[0] = '"';
        std::memcpy(p + 1, text.data(), text.size());
        p[text.size() + 1] = '"';
        EndValue(true);
    }

    /// A member name or string from the model; false, with nothing written, unless it is UTF-8.
    bool Text(std::string_view text);
};

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
