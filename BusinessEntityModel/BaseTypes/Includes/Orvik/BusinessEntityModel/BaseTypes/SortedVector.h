#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/CompareEqual.h>
#include <Orvik/BusinessEntityModel/BaseTypes/CompareLess.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorBase.h>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// A sorted vector of values ordered by their operator< and compared by their operator==.
template <typename T>
class SortedVector : public SortedVectorBase<T, CompareLess<T>, CompareEqual<T>> {
public:
    SortedVector() = default;
    SortedVector(const SortedVector&) = default;
    SortedVector(SortedVector&&) noexcept = default;
    SortedVector& operator=(const SortedVector&) = default;
    SortedVector& operator=(SortedVector&&) noexcept = default;
    ~SortedVector() = default;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
