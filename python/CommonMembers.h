#pragma once

// The members that many classes of the model share: the object id of persistent entities,
// equality, and copies.

#include "Aliases.h"

#include <pybind11/pybind11.h>

#include <cstdint>

namespace Orvik::Python {

/// The objectId property of every persistent entity.
template <typename Class>
void DefineObjectId(Class& cls)
{
    using T = typename Class::type;
    cls.def_property(
        "object_id", [](const T& self) { return self.ObjectId(); }, [](T& self, int64_t value) { self.ObjectId(value); },
        "The key under which a store keeps the entity; -1 until it is stored.");
}

/// __eq__ and __ne__ from the class's operator==.
template <typename Class>
void DefineEquality(Class& cls)
{
    using T = typename Class::type;
    cls.def(
           "__eq__", [](const T& self, const T& other) { return self == other; }, py::is_operator())
        .def(
            "__ne__", [](const T& self, const T& other) { return self != other; }, py::is_operator());
}

/// clone() and __deepcopy__ from the class's Clone(), __copy__ from `copy` (the model's
/// member-wise copy).
template <typename Class, typename Copy>
void DefineCopies(Class& cls, Copy copy)
{
    using T = typename Class::type;
    cls.def("clone", [](const T& self) { return self.Clone(); })
        .def("__deepcopy__", [](const T& self, const py::dict&) { return self.Clone(); })
        .def("__copy__", copy);
}

}  // namespace Orvik::Python
