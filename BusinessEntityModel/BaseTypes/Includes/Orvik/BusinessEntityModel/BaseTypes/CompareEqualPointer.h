#pragma once

namespace Orvik::BusinessEntityModel::BaseTypes {

/// Compares two pointers by their pointees (`*a == *b`), never by address. Both must be non-null.
template <typename P>
struct CompareEqualPointer {
    bool operator()(const P& a, const P& b) const { return *a == *b; }
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
