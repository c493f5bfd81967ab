#pragma once

#include <memory>
#include <stdexcept>

namespace Orvik::BusinessEntityModel::BaseTypes {

namespace detail {

inline constexpr char kWeakPointerExpired[] =
    "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired";

/// The pointee of `pointer`, kept alive for the caller; throws std::runtime_error when expired.
template <typename T>
std::shared_ptr<T> LockOrThrow(const std::weak_ptr<T>& pointer)
{
    std::shared_ptr<T> locked = pointer.lock();
    if (!locked)
        throw std::runtime_error(kWeakPointerExpired);
    return locked;
}

}  // namespace detail

/// Compares the pointees of two weak pointers (`*a == *b`). Throws std::runtime_error
/// "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is expired" when
/// either pointer has expired.
template <typename T>
struct CompareEqualWeakPointer {
    bool operator()(const std::weak_ptr<T>& a, const std::weak_ptr<T>& b) const
    {
        const auto lockedA = detail::LockOrThrow(a);
        const auto lockedB = detail::LockOrThrow(b);
        return *lockedA == *lockedB;
    }
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
