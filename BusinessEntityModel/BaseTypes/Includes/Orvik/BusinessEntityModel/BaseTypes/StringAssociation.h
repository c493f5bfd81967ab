#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>

namespace Orvik::BusinessEntityModel::BaseTypes {

namespace detail {
inline constexpr char kUnknownValue[] = "Unknown value";
// Followed directly by the text that was not found.
inline constexpr char kUnknownText[] = "Unknown value : ";
}  // namespace detail

/// A two-way table between the values of an enumeration and their canonical strings.
///
/// Built once from (value, string) pairs: the first pair of a value wins, and a string given for
/// two values maps back to the smaller one. Lookups by text are exact and case-sensitive. With a
/// fallback, a failed lookup yields the fallback (its string, or the value) and the one-argument
/// forms never throw; without one, ToString(value) throws std::out_of_range "Unknown value" and
/// ToEnum(text) throws std::out_of_range "Unknown value : " followed by the text. The
/// two-argument forms never throw for an unknown input and report it through `failed`.
///
/// Results refer into the table, which holds each string once (the reverse index points at the
/// strings of the forward table). So an instance is never copied or moved; each lives as a
/// function-local static. After construction every operation only reads.
template <typename T>
class StringAssociation {
public:
    using ItemToStringMap = std::map<const T, const std::string>;
    using StringToItemMap =
        std::map<const std::string*, const T, std::function<bool(const std::string*, const std::string*)>>;

    StringAssociation(std::initializer_list<std::pair<const T, const std::string>> items)
        : StringAssociation(items, T(), false)
    {}
    StringAssociation(std::initializer_list<std::pair<const T, const std::string>> items, const T& fallback)
        : StringAssociation(items, fallback, true)
    {}
    StringAssociation(const StringAssociation&) = delete;
    StringAssociation& operator=(const StringAssociation&) = delete;
    ~StringAssociation() = default;

    /// The string of `val`; see the class comment for an unknown value.
    const std::string& ToString(const T& val) const
    {
        bool failed = false;
        const std::string& text = ToString(val, failed);
        if (failed && !hasFallbackValue)
            throw std::out_of_range(detail::kUnknownValue);
        return text;
    }

    /// The string of `val`; when unknown, the fallback's string (std::out_of_range "map::at" if the
    /// fallback has none) or, without a fallback, an empty string.
    const std::string& ToString(const T& val, bool& failed) const
    {
        const auto found = typeToString.find(val);
        failed = found == typeToString.end();
        if (!failed)
            return found->second;
        if (hasFallbackValue)
            return typeToString.at(fallbackValue);
        static const std::string unknown;
        return unknown;
    }

    /// The value of the text `val`; see the class comment for an unknown text.
    const T& ToEnum(const std::string& val) const
    {
        bool failed = false;
        const T& value = ToEnum(val, failed);
        if (failed && !hasFallbackValue)
            throw std::out_of_range(detail::kUnknownText + val);
        return value;
    }

    /// The value of the text `val`; when unknown, the fallback or, without one, the zero value.
    const T& ToEnum(const std::string& val, bool& failed) const
    {
        const auto found = stringToType.find(&val);
        failed = found == stringToType.end();
        if (!failed)
            return found->second;
        if (hasFallbackValue)
            return fallbackValue;
        static const T unknown{};
        return unknown;
    }

private:
    StringAssociation(std::initializer_list<std::pair<const T, const std::string>> items, const T& fallback,
                      bool hasFallback)
        : typeToString(items.begin(), items.end()), fallbackValue(fallback), hasFallbackValue(hasFallback)
    {
        for (const auto& entry : typeToString)
            stringToType.emplace(&entry.second, entry.first);
    }

    ItemToStringMap typeToString;
    StringToItemMap stringToType{[](const std::string* a, const std::string* b) { return *a < *b; }};
    T fallbackValue;
    bool hasFallbackValue;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
