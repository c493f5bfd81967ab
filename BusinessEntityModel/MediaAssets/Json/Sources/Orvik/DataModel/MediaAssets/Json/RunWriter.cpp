#include "RunWriter.h"

#include <simdjson.h>

#include <array>
#include <cstring>

namespace Orvik::DataModel::MediaAssets::Json::detail {

namespace {

// The escape of each byte as RapidJSON's writer writes it: 0 for none, the letter after the
// backslash for a quote, a backslash and the control characters JSON has a short form for, and
// 'u' for the other control characters ("\u00XX", upper-case hex).
constexpr std::array<char, 256> kEscapes = [] {
    std::array<char, 256> escapes{};
    for (size_t byte = 0; byte < 0x20; ++byte)
        escapes[byte] = 'u';
    escapes['"'] = '"';
    escapes['\\'] = '\\';
    escapes['\b'] = 'b';
    escapes['\t'] = 't';
    escapes['\n'] = 'n';
    escapes['\f'] = 'f';
    escapes['\r'] = 'r';
    return escapes;
}();

// The bytes that end a run that can be copied as it stands: those with an escape, and the
// non-ASCII ones, whose text must pass the UTF-8 check (run from the first such byte on).
constexpr std::array<bool, 256> kEndsRun = [] {
    std::array<bool, 256> ends{};
    for (size_t byte = 0; byte < 0x100; ++byte)
        ends[byte] = kEscapes[byte] != 0 || byte >= 0x80;
    return ends;
}();

char EscapeOf(char c) { return kEscapes[static_cast<unsigned char>(c)]; }
bool EndsRun(char c) { return kEndsRun[static_cast<unsigned char>(c)]; }

void WriteEscape(rapidjson::StringBuffer& out, char c)
{
    const char escape = EscapeOf(c);
    const bool hex = escape == 'u';
    char* p = out.Push(hex ? 6 : 2);
    p[0] = '\\';
    p[1] = escape;
    if (hex) {
        constexpr char kHex[] = "0123456789ABCDEF";
        const auto byte = static_cast<unsigned char>(c);
        p[2] = '0';
        p[3] = '0';
        p[4] = kHex[byte >> 4];
        p[5] = kHex[byte & 0xF];
    }
}

void WriteRun(rapidjson::StringBuffer& out, const char* begin, size_t size)
{
    if (size != 0)
        std::memcpy(out.Push(size), begin, size);
}

}  // namespace

bool RunWriter::Text(std::string_view text)
{
    size_t first = 0;
    while (first < text.size() && !EndsRun(text[first]))
        ++first;
    if (first == text.size()) {
        Plain(text);
        return true;
    }
    if (!simdjson::validate_utf8(text.data() + first, text.size() - first))
        return false;

    Prefix(rapidjson::kStringType);
    os_->Put('"');
    size_t run = 0;
    for (size_t i = first; i < text.size(); ++i)
        if (EscapeOf(text[i]) != 0) {
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
