#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/CompareEqualWeakPointer.h>

#include <memory>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// Orders the pointees of two weak pointers (`*a < *b`). An expired pointer throws the same
/// std::runtime_error as CompareEqualWeakPointer, whose name the message carries.
template <typename T>
struct CompareLessWeakPointer {
    bool operator()(const std::weak_ptr<T>& a, const std::weak_ptr<T>& b) const
    {
        const auto lockedA = detail::LockOrThrow(a);
        const auto lockedB = detail::LockOrThrow(b);
        return *lockedA < *lockedB;
    }
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
