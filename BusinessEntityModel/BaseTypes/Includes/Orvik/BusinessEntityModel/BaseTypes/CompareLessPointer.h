#pragma once

namespace Orvik::BusinessEntityModel::BaseTypes {

/// Orders two pointers by their pointees (`*a < *b`). Both must be non-null; this is not checked.
template <typename P>
struct CompareLessPointer {
    bool operator()(const P& a, const P& b) const { return *a < *b; }
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
