#pragma once

#include <cstdint>
#include <iomanip>
#include <random>
#include <sstream>
#include <string>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// The identity of an entity: an opaque byte string. The empty string means "not set".
///
/// No format is imposed. Identifiers compare as their bytes (std::string order: unsigned bytes,
/// a prefix before the longer text), with no case folding, so "a" orders after "Z" and "A"
/// before "AB". The constructor from std::string is implicit so that texts convert where an
/// identifier is expected.
class Identifier {
public:
    Identifier() = default;
    Identifier(const std::string& value) : value(value) {}

    /// The shared empty identifier, created on first use (thread-safe) and kept until exit.
    static const Identifier& Empty()
    {
        static const Identifier empty;
        return empty;
    }

    /// A new random identifier in the 36-character text form of a version 4 UUID, for example
    /// "1b4e28ba-2fa1-4d2b-a3c5-6f8e1c7d9a02". Each thread draws from its own generator.
    static Identifier Generate()
    {
        thread_local std::mt19937_64 engine{std::random_device{}()};
        const uint64_t high = (engine() & 0xFFFFFFFFFFFF0FFFull) | 0x0000000000004000ull;
        const uint64_t low = (engine() & 0x3FFFFFFFFFFFFFFFull) | 0x8000000000000000ull;
        std::ostringstream text;
        text << std::hex << std::setfill('0') << std::setw(8) << (high >> 32) << '-' << std::setw(4)
             << ((high >> 16) & 0xFFFF) << '-' << std::setw(4) << (high & 0xFFFF) << '-' << std::setw(4) << (low >> 48)
             << '-' << std::setw(12) << (low & 0xFFFFFFFFFFFFull);
        return Identifier(text.str());
    }

    bool IsEmpty() const { return value.empty(); }
    const std::string& Value() const { return value; }
    operator std::string() const { return value; }

    friend bool operator==(const Identifier& a, const Identifier& b) { return a.value == b.value; }
    friend bool operator!=(const Identifier& a, const Identifier& b) { return a.value != b.value; }
    friend bool operator<(const Identifier& a, const Identifier& b) { return a.value < b.value; }
    friend bool operator<=(const Identifier& a, const Identifier& b) { return a.value <= b.value; }
    friend bool operator>(const Identifier& a, const Identifier& b) { return a.value > b.value; }
    friend bool operator>=(const Identifier& a, const Identifier& b) { return a.value >= b.value; }

private:
    std::string value;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
