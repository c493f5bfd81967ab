#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Orvik::BusinessEntityModel::BaseTypes {

namespace detail {

inline constexpr char kItemAlreadyPresent[] =
    "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection";
inline constexpr char kItemNotPresent[] =
    "Orvik::DataModel::MediaAssets::SortedVector::Replace: item not present in the collection";
// Followed by the index, " out of range for size ", and the size.
inline constexpr char kIndexOutOfRange[] = "Orvik::DataModel::MediaAssets::SortedVector::CheckIndex: index ";

}  // namespace detail

/// A std::vector kept in `Less` order, the storage of every ordered collection of the model.
///
/// Insert finds the lower bound of the new value and refuses it (std::runtime_error
/// "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection",
/// the vector unchanged) only when the element standing there is `Equal` to it. A value whose
/// key matches stored elements without being `Equal` to the first of them goes in front of them.
/// Two vectors are equal when they have the same size and are `Equal` element by element.
///
/// Only the leaves (SortedVector, SortedVectorSharedPointer, SortedVectorWeakPointer, and
/// TimeBoundsArray of the model) are instantiated; they are never deleted through this base.
/// Writing through a non-const iterator or reference must not change an element's key.
///
/// Failure guarantee: Insert(), Replace() and Values() are strong: after a throw (std::bad_alloc or
/// a refusal) the vector is as it was. Insert(values) is basic: the values inserted before the
/// failing one stay.
template <typename T, typename Less, typename Equal, typename Alloc = std::allocator<T>>
class SortedVectorBase {
public:
    using value_type = T;
    using Elements = std::vector<T, Alloc>;
    using iterator = typename Elements::iterator;
    using const_iterator = typename Elements::const_iterator;

    bool operator==(const SortedVectorBase& other) const
    {
        if (elements.size() != other.elements.size())
            return false;
        const Equal equal;
        for (size_t i = 0; i < elements.size(); ++i)
            if (!equal(elements[i], other.elements[i]))
                return false;
        return true;
    }
    bool operator!=(const SortedVectorBase& other) const { return !(*this == other); }

    const_iterator cbegin() const { return elements.cbegin(); }
    const_iterator begin() const { return elements.begin(); }
    iterator begin() { return elements.begin(); }
    const_iterator cend() const { return elements.cend(); }
    const_iterator end() const { return elements.end(); }
    iterator end() { return elements.end(); }

    size_t Size() const { return elements.size(); }
    bool Empty() const { return elements.empty(); }
    bool IsValidIndex(size_t index) const { return index < elements.size(); }

    /// Throws std::out_of_range naming the index and the size when `index` is not below Size().
    void CheckIndex(size_t index) const
    {
        if (!IsValidIndex(index))
            throw std::out_of_range(detail::kIndexOutOfRange + std::to_string(index) + " out of range for size "
                                    + std::to_string(elements.size()));
    }

    /// Unchecked access.
    const T& operator[](size_t index) const { return elements[index]; }
    T& operator[](size_t index) { return elements[index]; }
    /// Checked access (see CheckIndex).
    const T& At(size_t index) const
    {
        CheckIndex(index);
        return elements[index];
    }
    T& At(size_t index)
    {
        CheckIndex(index);
        return elements[index];
    }
    /// The vector must not be empty.
    const T& Front() const { return elements.front(); }
    T& Front() { return elements.front(); }
    const T& Back() const { return elements.back(); }
    T& Back() { return elements.back(); }

    /// The element `Equal` to `value`, searched among the elements with `value`'s key, or end().
    const_iterator ConstFind(const T& value) const
    {
        const Less less;
        const Equal equal;
        for (auto it = LowerBound(value); it != elements.end() && !less(value, *it); ++it)
            if (equal(*it, value))
                return it;
        return elements.end();
    }
    iterator Find(const T& value) { return constItToIt(ConstFind(value)); }

    /// Takes out the element equal to `old` and inserts `value` at its sorted place. Throws
    /// std::runtime_error when `old` is not present or `value` is refused by Insert; the vector is
    /// then unchanged.
    void Replace(const T& old, const T& value)
    {
        const auto found = ConstFind(old);
        if (found == elements.cend())
            throw std::runtime_error(detail::kItemNotPresent);
        const auto position = found - elements.cbegin();
        T kept = std::move(*constItToIt(found));
        elements.erase(found);
        try {
            Insert(value);
        } catch (...) {
            elements.insert(elements.begin() + position, std::move(kept));
            throw;
        }
    }

    /// Inserts a copy of `value` at its lower bound; see the class comment for the refusal.
    virtual void Insert(const T& value)
    {
        const auto position = LowerBound(value);
        if (position != elements.end() && Equal()(*position, value))
            throw std::runtime_error(detail::kItemAlreadyPresent);
        elements.insert(position, value);
    }

    /// Inserts each value in turn through the virtual Insert; stops at the first refusal, keeping
    /// the values inserted before it.
    void Insert(const std::vector<T>& values)
    {
        for (const T& value : values)
            Insert(value);
    }

    /// Makes room for `count` elements in all, so that inserting up to that many allocates
    /// nothing; the elements and their order do not change.
    void Reserve(size_t count) { elements.reserve(count); }

    void Clear() { elements.clear(); }
    iterator Erase(const_iterator position) { return elements.erase(position); }
    iterator Erase(iterator position) { return elements.erase(position); }
    iterator Erase(const_iterator first, const_iterator last) { return elements.erase(first, last); }
    iterator Erase(iterator first, iterator last) { return elements.erase(first, last); }

    std::vector<T> Values() const { return std::vector<T>(elements.begin(), elements.end()); }

    /// Replaces the contents with `values` in `Less` order; elements with the same key keep their
    /// relative order, and duplicates are not looked for.
    void Values(const std::vector<T>& values)
    {
        Elements copies(values.begin(), values.end());
        elements.swap(copies);
        Sort();  // cannot fail: without a spare buffer the stable sort works in place
    }

protected:
    SortedVectorBase() = default;
    SortedVectorBase(const SortedVectorBase&) = default;
    SortedVectorBase(SortedVectorBase&&) noexcept = default;
    SortedVectorBase& operator=(const SortedVectorBase&) = default;
    SortedVectorBase& operator=(SortedVectorBase&&) noexcept = default;
    ~SortedVectorBase() = default;

    void Sort() { std::stable_sort(elements.begin(), elements.end(), Less()); }
    iterator constItToIt(const_iterator position) { return elements.begin() + (position - elements.cbegin()); }

    Elements elements;

private:
    /// The first element that is not Less than `value`; Less is called as Less(element, value).
    const_iterator LowerBound(const T& value) const
    {
        return std::lower_bound(elements.begin(), elements.end(), value, Less());
    }
    iterator LowerBound(const T& value) { return constItToIt(std::as_const(*this).LowerBound(value)); }
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
