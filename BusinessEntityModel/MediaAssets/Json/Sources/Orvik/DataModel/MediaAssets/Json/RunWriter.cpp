#include "RunWriter.h"

#include <simdjson.h>

#include <array>
#include <cstring>

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

// What a byte needs in a JSON string: nothing, an escape of its own, or (from 0x80 up) the UTF-8
// check of the text it belongs to.
enum ByteClass : unsigned char { kPlain, kEscaped, kNonAscii };

constexpr std::array<unsigned char, 256> kClasses = [] {
    std::array<unsigned char, 256> classes{};
    for (size_t byte = 0; byte < 0x20; ++byte)
        classes[byte] = kEscaped;
    classes['"'] = kEscaped;
    classes['\\'] = kEscaped;
    for (size_t byte = 0x80; byte < 0x100; ++byte)
        classes[byte] = kNonAscii;
    return classes;
}();

unsigned char ClassOf(char c) { return kClasses[static_cast<unsigned char>(c)]; }

// The escapes of RapidJSON's writer: the short forms JSON has, "\u00XX" in upper-case hex for the
// other control characters.
void WriteEscape(rapidjson::StringBuffer& out, char c)
{
    char* p = out.Push(2);
    p[0] = '\\';
    switch (c) {
    case '"':
    case '\\':
        p[1] = c;
        return;
    case '\b':
        p[1] = 'b';
        return;
    case '\t':
        p[1] = 't';
        return;
    case '\n':
        p[1] = 'n';
        return;
    case '\f':
        p[1] = 'f';
        return;
    case '\r':
        p[1] = 'r';
        return;
    default:
        break;
    }
    constexpr char kHex[] = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    p[1] = 'u';
    char* digits = out.Push(4);
    digits[0] = '0';
    digits[1] = '0';
    digits[2] = kHex[byte >> 4];
    digits[3] = kHex[byte & 0xF];
}

void WriteRun(rapidjson::StringBuffer& out, const char* begin, size_t size)
{
    if (size != 0)
        std::memcpy(out.Push(size), begin, size);
}

}  // namespace

void RunWriter::Plain(std::string_view text)
{
    Prefix(rapidjson::kStringType);
    char* p = os_->Push(text.size() + 2);
    p[0] = '"';
    std::memcpy(p + 1, text.data(), text.size());
    p[text.size() + 1] = '"';
    EndValue(true);
}

bool RunWriter::Text(std::string_view text)
{
    size_t first = 0;
    while (first < text.size() && ClassOf(text[first]) == kPlain)
        ++first;
    if (first == text.size()) {
        Plain(text);
        return true;
    }
    for (size_t i = first; i < text.size(); ++i)
        if (ClassOf(text[i]) == kNonAscii) {
            if (!simdjson::validate_utf8(text.data() + i, text.size() - i))
                return false;
            break;
        }

    Prefix(rapidjson::kStringType);
    os_->Put('"');
    size_t run = 0;
    for (size_t i = first; i < text.size(); ++i)
        if (ClassOf(text[i]) == kEscaped) {
            WriteRun(*os_, text.data() + run, i - run);
            WriteEscape(*os_, text[i]);
            run = i + 1;
        }
    WriteRun(*os_, text.data() + run, text.size() - run);
    os_->Put('"');
    EndValue(true);
    return true;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
