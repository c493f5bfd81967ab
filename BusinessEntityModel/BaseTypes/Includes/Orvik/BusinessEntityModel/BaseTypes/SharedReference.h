#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/CompareEqual.h>
#include <Orvik/BusinessEntityModel/BaseTypes/CompareLess.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Identifier.h>

#include <memory>
#include <stdexcept>
#include <utility>

namespace Orvik::BusinessEntityModel::BaseTypes {

namespace detail {
inline constexpr char kNullPointer[] = "null pointer";
}  // namespace detail

/// A reference to another entity, by identifier and, when the entity is loaded, by shared pointer.
///
/// Setting a pointer takes the identifier from the pointee (`T::Id()`); a null pointer leaves
/// the identifier as it was. Setting a different identifier drops the pointer; setting the same
/// one keeps it. Should the pointee's own id change later, Id() keeps the old value until a
/// pointer is set again. Copies share the pointee. Dereferencing a reference without a pointer
/// throws std::runtime_error "null pointer". IsEmpty() is true when the reference holds neither
/// a pointer nor an identifier; `operator bool` is its negation.
///
/// In sorted vectors (CompareLess, CompareEqual) references are ordered and compared by their
/// identifiers alone.
///
/// Failure guarantee: every operation is strong; only the identifier copies can fail
/// (std::bad_alloc).
template <typename T>
class SharedReference {
public:
    SharedReference() = default;
    SharedReference(const Identifier& id) : id(id) {}
    SharedReference(const std::shared_ptr<T>& pointer) : pointer(pointer) { UpdateIdentifier(); }
    SharedReference(const std::weak_ptr<T>& pointer) : pointer(pointer.lock()) { UpdateIdentifier(); }
    SharedReference(std::unique_ptr<T>&& pointer) : pointer(std::move(pointer)) { UpdateIdentifier(); }

    SharedReference& operator=(const std::shared_ptr<T>& value)
    {
        Pointer(value);
        return *this;
    }
    SharedReference& operator=(const std::weak_ptr<T>& value)
    {
        Pointer(value);
        return *this;
    }
    SharedReference& operator=(std::unique_ptr<T>&& value)
    {
        Pointer(std::move(value));
        return *this;
    }

    /// Implicit, so that `bool loaded = reference;` reads as written. Beware that it also lets two
    /// references meet in `==` or `<` as booleans: compare their Id()s instead.
    operator bool() const { return !IsEmpty(); }
    bool IsEmpty() const { return !pointer && id.IsEmpty(); }

    operator Identifier() const { return id; }
    const Identifier& Id() const { return id; }
    /// The same identifier keeps the pointer; another one drops it.
    void Id(const Identifier& value)
    {
        if (value == id)
            return;
        id = value;
        pointer.reset();
    }

    std::shared_ptr<const T> Pointer() const { return pointer; }
    std::shared_ptr<T>& Pointer() { return pointer; }
    void Pointer(const std::shared_ptr<T>& value)
    {
        pointer = value;
        UpdateIdentifier();
    }
    void Pointer(const std::weak_ptr<T>& value)
    {
        pointer = value.lock();
        UpdateIdentifier();
    }
    void Pointer(std::unique_ptr<T>&& value)
    {
        pointer = std::move(value);
        UpdateIdentifier();
    }

    const T& Value() const { return *Get(); }
    T& Value() { return *Get(); }
    const T& operator*() const { return *Get(); }
    T& operator*() { return *Get(); }
    /// The raw pointer stays valid only as long as this reference keeps the pointee.
    T* operator->() const { return Get(); }

private:
    T* Get() const
    {
        if (!pointer)
            throw std::runtime_error(detail::kNullPointer);
        return pointer.get();
    }

    void UpdateIdentifier()
    {
        if (pointer)
            id = pointer->Id();
    }

    std::shared_ptr<T> pointer;
    Identifier id;
};

/// References order by identifier; the pointers are not looked at.
template <typename T>
struct CompareLess<SharedReference<T>> {
    bool operator()(const SharedReference<T>& a, const SharedReference<T>& b) const { return a.Id() < b.Id(); }
};

/// References are equal when their identifiers are; the pointers are not looked at.
template <typename T>
struct CompareEqual<SharedReference<T>> {
    bool operator()(const SharedReference<T>& a, const SharedReference<T>& b) const { return a.Id() == b.Id(); }
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
