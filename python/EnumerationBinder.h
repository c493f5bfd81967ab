#pragma once

// The model's enumerations as Python enums.

#include "Aliases.h"

#include <Orvik/BusinessEntityModel/BaseTypes/StringAssociation.h>

#include <pybind11/pybind11.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Orvik::Python {

/// An enumeration of the model as a Python enum whose str() is the value's canonical text.
///
/// The members are the values of the library's table, from 0 up to the first number without a
/// text of its own, named after their text (or after `names`, for a table whose texts are not
/// Python names); a name that is a Python keyword gets a trailing underscore (ArchiveStatus.None_).
/// from_string(text) keeps the tolerant rule: a text that is no value's gives the value 0; with
/// strict=True it raises ValueError "Unknown value : " followed by the text instead.
template <typename E, typename ToText, typename ToValue>
py::enum_<E> BindEnumeration(py::handle scope, const char* name, const char* doc, ToText toText, ToValue toValue,
                             std::vector<const char*> names = {})
{
    py::enum_<E> enumeration(scope, name, doc);
    const py::object isKeyword = py::module_::import("keyword").attr("iskeyword");
    for (std::size_t number = 0;; ++number) {
        const auto value = static_cast<E>(number);
        const std::string text = toText(value);
        bool failed = false;
        if (toValue(text, failed) != value || failed)
            break;
        std::string member = number < names.size() ? names[number] : text;
        if (isKeyword(member).template cast<bool>())
            member += "_";
        enumeration.value(member.c_str(), value);
    }
    enumeration.attr("__str__") = py::cpp_function([toText](E value) { return std::string(toText(value)); },
                                                   py::name("__str__"), py::is_method(enumeration));
    enumeration.def_static(
        "from_string",
        [toValue](const std::string& text, bool strict) {
            bool failed = false;
            const E value = toValue(text, failed);
            if (failed && strict)
                throw py::value_error(BusinessEntityModel::BaseTypes::detail::kUnknownText + text);
            return value;
        },
        py::arg("text"), py::arg("strict") = false,
        "The value whose canonical text is `text` (exact, case-sensitive); any other text gives the "
        "value 0, or ValueError with strict=True.");
    return enumeration;
}

}  // namespace Orvik::Python
