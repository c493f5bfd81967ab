#pragma once

namespace Orvik::BusinessEntityModel::BaseTypes {

/// Compares two values by their own operator==.
template <typename T>
struct CompareEqual {
    bool operator()(const T& a, const T& b) const { return a == b; }
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
