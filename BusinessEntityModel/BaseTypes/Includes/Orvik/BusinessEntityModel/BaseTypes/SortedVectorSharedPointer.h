#pragma once

#include <Orvik/BusinessEntityModel/BaseTypes/CompareEqualPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/CompareLessPointer.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SortedVectorBase.h>

#include <memory>

namespace Orvik::BusinessEntityModel::BaseTypes {

/// A sorted vector of shared pointers, ordered and compared by their pointees, never by address.
/// Copying the vector shares the pointees. Null pointers must not be stored.
template <typename T>
class SortedVectorSharedPointer : public SortedVectorBase<std::shared_ptr<T>, CompareLessPointer<std::shared_ptr<T>>,
                                                          CompareEqualPointer<std::shared_ptr<T>>> {
public:
    SortedVectorSharedPointer() = default;
    SortedVectorSharedPointer(const SortedVectorSharedPointer&) = default;
    SortedVectorSharedPointer(SortedVectorSharedPointer&&) noexcept = default;
    SortedVectorSharedPointer& operator=(const SortedVectorSharedPointer&) = default;
    SortedVectorSharedPointer& operator=(SortedVectorSharedPointer&&) noexcept = default;
    ~SortedVectorSharedPointer() = default;
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
