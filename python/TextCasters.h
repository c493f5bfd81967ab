#pragma once

// The model's string-backed identity and text types (Identifier and the ids named after it,
// FullyQualifiedName, Utf8String) travel as Python str, bytes accepted too. Every source that
// binds a function taking or returning one of them includes this header, so that all of them
// convert it alike.

#include "Aliases.h"

#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Utf8String.h>

#include <pybind11/pybind11.h>

#include <string>

namespace Orvik::Python {

/// The bytes of a Python str (UTF-8, lone surrogates written back as the bytes they stand for) or
/// of a bytes object. False for anything else.
bool LoadText(py::handle source, std::string& text);
/// A Python str of `text`; bytes that are not UTF-8 become lone surrogates, so nothing is lost.
py::handle TextToPython(const std::string& text);

}  // namespace Orvik::Python

namespace pybind11::detail {

template <typename Text>
struct TextCaster {
    PYBIND11_TYPE_CASTER(Text, const_name("str"));

    bool load(handle source, bool)
    {
        std::string text;
        if (!Orvik::Python::LoadText(source, text))
            return false;
        value = Text(text);
        return true;
    }
    static handle cast(const Text& text, return_value_policy, handle)
    {
        return Orvik::Python::TextToPython(std::string(text));
    }
};

template <>
struct type_caster<Orvik::BusinessEntityModel::BaseTypes::Identifier>
    : TextCaster<Orvik::BusinessEntityModel::BaseTypes::Identifier> {};
template <>
struct type_caster<Orvik::BusinessEntityModel::BaseTypes::FullyQualifiedName>
    : TextCaster<Orvik::BusinessEntityModel::BaseTypes::FullyQualifiedName> {};
template <>
struct type_caster<Orvik::BusinessEntityModel::BaseTypes::Utf8String>
    : TextCaster<Orvik::BusinessEntityModel::BaseTypes::Utf8String> {};

}  // namespace pybind11::detail
