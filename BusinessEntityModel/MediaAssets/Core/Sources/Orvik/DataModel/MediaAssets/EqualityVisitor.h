#pragma once

// The walker of the comparison order that operator== is made of: it stops at the first
// difference and allocates nothing. For the sources of the library only.

#include "ComparisonOrder.h"

#include <cstddef>

namespace Orvik::DataModel::MediaAssets::detail {

class EqualityVisitor {
public:
    template <typename T>
    bool Value(const char*, const T& a, const T& b)
    {
        return a == b;
    }
    template <typename T>
    bool Value(const T& a, const T& b)
    {
        return a == b;
    }

    template <typename T>
    bool Matches(const char*, bool same, const T&, const T&)
    {
        return same;
    }

    template <typename T>
    bool Object(const char*, const T& a, const T& b)
    {
        return Object(a, b);
    }
    template <typename T>
    bool Object(const T& a, const T& b)
    {
        return ComparisonOrder::Compare(*this, a, b);
    }
    // Polymorphic children compare through their virtual comparison, which follows the class of
    // the left one.
    bool Object(const Essence& a, const Essence& b) { return a == b; }
    bool Object(const Location& a, const Location& b) { return a == b; }
    bool Object(const MediaAssetGroupItem& a, const MediaAssetGroupItem& b) { return a == b; }

    template <typename Container, typename Element>
    bool Sequence(const char*, const Container& a, const Container& b, Element element)
    {
        return this->Elements(a, b, element);
    }
    template <typename Container, typename Element>
    bool Elements(const Container& a, const Container& b, Element element)
    {
        const size_t count = Length(a);
        if (count != Length(b))
            return false;
        for (size_t i = 0; i < count; ++i)
            if (!element(*this, a[i], b[i]))
                return false;
        return true;
    }

    template <typename T>
    bool NotNull(const T* a, const T* b)
    {
        return a != nullptr && b != nullptr;
    }

    template <typename A, typename B>
    bool Same(bool same, const A&, const B&)
    {
        return same;
    }

    template <typename Fields>
    bool Within(const char*, Fields fields)
    {
        return fields();
    }
};

/// `a` and `b` compared in the order of their class (or of the class given by `a`'s type).
template <typename A, typename B>
bool EqualInOrder(const A& a, const B& b)
{
    EqualityVisitor visitor;
    return ComparisonOrder::Compare(visitor, a, b);
}

}  // namespace Orvik::DataModel::MediaAssets::detail
