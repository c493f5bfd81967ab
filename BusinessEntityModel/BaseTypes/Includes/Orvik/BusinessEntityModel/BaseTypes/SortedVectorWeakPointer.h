#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/CompareEqualWeakPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/CompareLessWeakPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorBase.h>

#include <memory>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// A sorted vector of weak pointers, ordered and compared by their pointees. Every comparison
/// locks both pointers, so inserting into or comparing a vector that meets an expired pointer
/// throws "Orvik::DataModel::MediaAssets::CompareEqualWeakPointer: weak pointer object is
/// expired"; an empty vector accepts an expired pointer, since nothing is compared.
template <typename T>
class SortedVectorWeakPointer
    : public SortedVectorBase<std::weak_ptr<T>, CompareLessWeakPointer<T>, CompareEqualWeakPointer<T>> {
public:
    SortedVectorWeakPointer() = default;
    SortedVectorWeakPointer(const SortedVectorWeakPointer&) = default;
    SortedVectorWeakPointer(SortedVectorWeakPointer&&) noexcept = default;
    SortedVectorWeakPointer& operator=(const SortedVectorWeakPointer&) = default;
    SortedVectorWeakPointer& operator=(SortedVectorWeakPointer&&) noexcept = default;
    ~SortedVectorWeakPointer() = default;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
