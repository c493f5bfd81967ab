#pragma once

// Pointers that may be null and the model's shared references, as Python sees them.

#include "Aliases.h"
#include "ImplicitConversions.h"
#include "Repr.h"
#include "TextCasters.h"

#include <Orvik/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Orvik/BusinessEntityModel/BaseTypes/SharedReference.h>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <memory>
#include <optional>
#include <string>

namespace Orvik::Python {

/// A shared pointer that may be null as Python sees it: None when it is null, and Optional[T] in
/// the signature.
template <typename T>
std::optional<std::shared_ptr<T>> OrNone(std::shared_ptr<T> pointer)
{
    if (pointer)
        return pointer;
    return std::nullopt;
}

/// A reference to an entity by id and, when it is loaded, by shared pointer (the model's
/// SharedReference). Setting a pointer takes the id from the entity; setting another id drops
/// the pointer. `value` raises RuntimeError "null pointer" when no entity is loaded. An entity or
/// an id converts to a reference wherever one is expected.
template <typename T, typename Class>
void DefineSharedReference(Class& cls, const char* name)
{
    using Reference = BusinessEntityModel::BaseTypes::SharedReference<T>;
    cls.def(py::init<>())
        .def(py::init<const BusinessEntityModel::BaseTypes::Identifier&>(), py::arg("id"))
        .def(py::init<const std::shared_ptr<T>&>(), py::arg("entity"))
        .def_property(
            "id", [](const Reference& self) { return self.Id(); },
            [](Reference& self, const BusinessEntityModel::BaseTypes::Identifier& id) { self.Id(id); })
        .def_property(
            "pointer", [](Reference& self) { return OrNone(self.Pointer()); },
            [](Reference& self, const std::shared_ptr<T>& entity) { self.Pointer(entity); },
            "The referenced entity, shared, or None when only the id is known.")
        .def_property_readonly("value",
                               [](Reference& self) {
                                   self.Value();
                                   return self.Pointer();
                               })
        .def("is_empty", &Reference::IsEmpty)
        .def("__bool__", [](const Reference& self) { return !self.IsEmpty(); })
        .def("__copy__", [](const Reference& self) { return self; })
        .def("__deepcopy__", [](const Reference& self, const py::dict&) { return self; })
        .def("__repr__", [name](const Reference& self) {
            return "<" + std::string(name) + " " + Quoted(self.Id().Value()) + (self.Pointer() ? " loaded>" : ">");
        });
    ConvertsImplicitlyFrom<T, BusinessEntityModel::BaseTypes::Identifier>(cls);
}

}  // namespace Orvik::Python
