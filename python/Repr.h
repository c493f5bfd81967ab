#pragma once

// Python's repr() of values, as UTF-8, for the __repr__ of the model's classes and for messages.

#include "Aliases.h"
#include "TextCasters.h"

#include <pybind11/pybind11.h>

#include <string>

namespace Orvik::Python {

/// Python's repr() of `value`.
inline std::string Repr(const py::handle& value) { return py::repr(value).cast<std::string>(); }

/// Python's repr() of a str holding `text`: the text quoted.
inline std::string Quoted(const std::string& text) { return Repr(py::reinterpret_steal<py::object>(TextToPython(text))); }

}  // namespace Orvik::Python
