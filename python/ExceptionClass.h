#pragma once

// The library's exceptions that carry more than a message, as Python exception classes with
// attributes.

#include "Aliases.h"

#include <pybind11/pybind11.h>

#include <array>
#include <cstddef>
#include <exception>
#include <string>
#include <utility>

namespace Orvik::Python {

/// An attribute of a Python exception and the accessor of the C++ exception that gives its value.
template <typename Error>
using ErrorAttribute = std::pair<const char*, const std::string& (Error::*)() const>;

/// Binds `Error` as the exception class `name` of `module`, a ValueError, and raises an instance of
/// it for every `Error` that reaches Python: its message is what(), and each of `attributes` is
/// read from the error. The class itself holds each attribute as "", what an instance raised by
/// Python code reads. Call once per `Error`.
template <typename Error, std::size_t Count>
void DefineExceptionClass(py::module_& module, const char* name, const std::array<ErrorAttribute<Error>, Count>& attributes)
{
    // Released: the class lives as long as the interpreter, past the module's static destructors.
    static const py::handle type = py::exception<Error>(module, name, PyExc_ValueError).release();
    // Static, as the translator can capture nothing.
    static const std::array<ErrorAttribute<Error>, Count> read = attributes;
    for (const auto& attribute : read)
        type.attr(attribute.first) = "";
    py::register_exception_translator([](std::exception_ptr pending) {
        try {
            if (pending)
                std::rethrow_exception(pending);
        } catch (const Error& error) {
            py::object instance = py::reinterpret_borrow<py::object>(type)(error.what());
            for (const auto& [attribute, accessor] : read)
                instance.attr(attribute) = (error.*accessor)();
            PyErr_SetObject(type.ptr(), instance.ptr());
        }
    });
}

}  // namespace Orvik::Python
