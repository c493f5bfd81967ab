#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Orvik/BusinessEntityModel/BaseTypes/MetadataProfile.h>

#include <cstddef>
#include <map>
#include <memory>
#include <stdexcept>
#include <vector>

namespace Orvik::BusinessEntityModel::BaseTypes {

namespace detail {
// Followed by the name that was not found.
inline constexpr char kProfileNotFound[] =
    "Orvik::BusinessEntityModel::BaseTypes::MetadataProfileDictionary::At: no profile named ";
inline constexpr char kNullProfile[] = "Orvik::BusinessEntityModel::BaseTypes::MetadataProfileDictionary::Set: null profile";
}  // namespace detail

/// At most one metadata profile per name, keyed by the profile's own FullyQualifiedName() and
/// kept in byte order of the names.
///
/// A plain copy shares the profiles with its source; DeepCopy() and Clone() copy them. Two
/// dictionaries are equal when they have the same names in order and each left profile's Equals()
/// accepts the right one: profiles compare by value, never by address.
///
/// Failure guarantee: Set() and Clone() are strong. DeepCopy() is basic: it empties this dictionary
/// first, so a failing profile Clone() leaves it empty and the source unchanged.
class MetadataProfileDictionary {
public:
    using map = std::map<BaseTypes::FullyQualifiedName, std::shared_ptr<MetadataProfile>>;
    using pair = map::value_type;

    bool operator==(const MetadataProfileDictionary& other) const
    {
        if (values.size() != other.values.size())
            return false;
        for (auto left = values.begin(), right = other.values.begin(); left != values.end(); ++left, ++right)
            if (!Equals(*left, *right))
                return false;
        return true;
    }
    bool operator!=(const MetadataProfileDictionary& other) const { return !(*this == other); }

    void Clear() { values.clear(); }
    bool Empty() const { return values.empty(); }
    size_t Size() const { return values.size(); }
    bool Contains(const BaseTypes::FullyQualifiedName& name) const { return values.count(name) != 0; }

    /// The profile filed under `name`; throws std::out_of_range naming it when there is none.
    const MetadataProfile& At(const BaseTypes::FullyQualifiedName& name) const { return *Find(name); }
    MetadataProfile& At(const BaseTypes::FullyQualifiedName& name) { return *Find(name); }
    const MetadataProfile& operator[](const BaseTypes::FullyQualifiedName& name) const { return *Find(name); }
    MetadataProfile& operator[](const BaseTypes::FullyQualifiedName& name) { return *Find(name); }

    std::vector<BaseTypes::FullyQualifiedName> Keys() const
    {
        std::vector<BaseTypes::FullyQualifiedName> keys;
        keys.reserve(values.size());
        for (const auto& entry : values)
            keys.push_back(entry.first);
        return keys;
    }
    std::vector<std::shared_ptr<MetadataProfile>> Values() const
    {
        std::vector<std::shared_ptr<MetadataProfile>> profiles;
        profiles.reserve(values.size());
        for (const auto& entry : values)
            profiles.push_back(entry.second);
        return profiles;
    }

    /// Files `profile` (shared, not copied) under its own name, replacing a profile of that name.
    /// A null profile throws std::invalid_argument.
    void Set(const std::shared_ptr<MetadataProfile>& profile)
    {
        if (!profile)
            throw std::invalid_argument(detail::kNullProfile);
        values[profile->FullyQualifiedName()] = profile;
    }

    /// True when an entry was removed.
    bool Erase(const BaseTypes::FullyQualifiedName& name) { return values.erase(name) != 0; }
    bool Erase(const MetadataProfile& profile) { return Erase(profile.FullyQualifiedName()); }

    /// Empties this dictionary, then fills it with clones of `source`'s profiles, each filed under
    /// the clone's own name (a later entry wins over an earlier one of the same name). Copying a
    /// dictionary into itself therefore leaves it empty. If a Clone() throws, this dictionary is
    /// left empty.
    void DeepCopy(const MetadataProfileDictionary& source)
    {
        values.clear();
        map copies;
        for (const auto& entry : source.values) {
            std::shared_ptr<MetadataProfile> copy = entry.second->Clone();
            auto name = copy->FullyQualifiedName();
            copies[std::move(name)] = std::move(copy);
        }
        values.swap(copies);
    }

    MetadataProfileDictionary Clone() const
    {
        MetadataProfileDictionary copy;
        copy.DeepCopy(*this);
        return copy;
    }

    /// True when a profile of class T is filed under T::StaticFullyQualifiedName().
    template <typename T>
    bool Contains() const
    {
        return Get<T>() != nullptr;
    }

    /// The profile filed under T::StaticFullyQualifiedName() when it is of class T (shared with
    /// this dictionary), otherwise an empty pointer.
    template <typename T>
    std::shared_ptr<const T> Get() const
    {
        const auto found = values.find(T::StaticFullyQualifiedName());
        return found == values.end() ? nullptr : std::dynamic_pointer_cast<const T>(found->second);
    }
    template <typename T>
    std::shared_ptr<T> Get()
    {
        const auto found = values.find(T::StaticFullyQualifiedName());
        return found == values.end() ? nullptr : std::dynamic_pointer_cast<T>(found->second);
    }

private:
    static bool Equals(const pair& left, const pair& right)
    {
        return left.first == right.first && left.second->Equals(*right.second);
    }

    const std::shared_ptr<MetadataProfile>& Find(const BaseTypes::FullyQualifiedName& name) const
    {
        const auto found = values.find(name);
        if (found == values.end())
            throw std::out_of_range(detail::kProfileNotFound + name.Value());
        return found->second;
    }

    map values;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
