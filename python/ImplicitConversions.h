#pragma once

// The implicit conversions of a bound class, said in its docstring as well.

#include "Aliases.h"

#include <pybind11/pybind11.h>

#include <string>
#include <type_traits>

namespace Orvik::Python {

/// The name that pybind11's signatures give `T`: the name of the class it is bound as, or its
/// caster's ("str", "int", "Iterable").
template <typename T>
std::string PythonName()
{
    if constexpr (std::is_base_of_v<py::detail::type_caster_generic, py::detail::make_caster<T>>)
        return py::type::of<T>().attr("__name__").template cast<std::string>();
    else
        return py::detail::make_caster<T>::name.text;
}

/// Lets Python pass each `From` wherever the class of `cls` is expected, and ends the class's
/// docstring with the sentence that says so ("Converts implicitly from Stream, str."), where
/// help() shows it and the type stubs read it (generate_stubs.py).
template <typename... From, typename Class>
void ConvertsImplicitlyFrom(Class& cls)
{
    (py::implicitly_convertible<From, typename Class::type>(), ...);
    std::string sentence = "Converts implicitly from ";
    ((sentence += PythonName<From>() + ", "), ...);
    sentence.replace(sentence.size() - 2, 2, ".");
    const py::object doc = cls.attr("__doc__");
    cls.attr("__doc__") = doc.is_none() ? sentence : doc.template cast<std::string>() + "\n\n" + sentence;
}

}  // namespace Orvik::Python
