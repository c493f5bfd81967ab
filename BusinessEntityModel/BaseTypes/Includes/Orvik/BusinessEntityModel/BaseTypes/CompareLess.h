#pragma once

namespace Orvik::BusinessEntityModel::BaseTypes {

/// Orders two values by their own operator<.
template <typename T>
struct CompareLess {
    bool operator()(const T& a, const T& b) const { return a < b; }
};

}  // namespace Orvik::BusinessEntityModel::BaseTypes
