#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Orvik::BusinessEntityModel::BaseTypes {

namespace detail {
// Followed by the operation, ": index ", the index, " out of range for size ", and the size.
inline constexpr char kArrayIndexPrefix[] = "Orvik::BusinessEntityModel::BaseTypes::Array::";
}  // namespace detail

/// An owning, ordered (not sorted) list of polymorphic objects held by unique pointers.
///
/// `T` is a polymorphic base with a virtual `std::unique_ptr<T> Clone() const` and a virtual
/// `bool operator==(const T&) const`. An array is never copied implicitly: Copy() is the deep copy
/// (each element's Clone(), replacing what the array held); moving transfers the elements. Two
/// arrays are equal when their sizes match and each left element's operator== accepts the right
/// element at the same position. Null elements must not be stored.
///
/// At(), Insert(), Erase() and Replace() throw std::out_of_range for an index outside the array
/// (Insert also accepts Size(), meaning "at the end"), leaving it unchanged; operator[] does not
/// check.
///
/// Failure guarantee: Add(), Insert(), Copy() and Adopt() are strong: after a throw the array is as
/// it was.
template <typename T>
class Array {
public:
    using Collection = std::vector<std::unique_ptr<T>>;
    using iterator = typename Collection::iterator;
    using const_iterator = typename Collection::const_iterator;

    Array() = default;
    Array(const Array&) = delete;
    Array& operator=(const Array&) = delete;
    Array(Array&&) noexcept = default;
    Array& operator=(Array&&) noexcept = default;
    ~Array() = default;

    bool operator==(const Array& other) const
    {
        if (Size() != other.Size())
            return false;
        for (size_t i = 0; i < collection.size(); ++i)
            if (!(*collection[i] == *other.collection[i]))
                return false;
        return true;
    }
    bool operator!=(const Array& other) const { return !(*this == other); }

    const_iterator cbegin() const { return collection.cbegin(); }
    const_iterator begin() const { return collection.begin(); }
    iterator begin() { return collection.begin(); }
    const_iterator cend() const { return collection.cend(); }
    const_iterator end() const { return collection.end(); }
    iterator end() { return collection.end(); }

    int32_t Size() const { return static_cast<int32_t>(collection.size()); }
    bool Empty() const { return collection.empty(); }

    const T& At(int index) const { return *collection[Checked("At", index)]; }
    T& At(int index) { return *collection[Checked("At", index)]; }
    const T& operator[](int index) const { return *collection[static_cast<size_t>(index)]; }
    T& operator[](int index) { return *collection[static_cast<size_t>(index)]; }

    void Clear() { collection.clear(); }
    /// Makes room for `count` elements in all, so that adding up to that many allocates nothing
    /// for the array itself; the elements do not change.
    void Reserve(size_t count) { collection.reserve(count); }

    /// Appends; the result is the index of the new element.
    int32_t Add(std::unique_ptr<T>&& element)
    {
        collection.push_back(std::move(element));
        return Size() - 1;
    }
    /// Moves a concrete object (of a class derived from T) into a new element of its own class.
    template <typename U, typename = std::enable_if_t<std::is_base_of_v<T, std::decay_t<U>>>>
    int32_t Add(U&& element)
    {
        return Add(MakeElement(std::forward<U>(element)));
    }

    /// Inserts before `index` (Size() appends); the result is the index of the new element.
    int32_t Insert(int index, std::unique_ptr<T>&& element)
    {
        const size_t position = Checked("Insert", index, 1);
        collection.insert(collection.begin() + static_cast<std::ptrdiff_t>(position), std::move(element));
        return index;
    }
    template <typename U, typename = std::enable_if_t<std::is_base_of_v<T, std::decay_t<U>>>>
    int32_t Insert(int index, U&& element)
    {
        Checked("Insert", index, 1);
        return Insert(index, MakeElement(std::forward<U>(element)));
    }

    /// Replaces the contents with deep copies of `other`'s elements, in order. If a Clone()
    /// throws, this array is left as it was.
    void Copy(const Array& other) { Copy(other.cbegin(), other.cend()); }

    /// Replaces the contents with deep copies of the objects of a range of unique pointers.
    template <typename InputIterator>
    void Copy(InputIterator first, InputIterator last)
    {
        Collection copies;
        using Category = typename std::iterator_traits<InputIterator>::iterator_category;
        if constexpr (std::is_base_of_v<std::forward_iterator_tag, Category>)
            copies.reserve(static_cast<size_t>(std::distance(first, last)));
        for (; first != last; ++first)
            copies.push_back((*first)->Clone());
        collection.swap(copies);
    }

    /// Appends the elements of `other`, which is left empty.
    void Adopt(Array& other)
    {
        if (&other == this)
            return;
        collection.reserve(collection.size() + other.collection.size());
        for (auto& element : other.collection)
            collection.push_back(std::move(element));
        other.collection.clear();
    }

    void Erase(int index)
    {
        const size_t position = Checked("Erase", index);
        collection.erase(collection.begin() + static_cast<std::ptrdiff_t>(position));
    }

    /// Destroys the element at `index` and puts `element` in its place.
    void Replace(int index, std::unique_ptr<T>&& element) { collection[Checked("Replace", index)] = std::move(element); }

private:
    template <typename U>
    static std::unique_ptr<T> MakeElement(U&& element)
    {
        return std::make_unique<std::decay_t<U>>(std::forward<U>(element));
    }

    /// `index` as a position when it is below Size() + `slack`; otherwise throws std::out_of_range.
    size_t Checked(const char* operation, int index, size_t slack = 0) const
    {
        if (index < 0 || static_cast<size_t>(index) >= collection.size() + slack)
            throw std::out_of_range(std::string(detail::kArrayIndexPrefix) + operation + ": index " + std::to_string(index)
                                    + " out of range for size " + std::to_string(collection.size()));
        return static_cast<size_t>(index);
    }

    Collection collection;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
