#pragma once

#include <cstdint>
#include <string>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// A dotted, qualified name such as "orvik.pelkoperator"; also the text type of URIs.
///
/// Compared as its bytes (std::string order), which is also its order as a dictionary key.
class FullyQualifiedName {
public:
    FullyQualifiedName() = default;
    FullyQualifiedName(const std::string& value) : value(value) {}

    /// The shared empty name, created on first use (thread-safe) and kept until exit.
    static const FullyQualifiedName& Empty()
    {
        static const FullyQualifiedName empty;
        return empty;
    }

    bool IsEmpty() const { return value.empty(); }
    const std::string& Value() const { return value; }
    operator std::string() const { return value; }

    /// `text` followed by `suffix` (numbers in decimal).
    static FullyQualifiedName Concat(const std::string& text, char suffix) { return FullyQualifiedName(text + suffix); }
    static FullyQualifiedName Concat(const std::string& text, const std::string& suffix)
    {
        return FullyQualifiedName(text + suffix);
    }
    static FullyQualifiedName Concat(const std::string& text, int suffix)
    {
        return FullyQualifiedName(text + std::to_string(suffix));
    }
    static FullyQualifiedName Concat(const std::string& text, uint32_t suffix)
    {
        return FullyQualifiedName(text + std::to_string(suffix));
    }

    /// `first`, the separator, then `last` (numbers in decimal): Combine("orvik", '.', "pelkoperator").
    static FullyQualifiedName Combine(const std::string& first, char separator, const std::string& last)
    {
        return FullyQualifiedName(first + separator + last);
    }
    static FullyQualifiedName Combine(const std::string& first, char separator, int last)
    {
        return Combine(first, separator, std::to_string(last));
    }
    static FullyQualifiedName Combine(const std::string& first, char separator, uint32_t last)
    {
        return Combine(first, separator, std::to_string(last));
    }

    /// The two pieces joined by one "/": a "/" that ends `first` or starts `second` is not doubled,
    /// and an empty piece adds no separator.
    static FullyQualifiedName CombinePath(const std::string& first, const std::string& second)
    {
        if (first.empty() || second.empty())
            return FullyQualifiedName(first + second);
        const bool firstEnds = first.back() == '/';
        const bool secondStarts = second.front() == '/';
        if (firstEnds && secondStarts)
            return FullyQualifiedName(first + second.substr(1));
        if (firstEnds || secondStarts)
            return FullyQualifiedName(first + second);
        return FullyQualifiedName(first + '/' + second);
    }

    friend bool operator==(const FullyQualifiedName& a, const FullyQualifiedName& b) { return a.value == b.value; }
    friend bool operator!=(const FullyQualifiedName& a, const FullyQualifiedName& b) { return a.value != b.value; }
    friend bool operator<(const FullyQualifiedName& a, const FullyQualifiedName& b) { return a.value < b.value; }
    friend bool operator<=(const FullyQualifiedName& a, const FullyQualifiedName& b) { return a.value <= b.value; }
    friend bool operator>(const FullyQualifiedName& a, const FullyQualifiedName& b) { return a.value > b.value; }
    friend bool operator>=(const FullyQualifiedName& a, const FullyQualifiedName& b) { return a.value >= b.value; }

private:
    std::string value;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
