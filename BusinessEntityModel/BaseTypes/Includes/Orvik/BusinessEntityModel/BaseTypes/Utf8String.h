#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// One UTF-8 code unit.
using Utf8 = char;

/// Human-readable text in UTF-8: a std::string with code-point counting added.
///
/// The counters never read past the given length. Each lead byte counts as one code point and
/// stands for the bytes it announces (1 to 4), cut short at the end of the text; a byte that
/// cannot start a sequence (a stray continuation byte or 0xF8 to 0xFF) counts as one code point
/// of its own. No validation or normalisation is done.
class Utf8String : public std::string {
public:
    Utf8String() = default;
    Utf8String(const char* text) : std::string(text) {}
    Utf8String(const std::string& text) : std::string(text) {}
    Utf8String(const char* bytes, size_t count) : std::string(bytes, count) {}
    Utf8String(const uint8_t* text) : std::string(reinterpret_cast<const char*>(text)) {}
    Utf8String(const uint8_t* bytes, size_t count) : std::string(reinterpret_cast<const char*>(bytes), count) {}

    static Utf8String Empty() { return Utf8String(); }

    /// Code points of a zero-terminated text.
    static size_t GetCharactersCount(const Utf8* text) { return GetCharactersCount(text, std::strlen(text)); }

    /// Code points of the first `count` bytes of `text`.
    static size_t GetCharactersCount(const Utf8* text, size_t count)
    {
        size_t characters = 0;
        for (size_t offset = 0; offset < count; offset += GetCharacterLength(text + offset, count - offset))
            ++characters;
        return characters;
    }

    size_t Characters() const { return GetCharactersCount(data(), size()); }

    /// True when every byte before the terminating zero is below 0x80.
    static bool IsAscii(const char* text)
    {
        for (; *text != '\0'; ++text)
            if (static_cast<unsigned char>(*text) >= 0x80)
                return false;
        return true;
    }

    /// True when every byte of the string (embedded zeros included) is below 0x80.
    bool IsAscii() const
    {
        for (const char byte : *this)
            if (static_cast<unsigned char>(byte) >= 0x80)
                return false;
        return true;
    }

private:
    /// Bytes of the code point that starts at `text`, from its lead byte, at most `remaining`.
    static size_t GetCharacterLength(const Utf8* text, size_t remaining)
    {
        const auto lead = static_cast<unsigned char>(*text);
        size_t length = 1;
        if ((lead & 0xE0) == 0xC0)
            length = 2;
        else if ((lead & 0xF0) == 0xE0)
            length = 3;
        else if ((lead & 0xF8) == 0xF0)
            length = 4;
        return length < remaining ? length : remaining;
    }
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
